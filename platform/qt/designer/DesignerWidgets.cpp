#include "platform/qt/designer/DesignerWidgets.h"

#include <algorithm>
#include <QDesignerFormEditorInterface>
#include <QExtensionManager>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QXmlStreamWriter>

#include "platform/qt/designer/FieldMenu.h"
#include "platform/qt/designer/WidgetFacts.h"

namespace kel::qt::designer {

namespace {

constexpr char Group[] = "KelControls8";

/// In the middle of a ground as large as the icons of Qt's own widgets, so that the names stand under each other. Each
/// of its pixels becomes four on a fine screen.
QPixmap scaled(const QPixmap& picture, int scale) {
    constexpr int Side = 22;
    QPixmap icon(QSize(Side, Side) * scale);
    icon.fill(Qt::transparent);
    const QPixmap drawn = picture.scaled(picture.size() * scale);
    QPainter(&icon).drawPixmap((icon.width() - drawn.width()) / 2, (icon.height() - drawn.height()) / 2, drawn);
    icon.setDevicePixelRatio(scale);
    return icon;
}

QIcon iconOf(const WidgetFacts& facts) {
    const QPixmap picture(facts.picture);
    QIcon icon(picture);
    for (const int scale : {1, 2}) icon.addPixmap(scaled(picture, scale));
    return icon;
}

void writeSpecifications(QXmlStreamWriter& xml, const PropertyFacts& property) {
    const QString name = QString::fromUtf8(property.name);
    xml.writeStartElement(QStringLiteral("tooltip"));
    xml.writeAttribute(QStringLiteral("name"), name);
    xml.writeCharacters(QString::fromUtf8(property.help));
    xml.writeEndElement();
    if (property.editor == nullptr) return;
    xml.writeStartElement(QStringLiteral("stringpropertyspecification"));
    xml.writeAttribute(QStringLiteral("name"), name);
    xml.writeAttribute(QStringLiteral("type"), QString::fromUtf8(property.editor));
    if (!property.isTranslated) xml.writeAttribute(QStringLiteral("notr"), QStringLiteral("true"));
    xml.writeEndElement();
}

bool hasCaption(const WidgetFacts& facts) {
    return std::any_of(facts.properties.begin(), facts.properties.end(),
                       [](const PropertyFacts& property) { return qstrcmp(property.name, "caption") == 0; });
}

/// What a widget dropped from the box starts with, and how its properties are edited.
QString domXmlOf(const WidgetFacts& facts) {
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
    xml.writeAttribute(QStringLiteral("displayname"), QString::fromUtf8(facts.title));
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), QString::fromUtf8(facts.className));
    xml.writeAttribute(QStringLiteral("name"), QString::fromUtf8(facts.objectName));
    if (hasCaption(facts)) {
        xml.writeStartElement(QStringLiteral("property"));
        xml.writeAttribute(QStringLiteral("name"), QStringLiteral("caption"));
        xml.writeTextElement(QStringLiteral("string"), QString::fromUtf8(facts.title));
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("customwidgets"));
    xml.writeStartElement(QStringLiteral("customwidget"));
    xml.writeTextElement(QStringLiteral("class"), QString::fromUtf8(facts.className));
    xml.writeStartElement(QStringLiteral("propertyspecifications"));
    for (const PropertyFacts& property : facts.properties) writeSpecifications(xml, property);
    xml.writeEndDocument();
    return text;
}

class DesignerWidget final : public QObject, public QDesignerCustomWidgetInterface {
public:
    DesignerWidget(const WidgetFacts& facts, QObject* parent) : QObject(parent), Facts_(facts) {}

    QString name() const override { return QString::fromUtf8(Facts_.className); }
    QString group() const override { return QString::fromUtf8(Group); }
    QString toolTip() const override { return QString::fromUtf8(Facts_.help); }
    QString whatsThis() const override { return toolTip(); }
    QString includeFile() const override { return QStringLiteral("<KelControls8/%1.h>").arg(name()); }
    QIcon icon() const override { return iconOf(Facts_); }
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override { return Facts_.make(parent); }
    QString domXml() const override { return domXmlOf(Facts_); }
    bool isInitialized() const override { return IsInitialized_; }

    /// By the designer alone; a form that is loaded at run time has no editor.
    void initialize(QDesignerFormEditorInterface* editor) override {
        if (IsInitialized_ || editor == nullptr) return;
        IsInitialized_ = true;
        QExtensionManager* const manager = editor->extensionManager();
        manager->registerExtensions(new FieldMenuFactory(Facts_, manager), Q_TYPEID(QDesignerTaskMenuExtension));
    }

private:
    const WidgetFacts& Facts_;
    bool IsInitialized_ = false;
};

}  // namespace

DesignerWidgets::DesignerWidgets(QObject* parent) : QObject(parent) {
    for (const WidgetFacts& facts : widgetFacts()) Widgets_.append(new DesignerWidget(facts, this));
}

DesignerWidgets::~DesignerWidgets() = default;

}  // namespace kel::qt::designer
