#include <benchmark/benchmark.h>

#include <memory>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPainter>
#include <QTimeEdit>
#include <utility>
#include <vector>

#include "bench/Names.h"
#include "bench/PaintBench.h"
#include "bench/Widgets.h"
#include "KelCheckWidget.h"
#include "KelComboWidget.h"
#include "KelDateWidget.h"
#include "KelNumberWidget.h"
#include "KelTextWidget.h"
#include "KelTimeWidget.h"

/// To the end that a person feels: until the pixels are there. What a field puts off until it paints is not saved.
namespace kel::bench {

namespace {

/// Counts how often a widget, or a part of it, is painted.
class PaintCounter final : public QObject {
public:
    explicit PaintCounter(QWidget& watched) {
        watched.installEventFilter(this);
        for (QWidget* const part : watched.findChildren<QWidget*>()) part->installEventFilter(this);
    }

    int paints = 0;

private:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++paints;
        return false;
    }
};

/// Turns the event loop until `counter` has counted further paints; 0 when none come.
int roundsUntilPainted(const PaintCounter& counter, int paintsBefore) {
    constexpr int Patience = 50;
    for (int round = 1; round <= Patience; ++round) {
        QCoreApplication::processEvents();
        if (counter.paints > paintsBefore) return round;
    }
    return 0;
}

/// Each of `keys` goes down and the field shows what has come of it. The counter "rounds" says how often the event loop
/// was turned for it.
template <class Edit, class Clear>
void paintKeys(benchmark::State& state, Edit& edit, Strokes keys, Clear clear) {
    QWidget* const target = QApplication::focusWidget();
    const auto press = [&keys, target] { QCoreApplication::sendEvent(target, &keys.next()); };
    const auto start = [&] {
        clear();
        for (int settle = 0; settle < 5; ++settle) QCoreApplication::processEvents();
    };
    if (const char* const why = whyNotTimed(edit, keys, press, start)) return state.SkipWithError(why);
    const PaintCounter counter(edit);
    std::int64_t rounds = 0;
    for (auto _ : state) {
        const int before = counter.paints;
        press();
        const int taken = roundsUntilPainted(counter, before);
        if (taken == 0) return state.SkipWithError("the key was not painted");
        rounds += taken;
        if (!keys.isAtStart()) continue;
        state.PauseTiming();
        start();
        state.ResumeTiming();
    }
    state.counters["rounds"] = benchmark::Counter(static_cast<double>(rounds), benchmark::Counter::kAvgIterations);
}

const QString Words = QStringLiteral("good morning");
const QString Digits = QStringLiteral("123456789012");
const QString AnotherDay = QStringLiteral("16042014");

template <class Edit>
void paintWords(benchmark::State& state) {
    const FocusedEdit<Edit> shown;
    paintKeys(state, *shown.edit, Strokes(Words), [edit = shown.edit] { edit->setText(QString()); });
}
BENCHMARK(paintWords<KelTextWidget>)->Name("PaintKeyOfTextWidget");
BENCHMARK(paintWords<QLineEdit>)->Name("PaintKeyOfLineEdit");

template <class Edit>
void paintAmount(benchmark::State& state) {
    const FocusedEdit<Edit> shown;
    paintKeys(state, *shown.edit, Strokes(Digits), [edit = shown.edit] {
        edit->setValue(0);
        selectAll();
    });
}
BENCHMARK(paintAmount<KelNumberWidget>)->Name("PaintKeyOfNumberWidget");

void PaintKeyOfDoubleSpinBox(benchmark::State& state) {
    const FocusedEdit<QDoubleSpinBox> shown;
    shown.edit->setRange(-1e12, 1e12);
    paintKeys(state, *shown.edit, Strokes(Digits), [edit = shown.edit] {
        edit->setValue(0);
        selectAll();
    });
}
BENCHMARK(PaintKeyOfDoubleSpinBox);

void PaintKeyOfDateWidget(benchmark::State& state) {
    const FocusedEdit<KelDateWidget> shown;
    paintKeys(state, *shown.edit, Strokes(AnotherDay), [edit = shown.edit] {
        edit->setValue(QDate(2013, 3, 15));
        selectAll();
    });
}
BENCHMARK(PaintKeyOfDateWidget);

void PaintKeyOfDateEdit(benchmark::State& state) {
    const FocusedEdit<QDateEdit> shown;
    shown.edit->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    paintKeys(state, *shown.edit, Strokes(AnotherDay), [edit = shown.edit] {
        edit->setDate(QDate(2013, 3, 15));
        edit->setSelectedSection(QDateTimeEdit::DaySection);
    });
}
BENCHMARK(PaintKeyOfDateEdit);

constexpr int Choices = 100;

void PaintKeyOfComboWidget(benchmark::State& state) {
    const FocusedEdit<KelComboWidget> shown;
    shown.edit->setLimitToList(false);
    shown.edit->setList(qtNames(Choices).join(u','));
    paintKeys(state, *shown.edit, Strokes(qtNames(Choices).last()), [edit = shown.edit] { edit->setText(QString()); });
}
BENCHMARK(PaintKeyOfComboWidget);

void PaintKeyOfComboBox(benchmark::State& state) {
    const FocusedEdit<QComboBox> shown;
    shown.edit->setEditable(true);
    shown.edit->addItems(qtNames(Choices));
    shown.edit->setFocus();
    paintKeys(state, *shown.edit, Strokes(qtNames(Choices).last()),
              [edit = shown.edit] { edit->setEditText(QString()); });
}
BENCHMARK(PaintKeyOfComboBox);

/// What a key costs that alters a single pixel: the way of a window to its screen, which no field is spared.
class Pixel final : public QWidget {
public:
    using QWidget::QWidget;
    void clear() { setPlace({}); }

private:
    void setPlace(QPoint place) {
        update(QRect(std::exchange(Place_, place), QSize(1, 1)));
        update(QRect(Place_, QSize(1, 1)));
    }
    void keyPressEvent(QKeyEvent* /*event*/) override { setPlace(Place_ + QPoint(1, 0)); }
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override {
        return query == Qt::ImCursorPosition ? QVariant(Place_.x()) : QVariant();
    }
    void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).fillRect(QRect(Place_, QSize(1, 1)), Qt::black); }

    QPoint Place_;
};

