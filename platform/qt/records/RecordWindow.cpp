#include "platform/qt/records/RecordWindow.h"

#include <map>
#include <optional>
#include <QAction>
#include <QBuffer>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTime>
#include <QTimer>
#include <QToolBar>

#include "forms/Form.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/home/QtFormWindow.h"
#include "platform/qt/records/Breath.h"
#include "platform/qt/records/CommandIcons.h"
#include "platform/qt/records/FormArea.h"
#include "platform/qt/records/ListDialogs.h"
#include "platform/qt/records/RecordDialogs.h"
#include "platform/qt/records/RecordListDock.h"
#include "records/Commands.h"
#include "records/exchange/ListFiles.h"
#include "records/Finder.h"
#include "records/RecordForm.h"

namespace kel::qt {

namespace {

using records::Command;

constexpr int StateEvery = 250;  ///< milliseconds between two looks at whether something has been typed
constexpr int ListWidth = 380;   ///< pixels, until the person has drawn it wider
constexpr int FrameWidth = 4;    ///< pixels, of what stands around the form
constexpr int Later = 1000;      ///< milliseconds until what could not be done beside is tried again

}  // namespace

class RecordWindow::Implementation final : public QMainWindow {
public:
    Implementation(Form& form, Home& home, Home& unseen, records::Store& store, const records::Table& table)
        : Dialogs_(*this), Store_(store.open(table)), FormWindow_(dynamic_cast<QtFormWindow&>(form.window())) {
        setUpdatesEnabled(false);  // it is painted once, with its record
        setWindowTitle(FormWindow_.widget().windowTitle());
        setLayoutDirection(FormWindow_.widget().layoutDirection());
        Area_ = new FormArea(this);
        Area_->setWidget(&FormWindow_.widget());
        Lent_.reset(Area_);
        setCentralWidget(Area_);
        makeCommands(form.file());
        makeStatusBar();
        const QSize wanted = FormWindow_.widget().size();
        Area_->setMinimumSize(wanted.boundedTo(QSize(400, 200)));
        const QSize whole = wanted + QSize(FrameWidth, menuBar()->sizeHint().height() + Tools_->sizeHint().height() +
                                                           statusBar()->sizeHint().height() + FrameWidth);
        resize(whole.boundedTo(screen()->availableSize()));
        show();
        form.show();
        Form_ = std::make_unique<records::RecordForm>(form, *Store_, Dialogs_, home.region(), &store);
        Lists_.emplace(*this, form.file(), *Form_, Dialogs_, unseen);
        Form_->focusFirst();
        refreshState();
        setUpdatesEnabled(true);
    }

    /// The list goes before the records that it shows.
    ~Implementation() override { delete List_; }

    void run(Command command) {
        if (endsSearch()) return;
        statusBar()->clearMessage();
        attempt([&] { carryOut(command); });
        refreshState();
    }

    void carryOut(Command command) {
        switch (command) {
            case Command::New: Form_->startNew(); break;
            case Command::Save: Form_->save(); break;
            case Command::SaveAndNew: Form_->saveAndStartNew(); break;
            case Command::Duplicate: Form_->duplicate(); break;
            case Command::Delete: refreshListIf(Form_->remove()); break;
            case Command::Undo: Form_->undo(); break;
            case Command::Refresh: refreshListIf(Form_->readAgain()); break;
            case Command::Import: workThrough([&] { refreshListIf(Lists_->importList()); }); break;
            case Command::Export: workThrough([&] { Lists_->exportList(); }); break;
            case Command::Close: close(); break;
            case Command::First: Form_->toFirst(); break;
            case Command::Previous: Form_->toPrevious(); break;
            case Command::Next: Form_->toNext(); break;
            case Command::Last: Form_->toLast(); break;
            case Command::GoTo: goTo(); break;
            case Command::Find: find(); break;
            case Command::FindNext: findFurther(records::Way::Forward); break;
            case Command::FindPrevious: findFurther(records::Way::Backward); break;
            case Command::ShowList: showList(!isListShown()); break;
            case Command::CarryOver: carryOver(); break;
            case Command::Keys: showKeys(*this); break;
        }
    }

    /// Meanwhile nothing is found out beside: what is not all stored yet may be undone.
    template <class Action>
    void workThrough(Action action) {
        const QScopedValueRollback working(IsWorking_, true);
        action();
    }

    /// Runs `action`; what the database says against it is told to the person.
    template <class Action>
    void attempt(Action action) {
        try {
            action();
        } catch (const records::StoreError& error) {
            Dialogs_.say(error.words());
        }
    }

    /// All that is found out while nobody waits is known when this returns.
    void awaitPlaces() {
        Form_->place();
        Form_->count();
        refreshState();
    }

protected:
    void closeEvent(QCloseEvent* event) override {
        if (IsSeeking_) QTimer::singleShot(0, this, [this] { close(); });
        event->setAccepted(!IsSeeking_ && Form_->mayLeave());
        IsSeeking_ = false;
    }

private:
    /// The form's window is the form's again, also where the records do not fit it.
    struct GiveBack {
        void operator()(FormArea* area) const { area->takeWidget()->setParent(nullptr); }
    };

