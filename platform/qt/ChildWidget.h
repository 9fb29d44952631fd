#pragma once

class QWidget;

namespace kel::qt {

class ControlSite;

/// A child widget of a control, as the composite around it knows it.
class ChildWidget {
public:
    /// Both outlive this.
    ChildWidget(ControlSite& site, QWidget& widget);
    ChildWidget(const ChildWidget&) = delete;
    ChildWidget& operator=(const ChildWidget&) = delete;
    virtual ~ChildWidget();

    ControlSite& site() const { return Site_; }
    QWidget& widget() const { return Widget_; }

    /// The composite is mirrored now, or no longer, or its pixels are others.
    virtual void placeAgain() = 0;

private:
    ControlSite& Site_;
    QWidget& Widget_;
};

}  // namespace kel::qt
