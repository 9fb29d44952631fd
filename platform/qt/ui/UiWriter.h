#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QXmlStreamWriter>

namespace kel::qt {

/// Writes the file of a form for Qt's designer, from the outermost widget to the innermost.
class UiWriter {
public:
    /// What becomes of a text in other languages.
    enum class Text : std::uint8_t { Translated, Same };

    explicit UiWriter(const QString& className);
    UiWriter(const UiWriter&) = delete;
    UiWriter& operator=(const UiWriter&) = delete;

    void beginWidget(const QString& className, const QString& name);
    void endWidget();

    /// Of a widget that has begun, and before those inside it. Throws std::logic_error for a type that no form has.
    void property(const QString& name, const QVariant& value, Text text = Text::Translated);
    /// "Qt::ClickFocus"
    void enumeration(const QString& name, const QString& value);
    /// "Qt::AlignLeft|Qt::AlignTop"
    void flags(const QString& name, const QString& value);
    /// The name of another widget.
    void reference(const QString& name, const QString& widget);
    /// One that the class does not have: a program reads it by its name.
    void dynamicProperty(const QString& name, const QString& value);

    struct Font {
        QString family;  ///< empty: that of the widget around
        int points = 0;  ///< 0: the same
        bool bold = false;
        bool italic = false;
        bool underline = false;
        bool strikeOut = false;
    };
    void font(const Font& font);

    /// The colours of what has them, by the names of their roles, such as "Base".
    struct Color {
        const char* role;
        std::uint32_t rgb;  ///< 0xRRGGBB
    };
    void palette(const QList<Color>& colors);

    void tabStops(const QStringList& widgets);
    /// A class that Qt does not have.
    struct CustomClass {
        QString name;
        QString base;
        QString header;
    };
    void customClasses(const QList<CustomClass>& classes);

    /// The whole file.
    QByteArray finish();

private:
    void begin(const QString& element) { Xml_.writeStartElement(element); }
    void end() { Xml_.writeEndElement(); }
    void beginProperty(const QString& name);
    void plain(const QString& name, const QString& element, const QString& value);
    /// <year>2013</year><month>3</month>, and such parts inside an element of their own.
    void parts(std::initializer_list<std::pair<const char*, int>> numbers);
    void compound(const QString& element, std::initializer_list<std::pair<const char*, int>> numbers);
    void value(const QVariant& value, Text text);

    QByteArray Bytes_;
    QXmlStreamWriter Xml_;
};

}  // namespace kel::qt
