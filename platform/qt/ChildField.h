#pragma once

class QWidget;

namespace kel::qt {

class ControlSite;

/// A child widget that can have the focus, as the composite around it knows it.
class ChildField {
public:
    /// Both outlive this.
    ChildField(ControlSite& site, QWidget& widget);
    ChildField(const ChildField&) = delete;
    ChildField& operator=(const ChildField&) = delete;
    virtual ~ChildField();

    ControlSite& site() const { return Site_; }
    QWidget& widget() const { return Widget_; }

    virtual void gotFocus() = 0;
    virtual void lostFocus() = 0;

    /// The composite is mirrored now, or no longer, or its pixels are others.
    virtual void placeAgain() = 0;
    /// The desktop's colours are others.
    virtual void colorAgain() = 0;

    /// Several lines of text, which want height.
    virtual bool isTall() const = 0;
    /// From the widget's top to the baseline of its (first) line of text, in pixels.
    virtual int baseline() const = 0;

private:
    ControlSite& Site_;
    QWidget& Widget_;
};

}  // namespace kel::qt
