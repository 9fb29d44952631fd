#include "platform/qt/records/RecordWindow.h"

#include <map>
#include <optional>
#include <QAction>
#include <QBuffer>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyle>
#include <QTableView>
#include <QTime>
#include <QTimer>
#include <QToolBar>

#include "forms/Form.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/home/QtFormWindow.h"
#include "platform/qt/records/ListDialogs.h"
#include "platform/qt/records/RecordDialogs.h"
#include "platform/qt/records/RecordList.h"
#include "records/Commands.h"
#include "records/Finder.h"
#include "records/RecordForm.h"

namespace kel::qt {

namespace {

using records::Command;

constexpr int StateEvery = 250;     ///< milliseconds between two looks at whether something has been typed
constexpr int ListWidth = 380;      ///< pixels, until the person has drawn it wider
constexpr int LongestSilence = 40;  ///< milliseconds for which a search leaves the window alone

QIcon iconOf(const QStyle& style, Command command) {
    switch (command) {
        case Command::New: return style.standardIcon(QStyle::SP_FileIcon);
        case Command::Save: return style.standardIcon(QStyle::SP_DialogSaveButton);
        case Command::SaveAndNew: return style.standardIcon(QStyle::SP_DialogYesButton);
        case Command::Undo: return style.standardIcon(QStyle::SP_DialogResetButton);
        case Command::First: return style.standardIcon(QStyle::SP_MediaSkipBackward);
        case Command::Previous: return style.standardIcon(QStyle::SP_MediaSeekBackward);
        case Command::Next: return style.standardIcon(QStyle::SP_MediaSeekForward);
        case Command::Last: return style.standardIcon(QStyle::SP_MediaSkipForward);
        case Command::Find: return style.standardIcon(QStyle::SP_FileDialogContentsView);
        default: return {};
    }
}

}  // namespace

class RecordWindow::Implementation final : public QMainWindow {
public:
    Implementation(Form& form, Home& home, Home& unseen, records::Store& store, const records::Table& table)
        : Dialogs_(*this), Store_(store.open(table)), FormWindow_(dynamic_cast<QtFormWindow&>(form.window())) {
        setWindowTitle(FormWindow_.widget().windowTitle());
        setLayoutDirection(FormWindow_.widget().layoutDirection());
        Area_ = new QScrollArea(this);
        Area_->setFrameShape(QFrame::NoFrame);
        Area_->setFocusPolicy(Qt::NoFocus);
        Area_->setWidget(&FormWindow_.widget());
        setCentralWidget(Area_);
        makeCommands();
        makeStatusBar();
        const QSize wanted = FormWindow_.widget().size();
        Area_->setMinimumSize(wanted.boundedTo(QSize(400, 200)));
        resize(wanted + QSize(4, menuBar()->sizeHint().height() + Tools_->sizeHint().height() +
                                     statusBar()->sizeHint().height() + 4));
        show();
        form.show();
        Form_ = std::make_unique<records::RecordForm>(form, *Store_, Dialogs_, home.region(), &store);
        Lists_.emplace(*this, form.file(), *Form_, Dialogs_, unseen);
        makeList();
        Form_->focusFirst();
        refreshState();
    }

    /// The form's window is the form's again.
    ~Implementation() override { Area_->takeWidget()->setParent(nullptr); }

    void run(Command command) {
        switch (command) {
            case Command::New: Form_->startNew(); break;
            case Command::Save: noteSaved(Form_->save()); break;
            case Command::SaveAndNew: noteSaved(Form_->saveAndStartNew()); break;
            case Command::Duplicate: Form_->duplicate(); break;
            case Command::Delete: refreshListIf(Form_->remove()); break;
            case Command::Undo: Form_->undo(); break;
            case Command::Refresh: readAgain(); break;
            case Command::Import: refreshListIf(Lists_->importList()); break;
            case Command::Export: Lists_->exportList(); break;
            case Command::Close: close(); break;
            case Command::First: Form_->toFirst(); break;
            case Command::Previous: Form_->toPrevious(); break;
            case Command::Next: Form_->toNext(); break;
            case Command::Last: Form_->toLast(); break;
            case Command::GoTo: goTo(); break;
            case Command::Find: find(); break;
            case Command::FindNext: findFurther(records::Way::Forward); break;
            case Command::FindPrevious: findFurther(records::Way::Backward); break;
            case Command::ShowList: showList(!ListDock_->isVisible()); break;
            case Command::CarryOver: carryOver(); break;
            case Command::Keys: showKeys(*this); break;
        }
        refreshState();
    }

protected:
    void closeEvent(QCloseEvent* event) override { event->setAccepted(Form_->mayLeave()); }

private:
    // ---- Parts of the window

