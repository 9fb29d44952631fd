#include "platform/qt/control/KelControlWidget.h"

#include <QContextMenuEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPaintEvent>
#include <QShortcutEvent>
#include <QStyle>

#include "common/FieldLayout.h"
#include "host/PropertyBag.h"
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

/// A style sheet may give the widget a ground and a border. Other styles have none for it, and are not asked at every
/// key.
void askForGround(QWidget& widget) {
    widget.setAttribute(Qt::WA_StyledBackground, widget.style()->inherits("QStyleSheetStyle"));
}

}  // namespace

KelControlWidget::KelControlWidget(const ClassModel& model, QWidget* parent)
    : KelControlWidget(model, defaultSurroundings(parent != nullptr ? parent->locale() : QLocale()), parent) {
    FollowsLocale_ = true;
    control().InitProperties();
    Site_->fitCaption();
}

KelControlWidget::KelControlWidget(const ClassModel& model, const ControlServices& surroundings, QWidget* parent)
    : QWidget(parent), Site_(std::make_unique<ControlSite>(*this, surroundings)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    askForGround(*this);
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
    const MemberRow& row = Site_->control().model().members[member];
    if (row.id == DefaultMemberId) Loaded_.reset();
    run(*Site_, row.put, {&value, 1});
}

void KelControlWidget::resetMember(std::size_t member) {
    const PersistedRow& row = Site_->control().model().members[member].persisted;
    atEdge([&] {
        row.load(control(), toVariant(row.readDefault));
        return true;
    });
}

Variant KelControlWidget::callMember(std::size_t member, std::span<Variant> arguments) const {
    return run(*Site_, Site_->control().model().members[member].call, arguments);
}

Variant KelControlWidget::storedValue() const {
    Variant value;
    atEdge([&] {
        value = control().valueToStore();
        return true;
    });
    return value;
}

bool KelControlWidget::standsValid() const {
    return atEdge([&] { return control().standing().valid; });
}

bool KelControlWidget::standsChanged() const {
    return atEdge([&] { return control().standing().changed; });
}

// ---- Bound data

QVariant KelControlWidget::readBound(const QVariant& typed) const {
    return Loaded_ && Loaded_->held == storedValue() ? Loaded_->written : typed;
}

void KelControlWidget::writeBound(std::size_t member, const QVariant& value, const Variant& converted) {
    writeMember(member, converted);
    if (value.isValid()) Loaded_ = std::make_unique<Loaded>(Loaded{value, storedValue()});
}

// ---- Signals

/// Only what somebody listens to is looked at with every key.
void KelControlWidget::connectNotify(const QMetaMethod& signal) {
    QWidget::connectNotify(signal);
    if (signal == metaObject()->userProperty().notifySignal())
        site().follow(StandingWatch::Aspect::Value);
    else if (signal.name() == "validChanged")
        site().follow(StandingWatch::Aspect::Valid);
    else if (signal.name() == "changedChanged")
        site().follow(StandingWatch::Aspect::Changed);
}

// ---- Events

bool KelControlWidget::event(QEvent* event) {
    return atEdge([&] {
        if (event->type() == QEvent::Shortcut)
            return Site_->mnemonicPressed(static_cast<QShortcutEvent*>(event)->shortcutId()) || QWidget::event(event);
        if (event->type() == QEvent::ShortcutOverride && Site_->giveToField(*event)) return event->isAccepted();
        if (event->type() == QEvent::ToolTipChange && Site_) Site_->toolTipChanged();
        return QWidget::event(event);
    });
}

void KelControlWidget::keyPressEvent(QKeyEvent* event) {
    if (!Site_->giveToField(*event)) QWidget::keyPressEvent(event);
}

void KelControlWidget::keyReleaseEvent(QKeyEvent* event) {
    if (!Site_->giveToField(*event)) QWidget::keyReleaseEvent(event);
}

void KelControlWidget::contextMenuEvent(QContextMenuEvent* event) {
    const QWidget* const field = Site_->fieldAt(event->pos());
    if (field == nullptr) return QWidget::contextMenuEvent(event);
    QContextMenuEvent inField(event->reason(), field->mapFrom(this, event->pos()), event->globalPos(),
                              event->modifiers());
    Site_->giveToField(inField);
    event->setAccepted(inField.isAccepted());
}

void KelControlWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
        case QEvent::EnabledChange: Site_->enabledMayDiffer(); break;
        case QEvent::LayoutDirectionChange: Site_->mirrored(); break;
        case QEvent::LocaleChange:
            if (FollowsLocale_) Site_->setRegion(defaultRegion(locale()));
            break;
        case QEvent::PaletteChange: Site_->recolored(); break;
        case QEvent::FontChange: Site_->measuresDiffer(); break;
        case QEvent::StyleChange:
            askForGround(*this);
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
