#include <QApplication>
#include <QTime>
#include <QVBoxLayout>

#include <KelControls8/KelTimeWidget.h>

/// An appointment within opening hours, shown in the window's title.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);

    auto* const start = new KelTimeWidget;
    start->setCaption("&Start");
    start->setFormat("hh:nn");
    start->setMinimumTime(QTime(8, 0));
    start->setMaximumTime(QTime(18, 0));
    start->setTime(QTime(9, 30));
    layout->addWidget(start);

    QObject::connect(start, &KelTimeWidget::timeChanged, &window, [&window](QTime time) {
        window.setWindowTitle(time.isValid() ? "At " + time.toString("hh:mm") : QString("No time yet"));
    });

    window.show();
    return QApplication::exec();
}
