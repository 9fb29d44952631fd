#pragma once

#include <QString>

#include "host/widgets/TextEntry.h"

class QDropEvent;
class QKeyEvent;
class QInputMethodEvent;
class QPoint;
class QWheelEvent;

namespace kel::qt {

class FieldView;

/// What a person does to a text, whichever of Qt's widgets shows it: on its way to the box.
class TextInput {
public:
    /// Both outlive the input.
    TextInput(TextEntry& box, FieldView& field) : Box_(box), Field_(field) {}

    TextEntry& box() const { return Box_; }
    FieldView& field() const { return Field_; }

    void keyPressed(QKeyEvent& event);
    void shortcutAsked(QKeyEvent& event) const;
    /// What an input method has finished. False where the box takes nothing.
    bool committed(QInputMethodEvent& event);
    /// Returns whether it was turned for this box.
    bool wheelTurned(const QWheelEvent& event);
    void menuAsked(const QPoint& globalPosition);
    /// By the middle button: the text that is selected somewhere on the desktop.
    void pastePicked(const QString& text);
    void pastePicked();
    /// What is selected here can be pasted by the middle button elsewhere.
    void offerPicked() const;

    // ---- A text hovers above the box, or is let go there

    void hovered(QDropEvent& event) const;
    /// The box takes the text, and the focus first: false otherwise.
    bool accepts(QDropEvent& event);
    void dropped(QDropEvent& event, std::size_t place);

    /// The next press of a mouse button puts the caret to `position`, wherever in the box it is; -1 withdraws.
    void aim(std::int32_t position) { Aim_ = position; }
    std::int32_t takeAim(std::int32_t pressed);

private:
    bool isMovedHere(const QDropEvent& event) const;
    bool takeFocus();

    TextEntry& Box_;
    FieldView& Field_;
    std::int32_t Aim_ = -1;
};

MouseButton buttonOf(Qt::MouseButton button);

}  // namespace kel::qt
