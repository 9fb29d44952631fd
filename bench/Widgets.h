#pragma once

#include <benchmark/benchmark.h>

#include <deque>
#include <memory>
#include <QApplication>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QWidget>
#include <QWindow>

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
        // Nothing is painted before.
        while (!window.windowHandle()->isExposed()) QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    QWidget window;
    Edit* edit;
};

inline QKeyEvent typed(QChar character) {
    return QKeyEvent(QEvent::KeyPress, character.toUpper().unicode(), Qt::NoModifier, QString(character));
}

/// Keys that are pressed one after the other in a field, which is cleared after the last, outside the clock.
class Strokes {
public:
    explicit Strokes(const QString& letters) {
        for (const QChar letter : letters)
            Keys_.emplace_back(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, QString(letter));
    }
    Strokes(Qt::Key key, std::size_t times) {
        while (Keys_.size() < times) Keys_.emplace_back(QEvent::KeyPress, key, Qt::NoModifier);
    }

    QKeyEvent& next() {
        QKeyEvent& key = Keys_[Next_];
        Next_ = (Next_ + 1) % Keys_.size();
        key.accept();
        return key;
    }
    bool isAtStart() const { return Next_ == 0; }

private:
    std::deque<QKeyEvent> Keys_;
    std::size_t Next_ = 0;
};

/// A field may leave until later what it has to do to show the new text, but not once an input method asks for it: so
/// that its cost is the key's in every field.
inline void strike(QWidget& target, QKeyEvent& key) {
    QCoreApplication::sendEvent(&target, &key);
    QInputMethodQueryEvent asked(Qt::ImCursorPosition);
    QCoreApplication::sendEvent(&target, &asked);
}

/// What a key has altered of the field with the focus, or not: its text, caret and selection.
inline QString lookOf(QWidget& target) {
    QInputMethodQueryEvent asked(Qt::ImSurroundingText | Qt::ImCursorPosition | Qt::ImAnchorPosition);
    QCoreApplication::sendEvent(&target, &asked);
    return QStringLiteral("%1 %2 %3")
        .arg(asked.value(Qt::ImCursorPosition).toInt())
        .arg(asked.value(Qt::ImAnchorPosition).toInt())
        .arg(asked.value(Qt::ImSurroundingText).toString());
}

/// Two rounds of what is to be timed, to see that each key does something: a field is quick at keys that it refuses.
/// Says what is wrong, or nothing.
template <class Edit, class Press, class Clear>
const char* whyNotTimed(Edit& edit, const Strokes& keys, Press press, Clear clear) {
    QWidget* const target = QApplication::focusWidget();
    if (target == nullptr || !(target == &edit || edit.isAncestorOf(target))) return "the field did not take the focus";
    for (int round = 0; round < 2; ++round) {
        clear();
        do {
            const QString before = lookOf(*target);
            press();
            if (lookOf(*target) == before) return "the field took no notice of a key";
        } while (!keys.isAtStart());
    }
    clear();
    return nullptr;
}

/// As a field stands that has been entered by Tab: the next key replaces all of it.
inline void selectAll() {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &key);
}

/// Presses `keys` again and again in `edit`; after the last, outside the clock, `clear` empties it.
template <class Edit, class Clear>
void pressKeys(benchmark::State& state, Edit& edit, Strokes keys, Clear clear) {
    const auto press = [&keys, target = QApplication::focusWidget()] { strike(*target, keys.next()); };
    if (const char* const why = whyNotTimed(edit, keys, press, clear)) return state.SkipWithError(why);
    for (auto _ : state) {
        press();
        if (!keys.isAtStart()) continue;
        state.PauseTiming();
        clear();
        state.ResumeTiming();
    }
}

}  // namespace kel::bench
