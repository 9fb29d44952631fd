#include "platform/qt/home/QtFormWindow.h"

#include <QKeyEvent>
#include <QLabel>
#include <QWidget>

#include "library/SharedSettings.h"
#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/base/KeyMap.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/WidgetSettings.h"
#include "platform/qt/home/ForeignWidgets.h"
#include "platform/qt/home/PlacedQtControl.h"

namespace kel::qt {

namespace {

/// Takes the focus itself where nothing has it, so that Qt does not hand it to the first field. Filters what comes to
/// its window.
class FormWidget final : public QWidget {
public:
    explicit FormWidget(QtFormWindow& form) : Form_(form) {}

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::WindowActivate && focusWidget() == nullptr) setFocus(Qt::ActiveWindowFocusReason);
        return QWidget::event(event);
    }
    bool eventFilter(QObject* /*window*/, QEvent* event) override {
        return atEdge([&] { return Form_.takesKey(*event); });
    }

private:
    QtFormWindow& Form_;
};

}  // namespace

QtFormWindow::QtFormWindow(const WindowSpec& description, const ControlServices& surroundings)
    : Surroundings_(surroundings), Window_(std::make_unique<FormWidget>(*this)) {
    const TwipGrid grid(surroundings.system.scale());
    Window_->setWindowTitle(toQString(description.caption));
    if (description.rightToLeft) Window_->setLayoutDirection(Qt::RightToLeft);
    Window_->setFixedSize(grid.pixels({0, 0, description.clientSize.width, description.clientSize.height}).size());
}

QtFormWindow::~QtFormWindow() = default;

// ---- Placing

QWidget& QtFormWindow::parentOf(const Placement& placement) const {
    return placement.parent != nullptr ? dynamic_cast<QWidget&>(*placement.parent) : *Window_;
}

PlacedControl& QtFormWindow::place(const ClassModel& model, const Placement& placement, ControlObserver& observer) {
    Controls_.push_back(std::make_unique<PlacedQtControl>(model, placement, Controls_.size(), Surroundings_, observer,
                                                          parentOf(placement)));
    Order_.add(*Controls_.back());
    return *Controls_.back();
}

PlacedPanel* QtFormWindow::placeForeign(const ForeignBlock& block) {
    const TwipGrid grid(Surroundings_.system.scale());
    QWidget* const widget = makeForeignWidget(block, grid, parentOf(block.placement));
    if (block.kind == ForeignBlock::Kind::Label)
        Captions_.push_back({static_cast<QLabel*>(widget), block.placement.tabIndex});
    return dynamic_cast<PlacedPanel*>(widget);
}

void QtFormWindow::show() {
    setTabOrder();
    nameByLabels();
    Window_->window()->installEventFilter(Window_.get());
    if (const auto runtime = Surroundings_.settings.Runtime)
        setWidgetFont(*Window_, fontLike(Window_->font(), runtime->CaptionFontName(), runtime->CaptionFontSize()));
    // By index: a host may place further controls meanwhile.
    for (std::size_t i = 0; i < Controls_.size(); ++i) Controls_[i]->site().shown();
    Window_->show();
    activate();
}

void QtFormWindow::setTabOrder() {
    PlacedQtControl* before = nullptr;
    for (TabStop* const stop : Order_.sorted()) {
        auto* const control = static_cast<PlacedQtControl*>(stop);
        if (!control->hasField()) continue;
        if (before != nullptr) control->site().tabAfter(before->site());
        before = control;
    }
}

/// So they are read out, and underline their mnemonics.
void QtFormWindow::nameByLabels() {
    for (const Caption& caption : Captions_)
        caption.label->setBuddy(static_cast<PlacedQtControl*>(Order_.namedBy(caption.tabIndex)));
}

// ---- Keys

bool QtFormWindow::takesKey(QEvent& event) {
    const bool asks = event.type() == QEvent::ShortcutOverride;
    if (!asks && event.type() != QEvent::KeyPress) return false;
    const KeyStroke stroke = strokeOf(static_cast<QKeyEvent&>(event));
    if (!(asks ? Order_.hasMnemonic(stroke) : Order_.pressMnemonic(stroke, focusedControl()))) return false;
    event.accept();
    return true;
}

}  // namespace kel::qt
