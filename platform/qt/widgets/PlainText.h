#pragma once

#include <cstddef>
#include <QString>
#include <string>
#include <string_view>

class QTextDocument;

/// The text of a plain-text document as the controls see it: a break between two blocks is a carriage return and
/// a line feed and counts two. A lone one of either, and whatever else Qt would take for the end of a block, is
/// an ordinary character; in the document a noncharacter stands for it.
namespace kel::qt::plain {

/// Positions of the document and of the text. In the middle of a line break is in front of it.
std::size_t toText(const QTextDocument& document, int position);
int toDocument(const QTextDocument& document, std::size_t position);

std::size_t length(const QTextDocument& document);
std::u16string text(const QTextDocument& document);

/// Anything may become or stop being a line break: a carriage return and a line feed that come to stand together,
/// or apart.
void replace(QTextDocument& document, std::size_t start, std::size_t end, std::u16string_view text);

/// As a document takes it in: blocks end with U+2029.
QString encoded(std::u16string_view text);

}  // namespace kel::qt::plain
