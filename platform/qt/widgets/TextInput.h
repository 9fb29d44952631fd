#pragma once

#include <QEvent>
#include <QString>

#include "host/editing/ClickCounter.h"
#include "host/widgets/TextEntry.h"
#include "platform/qt/widgets/FieldView.h"

class QDropEvent;
class QKeyEvent;
class QInputMethodEvent;
class QMouseEvent;
class QPoint;
class QWheelEvent;

namespace kel::qt {

/// A child widget with a text. What a person does to it, whichever of Qt's widgets shows it, is on its way to the box.
class TextInput : public FieldView {
public:
    TextInput(ControlSite& site, QWidget& widget, TextEntry& box) : FieldView(site, widget, box), Box_(box) {}

    TextEntry& box() const { return Box_; }

    /// The next press of a mouse button puts the caret to `position`, wherever in the box it is; -1 withdraws.
    void aim(std::int32_t position) { Aim_ = position; }

protected:
    /// As `FieldView` does, but for shortcuts of the window, which the box may want for itself.
    template <class Way>
    bool hear(QEvent& event, Way way) {
        return FieldView::hear(event, [&] { return event.type() == QEvent::ShortcutOverride ? claim(event) : way(); });
    }
    void keyPressed(QKeyEvent& event);
    /// By an input method. In front of the selection, which gives way when the composition is committed and not before:
    /// it may yet be cancelled.
    void composed(QInputMethodEvent& event);
    /// Returns whether it was turned for this box.
    bool wheelTurned(const QWheelEvent& event);
    /// Opens the usual menu of an edit box.
    void menuAsked(const QPoint& globalPosition);
    /// By the middle button: the text that is selected somewhere on the desktop.
    void pastePicked(const QString& text);
    void pastePicked();
    /// What is selected here can be pasted by the middle button elsewhere.
    void offerPicked() const;
    std::int32_t takeAim(std::int32_t pressed);
    /// How many presses this one is, with those before it.
    int clicksOf(const QMouseEvent& event);

    // ---- A text hovers above the box, or is let go there

    void hovered(QDropEvent& event) const;
    /// The box takes the text, and the focus first: false otherwise.
    bool accepts(QDropEvent& event);
    void dropped(QDropEvent& event, std::size_t place);

private:
    bool claim(QEvent& event) const;
    /// What an input method is composing, or that it is not.
    virtual void showComposition(QInputMethodEvent& event) = 0;
    bool isMovedHere(const QDropEvent& event) const;
    bool takeFocus();

    TextEntry& Box_;
    ClickCounter Clicks_;
    std::int32_t Aim_ = -1;
};

MouseButton buttonOf(Qt::MouseButton button);

}  // namespace kel::qt
