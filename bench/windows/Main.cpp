// Prints what controls of the component server cost beside the system's bare widgets.

#include <windows.h>

#include <commctrl.h>
#include <ole2.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "bench/Table.h"
#include "bench/windows/Peers.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

namespace kel::bench {

namespace {

using namespace kel::tests;

// ---- Time

double nanosecondsNow() {
    static const double PerTick = [] {
        LARGE_INTEGER ticks{};
        QueryPerformanceFrequency(&ticks);
        return 1e9 / static_cast<double>(ticks.QuadPart);
    }();
    LARGE_INTEGER now{};
    QueryPerformanceCounter(&now);
    return static_cast<double>(now.QuadPart) * PerTick;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Work {
    std::string name;
    int times;  ///< in one measurement
    std::function<void()> once;
};

/// Medians of many rounds, in each of which everything is measured once: whatever else the machine does meanwhile
/// strikes ours and peers alike.
/// Of all work, or with a name of that alone.
std::map<std::string, double> measure(std::vector<Work> all, int rounds, const std::string& name) {
    if (!name.empty()) std::erase_if(all, [&](const Work& work) { return work.name != name; });
    std::map<std::string, std::vector<double>> measured;
    for (int round = 0; round < rounds; ++round)
        for (const Work& work : all) {
            const double begun = nanosecondsNow();
            for (int i = 0; i < work.times; ++i) work.once();
            measured[work.name].push_back((nanosecondsNow() - begun) / work.times);
        }
    std::map<std::string, double> medians;
    for (auto& [what, values] : measured) medians[what] = median(std::move(values));
    return medians;
}

// ---- Making

/// Makes objects of one class, as a host does that has looked the class up before.
class Maker {
public:
    explicit Maker(const wchar_t* programId) {
        CLSID clsid{};
        EXPECT_CODE(CLSIDFromProgID(programId, &clsid), S_OK);
        EXPECT_CODE(CoGetClassObject(clsid, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, Factory_.receiveVoid()),
                    S_OK);
    }
    Ref<IDispatch> make() const {
        Ref<IDispatch> made;
        EXPECT_CODE(Factory_->CreateInstance(nullptr, IID_IDispatch, made.receiveVoid()), S_OK);
        return made;
    }

private:
    Ref<IClassFactory> Factory_;
};

// ---- Members

/// A late-bound call of a member that has been looked up before.
class Member {
public:
    Member(Ref<IDispatch> object, const wchar_t* name) : Object_(std::move(object)) {
        std::wstring copy = name;
        wchar_t* names = copy.data();
        EXPECT_CODE(Object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &Id_), S_OK);
    }

    void get() const {
        Var value;
        DISPPARAMS none{};
        Object_->Invoke(Id_, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value.Value, nullptr,
                        nullptr);
    }
    void put(VARIANT value) const {
        DISPID named = DISPID_PROPERTYPUT;
        DISPPARAMS one{&value, &named, 1, 1};
        Object_->Invoke(Id_, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &one, nullptr, nullptr, nullptr);
    }

private:
    Ref<IDispatch> Object_;
    DISPID Id_ = DISPID_UNKNOWN;
};

VARIANT doubleNumber(double number) {
    VARIANT value = plain(VT_R8);
    value.dblVal = number;
    return value;
}

VARIANT shortNumber(short number) {
    VARIANT value = plain(VT_I2);
    value.iVal = number;
    return value;
}

/// The one and the other by turns, that each is something new.
template <class Value>
class Turns {
public:
    Turns(Value one, Value other) : One_(one), Other_(other) {}
    Value next() { return (Odd_ = !Odd_) ? One_ : Other_; }

private:
    Value One_;
    Value Other_;
    bool Odd_ = false;
};

// ---- Lives of controls

/// Creates a control, activates it in its host, has it painted and closes it. A field takes its host's name for it as
/// its caption, unless it is to be without one.
void live(Host& host, const Maker& maker, bool captioned) {
    const auto control = maker.make();
    host.place(control);
    EXPECT_CODE(control.as<IPersistStreamInit>()->InitNew(), S_OK);
    if (!captioned) Member(control, L"Caption").put(plain(VT_BSTR));
    EXPECT_CODE(host.verb(OLEIVERB_INPLACEACTIVATE), S_OK);
    settle(host.window());
    host.unload();
    host.Calls.clear();
}

// ---- The first of all

constexpr const char* FirstLoad = "first";

/// Loads the library for its first control, in a process that has done nothing else; in microseconds.
int firstLoad() {
    CLSID clsid{};
    EXPECT_CODE(CLSIDFromProgID(L"KelControls8.KelText", &clsid), S_OK);
    const double begun = nanosecondsNow();
    Ref<IDispatch> made;
    EXPECT_CODE(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, made.receiveVoid()), S_OK);
    return static_cast<int>((nanosecondsNow() - begun) / 1e3);
}

double firstLoadElsewhere(const std::wstring& program) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    std::wstring line = L"\"" + program + L"\" first";
    EXPECT(CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                          &process) != FALSE);
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD microseconds = 0;
    GetExitCodeProcess(process.hProcess, &microseconds);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return microseconds * 1e3;
}

