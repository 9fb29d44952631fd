#include <QApplication>
#include <QVBoxLayout>

#include <KelControls8/KelNumberWidget.h>

/// Quantity times price gives the total, which nobody types.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);

    auto* const quantity = new KelNumberWidget;
    quantity->setCaption("&Quantity");
    quantity->setDecimals(0);
    quantity->setMinimum(1);
    quantity->setMaximum(999);
    quantity->setUpDown(true);
    quantity->setValue(1);
    layout->addWidget(quantity);

    auto* const price = new KelNumberWidget;
    price->setCaption("&Price");
    price->setDecimals(2);
    price->setMinimum(0);
    layout->addWidget(price);

    auto* const total = new KelNumberWidget;
    total->setCaption("Total");
    total->setDecimals(2);
    total->setLocked(true);
    layout->addWidget(total);

    const auto multiply = [=] { total->setValue(quantity->value() * price->value()); };
    QObject::connect(quantity, &KelNumberWidget::valueChanged, total, multiply);
    QObject::connect(price, &KelNumberWidget::valueChanged, total, multiply);

    window.show();
    return QApplication::exec();
}
