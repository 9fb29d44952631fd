#include "platform/qt/QtLineBox.h"

#include "platform/qt/PasswordStyle.h"

namespace kel::qt {

void QtLineBox::showPasswordChar(char16_t character) {
    setStyle(character == 0 ? nullptr : passwordStyle(character));
    setEchoMode(character == 0 ? Normal : Password);
}

}  // namespace kel::qt
