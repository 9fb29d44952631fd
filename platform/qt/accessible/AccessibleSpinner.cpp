#include <array>
#include <QAccessibleWidget>
#include <QCoreApplication>

#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/widgets/QtUpDown.h"

namespace kel::qt {

namespace {

/// One of the two buttons, which is no widget of its own.
class AccessibleButton final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleButton(QtUpDown& spinner, bool upper) : Spinner_(spinner), Upper_(upper) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override {
        QAccessible::State state = parent()->state();
        state.disabled = !Spinner_.spinner().takesInput();
        return state;
    }
    QString text(QAccessible::Text what) const override {
        if (what != QAccessible::Name) return {};
        return Upper_ ? QCoreApplication::translate("KelControls8", "Up")
                      : QCoreApplication::translate("KelControls8", "Down");
    }
    void setText(QAccessible::Text /*what*/, const QString& /*text*/) override {}
    QRect rect() const override { return Spinner_.half(Upper_).translated(Spinner_.mapToGlobal(QPoint())); }

    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&Spinner_); }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (action != pressAction() || !Spinner_.spinner().takesInput()) return;
        atEdge([this] {
            Spinner_.spinner().press(Upper_);
            return true;
        });
    }
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    QtUpDown& Spinner_;
    bool Upper_;
};

/// A spinner with its two buttons.
class AccessibleSpinner final : public QAccessibleWidget {
public:
    explicit AccessibleSpinner(QtUpDown& spinner)
        : QAccessibleWidget(&spinner, QAccessible::Grouping),
          Buttons_{QAccessible::registerAccessibleInterface(new AccessibleButton(spinner, true)),
                   QAccessible::registerAccessibleInterface(new AccessibleButton(spinner, false))} {}
    ~AccessibleSpinner() override {
        for (const QAccessible::Id button : Buttons_) QAccessible::deleteAccessibleInterface(button);
    }

    int childCount() const override { return static_cast<int>(Buttons_.size()); }
    QAccessibleInterface* child(int index) const override {
        const bool exists = index >= 0 && index < childCount();
        return exists ? QAccessible::accessibleInterface(Buttons_[static_cast<std::size_t>(index)]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int index = 0; index < childCount(); ++index)
            if (this->child(index) == child) return index;
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int index = 0; index < childCount(); ++index)
            if (child(index)->rect().contains(x, y)) return child(index);
        return nullptr;
    }

private:
    std::array<QAccessible::Id, 2> Buttons_;
};

}  // namespace

QAccessibleInterface* QtUpDown::makeAccessible() { return new AccessibleSpinner(*this); }

}  // namespace kel::qt
