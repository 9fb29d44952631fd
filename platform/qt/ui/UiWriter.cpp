#include "platform/qt/ui/UiWriter.h"

#include <QDate>
#include <QLocale>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QTime>
#include <stdexcept>

namespace kel::qt {

namespace {

QString truth(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }

}  // namespace

UiWriter::UiWriter(const QString& className) : Xml_(&Bytes_) {
    Xml_.setAutoFormatting(true);
    Xml_.setAutoFormattingIndent(1);
    Xml_.writeStartDocument();
    begin(QStringLiteral("ui"));
    Xml_.writeAttribute(QStringLiteral("version"), QStringLiteral("4.0"));
    Xml_.writeTextElement(QStringLiteral("class"), className);
}

void UiWriter::beginWidget(const QString& className, const QString& name) {
    begin(QStringLiteral("widget"));
    Xml_.writeAttribute(QStringLiteral("class"), className);
    Xml_.writeAttribute(QStringLiteral("name"), name);
}

void UiWriter::endWidget() { end(); }

// ---- Properties

void UiWriter::beginProperty(const QString& name) {
    begin(QStringLiteral("property"));
    Xml_.writeAttribute(QStringLiteral("name"), name);
}

void UiWriter::plain(const QString& name, const QString& element, const QString& value) {
    beginProperty(name);
    Xml_.writeTextElement(element, value);
    end();
}

void UiWriter::parts(std::initializer_list<std::pair<const char*, int>> numbers) {
    for (const auto& [part, number] : numbers)
        Xml_.writeTextElement(QString::fromLatin1(part), QString::number(number));
}

void UiWriter::compound(const QString& element, std::initializer_list<std::pair<const char*, int>> numbers) {
    begin(element);
    parts(numbers);
    end();
}

void UiWriter::value(const QVariant& value, Text text) {
    switch (value.typeId()) {
        case QMetaType::QString:
            begin(QStringLiteral("string"));
            if (text == Text::Same) Xml_.writeAttribute(QStringLiteral("notr"), truth(true));
            Xml_.writeCharacters(value.toString());
            return end();
        case QMetaType::Bool: return Xml_.writeTextElement(QStringLiteral("bool"), truth(value.toBool()));
        case QMetaType::Int: return Xml_.writeTextElement(QStringLiteral("number"), value.toString());
        case QMetaType::Double:
            return Xml_.writeTextElement(QStringLiteral("double"),
                                         QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest));
        case QMetaType::QDate: {
            const QDate date = value.toDate();
            return compound(QStringLiteral("date"),
                            {{"year", date.year()}, {"month", date.month()}, {"day", date.day()}});
        }
        case QMetaType::QTime: {
            const QTime time = value.toTime();
            return compound(QStringLiteral("time"),
                            {{"hour", time.hour()}, {"minute", time.minute()}, {"second", time.second()}});
        }
        case QMetaType::QRect: {
            const QRect rect = value.toRect();
            return compound(QStringLiteral("rect"),
                            {{"x", rect.x()}, {"y", rect.y()}, {"width", rect.width()}, {"height", rect.height()}});
        }
        case QMetaType::QSize: {
            const QSize size = value.toSize();
            return compound(QStringLiteral("size"), {{"width", size.width()}, {"height", size.height()}});
        }
        default: throw std::logic_error(std::string("no form holds a value of type ") + value.typeName());
    }
}

void UiWriter::property(const QString& name, const QVariant& value, Text text) {
    beginProperty(name);
    this->value(value, text);
    end();
}

void UiWriter::enumeration(const QString& name, const QString& value) { plain(name, QStringLiteral("enum"), value); }

void UiWriter::flags(const QString& name, const QString& value) { plain(name, QStringLiteral("set"), value); }

void UiWriter::reference(const QString& name, const QString& widget) { plain(name, QStringLiteral("cstring"), widget); }

void UiWriter::dynamicProperty(const QString& name, const QString& value) {
    beginProperty(name);
    Xml_.writeAttribute(QStringLiteral("stdset"), QStringLiteral("0"));
    this->value(value, Text::Same);
    end();
}

void UiWriter::font(const Font& font) {
    beginProperty(QStringLiteral("font"));
    begin(QStringLiteral("font"));
    if (!font.family.isEmpty()) Xml_.writeTextElement(QStringLiteral("family"), font.family);
    if (font.points > 0) Xml_.writeTextElement(QStringLiteral("pointsize"), QString::number(font.points));
    const std::pair<const char*, bool> faces[] = {
        {"bold", font.bold}, {"italic", font.italic}, {"underline", font.underline}, {"strikeout", font.strikeOut}};
    for (const auto& [face, isOn] : faces)
        if (isOn) Xml_.writeTextElement(QString::fromLatin1(face), truth(true));
    end();
    end();
}

void UiWriter::palette(const QList<Color>& colors) {
    beginProperty(QStringLiteral("palette"));
    begin(QStringLiteral("palette"));
    for (const char* const group : {"active", "inactive", "disabled"}) {
        begin(QString::fromLatin1(group));
        for (const Color& color : colors) {
            begin(QStringLiteral("colorrole"));
            Xml_.writeAttribute(QStringLiteral("role"), QString::fromLatin1(color.role));
            begin(QStringLiteral("brush"));
            Xml_.writeAttribute(QStringLiteral("brushstyle"), QStringLiteral("SolidPattern"));
            begin(QStringLiteral("color"));
            Xml_.writeAttribute(QStringLiteral("alpha"), QStringLiteral("255"));
            parts({{"red", static_cast<int>(color.rgb >> 16U & 0xFFU)},
                   {"green", static_cast<int>(color.rgb >> 8U & 0xFFU)},
                   {"blue", static_cast<int>(color.rgb & 0xFFU)}});
            end();
            end();
            end();
        }
        end();
    }
    end();
    end();
}

// ---- After the widgets

void UiWriter::tabStops(const QStringList& widgets) {
    if (widgets.isEmpty()) return;
    begin(QStringLiteral("tabstops"));
    for (const QString& widget : widgets) Xml_.writeTextElement(QStringLiteral("tabstop"), widget);
    end();
}

void UiWriter::customClasses(const QList<CustomClass>& classes) {
    if (classes.isEmpty()) return;
    begin(QStringLiteral("customwidgets"));
    for (const CustomClass& custom : classes) {
        begin(QStringLiteral("customwidget"));
        Xml_.writeTextElement(QStringLiteral("class"), custom.name);
        Xml_.writeTextElement(QStringLiteral("extends"), custom.base);
        begin(QStringLiteral("header"));
        Xml_.writeAttribute(QStringLiteral("location"), QStringLiteral("global"));
        Xml_.writeCharacters(custom.header);
        end();
        end();
    }
    end();
}

QByteArray UiWriter::finish() {
    Xml_.writeEmptyElement(QStringLiteral("resources"));
    Xml_.writeEmptyElement(QStringLiteral("connections"));
    Xml_.writeEndDocument();
    return Bytes_;
}

}  // namespace kel::qt
