#include "bench/Memory.h"

#include <malloc.h>

#include <cstdio>
#include <QApplication>
#include <QComboBox>

#include "bench/Names.h"
#include "bench/PaintBench.h"
#include "bench/Widgets.h"
#include "controls/combo/KelCombo.h"
#include "controls/combo/ListText.h"
#include "KelComboWidget.h"

namespace kel::bench {

namespace {

std::size_t heapBytes() { return mallinfo2().uordblks; }

/// What a shown combo takes for its items, its list open and searched. `fill` puts the items in, `open` opens the list.
template <class Edit, class Fill, class Open>
std::size_t bytesOfList(Fill fill, Open open) {
    const FocusedEdit<Edit> shown;
    const std::size_t before = heapBytes();
    fill(*shown.edit);
    open(*shown.edit);
    QCoreApplication::processEvents();
    return heapBytes() - before;
}

/// Most a form may take of what the same one of plain Qt widgets takes.
struct FormLimit {
    int fields;
    double most;
};
constexpr FormLimit FormLimits[] = {{30, 0.8}, {300, 0.5}, {1200, 0.4}};

void printLine(const std::string& what, double ours, double peers, double most) {
    std::printf("%-58s %9.2f MB %9.2f MB %8.2f %10.2f %s\n", what.c_str(), ours / 1e6, peers / 1e6, ours / peers, most,
                ours / peers <= most ? "" : "OVER");
}

}  // namespace

void printMemory() {
    const auto ours = bytesOfList<KelComboWidget>(
        [](KelComboWidget& widget) { static_cast<KelCombo&>(widget.control()).ListFromArray(names(MostListItems)); },
        [](KelComboWidget& widget) {
            ComboBox& box = *widget.control().widgets().comboBox;
            static_cast<void>(box.items().findPrefix(u"s"));
            static_cast<void>(box.items().findExact(u"s"));
            box.showDropDown(true);
        });
    const auto peers = bytesOfList<QComboBox>(
        [](QComboBox& box) {
            box.setEditable(true);
            for (const std::u16string& name : names(MostListItems)) box.addItem(QString::fromStdU16String(name));
        },
        [](QComboBox& box) { box.showPopup(); });
    printLine("memory of 32,767 items, list open / combo box", static_cast<double>(ours), static_cast<double>(peers),
              1);
    for (const FormLimit& limit : FormLimits) {
        const FormMemory memory = memoryOfForm(limit.fields, &heapBytes);
        printLine("memory of " + std::to_string(limit.fields) + " fields in a shown form / plain Qt",
                  static_cast<double>(memory.ours), static_cast<double>(memory.peers), limit.most);
    }
}

}  // namespace kel::bench
