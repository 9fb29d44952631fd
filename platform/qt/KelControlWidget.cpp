#include "platform/qt/KelControlWidget.h"

#include <QEvent>
#include <QPainter>
#include <QShortcutEvent>

#include "common/FieldLayout.h"
#include "library/Control.h"
#include "platform/qt/ControlSite.h"
#include "platform/qt/EdgeGuard.h"
#include "platform/qt/QtHome.h"

namespace kel::qt {

namespace {

constexpr int UsualCharacters = 20;
constexpr int FewestCharacters = 5;

}  // namespace

KelControlWidget::KelControlWidget(const ClassModel& model, QWidget* parent)
    : KelControlWidget(model, defaultSurroundings(), parent) {
    Site_->initNew();
}

KelControlWidget::KelControlWidget(const ClassModel& model, const Surroundings& surroundings, QWidget* parent)
    : QWidget(parent), Site_(std::make_unique<ControlSite>(*this, surroundings)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // So that buddies find it; the field inside takes clicks as well.
    setFocusPolicy(Qt::TabFocus);
    Site_->makeControl(model);
}

KelControlWidget::~KelControlWidget() = default;

Control& KelControlWidget::control() const { return Site_->control(); }

QSize KelControlWidget::sizeHint() const { return Site_->sizeHint(UsualCharacters); }

QSize KelControlWidget::minimumSizeHint() const {
    const QSize hint = Site_->sizeHint(FewestCharacters);
    return {hint.width(), Site_->grid().pixel(FieldHeight)};
}

void KelControlWidget::controlEvent(const EventRow& /*event*/, std::span<Variant> /*arguments*/) {}

void KelControlWidget::propertyReported(std::u16string_view /*bagName*/) {}

// ---- Members

Variant KelControlWidget::readMember(std::size_t member, std::span<Variant> arguments) const {
    Variant result;
    const MemberRow& row = control().model().members[member];
    row.get(control(), arguments, &result, Site_->region());
    return result;
}

void KelControlWidget::writeMember(std::size_t member, Variant value) {
    const MemberRow& row = control().model().members[member];
    row.put(control(), {&value, 1}, nullptr, Site_->region());
}

Variant KelControlWidget::callMember(std::size_t member, std::span<Variant> arguments) const {
    Variant result;
    const MemberRow& row = control().model().members[member];
    row.call(control(), arguments, &result, Site_->region());
    return result;
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
        case QEvent::PaletteChange:
        case QEvent::StyleChange: Site_->recolored(); break;
        default: break;
    }
}

void KelControlWidget::resizeEvent(QResizeEvent* /*event*/) { Site_->resized(); }

void KelControlWidget::showEvent(QShowEvent* /*event*/) { Site_->shown(); }

void KelControlWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    Site_->paint(painter);
}

}  // namespace kel::qt