void PaintKeyOfPixel(benchmark::State& state) {
    const FocusedEdit<Pixel> shown;
    paintKeys(state, *shown.edit, Strokes(Words), [pixel = shown.edit] { pixel->clear(); });
}
BENCHMARK(PaintKeyOfPixel);

// ---- Opening a form

constexpr int FieldsInColumn = 40;
constexpr int ColumnWidth = 300;
constexpr int RowHeight = 26;

QRect placeOf(int field) {
    return {field / FieldsInColumn * ColumnWidth, field % FieldsInColumn * RowHeight, ColumnWidth - 10, RowHeight - 4};
}

/// Six kinds of fields in turn, each with a caption and a value.
void addControl(QWidget& form, int number) {
    const QString caption = QStringLiteral("Field %1").arg(number);
    const auto place = [&](auto* field) {
        field->setCaption(caption);
        field->setGeometry(placeOf(number));
        return field;
    };
    const auto captioned = [&](auto* field) {
        place(field)->setCaptionWidth(1200);
        return field;
    };
    switch (number % 6) {
        case 0: captioned(new KelTextWidget(&form))->setText(caption); return;
        case 1: captioned(new KelNumberWidget(&form))->setValue(number * 12.5); return;
        case 2: captioned(new KelDateWidget(&form))->setValue(QDate(2013, 3, 15)); return;
        case 3: captioned(new KelTimeWidget(&form))->setValue(QTime(9, 30)); return;
        case 4: {
            auto* const combo = captioned(new KelComboWidget(&form));
            combo->setList(QStringLiteral("Apple,Banana,Cherry"));
            combo->setText(QStringLiteral("Banana"));
            return;
        }
        default: place(new KelCheckWidget(&form))->setValue(true);
    }
}

void addPlainField(QWidget& form, int number) {
    const QString caption = QStringLiteral("Field %1").arg(number);
    constexpr int CaptionWidth = 80;
    const auto place = [&](QWidget* field) {
        auto* const label = new QLabel(caption, &form);
        label->setBuddy(field);
        const QRect whole = placeOf(number);
        label->setGeometry(whole.x(), whole.y(), CaptionWidth, whole.height());
        field->setGeometry(whole.adjusted(CaptionWidth, 0, 0, 0));
    };
    switch (number % 6) {
        case 0: place(new QLineEdit(caption, &form)); return;
        case 1: {
            auto* const box = new QDoubleSpinBox(&form);
            box->setRange(-1e12, 1e12);
            box->setValue(number * 12.5);
            place(box);
            return;
        }
        case 2: place(new QDateEdit(QDate(2013, 3, 15), &form)); return;
        case 3: place(new QTimeEdit(QTime(9, 30), &form)); return;
        case 4: {
            auto* const combo = new QComboBox(&form);
            combo->setEditable(true);
            combo->addItems({QStringLiteral("Apple"), QStringLiteral("Banana"), QStringLiteral("Cherry")});
            combo->setCurrentIndex(1);
            place(combo);
            return;
        }
        default: {
            auto* const box = new QCheckBox(caption, &form);
            box->setChecked(true);
            box->setGeometry(placeOf(number));
        }
    }
}

using AddField = void (*)(QWidget& form, int number);

/// A window with so many fields, shown until its last visible field is painted.
std::unique_ptr<QWidget> openForm(AddField addField, int fields) {
    auto form = std::make_unique<QWidget>();
    form->resize(4 * ColumnWidth, FieldsInColumn * RowHeight);
    for (int number = 0; number < fields; ++number) addField(*form, number);
    const PaintCounter counter(*form);
    form->show();
    return roundsUntilPainted(counter, 0) != 0 ? std::move(form) : nullptr;
}

template <AddField addField>
void openForm(benchmark::State& state) {
    for (auto _ : state) {
        std::unique_ptr<QWidget> form = openForm(addField, static_cast<int>(state.range(0)));
        if (!form) return state.SkipWithError("the form was not painted");
        state.PauseTiming();
        form.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(openForm<&addControl>)->Name("OpenForm")->Arg(30)->Arg(300)->Arg(1200)->Unit(benchmark::kMillisecond);
BENCHMARK(openForm<&addPlainField>)->Name("OpenPlainForm")->Arg(30)->Arg(300)->Arg(1200)->Unit(benchmark::kMillisecond);

}  // namespace

FormMemory memoryOfForm(int fields, std::size_t (*heapBytes)()) {
    const auto bytesOf = [&](AddField addField, int count) {
        const std::size_t before = heapBytes();
        const std::unique_ptr<QWidget> form = openForm(addField, count);
        return heapBytes() - before;
    };
    // Once without counting: what is made once for all forms is no form's own.
    bytesOf(&addControl, fields);
    bytesOf(&addPlainField, fields);
    // Nor are the pixels of the window, which are more than all in it.
    const std::size_t window = bytesOf(&addPlainField, 0);
    return {bytesOf(&addControl, fields) - window, bytesOf(&addPlainField, fields) - window};
}

}  // namespace kel::bench
