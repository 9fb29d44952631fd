#include "tests/qt/ProbeForm.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include "platform/qt/home/QtHome.h"
#include "platform/qt/widgets/FieldView.h"
#include "platform/qt/widgets/QtUpDown.h"

namespace kel::test {

namespace {

constexpr Rect BoxBounds{0, 0, 3000, 300};
constexpr Rect SpinnerBounds{3000, 0, 240, 300};
constexpr std::int32_t RowHeight = 375;

class HastyStyle final : public QProxyStyle {
public:
    HastyStyle() : QProxyStyle(QStyleFactory::create(QApplication::style()->name())) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override {
        if (hint == SH_SpinBox_ClickAutoRepeatThreshold) return ProbeForm::RepeatDelay;
        if (hint == SH_SpinBox_KeyPressAutoRepeatRate) return ProbeForm::RepeatInterval;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

QStyle& hastyStyle() {
    static auto* const style = [] {
        auto* const made = new HastyStyle;
        made->setParent(qApp);
        return made;
    }();
    return *style;
}

QWindow& windowOf(const QWidget& widget) { return *widget.window()->windowHandle(); }

QPoint placeInWindow(const QWidget& widget, const QPoint& place) { return widget.mapTo(widget.window(), place); }

}  // namespace

ProbeForm::ProbeForm() : TextForm(qt::makeHome({})) {}

PlacedControl& ProbeForm::place(const std::u16string& name, const ClassModel& model) {
    const Rect bounds{0, NextTop_, BoxBounds.width + SpinnerBounds.width, BoxBounds.height};
    NextTop_ += RowHeight;
    PlacedControl& placed = placeAt({.name = name, .bounds = bounds}, model);
    ProbeControl& control = probe(placed);
    control.box().move(BoxBounds);
    control.spinner().move(SpinnerBounds);
    control.spinner().setVisible(true);
    spinnerWidgetOf(placed).setStyle(&hastyStyle());
    return placed;
}

void ProbeForm::show() {
    TextForm::show();
    ProbeControl::takeLog();
}

QWidget& boxWidgetOf(PlacedControl& placed) { return dynamic_cast<QWidget&>(*probe(placed).box().view()); }

QWidget& spinnerWidgetOf(PlacedControl& placed) { return dynamic_cast<QWidget&>(*probe(placed).spinner().view()); }

void pressMouse(QWidget& widget, const QPoint& place) {
    QTest::mousePress(&windowOf(widget), Qt::LeftButton, {}, placeInWindow(widget, place));
}

void moveMouse(QWidget& widget, const QPoint& place) {
    QTest::mouseMove(&windowOf(widget), placeInWindow(widget, place));
}

void releaseMouse(QWidget& widget, const QPoint& place) {
    QTest::mouseRelease(&windowOf(widget), Qt::LeftButton, {}, placeInWindow(widget, place));
}

QWidget& areaOf(TextEntry& box) { return dynamic_cast<qt::FieldView&>(*box.view()).mouseArea(); }

bool turnWheel(QWidget& area, const QPoint& angle) {
    const QPoint place = area.rect().center();
    QWheelEvent event(place, area.mapToGlobal(place), {}, angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&area, &event);
    return event.isAccepted();
}

QPoint buttonOf(const QWidget& spinner, bool upper) {
    return {spinner.width() / 2, spinner.height() * (upper ? 1 : 3) / 4};
}

void letGo() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace kel::test
