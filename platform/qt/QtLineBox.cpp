#include "platform/qt/QtLineBox.h"

#include "platform/qt/PasswordStyle.h"

namespace kel::qt {

void QtLineBox::showPasswordChar(char16_t mask) {
    setStyle(mask == 0 ? nullptr : passwordStyle(mask));
    setEchoMode(mask == 0 ? Normal : Password);
}

}  // namespace kel::qt
