#include "platform/qt/designer/FieldMenu.h"

#include <algorithm>
#include <QAction>
#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
#include <QExtensionManager>
#include <QInputDialog>

#include "platform/qt/designer/FormatDialog.h"
#include "platform/qt/designer/ListDialog.h"

namespace kel::qt::designer {

namespace {

constexpr char Caption[] = "caption";
constexpr char Format[] = "format";
constexpr char List[] = "list";
constexpr char ListTag[] = "listTag";
constexpr char MultiLine[] = "multiLine";
constexpr char Text[] = "text";

const PropertyFacts* findProperty(const WidgetFacts& facts, const char* name) {
    const auto found =
        std::find_if(facts.properties.begin(), facts.properties.end(),
                     [name](const PropertyFacts& property) { return qstrcmp(property.name, name) == 0; });
    return found != facts.properties.end() ? &*found : nullptr;
}

}  // namespace

FieldMenu::FieldMenu(QWidget& field, const WidgetFacts& facts, QObject* parent)
    : QObject(parent), Field_(field), Facts_(facts) {
    if (findProperty(facts, List) != nullptr) add(tr("Edit Items and Tags..."), &FieldMenu::editItems);
    if (findProperty(facts, Format) != nullptr) add(tr("Edit Format..."), &FieldMenu::editFormat);
    if (findProperty(facts, Caption) != nullptr) add(tr("Edit Caption..."), &FieldMenu::editCaption);
    if (findProperty(facts, MultiLine) != nullptr) add(tr("Edit Text..."), &FieldMenu::editText);
}

void FieldMenu::add(const QString& title, void (FieldMenu::*edit)()) {
    auto* const action = new QAction(title, this);
    connect(action, &QAction::triggered, this, edit);
    Actions_.append(action);
}

QString FieldMenu::text(const char* property) const { return Field_.property(property).toString(); }

void FieldMenu::put(const QString& deed, const QList<QPair<const char*, QString>>& values) {
    auto* const form = QDesignerFormWindowInterface::findFormWindow(&Field_);
    if (form == nullptr) return;
    form->beginCommand(deed);
    for (const auto& [property, value] : values)
        if (value != text(property)) form->cursor()->setWidgetProperty(&Field_, QString::fromUtf8(property), value);
    form->endCommand();
}

void FieldMenu::editItems() {
    ListDialog dialog(text(List), text(ListTag), Field_.window());
    if (dialog.exec() != QDialog::Accepted) return;
    put(tr("Change items of %1").arg(Field_.objectName()), {{List, dialog.items()}, {ListTag, dialog.tags()}});
}

void FieldMenu::editFormat() {
    FormatDialog dialog(Facts_, *findProperty(Facts_, Format), text(Format), Field_.window());
    if (dialog.exec() != QDialog::Accepted) return;
    put(tr("Change format of %1").arg(Field_.objectName()), {{Format, dialog.format()}});
}

void FieldMenu::editText() {
    bool isAccepted = false;
    QWidget* const window = Field_.window();
    const QString entered =
        Field_.property(MultiLine).toBool()
            ? QInputDialog::getMultiLineText(window, tr("Edit Text"), tr("Text:"), text(Text), &isAccepted)
            : QInputDialog::getText(window, tr("Edit Text"), tr("Text:"), QLineEdit::Normal, text(Text), &isAccepted);
    if (isAccepted) put(tr("Change text of %1").arg(Field_.objectName()), {{Text, entered}});
}

void FieldMenu::editCaption() {
    bool isAccepted = false;
    const QString caption = QInputDialog::getText(Field_.window(), tr("Edit Caption"),
                                                  tr("Caption, with & before the letter that leads to the field:"),
                                                  QLineEdit::Normal, text(Caption), &isAccepted);
    if (isAccepted) put(tr("Change caption of %1").arg(Field_.objectName()), {{Caption, caption}});
}

FieldMenuFactory::FieldMenuFactory(const WidgetFacts& facts, QExtensionManager* manager)
    : QExtensionFactory(manager), Facts_(facts) {}

QObject* FieldMenuFactory::createExtension(QObject* object, const QString& iid, QObject* parent) const {
    auto* const field = qobject_cast<QWidget*>(object);
    if (field == nullptr || iid != Q_TYPEID(QDesignerTaskMenuExtension) ||
        qstrcmp(field->metaObject()->className(), Facts_.className) != 0)
        return nullptr;
    return new FieldMenu(*field, Facts_, parent);
}

}  // namespace kel::qt::designer
