#pragma once

class QWidget;

namespace kel {
class Widget;
}

namespace kel::qt {

class ControlSite;

/// A child widget of a control, as the composite around it knows it.
class ChildWidget {
public:
    /// All of them outlive this. `widget` shows `shown`.
    ChildWidget(ControlSite& site, QWidget& widget, Widget& shown);
    ChildWidget(const ChildWidget&) = delete;
    ChildWidget& operator=(const ChildWidget&) = delete;
    virtual ~ChildWidget();

    ControlSite& site() const { return Site_; }
    QWidget& widget() const { return Widget_; }

    /// The composite is mirrored now, or no longer, or its pixels are others.
    void placeAgain();

private:
    ControlSite& Site_;
    QWidget& Widget_;
    Widget& Shown_;
};

}  // namespace kel::qt
