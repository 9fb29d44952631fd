#include <QApplication>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <KelControls8/KelProgressBarWidget.h>

/// A job that keeps the program busy; the bar shows how far it is all the same.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);

    auto* const bar = new KelProgressBarWidget;
    bar->setMinimum(1);
    bar->setMaximum(2000);
    layout->addWidget(bar);

    auto* const work = new QPushButton("&Work");
    layout->addWidget(work);
    QObject::connect(work, &QPushButton::clicked, bar, [bar] {
        bar->start();
        for (int step = 1; step <= 2000; ++step) {
            QThread::msleep(10);
            bar->setValue(step);
        }
        bar->clear();
    });

    window.show();
    return QApplication::exec();
}
