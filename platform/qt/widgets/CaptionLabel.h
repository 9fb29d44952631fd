#pragma once

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

    /// Of the caption in one line and a gap to the field, pixels; 0 without one.
    int neededWidth() const;
    /// That it may paint in: all the height of the composite.
    QRect area() const;
    /// With the baseline of its first line at `baseline` (pixels from the composite's top).
    void paint(QPainter& painter, int baseline) const;

private:
    ControlSite& Site_;
    Label& Label_;
    QFont font() const;

    QString Spoken_;
    std::int32_t Width_ = 0;  ///< twips, as the composite knows it
};

}  // namespace kel::qt
