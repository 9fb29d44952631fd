#include "platform/qt/widgets/PlainText.h"

#include <algorithm>
#include <iterator>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include "platform/qt/base/TextBridge.h"

namespace kel::qt::plain {

namespace {

constexpr std::u16string_view LineBreak = u"\r\n";

/// Characters that end a block for Qt, or begin and end its frames, and what stands for them in the document.
struct StandIn {
    char16_t character;
    char16_t inDocument;
};

constexpr StandIn StandIns[] = {
    {u'\r', 0xFDD2}, {u'\n', 0xFDD3}, {0x2029, 0xFDD4}, {0xFDD0, 0xFDD5}, {0xFDD1, 0xFDD6},
};

constexpr bool mayStandIn(char16_t unit) { return unit >= 0xFDD2 && unit <= 0xFDD6; }
constexpr bool mayNeedStandIn(char16_t unit) { return unit < u' ' || unit == 0x2029 || unit >= 0xFDD0; }

char16_t toDocument(char16_t unit) {
    if (!mayNeedStandIn(unit)) return unit;
    for (const StandIn& pair : StandIns)
        if (pair.character == unit) return pair.inDocument;
    return unit;
}

constexpr char16_t LoneReturn = StandIns[0].inDocument;
constexpr char16_t LoneFeed = StandIns[1].inDocument;

char16_t toText(char16_t unit) { return mayStandIn(unit) ? StandIns[unit - 0xFDD2].character : unit; }

/// Where the text of a block begins.
std::size_t startOf(const QTextBlock& block) {
    return static_cast<std::size_t>(block.position()) + static_cast<std::size_t>(block.blockNumber());
}

std::size_t lengthOf(const QTextBlock& block) { return static_cast<std::size_t>(block.length() - 1); }

/// The block that holds `position`, or the line break after it.
QTextBlock blockAt(const QTextDocument& document, std::size_t position) {
    int first = 0;
    int after = document.blockCount();
    while (after - first > 1) {
        const int middle = first + (after - first) / 2;
        if (startOf(document.findBlockByNumber(middle)) <= position)
            first = middle;
        else
            after = middle;
    }
    return document.findBlockByNumber(first);
}

/// Whether `position` lies between the two characters of a line break.
bool splitsBreak(const QTextDocument& document, std::size_t position) {
    const QTextBlock block = blockAt(document, position);
    return position > startOf(block) + lengthOf(block);
}

void appendDecoded(std::u16string& text, QStringView part) {
    const std::size_t start = text.size();
    text += viewOf(part);
    std::transform(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(),
                   text.begin() + static_cast<std::ptrdiff_t>(start), [](char16_t unit) { return toText(unit); });
}

}  // namespace

std::size_t toText(const QTextDocument& document, int position) {
    const QTextBlock block = document.findBlock(position);
    return static_cast<std::size_t>(position) + static_cast<std::size_t>(block.isValid() ? block.blockNumber() : 0);
}

int toDocument(const QTextDocument& document, std::size_t position) {
    const QTextBlock block = blockAt(document, position);
    return block.position() + static_cast<int>(std::min(position - startOf(block), lengthOf(block)));
}

std::size_t length(const QTextDocument& document) {
    return static_cast<std::size_t>(document.characterCount() - 1) +
           static_cast<std::size_t>(document.blockCount() - 1);
}

std::u16string text(const QTextDocument& document) {
    std::u16string text;
    text.reserve(length(document));
    for (QTextBlock block = document.firstBlock(); block.isValid(); block = block.next()) {
        if (block.blockNumber() > 0) text += LineBreak;
        appendDecoded(text, block.text());
    }
    return text;
}

void replace(QTextDocument& document, std::size_t start, std::size_t end, std::u16string_view text) {
    std::u16string all(text);
    const bool withReturn =
        splitsBreak(document, start) || document.characterAt(toDocument(document, start) - 1) == QChar(LoneReturn);
    const bool withFeed =
        splitsBreak(document, end) || document.characterAt(toDocument(document, end)) == QChar(LoneFeed);
    if (withReturn) all.insert(0, u"\r");
    if (withFeed) all += u'\n';

    QTextCursor cursor(&document);
    cursor.setPosition(toDocument(document, withReturn ? start - 1 : start));
    cursor.setPosition(toDocument(document, withFeed ? end + 1 : end), QTextCursor::KeepAnchor);
    cursor.insertText(encoded(all));
}

QString encoded(std::u16string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text.substr(at, LineBreak.size()) == LineBreak) {
            result += QChar::ParagraphSeparator;
            ++at;
        } else {
            result += QChar(toDocument(text[at]));
        }
    }
    return result;
}

}  // namespace kel::qt::plain
