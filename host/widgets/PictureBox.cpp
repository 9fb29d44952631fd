#include "host/widgets/PictureBox.h"

namespace kel {

Size PictureBox::extentOf(std::u16string_view text) const {
    return View_ != nullptr ? View_->extentOf(text) : extentUnseen(text.size());
}

void PictureBox::draw(BarPicture picture) {
    const bool isOtherPercent = picture.percent != Picture_.percent;
    Picture_ = std::move(picture);
    changed(isOtherPercent ? Change::Picture | Change::Percent : Changes(Change::Picture));
    if (View_ != nullptr) View_->paintNow();
}

}  // namespace kel