    void makeCommands() {
        Tools_ = addToolBar(QStringLiteral("Records"));
        Tools_->setMovable(false);
        Tools_->setContextMenuPolicy(Qt::PreventContextMenu);
        std::map<std::u16string_view, QMenu*> menus;
        for (const records::CommandRow& row : records::commandRows()) {
            QMenu*& menu = menus[row.menu];
            if (menu == nullptr) menu = menuBar()->addMenu(toQString(row.menu));
            if (row.startsGroup) menu->addSeparator();
            QAction* const action = menu->addAction(iconOf(*style(), row.command), toQString(row.caption));
            action->setShortcut(QKeySequence(toQString(row.key)));
            action->setStatusTip(toQString(row.help));
            action->setToolTip(toQString(row.help) + QLatin1String(" (") + toQString(row.key) + QLatin1Char(')'));
            QObject::connect(action, &QAction::triggered, this, [this, command = row.command] { run(command); });
            if (row.inToolBar) Tools_->addAction(action);
        }
        // The fields keep the focus when a button is pressed.
        for (QWidget* const button : Tools_->findChildren<QWidget*>()) button->setFocusPolicy(Qt::NoFocus);
    }

    void makeList() {
        List_ = new RecordList(*Form_, this);
        Table_ = new QTableView(this);
        Table_->setModel(List_);
        Table_->setSelectionBehavior(QAbstractItemView::SelectRows);
        Table_->setSelectionMode(QAbstractItemView::SingleSelection);
        Table_->setSortingEnabled(true);
        Table_->sortByColumn(-1, Qt::AscendingOrder);
        Table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        Table_->verticalHeader()->setDefaultSectionSize(Table_->fontMetrics().height() + 6);
        Table_->setWordWrap(false);
        Table_->setTabKeyNavigation(false);
        QObject::connect(Table_, &QTableView::activated, this,
                         [this](const QModelIndex& index) { showRow(index.row()); });
        QObject::connect(Table_, &QTableView::clicked, this,
                         [this](const QModelIndex& index) { showRow(index.row()); });
        ListDock_ = new QDockWidget(QStringLiteral("Records"), this);
        ListDock_->setWidget(Table_);
        ListDock_->hide();
        addDockWidget(Qt::RightDockWidgetArea, ListDock_);
    }

    void makeStatusBar() {
        Place_ = new QLabel(this);
        State_ = new QLabel(this);
        statusBar()->addWidget(Place_);
        statusBar()->addPermanentWidget(State_);
        auto* const timer = new QTimer(this);
        QObject::connect(timer, &QTimer::timeout, this, [this] { showChanged(); });
        timer->start(StateEvery);
    }

    // ---- What the person wants

    void noteSaved(bool saved) {
        if (saved) Saved_ = QStringLiteral("saved ") + QTime::currentTime().toString(QStringLiteral("HH:mm"));
        refreshListIf(saved);
    }

    void refreshListIf(bool changed) {
        if (changed) List_->refresh();
    }

    void readAgain() {
        if (!Form_->shown()) return;
        const records::Record record = *Form_->shown();
        if (!Form_->toRecord(record)) Form_->toFirst();
        List_->refresh();
    }

    void showRow(int row) {
        const records::Record* const record = List_->recordAt(row);
        if (record == nullptr) return;
        Form_->setOrder(List_->order());
        Form_->toRecord(records::Record(*record));
        refreshState();
    }

    void goTo() {
        bool wanted = false;
        const auto count = static_cast<int>(std::min<std::int64_t>(Form_->count(), INT32_MAX));
        const int now = static_cast<int>(Form_->place().value_or(1));
        const int place = QInputDialog::getInt(this, QStringLiteral("Go to"), QStringLiteral("&Number of the record:"),
                                               now, 1, std::max(count, 1), 1, &wanted);
        if (wanted) Form_->toPlace(place);
    }

    void find() {
        bool wanted = false;
        const QString text = QInputDialog::getText(this, QStringLiteral("Find"), QStringLiteral("&Text in any field:"),
                                                   QLineEdit::Normal, Sought_, &wanted);
        if (!wanted || text.isEmpty()) return;
        Sought_ = text;
        seek(nullptr, records::Way::Forward);
    }

