#include "platform/qt/widgets/LineLayout.h"

#include <cmath>
#include <QPainter>

#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

namespace {

bool isUnseen(QChar unit) {
    return (unit < u' ' && unit != u'\t') || unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator ||
           unit == QChar::ObjectReplacementCharacter;
}

QString displayed(std::u16string_view text) {
    QString shown = toQString(text);
    for (qsizetype at = 0; at < shown.size(); ++at)
        if (isUnseen(shown.at(at))) shown[at] = u' ';
    return shown;
}

QTextOption optionFor(Qt::LayoutDirection direction) {
    QTextOption option;
    option.setTextDirection(direction);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setWrapMode(QTextOption::NoWrap);
    return option;
}

}  // namespace

void LineLayout::lay(std::u16string_view text, const QFont& font, Qt::LayoutDirection emptyDirection,
                     const Composition& composition, std::size_t at) {
    ComposedAt_ = at;
    ComposedLength_ = static_cast<int>(composition.text.size());
    ComposedCaret_ = composition.caret;
    const QString shown = displayed(text);
    const Qt::LayoutDirection own = shown.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    Layout_.clearLayout();
    if (Layout_.font() != font) Layout_.setFont(font);
    Layout_.setText(shown);
    Layout_.setTextOption(optionFor(shown.isEmpty() ? emptyDirection : own));
    Layout_.setPreeditArea(ComposedLength_ > 0 ? static_cast<int>(at) : -1, composition.text);
    QList<QTextLayout::FormatRange> formats = composition.formats;
    for (QTextLayout::FormatRange& format : formats) format.start += static_cast<int>(at);
    Layout_.setFormats(formats);
    Layout_.setCacheEnabled(true);
    Layout_.beginLayout();
    const QTextLine line = Layout_.createLine();
    Layout_.endLayout();
    Width_ = static_cast<int>(std::ceil(line.naturalTextWidth()));
    Ascent_ = static_cast<int>(std::lround(line.ascent()));
}

bool LineLayout::isRightToLeft() const { return Layout_.textOption().textDirection() == Qt::RightToLeft; }

/// The caret of a composition stands in it.
int LineLayout::toLaidOut(std::size_t position) const {
    if (ComposedLength_ == 0 || position < ComposedAt_) return static_cast<int>(position);
    if (position == ComposedAt_) return static_cast<int>(position) + ComposedCaret_;
    return static_cast<int>(position) + ComposedLength_;
}

int LineLayout::xOf(std::size_t position) const {
    return static_cast<int>(std::lround(Layout_.lineAt(0).cursorToX(toLaidOut(position))));
}

std::size_t LineLayout::positionAt(int x) const {
    const int found = Layout_.lineAt(0).xToCursor(x);
    const auto composedAt = static_cast<int>(ComposedAt_);
    if (ComposedLength_ == 0 || found <= composedAt) return static_cast<std::size_t>(found);
    return static_cast<std::size_t>(std::max(found - ComposedLength_, composedAt));
}

void LineLayout::paint(QPainter& painter, const QPoint& corner, const Selection& selection, const QPalette& palette,
                       const QRect& clip) const {
    QList<QTextLayout::FormatRange> selected;
    if (!selection.empty()) {
        QTextLayout::FormatRange range;
        // What is being composed is in front of what is selected, and is not.
        range.start = static_cast<int>(selection.start()) + ComposedLength_;
        range.length = static_cast<int>(selection.length());
        range.format.setBackground(palette.brush(QPalette::Highlight));
        range.format.setForeground(palette.brush(QPalette::HighlightedText));
        selected.append(range);
    }
    painter.setPen(palette.color(QPalette::Text));
    Layout_.draw(&painter, corner, selected, clip);
}

void LineLayout::paintCaret(QPainter& painter, const QPoint& corner, std::size_t position, int width) const {
    Layout_.drawCursor(&painter, corner, toLaidOut(position), width);
}

}  // namespace kel::qt
