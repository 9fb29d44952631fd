#pragma once

#include <QScrollArea>

namespace kel::qt {

/// Shows a form of any size. A field that gets the focus, by whichever way, is brought into view, with its caption.
class FormArea final : public QScrollArea {
public:
    explicit FormArea(QWidget* parent);

private:
    void follow(QWidget* focused);
};

}  // namespace kel::qt
