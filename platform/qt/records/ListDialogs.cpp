#include "platform/qt/records/ListDialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "forms/file/FormStore.h"
#include "KelProgressBarWidget.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/records/Breath.h"
#include "records/exchange/ListFiles.h"
#include "values/Text.h"

namespace kel::qt {

namespace {

constexpr int BarWidth = 360;  ///< pixels

QString filters() { return QStringLiteral("Lists (*.csv *.tsv *.txt);;All files (*)"); }

/// What the person says of a list.
struct ListChoices {
    records::ListFormat format;
    bool allOrNothing = false;
};

class FormatDialog final : public QDialog {
public:
    FormatDialog(QWidget& window, const QString& title, bool isImport) : QDialog(&window) {
        setWindowTitle(title);
        auto* const layout = new QFormLayout(this);
        Separator_ = new QComboBox(this);
        if (isImport) Separator_->addItem(QStringLiteral("As the first line has it"), 0);
        Separator_->addItem(QStringLiteral("Comma, numbers with a point"), int{','});
        Separator_->addItem(QStringLiteral("Semicolon, numbers as here"), int{';'});
        Separator_->addItem(QStringLiteral("Tab, numbers as here"), int{'\t'});
        layout->addRow(QStringLiteral("Values are &separated by"), Separator_);
        Header_ = new QCheckBox(QStringLiteral("The &first line names the fields"), this);
        Header_->setChecked(true);
        layout->addRow(Header_);
        if (isImport) addOutcomes(*layout);
        auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        QObject::connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        layout->addRow(buttons);
    }

    ListChoices choices() const {
        ListChoices choices;
        choices.format = {static_cast<char>(Separator_->currentData().toInt()), Header_->isChecked()};
        choices.allOrNothing = Nothing_ != nullptr && Nothing_->isChecked();
        return choices;
    }

private:
    void addOutcomes(QFormLayout& layout) {
        auto* const others = new QRadioButton(QStringLiteral("store the &others"), this);
        others->setChecked(true);
        Nothing_ = new QRadioButton(QStringLiteral("store &nothing"), this);
        layout.addRow(QStringLiteral("When a line cannot be taken"), others);
        layout.addRow(QString(), Nothing_);
    }

    QComboBox* Separator_;
    QCheckBox* Header_;
    QRadioButton* Nothing_ = nullptr;
};

/// In front of the window while a list is worked through.
class WorkDialog final : public QDialog {
public:
    WorkDialog(QWidget& window, const QString& title, const QString& words) : QDialog(&window) {
        setWindowTitle(title);
        setModal(true);
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel(words, this));
        Bar_ = new KelProgressBarWidget(this);
        Bar_->setMinimum(0);
        Bar_->setMaximum(Whole);
        Bar_->setMinimumWidth(BarWidth);
        Bar_->setAccessibleName(words);
        layout->addWidget(Bar_);
        auto* const buttons = new QDialogButtonBox(this);
        buttons->addButton(QStringLiteral("&Stop"), QDialogButtonBox::RejectRole);
        QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        layout->addWidget(buttons);
        show();
        Bar_->start();
    }

    /// False when the person has stopped it.
    bool goesOn(double share) {
        Bar_->setValue(static_cast<int>(share * Whole));
        if (Breath_.isDue()) Breath_.take();
        return isVisible();
    }

private:
    static constexpr int Whole = 10'000;

    KelProgressBarWidget* Bar_;
    Breath Breath_;
};

}  // namespace

template <class Action>
void ListDialogs::attempt(Action action) {
    try {
        action();
    } catch (const std::exception& error) {
        Questions_.say(fromUtf8(error.what()).value_or(u"The list cannot be worked through."));
    }
}

bool ListDialogs::importList() {
    const QString title = QStringLiteral("Import");
    if (!Records_.mayLeave()) return false;
    const QString name = QFileDialog::getOpenFileName(&Window_, title, {}, filters());
    if (name.isEmpty()) return false;
    FormatDialog dialog(Window_, title, true);
    if (dialog.exec() != QDialog::Accepted) return false;
    const ListChoices choices = dialog.choices();
    attempt([&] {
        records::Importer importer(Unseen_, File_, Records_.store(), Records_.others());
        records::ImportReport report;
        {
            WorkDialog work(Window_, title,
                            QStringLiteral("Storing the records of %1\u2026").arg(QFileInfo(name).fileName()));
            report = records::importFile(importer, pathOf(name.toStdString()), choices.format, choices.allOrNothing,
                                         [&](double share) { return work.goesOn(share); });
        }
        Questions_.say(report.inWords());
    });
    return true;
}

void ListDialogs::exportList() {
    const QString title = QStringLiteral("Export");
    QString name = QFileDialog::getSaveFileName(&Window_, title, {}, filters());
    if (name.isEmpty()) return;
    if (QFileInfo(name).suffix().isEmpty()) name += QLatin1String(".csv");
    FormatDialog dialog(Window_, title, false);
    if (dialog.exec() != QDialog::Accepted) return;
    attempt([&] {
        std::optional<std::int64_t> written;
        {
            records::Exporter exporter(Records_.bindings(), Records_.store(), Records_.order(), Unseen_.region());
            WorkDialog work(Window_, title, QStringLiteral("Writing %1\u2026").arg(QFileInfo(name).fileName()));
            written = records::exportFile(exporter, Records_.count(), pathOf(name.toStdString()),
                                          dialog.choices().format, [&](double share) { return work.goesOn(share); });
        }
        Questions_.say(written ? records::counted(*written, u"record is", u"records are") + u" in the list."
                               : u"Stopped. The list was not written.");
    });
}

}  // namespace kel::qt
