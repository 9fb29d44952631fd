#pragma once

#include <QRect>

class QAccessibleInterface;
class QWidget;

namespace kel {
class Widget;
}

namespace kel::qt {

class ControlSite;

/// A child widget of a control, as the composite around it knows it.
class PlacedView {
public:
    /// All of them outlive this. `widget` shows `shown`.
    PlacedView(ControlSite& site, QWidget& widget, Widget& shown);
    PlacedView(const PlacedView&) = delete;
    PlacedView& operator=(const PlacedView&) = delete;
    virtual ~PlacedView() = default;

    ControlSite& site() const { return Site_; }
    QWidget& widget() const { return Widget_; }

    /// The composite is mirrored now, or no longer, or its pixels are others.
    void placeAgain();
    /// The composite's font is another one. Where a style sheet names it for the composite alone, Qt does not hand it
    /// on.
    virtual void fontAgain() {}

    /// What assistive technology finds; nullptr for what it would find of any such widget.
    virtual QAccessibleInterface* makeAccessible() { return nullptr; }

protected:
    /// In the composite, pixels.
    virtual QRect place() const;

private:
    ControlSite& Site_;
    QWidget& Widget_;
    Widget& Shown_;
};

}  // namespace kel::qt
