#include "platform/qt/control/ControlSite.h"

#include <QClipboard>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeySequence>
#include <QPainter>
#include <QPointer>
#include <QWidget>

#include "common/EntryField.h"
#include "library/Dispatch.h"
#include "library/SharedSettings.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/WidgetSettings.h"
#include "platform/qt/control/KelControlWidget.h"
#include "platform/qt/control/QtFocus.h"
#include "platform/qt/control/RetiredControls.h"
#include "platform/qt/widgets/CaptionLabel.h"
#include "platform/qt/widgets/FieldView.h"
#include "platform/qt/widgets/QtCheckBox.h"
#include "platform/qt/widgets/QtComboBox.h"
#include "platform/qt/widgets/QtLine.h"
#include "platform/qt/widgets/QtPictureBox.h"
#include "platform/qt/widgets/QtTextArea.h"
#include "platform/qt/widgets/QtUpDown.h"

namespace kel::qt {

namespace {

constexpr std::int32_t TallHeight = 1200;  ///< twips, of a new field of several lines

/// Unless the program has given it a name of its own. Each naming costs as much as a small widget.
void setSpokenName(QWidget& widget, const QString& before, const QString& now) {
    if (now != before && widget.accessibleName() == before) widget.setAccessibleName(now);
}

}  // namespace

ControlSite::ControlSite(KelControlWidget& widget, const ControlServices& surroundings)
    : Host_(&widget),
      Widget_(&widget),
      Surroundings_(surroundings),
      Region_(&surroundings.region),
      Grid_(surroundings.amongOthers ? gridOf(widget) : TwipGrid(surroundings.system.scale())) {}

ControlSite::~ControlSite() { focus::forget(*this); }

void ControlSite::makeControl(const ClassModel& model) {
    ControlHost host{*this, *this, Surroundings_.system, Surroundings_.settings, region()};
    Control_ = model.makeControl(host);
    Control_->Initialize();
}

void ControlSite::leaveWidget() {
    focus::forget(*this);
    Remains_ = std::make_unique<QWidget>();
    Remains_->setObjectName(Widget_->objectName());
    Remains_->setEnabled(enabled());
    Remains_->resize(Widget_->size());
    forEach<PlacedView>([this](PlacedView& child) { child.widget().setParent(Remains_.get()); });
    Widget_ = Remains_.get();
    Host_ = nullptr;
    Mnemonic_ = 0;
}

// ---- Size

QSize ControlSite::pixelSize() const { return Grid_.pixels({0, 0, Size_.width, Size_.height}, Origin_).size(); }

bool ControlSite::hasSize() const { return Sized_ || Widget_->testAttribute(Qt::WA_Resized); }

Size ControlSite::size() const {
    // A hidden widget is told of its size late.
    const bool isStale = hasSize() && pixelSize() != Widget_->size();
    return isStale ? Grid_.twips(Widget_->size()) : Size_;
}

void ControlSite::setSize(Size wanted) {
    if (hasSize() && wanted == size()) return;
    Size_ = wanted;
    Sized_ = true;
    Widget_->resize(pixelSize());
    if (Control_) Control_->Resize();
}

void ControlSite::resized() {
    if (Sized_ && pixelSize() == Widget_->size()) return;
    Size_ = Grid_.twips(Widget_->size());
    Sized_ = true;
    Control_->Resize();
}

QRect ControlSite::pixelRect(const Rect& bounds) const {
    QRect pixels = Grid_.pixels(bounds, Origin_);
    if (Widget_->layoutDirection() == Qt::RightToLeft) pixels.moveLeft(Widget_->width() - pixels.x() - pixels.width());
    return pixels;
}

void ControlSite::setOrigin(QPoint twips) {
    if (twips == Origin_) return;
    Origin_ = twips;
    if (Sized_) Widget_->resize(pixelSize());
    placeChildren();
}

void ControlSite::placeChildren() const {
    forEach<PlacedView>([](PlacedView& child) { child.placeAgain(); });
}

void ControlSite::mirrored() {
    placeChildren();
    Widget_->update();
}

void ControlSite::measuresDiffer() {
    if (!isAmongOthers()) return;
    forEach<PlacedView>([](PlacedView& child) { child.fontAgain(); });
    const TwipGrid grid = gridOf(*Widget_);
    const bool isSame = std::exchange(Grid_, grid) == grid;
    fitCaption();
    if (isSame) return;
    if (Sized_) {
        Size_ = Grid_.twips(Widget_->size());
        Control_->Resize();
        placeChildren();
    }
    Widget_->updateGeometry();
}

QSize ControlSite::sizeHint(int characters) const {
    const bool isTall = Active_ != nullptr && Active_->isTall();
    const EntryField* const entry = captioned();
    const int caption = entry != nullptr ? Grid_.across().pixel(entry->wantedCaptionWidth()) : 0;
    const UpDown* const upDown = Control_->widgets().upDown;
    const int spinner = upDown != nullptr && upDown->visible() ? Grid_.across().pixel(upDown->bounds().width) : 0;
    const int field = Active_ != nullptr ? Active_->widthFor(characters)
                                         : characters * Widget_->fontMetrics().horizontalAdvance(u'x');
    return {caption + field + spinner, Grid_.down().pixel(isTall ? TallHeight : FieldHeight)};
}

// ---- Enabled

bool ControlSite::enabled() const { return !Widget_->testAttribute(Qt::WA_ForceDisabled); }

void ControlSite::setEnabled(bool enabled) {
    Enabled_ = enabled;
    // Whoever hears of the focus that goes finds the control as it will be.
    Widget_->setAttribute(Qt::WA_ForceDisabled, !enabled);
    if (!enabled && Active_ != nullptr) Active_->giveUpFocus();
    if (enabled != Enabled_) return;  // a handler has put it again
    Widget_->setEnabled(enabled);
    if (Active_ != nullptr) fieldEnabled(*Active_, isFieldEnabled());
}

void ControlSite::enabledMayDiffer() {
    if (!Control_ || enabled() == Enabled_) return;
    // Not every control lets its widget go along.
    Enabled_ = enabled();
    if (const MemberRow* const row = findMember(Control_->model(), u"Enabled"))
        putMember(*Control_, *row, enabled(), region());
}

// ---- Host

std::int32_t ControlSite::windowHandle() { return static_cast<std::int32_t>(Widget_->winId()); }

std::u16string ControlSite::displayName() const { return std::u16string(viewOf(Widget_->objectName())); }

void ControlSite::propertyChanged(const MemberRow& property) {
    const ForeignCode running;
    if (Host_ != nullptr) Host_->propertyReported(property.name);
}

void ControlSite::raiseEvent(const EventRow& event, std::span<Variant> arguments) {
    const ForeignCode running;
    if (Host_ != nullptr) Host_->controlEvent(event, arguments);
}

// ---- What listeners are told

void ControlSite::follow(StandingWatch::Aspect aspect) {
    if (!Watch_) Watch_ = std::make_unique<StandingWatch>();
    Watch_->follow(aspect, *Control_);
}

/// A listener may put something else, or destroy the widget: each is told of what is then so.
void ControlSite::standingMayDiffer() {
    if (!Watch_) return;
    using Aspect = StandingWatch::Aspect;
    using Telling = KelControlWidget::Telling;
    constexpr std::pair<Aspect, Telling> Aspects[] = {
        {Aspect::Value, Telling::Value}, {Aspect::Valid, Telling::Valid}, {Aspect::Changed, Telling::Changed}};
    const ForeignCode running;
    for (const auto& [aspect, telling] : Aspects)
        if (Host_ != nullptr && Watch_->hasChanged(aspect, *Control_)) Host_->tell(telling);
}

void ControlSite::textEdited() {
    const ForeignCode running;
    if (Host_ != nullptr) Host_->tell(KelControlWidget::Telling::Edited);
}

void ControlSite::controlLeft() {
    Control_->ExitFocus();
    const ForeignCode running;
    if (Host_ != nullptr) Host_->tell(KelControlWidget::Telling::Finished);
}

/// Where the focus does go on, the control is left.
void ControlSite::finished() {
    if (Host_ == nullptr) return;
    QMetaObject::invokeMethod(
        Host_,
        [this] {
            if (Active_ == nullptr || !Active_->shown().hasFocus()) return;
            commit();
            const ForeignCode running;
            Host_->tell(KelControlWidget::Telling::Finished);
        },
        Qt::QueuedConnection);
}

/// What is being typed, as reading the value does.
void ControlSite::commit() {
    const MemberRow* const value = findMember(Control_->model(), DefaultMemberId);
    Variant read;
    if (value != nullptr) getMember(*Control_, *value, {}, read, region());
}

std::u16string ControlSite::toolTipText() const { return std::u16string(viewOf(Widget_->toolTip())); }

void ControlSite::setToolTipText(std::u16string_view text) { setWidgetToolTip(*Widget_, text); }

void ControlSite::toolTipChanged() {
    // Before it shows, the control takes the tooltip over by itself.
    if (!Shown_) return;
    const QString text = Widget_->toolTip();
    forEach<FieldView>([&text](FieldView& field) { field.shown().setToolTip(viewOf(text)); });
    if (PictureBox* const picture = Control_->widgets().picture) picture->setToolTip(viewOf(text));
}

void ControlSite::shown() {
    enabledMayDiffer();
    if (Shown_) return;
    Shown_ = true;
    Control_->Show();
    forEach<FieldView>([](FieldView& field) { field.prepareSpeech(); });
}

void ControlSite::hidden() {
    if (Active_ != nullptr && !Active_->takesFocus()) Active_->giveUpFocus();
}

void ControlSite::setRegion(const RegionalSettings& region) {
    if (std::exchange(Region_, &region) != &region) Control_->RegionChanged(region);
}

void ControlSite::recolored() {
    forEach<FieldView>([](FieldView& field) { field.colorAgain(); });
    Widget_->update();
}

// ---- Child widgets

std::unique_ptr<PictureView> ControlSite::makeView(PictureBox& box) {
    return std::make_unique<QtPictureBox>(*this, box, *Widget_);
}

std::unique_ptr<View> ControlSite::makeView(CheckBox& box) {
    return std::make_unique<QtCheckBox>(*this, box, *Widget_);
}

std::unique_ptr<View> ControlSite::makeView(UpDown& spinner) {
    return std::make_unique<QtUpDown>(*this, spinner, *Widget_);
}

std::unique_ptr<View> ControlSite::makeView(Label& label) { return std::make_unique<CaptionLabel>(*this, label); }

bool ControlSite::takesInput() const { return focus::isTakenBy(*Widget_); }

void ControlSite::moveFocusTo(FieldWidget& field) { focus::give(dynamic_cast<FieldView&>(*field.view()).widget()); }

void ControlSite::focusBarred(FieldWidget& field) { dynamic_cast<FieldView&>(*field.view()).giveUpFocus(); }

std::unique_ptr<TextView> ControlSite::makeView(TextBox& box) {
    if (!box.multiLine()) return std::make_unique<QtLine>(*this, box, *Widget_);
    auto area = std::make_unique<QtTextArea>(*this, box, *Widget_);
    // Shown as every new box, but not yet in the other one's place: few controls show both.
    if (Widget_->isVisible()) area->setVisible(true);
    return area;
}

std::unique_ptr<TextView> ControlSite::makeView(ComboBox& box) {
    return std::make_unique<QtComboBox>(*this, box, *Widget_);
}

std::u16string ControlSite::clipboardText() { return std::u16string(viewOf(QGuiApplication::clipboard()->text())); }

/// Programs here expect single line feeds.
void ControlSite::setClipboardText(std::u16string_view text) {
    QGuiApplication::clipboard()->setText(toQString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void ControlSite::fieldMade(FieldView& field) {
    if (Active_ == nullptr) {
        Active_ = &field;
        Widget_->setFocusProxy(&field.widget());
    } else {
        // Side by side for good: only one of them is ever shown. Later on Qt would take parts of either along.
        QWidget::setTabOrder(&Active_->widget(), &field.widget());
        field.widget().setFocusPolicy(Active_->widget().focusPolicy());
        field.widget().setAccessibleName(Active_->widget().accessibleName());
    }
}

void ControlSite::fieldGoes(const FieldView& field) {
    if (Active_ == &field) Active_ = nullptr;
}

/// The field takes the other one's place: what points to the composite finds it.
void ControlSite::fieldShown(FieldView& field) {
    if (&field == Active_) return;
    Active_ = &field;
    fieldEnabled(field, isFieldEnabled());
    Widget_->setSizePolicy(QSizePolicy::Expanding, field.isTall() ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    Widget_->updateGeometry();
    Widget_->update();
}

/// Qt gives the focus to whom a widget names in its place, disabled or not; but none to a widget that is disabled
/// itself, which keeps its place in the order of the Tab key.
void ControlSite::fieldEnabled(const FieldView& field, bool enabled) {
    if (&field != Active_) return;
    enabled = enabled || Widget_->testAttribute(Qt::WA_ForceDisabled);
    // A policy that is set goes to the one in the widget's place as well, who has its own.
    Widget_->setFocusProxy(nullptr);
    Widget_->setFocusPolicy(enabled ? Qt::TabFocus : Qt::NoFocus);
    if (enabled) Widget_->setFocusProxy(&field.widget());
}

bool ControlSite::isFieldEnabled() const { return !Active_->widget().testAttribute(Qt::WA_ForceDisabled); }

/// Qt leaves out what cannot have the focus now.
void ControlSite::tabAfter(ControlSite& before) {
    before.fieldEnabled(*before.Active_, true);
    fieldEnabled(*Active_, true);
    QWidget::setTabOrder(before.Widget_, Widget_);
    before.fieldEnabled(*before.Active_, before.isFieldEnabled());
    fieldEnabled(*Active_, isFieldEnabled());
}

void ControlSite::leaveTabOrder() {
    forEach<FieldView>([](FieldView& field) { field.widget().setFocusPolicy(Qt::ClickFocus); });
}

// ---- The control as one widget

bool ControlSite::giveToField(QEvent& event) const {
    if (Active_ == nullptr) return false;
    const QPointer<QWidget> host = Widget_;
    Active_->give(event);
    // Qt would go on to what is around a widget that is no more.
    if (host.isNull()) event.accept();
    return true;
}

const QWidget* ControlSite::fieldAt(const QPoint& place) const {
    const QWidget* const field = Active_ != nullptr ? &Active_->widget() : nullptr;
    return field != nullptr && field->geometry().contains(place) ? field : nullptr;
}

void ControlSite::tellFocus(const QFocusEvent& event) const {
    if (Host_ == nullptr) return;
    QFocusEvent copy(event.type(), event.reason());
    QCoreApplication::sendEvent(Host_, &copy);
}

// ---- Caption

void ControlSite::captionChanged(const QString& spokenBefore) {
    const QString spoken = Label_->spokenCaption();
    setSpokenName(*Widget_, spokenBefore, spoken);
    forEach<FieldView>([&](FieldView& field) { setSpokenName(field.widget(), spokenBefore, spoken); });

    if (Mnemonic_ != 0) Widget_->releaseShortcut(Mnemonic_);
    Mnemonic_ = 0;
    if (!isAmongOthers() || Label_->shown().mnemonic() == 0) return;
    const QKeySequence key = QKeySequence::mnemonic(toQString(Label_->shown().caption()));
    if (!key.isEmpty()) Mnemonic_ = Widget_->grabShortcut(key);
}

EntryField* ControlSite::captioned() const {
    auto* const control = dynamic_cast<EntryControl*>(Control_.get());
    return control != nullptr ? &control->entry() : nullptr;
}

void ControlSite::fitCaption() {
    EntryField* const entry = isAmongOthers() && Label_ != nullptr ? captioned() : nullptr;
    if (entry == nullptr) return;
    const std::int32_t before = entry->wantedCaptionWidth();
    entry->fitCaption(Grid_.across().twips(Label_->neededWidth()));
    if (entry->wantedCaptionWidth() != before) Widget_->updateGeometry();
}

void ControlSite::resetCaptionWidth() {
    if (EntryField* const entry = captioned()) entry->takeBackCaptionWidth();
    fitCaption();
}

bool ControlSite::mnemonicPressed(int shortcutId) {
    if (Mnemonic_ == 0 || shortcutId != Mnemonic_) return false;
    if (Active_ != nullptr) Active_->shown().pressMnemonic();
    return true;
}

void ControlSite::paint(const QRect& area) const {
    // With every key the field shows what is around it too.
    if (Label_ == nullptr || !Label_->area().intersects(area)) return;
    const int baseline = Active_ != nullptr ? Active_->widget().y() + Active_->baseline()
                                            : (Widget_->height() + Widget_->fontMetrics().ascent()) / 2;
    QPainter painter(Widget_);
    Label_->paint(painter, baseline);
}

}  // namespace kel::qt
