#include "platform/qt/ui/UiNames.h"

#include <QStringList>

#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

namespace {

/// That a control may well be called.
bool isReserved(const QString& name) {
    static const QSet<QString> Words{
        "and",       "auto",     "bool",     "break",     "case",   "catch",    "char",     "class",  "const",
        "continue",  "default",  "delete",   "do",        "double", "else",     "emit",     "enum",   "explicit",
        "export",    "extern",   "false",    "float",     "for",    "foreach",  "friend",   "goto",   "if",
        "inline",    "int",      "long",     "namespace", "new",    "not",      "operator", "or",     "private",
        "protected", "public",   "register", "return",    "short",  "signals",  "signed",   "sizeof", "slots",
        "static",    "struct",   "switch",   "template",  "this",   "throw",    "true",     "try",    "typename",
        "union",     "unsigned", "using",    "virtual",   "void",   "volatile", "while",    "xor"};
    return Words.contains(name);
}

QString wordOf(const FormBlock& block) {
    QString word = toQString(block.name);
    for (QChar& letter : word)
        if (letter.unicode() >= 0x80 || !(letter.isLetterOrNumber() || letter == u'_')) letter = u'_';
    if (word.isEmpty() || word.front().isDigit()) word.prepend(u'_');
    if (block.index) word += u'_' + QString::number(*block.index).replace(u'-', u'_');
    return isReserved(word) ? word + u'_' : word;
}

}  // namespace

QString UiNames::of(FormBlockId id, const FormBlock& block) {
    QString& name = Names_[id];
    if (!name.isEmpty()) return name;
    const QString word = wordOf(block);
    name = word;
    for (int copy = 2; Taken_.contains(name); ++copy) name = word + u'_' + QString::number(copy);
    Taken_.insert(name);
    return name;
}

}  // namespace kel::qt