    void findFurther(records::Way way) {
        if (Sought_.isEmpty()) return find();
        const std::optional<records::Record> from = Form_->shown();
        seek(from ? &*from : nullptr, way);
    }

    /// The window stays alive, and Escape ends it.
    void seek(const records::Record* from, records::Way way) {
        if (!Form_->mayLeave()) return;
        const records::Finder finder(*Store_, viewOf(Sought_), Form_->order());
        Seeking_ = true;
        QElapsedTimer silence;
        silence.start();
        const auto goesOn = [&] {
            if (silence.elapsed() < LongestSilence) return true;
            silence.restart();
            statusBar()->showMessage(QStringLiteral("Looking for \"%1\"\u2026").arg(Sought_));
            QCoreApplication::processEvents();
            return Seeking_;
        };
        try {
            const std::optional<records::Record> hit = finder.nearestAround(from, way, goesOn);
            if (hit) Form_->toRecord(*hit);
            const auto hits = hit ? finder.count(goesOn) : std::nullopt;
            statusBar()->showMessage(!hit   ? QStringLiteral("\"%1\" is in no record.").arg(Sought_)
                                     : hits ? QStringLiteral("\"%1\" is in %2 records.").arg(Sought_).arg(*hits)
                                            : QStringLiteral("\"%1\" was found.").arg(Sought_));
        } catch (const records::StoreError& error) {
            Dialogs_.say(QString::fromUtf8(error.what()).toStdU16String());
        }
        Seeking_ = false;
    }

    /// The window grows and shrinks with it, so that the form stays as wide as it is.
    void showList(bool shown) {
        if (shown == ListDock_->isVisible()) return;
        if (shown) List_->refresh();
        const int separator = style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent);
        if (!isMaximized())
            resize(width() + (shown ? ListWidth + separator : -(ListDock_->width() + separator)), height());
        ListDock_->setVisible(shown);
        if (shown) resizeDocks({ListDock_}, {ListWidth}, Qt::Horizontal);
    }

    void carryOver() {
        const PlacedControl* const focused = FormWindow_.focused();
        for (const records::Binding& binding : Form_->bindings()) {
            if (&binding.control() != focused) continue;
            const bool carried = !Form_->isCarried(binding);
            Form_->setCarried(binding, carried);
            statusBar()->showMessage((carried ? QStringLiteral("%1 goes along into the next new record.")
                                              : QStringLiteral("%1 does not go along any more."))
                                         .arg(toQString(binding.caption())));
        }
    }

    // ---- What it shows of them

    void refreshState() {
        try {
            const auto place = Form_->place();
            Place_->setText(place ? QStringLiteral("Record %1 of %2").arg(*place).arg(Form_->count())
                                  : QStringLiteral("New record, %1 so far").arg(Form_->count()));
            if (place && ListDock_->isVisible() && List_->order() == Form_->order())
                Table_->selectRow(static_cast<int>(*place - 1));
        } catch (const records::StoreError& error) {
            Place_->setText(QString::fromUtf8(error.what()));
        }
        showChanged();
    }

    void showChanged() {
        if (Form_) State_->setText(Form_->looksChanged() ? QStringLiteral("changed") : Saved_);
    }

    RecordDialogs Dialogs_;
    std::unique_ptr<records::RecordStore> Store_;
    QtFormWindow& FormWindow_;
    std::unique_ptr<records::RecordForm> Form_;
    std::optional<ListDialogs> Lists_;
    QScrollArea* Area_ = nullptr;
    RecordList* List_ = nullptr;
    QTableView* Table_ = nullptr;
    QDockWidget* ListDock_ = nullptr;
    QToolBar* Tools_ = nullptr;
    QLabel* Place_ = nullptr;
    QLabel* State_ = nullptr;
    QString Saved_;
    QString Sought_;
    bool Seeking_ = false;
};

RecordWindow::RecordWindow(Form& form, Home& home, Home& unseen, records::Store& store, const records::Table& table)
    : Implementation_(std::make_unique<Implementation>(form, home, unseen, store, table)) {}

RecordWindow::~RecordWindow() = default;

std::string RecordWindow::picture() const {
    QCoreApplication::processEvents();  // what has changed is laid out
    QByteArray bytes;
    QBuffer buffer(&bytes);
    Implementation_->grab().save(&buffer, "PNG");
    return bytes.toStdString();
}

}  // namespace kel::qt