    // ---- Parts of the window

    void makeCommands(const FormFile& form) {
        Tools_ = addToolBar(QStringLiteral("Records"));
        Tools_->setMovable(false);
        Tools_->setContextMenuPolicy(Qt::PreventContextMenu);
        std::map<std::u16string_view, QMenu*> menus;
        const auto captions = records::menuCaptions(form);
        for (const records::CommandRow& row : records::commandRows()) {
            QMenu*& menu = menus[row.menu];
            if (menu == nullptr) menu = menuBar()->addMenu(toQString(captions.at(row.menu)));
            if (row.startsGroup) menu->addSeparator();
            QAction* const action = menu->addAction(iconOf(*this, row.command), toQString(row.caption));
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
        List_ = new RecordListDock(*Form_, Dialogs_, *this);
        List_->hide();
        addDockWidget(Qt::RightDockWidgetArea, List_);
        QObject::connect(List_, &RecordListDock::chosen, this, &Implementation::showRecord);
        QObject::connect(List_, &RecordListDock::sorted, this, [this] {
            if (!endsSearch()) refreshState();
        });
    }

    void makeStatusBar() {
        Place_ = new QLabel(this);
        State_ = new QLabel(this);
        Place_->setMargin(fontMetrics().averageCharWidth());
        statusBar()->addPermanentWidget(Place_);  // where no message hides it
        statusBar()->addPermanentWidget(State_);
        auto* const timer = new QTimer(this);
        QObject::connect(timer, &QTimer::timeout, this, [this] {
            showChanged();
            noticeOthers();
        });
        timer->start(StateEvery);
        Idle_ = new QTimer(this);
        Idle_->setSingleShot(true);
        QObject::connect(Idle_, &QTimer::timeout, this, [this] { lookOn(); });
        Escape_ = new QAction(this);
        Escape_->setShortcut(QKeySequence(Qt::Key_Escape));
        Escape_->setEnabled(false);
        QObject::connect(Escape_, &QAction::triggered, this, [this] { IsSeeking_ = false; });
        addAction(Escape_);
    }

    // ---- What the person wants

    /// Also what was saved because the record was left.
    void noteSaves() {
        if (std::exchange(Saves_, Form_->saves()) == Form_->saves()) return;
        Saved_ = QStringLiteral("saved ") + QTime::currentTime().toString(QStringLiteral("HH:mm"));
        refreshListIf(true);
    }

    bool isListShown() const { return List_ != nullptr && List_->isVisible(); }

    void refreshListIf(bool changed) {
        if (changed && isListShown()) List_->refresh();
    }

    /// Whatever the person does while a search goes on ends that first.
    bool endsSearch() { return std::exchange(IsSeeking_, false); }

    void showRecord(const records::Record& record) {
        if (endsSearch()) return;
        attempt([&] {
            if (Form_->toRecord(record)) Form_->setOrder(List_->order());
        });
        refreshState();
    }

    void goTo() {
        bool wanted = false;
        const records::Places& places = Form_->overview().places(Form_->order());
        const auto count = std::min<std::int64_t>(places.count().value_or(INT32_MAX), INT32_MAX);
        const std::int64_t now = knownPlace().value_or(0) + 1;
        const int place = QInputDialog::getInt(this, QStringLiteral("Go to"), QStringLiteral("&Number of the record:"),
                                               static_cast<int>(std::min(now, count)), 1,
                                               static_cast<int>(std::max<std::int64_t>(count, 1)), 1, &wanted);
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

    /// The window stays alive, and Escape ends it, as any other command does.
    void seek(const records::Record* from, records::Way way) {
        if (!Form_->mayLeave()) return;
        IsSeeking_ = true;
        Escape_->setEnabled(true);
        Breath breath;
        const auto goesOn = [&] {
            if (!breath.isDue()) return true;
            statusBar()->showMessage(QStringLiteral("Looking for \"%1\"\u2026 Escape ends it.").arg(Sought_));
            breath.take();
            return IsSeeking_;
        };
        attempt([&] {
            static_cast<void>(Form_->overview().refresh());
            Form_->overview().wantTexts();
            const records::Finder finder(*Store_, viewOf(Sought_), Form_->order(), Form_->overview().texts(),
                                         [this](const records::Record& record) { return Form_->textsOf(record); });
            auto [hit, hits] = finder.nearestAround(from, way, goesOn);
            if (hit) Form_->toRecord(*hit);
            refreshState();
            if (hit && !hits && IsSeeking_) hits = finder.count(goesOn);
            const QString sought = QLatin1Char('"') + Sought_ + QLatin1Char('"');
            statusBar()->showMessage(hits ? sought + QLatin1String(" is in ") +
                                                toQString(records::counted(*hits, u"record.", u"records."))
                                     : hit         ? sought + QLatin1String(" was found.")
                                     : !IsSeeking_ ? QStringLiteral("Not looked for any further.")
                                                   : sought + QLatin1String(" is in no record."));
        });
        IsSeeking_ = false;
        Escape_->setEnabled(false);
    }

    /// The window grows and shrinks with it, so that the form stays as wide as it is.
    void showList(bool shown) {
        if (List_ == nullptr) makeList();
        const int separator = style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent);
        if (!isMaximized()) widen(shown ? ListWidth + separator : -(List_->width() + separator));
        List_->setVisible(shown);
        if (!shown) return;
        List_->refresh();
        List_->measure();
        resizeDocks({List_}, {ListWidth}, Qt::Horizontal);
    }

    /// As far as the screen goes; narrower only as far as the form does.
    void widen(int by) {
        const int most = by > 0 ? screen()->availableSize().width() : width();
        const int least = by > 0 ? width() : std::min(width(), FormWindow_.widget().width() + FrameWidth);
        resize(std::max(std::min(width() + by, most), least), height());
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

    /// From 0; nothing where it is not known yet.
    std::optional<std::int64_t> knownPlace() {
        return Form_->shown() ? Form_->overview().places(Form_->order()).placeOf(*Form_->shown()) : std::nullopt;
    }

    void refreshState() {
        noteSaves();
        try {
            static_cast<void>(Form_->overview().refresh());
            const auto count = Form_->overview().places(Form_->order()).count();
            const auto place = knownPlace();
            const QString all = count ? QString::number(*count) : QStringLiteral("\u2026");
            const QString its = place ? QString::number(*place + 1) : QStringLiteral("\u2026");
            Place_->setText(Form_->shown() ? QStringLiteral("Record %1 of %2").arg(its, all)
                                           : QStringLiteral("New record, %1 so far").arg(all));
            if (isListShown()) List_->mark(place);
        } catch (const records::StoreError& error) {
            Place_->setText(toQString(error.words()));
        }
        if (!Idle_->isActive()) Idle_->start(0);
        showChanged();
    }

    // ---- What is done while nobody waits

    /// Runs `action` on the database if that is free, and says whether it was.
    template <class Action>
    bool beside(Action action) {
        if (!Form_ || IsSeeking_ || IsWorking_) return false;
        const records::Impatience impatience(*Store_);
        try {
            action();
        } catch (const records::StoreError&) {
            return false;  // it is tried again
        }
        return true;
    }

    void noticeOthers() {
        bool isAnew = false;
        if (beside([&] { isAnew = Form_->overview().refresh(); }) && isAnew) refreshState();
    }

    void lookOn() {
        bool isMore = true;
        const bool isFree = beside([&] {
            records::Overview& overview = Form_->overview();
            const records::Places& places = overview.places(Form_->order());
            const records::Places& listed = overview.places(List_ == nullptr ? Form_->order() : List_->order());
            const bool wasWhole = places.isWhole() && listed.isWhole();
            isMore = overview.lookOn();
            if (wasWhole || !places.isWhole() || !listed.isWhole()) return;
            refreshListIf(true);
            if (*places.count() >= records::Many && Store_->isNear()) overview.wantTexts();
            isMore = true;
            refreshState();
        });
        if (isMore) Idle_->start(isFree ? 0 : Later);
    }

    void showChanged() {
        if (Form_) State_->setText(Form_->looksChanged() ? QStringLiteral("changed") : Saved_);
    }

    RecordDialogs Dialogs_;
    std::unique_ptr<records::RecordStore> Store_;
    QtFormWindow& FormWindow_;
    std::unique_ptr<records::RecordForm> Form_;
    std::optional<ListDialogs> Lists_;
    FormArea* Area_ = nullptr;
    RecordListDock* List_ = nullptr;  ///< made when it is first shown
    QToolBar* Tools_ = nullptr;
    QLabel* Place_ = nullptr;
    QLabel* State_ = nullptr;
    QString Saved_;
    std::int64_t Saves_ = 0;  ///< that are told of
    QString Sought_;
    QTimer* Idle_ = nullptr;     ///< while something is still to be found out
    QAction* Escape_ = nullptr;  ///< ends a search
    bool IsSeeking_ = false;
    bool IsWorking_ = false;  ///< at a list
    std::unique_ptr<FormArea, GiveBack> Lent_;
};

RecordWindow::RecordWindow(Form& form, Home& home, Home& unseen, records::Store& store, const records::Table& table)
    : Implementation_(std::make_unique<Implementation>(form, home, unseen, store, table)) {}

RecordWindow::~RecordWindow() = default;

std::string RecordWindow::picture() const {
    Implementation_->awaitPlaces();
    // What has changed is laid out, and what is laid out otherwise then is drawn.
    for (int i = 0; i < 2; ++i) QCoreApplication::processEvents();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    Implementation_->grab().save(&buffer, "PNG");
    return bytes.toStdString();
}

}  // namespace kel::qt
