#include "platform/qt/home/QtFormWindow.h"

#include <QEvent>
#include <QLabel>
#include <QWidget>

#include "library/SharedSettings.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/WidgetSettings.h"
#include "platform/qt/home/ForeignWidgets.h"
#include "platform/qt/home/PlacedQtControl.h"

namespace kel::qt {

namespace {

/// Takes the focus itself where nothing has it, so that Qt does not hand it to the first field.
class FormWidget final : public QWidget {
protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::WindowActivate && focusWidget() == nullptr) setFocus(Qt::ActiveWindowFocusReason);
        return QWidget::event(event);
    }
};

}  // namespace

QtFormWindow::QtFormWindow(const WindowSpec& description, const ControlServices& surroundings)
    : Surroundings_(surroundings), Window_(std::make_unique<FormWidget>()) {
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
    befriendLabels();
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

/// The mnemonic of a plain label leads to the control that comes next.
void QtFormWindow::befriendLabels() {
    for (const Caption& caption : Captions_)
        caption.label->setBuddy(static_cast<PlacedQtControl*>(Order_.namedBy(caption.tabIndex)));
}

}  // namespace kel::qt
