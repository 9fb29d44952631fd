#include <benchmark/benchmark.h>

#include <memory>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "controls/Classes.h"
#include "forms/Form.h"
#include "KelTextWidget.h"
#include "library/Dispatch.h"
#include "platform/headless/HeadlessHome.h"

namespace {

void TextWidget(benchmark::State& state) {
    QWidget parent;
    for (auto _ : state) delete new KelTextWidget(&parent);
}
BENCHMARK(TextWidget);

void LabelAndLineEdit(benchmark::State& state) {
    QWidget parent;
    for (auto _ : state) {
        auto* label = new QLabel(&parent);
        auto* edit = new QLineEdit(&parent);
        delete edit;
        delete label;
    }
}
BENCHMARK(LabelAndLineEdit);

/// A letter typed into whatever has the focus; the text is emptied now and then, outside the clock.
template <class Clear>
void typeLetters(benchmark::State& state, QWidget& target, Clear clear) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    int typed = 0;
    for (auto _ : state) {
        press.accept();
        QCoreApplication::sendEvent(&target, &press);
        if (++typed % 40 == 0) {
            state.PauseTiming();
            clear();
            state.ResumeTiming();
        }
    }
    press.accept();
    QCoreApplication::sendEvent(&target, &press);
}

/// Shown in a window of its own, since a hidden edit skips most of a key's work.
template <class Edit>
std::unique_ptr<QWidget> windowWith(Edit*& edit) {
    auto window = std::make_unique<QWidget>();
    edit = new Edit(window.get());
    edit->setGeometry(0, 0, 300, 20);
    window->resize(300, 40);
    window->show();
    QApplication::setActiveWindow(window.get());
    edit->setFocus();
    QCoreApplication::processEvents();
    return window;
}

void KeyIntoTextWidget(benchmark::State& state) {
    KelTextWidget* field = nullptr;
    const auto window = windowWith(field);
    QWidget* target = QApplication::focusWidget();
    if (target == nullptr) return state.SkipWithError("the field did not take the focus");
    typeLetters(state, *target, [field] { field->setText(QString()); });
    if (field->text().isEmpty()) state.SkipWithError("the keys did not arrive");
}
BENCHMARK(KeyIntoTextWidget);

void KeyIntoLineEdit(benchmark::State& state) {
    QLineEdit* edit = nullptr;
    const auto window = windowWith(edit);
    if (QApplication::focusWidget() != edit) return state.SkipWithError("the edit did not take the focus");
    typeLetters(state, *edit, [edit] { edit->setText(QString()); });
    if (edit->text().isEmpty()) state.SkipWithError("the keys did not arrive");
}
BENCHMARK(KeyIntoLineEdit);

class NullObserver final : public kel::ControlObserver {
    void controlEvent(kel::PlacedControl&, const kel::EventRow&, std::span<kel::Variant>) override {}
    void propertyReported(kel::PlacedControl&, std::u16string_view) override {}
};

void LateBoundRead(benchmark::State& state) {
    const auto home = kel::headless::makeHome({});
    const auto window = home->makeWindow({}, home->system());
    NullObserver observer;
    kel::Control& control =
        window->place(*kel::libraryClasses().find(u"KelText"), {.name = u"field"}, observer).control();
    kel::Variant result;
    for (auto _ : state) {
        const kel::MemberRow* member = kel::findMember(control.model(), u"CaptionWidth");
        kel::getMember(control, *member, {}, result, home->region());
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(LateBoundRead);

void LateBoundTextRead(benchmark::State& state) {
    const auto home = kel::headless::makeHome({});
    const auto window = home->makeWindow({}, home->system());
    NullObserver observer;
    kel::Control& control =
        window->place(*kel::libraryClasses().find(u"KelText"), {.name = u"field"}, observer).control();
    const kel::Variant text = std::u16string(u"a name of usual length");
    kel::putMember(control, *kel::findMember(control.model(), u"Text"), text, home->region());
    kel::Variant result;
    for (auto _ : state) {
        const kel::MemberRow* member = kel::findMember(control.model(), u"Text");
        kel::getMember(control, *member, {}, result, home->region());
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(LateBoundTextRead);

std::string formOfFields(int count) {
    std::string text = "VERSION 5.00\r\nBegin VB.Form frmMany\r\n   Caption = \"Many\"\r\n";
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        text += "   Begin KelControls8.KelText txt" + number +
                "\r\n      Height = 300\r\n      Left = 120\r\n      TabIndex = " + number +
                "\r\n      Top = " + std::to_string(i * 360) +
                "\r\n      Width = 4000\r\n      Caption = \"Field\"\r\n      CaptionWidth = 1200\r\n"
                "      MaxLength = 40\r\n      Text = \"some text\"\r\n   End\r\n";
    }
    return text + "End\r\n";
}

void LoadThousandFields(benchmark::State& state) {
    const std::string text = formOfFields(1000);
    const auto home = kel::headless::makeHome({});
    NullObserver observer;
    for (auto _ : state) {
        kel::Form form(*home, home->system(), observer, kel::FormFile::parse(text, "many.frm"));
        form.show();
        benchmark::DoNotOptimize(form);
    }
}
BENCHMARK(LoadThousandFields);

}  // namespace
