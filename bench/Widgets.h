#pragma once

#include <benchmark/benchmark.h>

#include <memory>
#include <QApplication>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QWidget>

#include "host/Widgets.h"
#include "library/Control.h"
#include "platform/qt/control/KelControlWidget.h"

/// What the benchmarks of the widgets do with a control and with what stands in its place elsewhere alike.
namespace kel::bench {

template <class Control>
void makeControl(benchmark::State& state) {
    QWidget parent;
    for (auto _ : state) delete new Control(&parent);
}

template <class Edit>
void makeLabelAndEdit(benchmark::State& state) {
    QWidget parent;
    for (auto _ : state) {
        auto* label = new QLabel(&parent);
        auto* edit = new Edit(&parent);
        delete edit;
        delete label;
    }
}

/// In a window of its own with the focus, since a hidden edit skips most of a key's work.
template <class Edit>
struct FocusedEdit {
    FocusedEdit() : edit(new Edit(&window)) {
        edit->setGeometry(0, 0, 300, 20);
        window.resize(300, 40);
        window.show();
        QApplication::setActiveWindow(&window);
        edit->setFocus();
        QCoreApplication::processEvents();
    }

    QWidget window;
    Edit* edit;
};

/// Of one of our fields, as it stands while it is being typed.
inline QString shownText(const qt::KelControlWidget& field) {
    return QString::fromStdU16String(field.control().widgets().entry->text());
}

struct KeyPress {
    int key;
    QString text{};
};

inline KeyPress typed(int key, char16_t character) { return {key, QString(QChar(character))}; }

inline QKeyEvent eventOf(const KeyPress& pressed) {
    return QKeyEvent(QEvent::KeyPress, pressed.key, Qt::NoModifier, pressed.text);
}

/// A field may leave until later what it has to do to show the new text, but not once an input method asks for it: so
/// that its cost is the key's in every field.
inline void strike(QWidget& target, QKeyEvent& key) {
    key.accept();
    QCoreApplication::sendEvent(&target, &key);
    QInputMethodQueryEvent asked(Qt::ImCursorPosition);
    QCoreApplication::sendEvent(&target, &asked);
}

/// Presses `pressed` again and again in `edit`; now and then, outside the clock, `clear` empties it.
template <class Edit, class Clear, class Text>
void pressKey(benchmark::State& state, Edit& edit, const KeyPress& pressed, Clear clear, Text text) {
    constexpr int PressesBetween = 12;
    QWidget* const target = QApplication::focusWidget();
    if (target == nullptr || !(target == &edit || edit.isAncestorOf(target)))
        return state.SkipWithError("the field did not take the focus");
    QKeyEvent key = eventOf(pressed);
    const auto press = [&] { strike(*target, key); };
    clear();
    const QString before = text();
    press();
    if (text() == before) return state.SkipWithError("the keys did not arrive");
    int presses = 0;
    for (auto _ : state) {
        press();
        if (++presses % PressesBetween != 0) continue;
        state.PauseTiming();
        clear();
        state.ResumeTiming();
    }
}

}  // namespace kel::bench
