#include "platform/qt/control/KelControlWidget.h"

#include <QEvent>
#include <QPaintEvent>
#include <QShortcutEvent>

#include "common/FieldLayout.h"
#include "library/Control.h"
#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/control/RetiredControls.h"
#include "platform/qt/home/QtHome.h"

namespace kel::qt {

namespace {

constexpr int UsualCharacters = 17;
constexpr int FewestCharacters = 5;

Variant run(const ControlSite& site, Thunk accessor, std::span<Variant> arguments) {
    Variant result;
    atEdge([&] { return accessor(site.control(), arguments, &result, site.region()).ok(); });
    return result;
}

}  // namespace

KelControlWidget::KelControlWidget(const ClassModel& model, QWidget* parent)
    : KelControlWidget(model, defaultSurroundings(), parent) {
    control().InitProperties();
    Site_->fitCaption();
}

KelControlWidget::KelControlWidget(const ClassModel& model, const ControlServices& surroundings, QWidget* parent)
    : QWidget(parent), Site_(std::make_unique<ControlSite>(*this, surroundings)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // So that buddies find it; the field inside takes clicks as well.
    setFocusPolicy(Qt::TabFocus);
    Site_->makeControl(model);
    if (focusProxy() == nullptr) setFocusPolicy(Qt::NoFocus);
}

KelControlWidget::~KelControlWidget() { retire(std::move(Site_)); }

Control& KelControlWidget::control() const { return Site_->control(); }

/// A style sheet may give it another font.
QSize KelControlWidget::sizeHint() const {
    ensurePolished();
    return Site_->sizeHint(UsualCharacters);
}

QSize KelControlWidget::minimumSizeHint() const {
    ensurePolished();
    const QSize hint = Site_->sizeHint(FewestCharacters);
    return {hint.width(), Site_->grid().down().pixel(FieldHeight)};
}

void KelControlWidget::resetCaptionWidth() { Site_->resetCaptionWidth(); }

void KelControlWidget::controlEvent(const EventRow& /*event*/, std::span<Variant> /*arguments*/) {}

void KelControlWidget::propertyReported(std::u16string_view /*bagName*/) {}

// ---- Members

Variant KelControlWidget::readMember(std::size_t member, std::span<Variant> arguments) const {
    return run(*Site_, Site_->control().model().members[member].get, arguments);
}

void KelControlWidget::writeMember(std::size_t member, Variant value) {
    run(*Site_, Site_->control().model().members[member].put, {&value, 1});
}

Variant KelControlWidget::callMember(std::size_t member, std::span<Variant> arguments) const {
    return run(*Site_, Site_->control().model().members[member].call, arguments);
}

// ---- Events

bool KelControlWidget::event(QEvent* event) {
    return atEdge([&] {
        if (event->type() == QEvent::Shortcut)
            return Site_->mnemonicPressed(static_cast<QShortcutEvent*>(event)->shortcutId()) || QWidget::event(event);
        if (event->type() == QEvent::ToolTipChange && Site_) Site_->toolTipChanged();
        return QWidget::event(event);
    });
}

void KelControlWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
        case QEvent::EnabledChange: Site_->enabledMayDiffer(); break;
        case QEvent::LayoutDirectionChange: Site_->mirrored(); break;
        case QEvent::PaletteChange: Site_->recolored(); break;
        case QEvent::FontChange: Site_->measuresDiffer(); break;
        case QEvent::StyleChange:
            Site_->measuresDiffer();
            Site_->recolored();
            break;
        default: break;
    }
}

void KelControlWidget::resizeEvent(QResizeEvent* /*event*/) { Site_->resized(); }

void KelControlWidget::showEvent(QShowEvent* /*event*/) { Site_->shown(); }

void KelControlWidget::hideEvent(QHideEvent* /*event*/) { Site_->hidden(); }

void KelControlWidget::paintEvent(QPaintEvent* event) { Site_->paint(event->rect()); }

}  // namespace kel::qt
