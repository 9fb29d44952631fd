// A classic form with its work in C++: a long list of addresses is taken in, and the form's progress bar goes along.
//   import FORM.frm [LIST]             the form; without a list one is made for the occasion
//   import FORM.frm LIST --at-once     begins at once, and ends with its work in one line on standard output

#include <chrono>
#include <iostream>
#include <memory>
#include <QApplication>
#include <QDir>
#include <QPushButton>

#include "controls/check/KelCheck.h"
#include "controls/number/KelNumber.h"
#include "controls/progress/KelProgressBar.h"
#include "controls/text/KelText.h"
#include "examples/import/AddressList.h"
#include "forms/Form.h"
#include "platform/qt/home/QtHome.h"
#include "values/Text.h"

namespace {

constexpr std::int32_t SampleAddresses = 1'000'000;

void report(const addresses::Result& result) {
    std::cout << result.lines << " lines, " << result.addresses.size() << " addresses, " << result.skipped
              << " skipped\n";
}

class ImportForm {
public:
    ImportForm(kel::Home& home, const std::string& path)
        : System_(home.system()), Form_(home, System_, Observer_, kel::readFormFile(path)) {
        Form_.show();
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (auto* const button = window->findChild<QPushButton*>("cmdImport")) Button_ = button;
        if (Button_ == nullptr) throw std::runtime_error(path + ": the form has no button cmdImport");
        ButtonText_ = Button_->text();
        QObject::connect(Button_, &QPushButton::clicked, Button_, [this] { press(); });
    }

    void setList(const std::string& path) {
        List_ = path;
        field<kel::KelText>(u"txtFile").put_Text(kel::fromUtf8(path).value_or(u""));
        field<kel::KelNumber>(u"numLines").put_Value(static_cast<double>(std::max(addresses::countLines(path), 0)));
    }

    addresses::Result work() {
        const std::int32_t lines = addresses::countLines(List_);
        if (lines < 0) System_.messageBox(u"The list cannot be read.", 48, u"Import");
        if (lines < 1) return {};
        setBusy(true);
        auto& bar = field<kel::KelProgressBar>(u"prgImport");
        bar.put_Max(lines);
        bar.Start();
        const addresses::Choices choices{field<kel::KelCheck>(u"chkHeader").get_Value(),
                                         field<kel::KelCheck>(u"chkDuplicates").get_Value()};
        addresses::Result result = addresses::takeIn(List_, choices, [&](std::int32_t line) {
            bar.put_Value(line);
            return goesOn();
        });
        setBusy(false);
        return result;
    }

private:
    template <class Kind>
    Kind& field(std::u16string_view name) {
        kel::PlacedControl* const placed = Form_.find(name);
        auto* const control = placed == nullptr ? nullptr : dynamic_cast<Kind*>(&placed->control());
        if (control == nullptr) throw std::runtime_error("the form has no " + kel::toUtf8(name) + " of its kind");
        return *control;
    }

    void press() {
        if (Busy_) {
            Busy_ = false;
            return;
        }
        if (!field<kel::KelCheck>(u"chkConsent").get_Value()) {
            System_.messageBox(u"The people in the list must have agreed.", 64, u"Import");
            return;
        }
        List_ = kel::toUtf8(field<kel::KelText>(u"txtFile").get_Text());
        report(work());
    }

    /// The bar shows itself; the rest of the window gets its turn now and then. False when somebody has stopped it.
    bool goesOn() {
        using namespace std::chrono_literals;
        const auto now = std::chrono::steady_clock::now();
        if (now - LastTurn_ > 20ms) {
            LastTurn_ = now;
            QCoreApplication::processEvents();
        }
        return Busy_ && Button_->window()->isVisible();
    }

    void setBusy(bool busy) {
        Busy_ = busy;
        Button_->setText(busy ? "Stop" : ButtonText_);
        field<kel::KelText>(u"txtFile").entry().put_Locked(busy);
        for (const char16_t* const box : {u"chkHeader", u"chkDuplicates", u"chkConsent"})
            field<kel::KelCheck>(box).put_Locked(busy);
    }

    kel::SilentObserver Observer_;
    kel::System& System_;
    kel::Form Form_;
    QPushButton* Button_ = nullptr;  ///< the form owns it
    QString ButtonText_;
    std::string List_;
    std::chrono::steady_clock::time_point LastTurn_;
    bool Busy_ = false;
};

std::string sampleList() {
    const std::string path = QDir::temp().filePath("addresses.csv").toStdString();
    if (!addresses::writeSample(path, SampleAddresses)) throw std::runtime_error(path + ": cannot be written");
    return path;
}

}  // namespace

int main(int count, char** arguments) try {
    QApplication application(count, arguments);
    const QStringList words = QApplication::arguments();
    if (words.size() < 2) {
        std::cerr << "import FORM.frm [LIST] [--at-once]\n";
        return 2;
    }
    const std::unique_ptr<kel::Home> home = kel::qt::makeHome({});
    ImportForm form(*home, words[1].toStdString());
    form.setList(words.size() > 2 ? words[2].toStdString() : sampleList());
    if (words.size() > 3 && words[3] == "--at-once") {
        report(form.work());
        if (!std::cout.flush()) throw std::runtime_error("import: the standard output cannot be written");
        return 0;
    }
    return QApplication::exec();
} catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 2;
}
