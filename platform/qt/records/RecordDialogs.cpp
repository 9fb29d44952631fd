#include "platform/qt/records/RecordDialogs.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QVBoxLayout>

#include "platform/qt/base/TextBridge.h"
#include "records/Commands.h"

namespace kel::qt {

namespace {

constexpr int LongestMessage = 2000;  ///< characters
constexpr int LongestShown = 300;     ///< characters

using records::Choice;
using records::Difference;

/// The number of the button that was pressed; the last one stands for Escape and the window's own close button.
int ask(QWidget& window, QMessageBox::Icon icon, const QString& text, const QStringList& buttons) {
    QMessageBox box(icon, window.windowTitle(), text.left(LongestMessage), QMessageBox::NoButton, &window);
    box.setTextFormat(Qt::PlainText);
    QList<QAbstractButton*> made;
    for (const QString& caption : buttons)
        made.append(box.addButton(
            caption, made.size() + 1 == buttons.size() ? QMessageBox::RejectRole : QMessageBox::AcceptRole));
    box.setDefaultButton(qobject_cast<QPushButton*>(made.front()));
    box.setEscapeButton(made.back());
    box.exec();
    return static_cast<int>(made.indexOf(box.clickedButton()));
}

/// A table of texts that nobody edits, as high as its rows as far as that goes.
QTableWidget* textTable(QWidget* parent, const QStringList& headers, int rows) {
    auto* const table = new QTableWidget(rows, static_cast<int>(headers.size()), parent);
    table->setHorizontalHeaderLabels(headers);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->verticalHeader()->hide();
    table->setWordWrap(true);
    return table;
}

void setText(QTableWidget& table, int row, int column, std::u16string_view text) {
    const QString whole = toQString(text);
    const bool isLong = whole.size() > LongestShown;
    auto* const item = new QTableWidgetItem(isLong ? whole.left(LongestShown) + QChar(0x2026) : whole);
    if (isLong) item->setToolTip(whole.left(LongestMessage));
    table.setItem(row, column, item);
}

/// No wider and no higher than the screen, whatever stands in the table.
void fit(QDialog& dialog, QTableWidget& table) {
    const QSize screen = dialog.screen()->availableSize();
    table.resizeColumnsToContents();
    const int widest = screen.width() / (table.columnCount() + 1);
    int width = 2 * table.frameWidth() + table.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    bool isWrapped = false;
    for (int column = 0; column < table.columnCount(); ++column) {
        const bool isWide = table.columnWidth(column) > widest && column + 1 < table.columnCount();
        if (isWide) table.setColumnWidth(column, widest);
        isWrapped = isWrapped || isWide;
        width += table.columnWidth(column);
    }
    if (isWrapped) table.resizeRowsToContents();
    table.horizontalHeader()->setStretchLastSection(true);
    int height = 0;
    for (int row = 0; row < table.rowCount(); ++row) height += table.rowHeight(row);
    const QSize wanted(width + 60, dialog.sizeHint().height() + height / 2);
    dialog.resize(wanted.boundedTo(screen * 9 / 10));
}

QString rowsCaption() {
    return QCoreApplication::translate("Records",
                                       "Somebody else has changed this record while it was on this screen. "
                                       "Please choose for each field what is to be stored.");
}

}  // namespace

records::Unsaved RecordDialogs::aboutUnsaved() {
    switch (ask(Window_, QMessageBox::Question, QStringLiteral("The record on the screen is changed. Save it?"),
                {QStringLiteral("&Save"), QStringLiteral("&Discard"), QStringLiteral("&Cancel")})) {
        case 0: return records::Unsaved::Save;
        case 1: return records::Unsaved::Discard;
        default: return records::Unsaved::Stay;
    }
}

bool RecordDialogs::reallyDelete() {
    return ask(Window_, QMessageBox::Warning, QStringLiteral("Delete this record? It cannot be brought back."),
               {QStringLiteral("&Delete"), QStringLiteral("&Keep it")}) == 0;
}

bool RecordDialogs::keepDeleted() {
    return ask(Window_, QMessageBox::Warning,
               QStringLiteral("Somebody else has deleted this record meanwhile. Store what stands on the screen as a "
                              "new one?"),
               {QStringLiteral("&Store as new"), QStringLiteral("&Back to the record")}) == 0;
}

void RecordDialogs::say(std::u16string_view message) {
    ask(Window_, QMessageBox::Information, toQString(message), {QStringLiteral("&OK")});
}

std::optional<std::vector<Choice>> RecordDialogs::aboutDifferences(const std::vector<Difference>& differences) {
    QDialog dialog(&Window_);
    dialog.setWindowTitle(Window_.windowTitle());
    auto* const layout = new QVBoxLayout(&dialog);
    auto* const words = new QLabel(rowsCaption(), &dialog);
    words->setWordWrap(true);
    layout->addWidget(words);
    QTableWidget* const table = textTable(&dialog,
                                          {QStringLiteral("Field"), QStringLiteral("Was"), QStringLiteral("Mine"),
                                           QStringLiteral("Theirs"), QStringLiteral("Store")},
                                          static_cast<int>(differences.size()));
    std::vector<QComboBox*> boxes;
    for (int row = 0; row < table->rowCount(); ++row) {
        const Difference& each = differences[static_cast<std::size_t>(row)];
        setText(*table, row, 0, each.field);
        setText(*table, row, 1, each.loaded);
        setText(*table, row, 2, each.mine);
        setText(*table, row, 3, each.theirs);
        auto* const box = new QComboBox(table);
        box->addItems({QStringLiteral("Mine"), QStringLiteral("Theirs")});
        box->setCurrentIndex(each.isMineChanged ? 0 : 1);
        box->setAccessibleName(toQString(each.field));
        table->setCellWidget(row, 4, box);
        boxes.push_back(box);
    }
    layout->addWidget(table);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    fit(dialog, *table);
    if (!boxes.empty()) boxes.front()->setFocus();
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    std::vector<Choice> choices;
    for (const QComboBox* const box : boxes)
        choices.push_back(box->currentIndex() == 0 ? Choice::Mine : Choice::Theirs);
    return choices;
}

bool mayMakeIndex(QWidget& window, const QString& column) {
    return ask(window, QMessageBox::Question,
               QStringLiteral(
                   "To sort so many records by %1 the database needs an index, which takes a moment and stays "
                   "in it. Make it?")
                   .arg(column),
               {QStringLiteral("&Make it"), QStringLiteral("&Cancel")}) == 0;
}

void showKeys(QWidget& window) {
    QDialog dialog(&window);
    dialog.setWindowTitle(QStringLiteral("Keys"));
    auto* const layout = new QVBoxLayout(&dialog);
    const auto commands = records::commandRows();
    const auto fields = records::fieldKeyRows();
    QTableWidget* const table =
        textTable(&dialog, {QStringLiteral("Key"), QStringLiteral("Where"), QStringLiteral("What it does")},
                  static_cast<int>(commands.size() + fields.size()));
    int row = 0;
    for (const records::CommandRow& each : commands) {
        setText(*table, row, 0, each.key);
        table->setItem(row, 1, new QTableWidgetItem(toQString(each.caption).remove(QLatin1Char('&'))));
        setText(*table, row++, 2, each.help);
    }
    for (const records::FieldKeyRow& each : fields) {
        setText(*table, row, 0, each.key);
        setText(*table, row, 1, each.fields);
        setText(*table, row++, 2, each.help);
    }
    layout->addWidget(table);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    fit(dialog, *table);
    dialog.exec();
}

bool askToAddColumns(const std::u16string& names) {
    return QMessageBox::question(
               nullptr, QStringLiteral("kelforms"),
               QStringLiteral("The table does not have these columns: %1. Add them?").arg(toQString(names))) ==
           QMessageBox::Yes;
}

}  // namespace kel::qt
