#include "platform/qt/designer/FormatDialog.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QMetaProperty>

namespace kel::qt::designer {

namespace {

/// A moment in which day, month, year, hours, minutes and seconds cannot be taken for each other.
const QDateTime Moment(QDate(1999, 4, 25), QTime(18, 7, 39));

}  // namespace

FormatDialog::FormatDialog(const WidgetFacts& facts, const PropertyFacts& property, const QString& format,
                           QWidget* parent)
    : QDialog(parent), Format_(new QComboBox), Sample_(facts.make(nullptr)) {
    setWindowTitle(tr("Edit Format"));
    auto* const layout = new QFormLayout(this);

    Format_->setEditable(true);
    for (const char* const usual : property.usual) Format_->addItem(QString::fromUtf8(usual));
    Format_->setEditText(format);
    layout->addRow(tr("&Format:"), Format_);

    Sample_->setProperty(property.name, format);
    Sample_->metaObject()->userProperty().write(Sample_, Moment);
    connect(Format_, &QComboBox::currentTextChanged, Sample_,
            [this, name = property.name](const QString& text) { Sample_->setProperty(name, text); });
    layout->addRow(tr("&Sample:"), Sample_);
    layout->addRow(new QLabel(tr("What you type into the sample is read as the field will read it.")));

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addRow(buttons);
}

}  // namespace kel::qt::designer
