#include <benchmark/benchmark.h>

#include <QLineEdit>

#include "bench/Widgets.h"
#include "controls/Classes.h"
#include "forms/Form.h"
#include "KelTextWidget.h"
#include "library/Dispatch.h"
#include "platform/headless/HeadlessHome.h"

namespace {

using namespace kel::bench;

BENCHMARK(makeControl<KelTextWidget>)->Name("TextWidget");
BENCHMARK(makeLabelAndEdit<QLineEdit>)->Name("LabelAndLineEdit");

template <class Edit>
void typeLetters(benchmark::State& state) {
    const FocusedEdit<Edit> shown;
    Edit& edit = *shown.edit;
    pressKeys(state, edit, Strokes(QStringLiteral("good morning")), [&edit] { edit.setText(QString()); });
}
BENCHMARK(typeLetters<KelTextWidget>)->Name("KeyIntoTextWidget");
BENCHMARK(typeLetters<QLineEdit>)->Name("KeyIntoLineEdit");

void LateBoundRead(benchmark::State& state) {
    const auto home = kel::headless::makeHome({});
    const auto window = home->makeWindow({}, home->system());
    kel::SilentObserver observer;
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
    kel::SilentObserver observer;
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
    kel::SilentObserver observer;
    for (auto _ : state) {
        kel::Form form(*home, home->system(), observer, kel::FormFile::parse(text, "many.frm"));
        form.show();
        benchmark::DoNotOptimize(form);
    }
}
BENCHMARK(LoadThousandFields);

}  // namespace
