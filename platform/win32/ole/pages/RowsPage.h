#pragma once

#include "platform/win32/ole/pages/PropertyPage.h"
#include "platform/win32/ole/pages/RowEditor.h"

namespace kel::win32::ole {

/// A page made of the rows of the selected controls, an editor for each property that belongs on it. The pages for
/// formats and numbers show beside them what would come of it.
class RowsPage final : public PropertyPage {
public:
    using PropertyPage::PropertyPage;

private:
    void takeObjects() override;
    void layOut(DialogTemplate& dialog) override;
    void showAll() override;
    std::optional<std::u16string> applyAll() override;
    bool edit(const MemberRow& row) override;
    void command(DWORD id, UINT code) override;

    std::vector<RowEditor> makeEditors() const;
    bool hasSample() const { return kind() != DesignPage::General; }
    std::u16string sample() const;
    void showSample() const;

    std::vector<RowEditor> Editors_;
    bool Showing_ = false;  ///< the editors change by themselves
};

}  // namespace kel::win32::ole
