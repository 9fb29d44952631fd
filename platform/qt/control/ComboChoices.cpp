#include "platform/qt/control/ComboChoices.h"

#include "controls/combo/KelCombo.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/VariantBridge.h"

namespace kel::qt::choices {

namespace {

const KelCombo& comboOf(const Control& control) { return static_cast<const KelCombo&>(control); }
KelCombo& comboOf(Control& control) { return static_cast<KelCombo&>(control); }

/// Items count from 1 in the control itself.
std::int16_t numberOf(std::int32_t index) { return static_cast<std::int16_t>(index + 1); }

}  // namespace

QStringList items(const Control& control) {
    const ListItems& items = comboOf(control).items();
    QStringList texts;
    texts.reserve(items.size());
    for (std::int32_t i = 0; i < items.size(); ++i) texts.append(toQString(items.item(i)));
    return texts;
}

void setItems(Control& control, const QStringList& items) {
    comboOf(control).ListFromArray(std::get<StringArray>(fromTexts(items)));
}

int currentIndex(const Control& control) { return comboOf(control).itemOfText(); }

void setCurrentIndex(Control& control, int index) {
    KelCombo& combo = comboOf(control);
    if (index >= 0 && index < combo.get_ListCount())
        combo.put_ListIndex(numberOf(index));
    else
        combo.put_Text({});
}

QVariant currentData(const Control& control) {
    const std::int32_t index = comboOf(control).itemOfText();
    return index < 0 ? QVariant() : QVariant(toQString(comboOf(control).get_ListTagItem(numberOf(index))));
}

void setCurrentData(Control& control, const QVariant& tag) {
    const KelCombo& combo = comboOf(control);
    const QString wanted = tag.toString();
    std::int32_t index = tag.isNull() ? combo.get_ListCount() : 0;
    while (index < combo.get_ListCount() && qtViewOf(combo.get_ListTagItem(numberOf(index))) != wanted) ++index;
    setCurrentIndex(control, index);
}

}  // namespace kel::qt::choices
