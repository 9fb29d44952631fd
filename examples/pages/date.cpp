#include <QApplication>
#include <QDate>
#include <QVBoxLayout>

#include <KelControls8/KelDateWidget.h>

/// A stay: nobody leaves before the day after arriving, and may leave it open when.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);

    auto* const arrival = new KelDateWidget;
    arrival->setCaption("&Arrival");
    arrival->setFormat("ddd d mmm yyyy");
    arrival->setMinimumDate(QDate::currentDate());
    layout->addWidget(arrival);

    auto* const departure = new KelDateWidget;
    departure->setCaption("&Departure");
    departure->setFormat("ddd d mmm yyyy");
    departure->setMandatory(false);
    departure->clear();
    layout->addWidget(departure);

    QObject::connect(arrival, &KelDateWidget::dateChanged, departure, [departure](QDate day) {
        if (day.isValid())
            departure->setMinimumDate(day.addDays(1));
        else
            departure->resetMinimumDate();
    });

    window.show();
    return QApplication::exec();
}
