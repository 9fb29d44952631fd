#pragma once

#include "platform/win32/ole/pages/PropertyPage.h"
#include "runtime/TaggedList.h"

namespace kel::win32::ole {

/// Items and tags of a list side by side, edited where they stand.
class ListPage final : public PropertyPage {
public:
    ListPage(Module& module, IUnknown* outer) : PropertyPage(module, outer, DesignPage::List) {}

private:
    /// A place in the list; the second column has the tags.
    struct Cell {
        int row = 0;
        int column = 0;
    };

    void takeObjects() override;
    void layOut(DialogTemplate& dialog) override;
    void showAll() override;
    std::optional<std::u16string> applyAll() override;
    bool edit(const MemberRow& row) override;
    void command(DWORD id, UINT code) override;
    LRESULT notify(const NMHDR& notice) override;
    bool takeKey(const MSG& message) override;
    void closing() override { endEdit(true); }

    bool takeListKey(WPARAM key);
    bool takeCellKey(WPARAM key);

    int count() const { return static_cast<int>(Items_.size()); }
    /// -1 for none.
    int selected() const;
    void select(int row);
    void changed();
    void showButtons() const;

    void addItem();
    void removeItem();
    void moveItem(int by);
    void import(const std::u16string& text);
    void importFile();

    std::u16string& textIn(Cell cell);
    void beginEdit(Cell cell);
    void endEdit(bool keep);
    /// Takes what was typed and goes on to another cell; to the list where there is none.
    void editNext(Cell cell);

    TaggedList Items_;
    bool Differ_ = false;    ///< the selected objects have several lists
    HWND Editor_ = nullptr;  ///< over the cell that is being edited
    Cell Edited_;
};

}  // namespace kel::win32::ole