double firstLoads() {
    std::wstring program(MAX_PATH, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    std::vector<double> measured;
    for (int i = 0; i < 9; ++i) measured.push_back(firstLoadElsewhere(program));
    return median(std::move(measured));
}

// ---- All of it

/// The peers of most have no caption.
constexpr struct {
    const char* name;
    const wchar_t* programId;
    bool captioned = false;
} Classes[] = {{"KelText", L"KelControls8.KelText"},
               {"captioned KelText", L"KelControls8.KelText", true},
               {"KelNumber", L"KelControls8.KelNumber"},
               {"KelDate", L"KelControls8.KelDate"},
               {"KelCombo", L"KelControls8.KelCombo"},
               {"KelCheck", L"KelControls8.KelCheck", true},
               {"KelProgressBar", L"KelControls8.KelProgressBar", true}};

const std::vector<Line> Lines{
    {"a text field's life, painted / edit window", "KelText", {"EDIT"}, 1.5},
    {"the same / edit window in a pane", "KelText", {"EDIT in a pane"}, 1.5},
    {"with a caption / label and edit window in a pane", "captioned KelText", {"captioned EDIT"}, 1.5},
    {"a number field's life, painted / edit window and spinner", "KelNumber", {"spinner"}, 1.5},
    {"a date field's life, painted / edit window and spinner", "KelDate", {"spinner"}, 1.5},
    {"a combo field's life, painted / combo box", "KelCombo", {"COMBOBOX"}, 1.5},
    {"a check box's life, painted / check box", "KelCheck", {"BUTTON"}, 1.5},
    {"a bar's life, painted / progress bar", "KelProgressBar", {"progress"}, 1.5},
    {"making a text field without a window", "made KelText", {}, 50e3},
    {"putting a text / setting an edit window's", "put Text", {"SetWindowText"}, 1.2},
    {"putting a text, painted / setting an edit window's", "put Text, painted", {"SetWindowText, painted"}, 1.2},
    {"late-bound get of a number", "get UpDownChange", {}, 100},
    {"late-bound put of a number", "put UpDownChange", {}, 100},
    {"the same, rounded by the run-time object", "put Decimals", {}, 2e3},
    {"late-bound get of a text", "get Text", {}, 100},
    {"first load of the library, with its first control", "first load", {}, 8e6},
};

std::map<std::string, double> measureAll(int rounds, const std::string& name) {
    Host host;
    std::vector<Work> all;
    for (const auto& each : Classes)
        all.push_back(
            {each.name, 1, [&host, &each, maker = Maker(each.programId)] { live(host, maker, each.captioned); }});
    const HWND parent = host.window();
    for (const auto& [what, live] : {std::pair{"EDIT", &liveAsEdit},
                                     {"EDIT in a pane", &liveAsEditInPane},
                                     {"captioned EDIT", &liveAsCaptionedEdit},
                                     {"spinner", &liveAsSpinner},
                                     {"COMBOBOX", &liveAsComboBox},
                                     {"BUTTON", &liveAsCheckBox},
                                     {"progress", &liveAsProgressBar}})
        all.push_back({what, 1, [live = live, parent] { live(parent); }});

    const Maker textMaker(L"KelControls8.KelText");
    all.push_back({"made KelText", 10, [&] { textMaker.make(); }});

    Host shown;
    SetWindowPos(shown.window(), nullptr, 450, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    const auto field = shown.placeNew();
    EXPECT_CODE(shown.verb(OLEIVERB_INPLACEACTIVATE), S_OK);
    const HWND edit = makeEdit(shown.window(), {10, 60, 210, 80});
    settle(shown.window());
    const Str anna(L"Anna");
    const Str berta(L"Berta Clementine");
    Turns<const wchar_t*> texts(anna, berta);
    const auto text = [&] { return const_cast<BSTR>(texts.next()); };
    const HWND window = shown.window();
    all.push_back({"put Text", 10, [&] { field->put_Text(text()); }});
    all.push_back({"SetWindowText", 10, [&] { SetWindowTextW(edit, texts.next()); }});
    all.push_back({"put Text, painted", 10, [&] { field->put_Text(text()), settle(window); }});
    all.push_back({"SetWindowText, painted", 10, [&] { SetWindowTextW(edit, texts.next()), settle(window); }});

    const auto number = Maker(L"KelControls8.KelNumber").make();
    const Member step(number, L"UpDownChange");
    const Member decimals(number, L"Decimals");
    const Member content(field.as<IDispatch>(), L"Text");
    Turns<VARIANT> steps(doubleNumber(2), doubleNumber(3));
    Turns<VARIANT> numbers(shortNumber(2), shortNumber(3));
    constexpr int Many = 2000;
    all.push_back({"get UpDownChange", Many, [&] { step.get(); }});
    all.push_back({"put UpDownChange", Many, [&] { step.put(steps.next()); }});
    all.push_back({"put Decimals", Many, [&] { decimals.put(numbers.next()); }});
    all.push_back({"get Text", Many, [&] { content.get(); }});
    return measure(std::move(all), rounds, name);
}

int run(int argc, char** argv) {
    if (argc > 1 && std::strcmp(argv[1], FirstLoad) == 0) return firstLoad();
    const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_UPDOWN_CLASS | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&wanted);
    const std::string name = argc > 2 ? argv[2] : "";
    auto medians = measureAll(argc > 1 ? std::atoi(argv[1]) : 101, name);
    if (name.empty()) medians["first load"] = firstLoads();
    printTable(Lines, medians);
    return 0;
}

}  // namespace

}  // namespace kel::bench

int main(int argc, char** argv) {
    OleInitialize(nullptr);
    int status = 1;
    try {
        status = kel::bench::run(argc, argv);
    } catch (const kel::tests::Failure& failure) {
        std::fprintf(stderr, "%s\n", failure.why.c_str());
    }
    OleUninitialize();
    return status;
}
