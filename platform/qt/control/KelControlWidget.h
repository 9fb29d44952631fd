#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <QVariant>
#include <QWidget>
#include <span>
#include <string_view>

#include "values/Export.h"
#include "values/Variant.h"

namespace kel {

class Control;
struct ClassModel;
struct EventRow;

namespace qt {

class ControlSite;
struct ControlServices;

/// One control of the library as a Qt widget: base of the widget classes, which are made from the type model and
/// add its properties, slots and signals. It can be laid out, tabbed to, enabled and given a tooltip like any
/// other widget; `setEnabled`, `setLocale` and `setToolTip` reach the control too. Numbers and dates are written as in
/// the widget's locale, which is its parent's or the default one when it is made.
///
/// It has the focus (`hasFocus`) while the field inside it, its focus proxy, has. `QApplication::focusWidget` is that
/// field: ask `isAncestorOf`. A QShortcut of the widget alone wants the context Qt::WidgetWithChildrenShortcut.
///
/// The size counts in twips inside the control. They go by the widget's font: 15 to a logical pixel in one of 8 points,
/// and fewer in a larger one. A control of fixed height is as high as a line edit in that font, whatever it is given.
class KELCONTROLS8_EXPORT KelControlWidget : public QWidget {
    Q_OBJECT

public:
    ~KelControlWidget() override;

    /// The control itself, for hosts that work through the library's dispatch. Owned by the widget.
    Control& control() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The caption is as wide as it needs again. A new widget's is, until it is given a `captionWidth`.
    void resetCaptionWidth();

protected:
    /// A control newly placed, with the process-wide settings. Needs a QApplication.
    explicit KelControlWidget(const ClassModel& model, QWidget* parent = nullptr);

    /// A control on a form: made and initialised, for the form to load.
    KelControlWidget(const ClassModel& model, const ControlServices& surroundings, QWidget* parent);

    /// The control raises an event. By-reference arguments may be changed.
    virtual void controlEvent(const EventRow& event, std::span<Variant> arguments);
    /// What the widget tells by signals beside its events: what it holds and how it stands, and the person's editing.
    enum class Telling : std::uint8_t { Value, Valid, Changed, Edited, Finished };
    virtual void tell(Telling /*what*/) {}
    /// A property that is saved has changed.
    virtual void propertyReported(std::u16string_view bagName);

    /// Members by their place in the type model. A value that does not fit is ignored.
    Variant readMember(std::size_t member, std::span<Variant> arguments = {}) const;
    void writeMember(std::size_t member, Variant value);
    /// Puts the default that forms leave out.
    void resetMember(std::size_t member);
    Variant callMember(std::size_t member, std::span<Variant> arguments = {}) const;

    /// What the control holds, with the text as it stands but without touching it: the person may be typing.
    Variant storedValue() const;
    bool standsValid() const;
    bool standsChanged() const;

    /// The value as data is bound to it, which knows null and keeps what it was given: as long as it is not changed
    /// here, the very value that was written is what is read, be it one that the field can only show cut or rounded.
    /// `typed` is the value as the field holds it.
    QVariant readBound(const QVariant& typed) const;
    void writeBound(std::size_t member, const QVariant& value, const Variant& converted);

    ControlSite& site() const { return *Site_; }

    void connectNotify(const QMetaMethod& signal) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// Keys, menus and the focus are the field's, but come by here: an event filter on the widget and a class that is
    /// derived from it see and change them as they would a line edit's. The focus is told after the field has heard.
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* /*event*/) override {}
    void focusOutEvent(QFocusEvent* /*event*/) override {}
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class ControlSite;

    /// What was written to the bound value, and what the control made of it.
    struct Loaded {
        QVariant written;
        Variant held;
    };

    bool FollowsLocale_ = false;  ///< its own, rather than the region of a form
    std::unique_ptr<Loaded> Loaded_;
    std::unique_ptr<ControlSite> Site_;
};

}  // namespace qt
}  // namespace kel
