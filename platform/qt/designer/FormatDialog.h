#pragma once

#include <QComboBox>
#include <QDialog>

#include "platform/qt/designer/WidgetFacts.h"

namespace kel::qt::designer {

/// A format to pick or type, with a field that shows at once what it makes of a value and takes what is typed into it.
class FormatDialog final : public QDialog {
    Q_OBJECT

public:
    FormatDialog(const WidgetFacts& facts, const PropertyFacts& property, const QString& format, QWidget* parent);

    QString format() const { return Format_->currentText(); }

private:
    QComboBox* Format_;
    QWidget* Sample_;
};

}  // namespace kel::qt::designer
