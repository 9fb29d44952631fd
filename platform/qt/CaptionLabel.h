#pragma once

#include <optional>
#include <QFont>
#include <QString>
#include <string>

#include "host/Widgets.h"

class QPainter;

namespace kel::qt {

class ControlSite;

/// A caption with no widget of its own: the composite paints it.
class CaptionLabel final : public Label {
public:
    explicit CaptionLabel(ControlSite& site);
    ~CaptionLabel() override;

    Rect bounds() const override { return Bounds_; }
    void move(const Rect& bounds) override;
    bool enabled() const override { return Enabled_; }
    void setEnabled(bool enabled) override;
    Color foreColor() const override { return ForeColor_; }
    void setForeColor(Color color) override;
    void setFont(std::u16string_view name, double size) override;
    bool fontBold() const override { return font().bold(); }
    void setFontBold(bool bold) override;
    void refresh() override;

    const std::u16string& caption() const override { return Caption_; }
    void setCaption(std::u16string_view caption) override;

    /// Without the mark of the mnemonic, as it is read out.
    QString spokenCaption() const;

    /// With the baseline of its first line at `baseline` (pixels from the composite's top), in all the height
    /// of the composite.
    void paint(QPainter& painter, int baseline) const;

private:
    QFont font() const;

    ControlSite& Site_;
    std::u16string Caption_;
    std::optional<QFont> Font_;  ///< none: the composite's
    Rect Bounds_;
    Color ForeColor_ = colors::SystemButtonText;
    bool Enabled_ = true;
};

}  // namespace kel::qt
