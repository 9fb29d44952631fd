#pragma once

#include <optional>
#include <QFont>
#include <QString>

#include "host/widgets/Label.h"

class QPainter;

namespace kel::qt {

class ControlSite;

/// A caption with no widget of its own: the composite paints it.
class CaptionLabel final : public View {
public:
    CaptionLabel(ControlSite& site, Label& label);
    ~CaptionLabel() override;

    const Label& shown() const { return Label_; }

    void outOfDate() override;
    void paintAgain() override;

    /// Without the mark of the mnemonic, as it is read out.
    const QString& spokenCaption() const { return Spoken_; }

    /// With the baseline of its first line at `baseline` (pixels from the composite's top), in all the height
    /// of the composite.
    /// That it may paint in.
    QRect area() const;
    void paint(QPainter& painter, int baseline) const;

private:
    ControlSite& Site_;
    Label& Label_;
    QString Spoken_;
    std::optional<QFont> Font_;  ///< none: the composite's
    std::int32_t Width_ = 0;     ///< twips, as the composite knows it
};

}  // namespace kel::qt
