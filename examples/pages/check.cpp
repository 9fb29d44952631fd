#include <QApplication>
#include <QVBoxLayout>

#include <KelControls8/KelCheckWidget.h>
#include <KelControls8/KelTextWidget.h>

/// Who wants the newsletter gives an address.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);

    auto* const news = new KelCheckWidget;
    news->setCaption("Send the &newsletter");
    news->setMandatory(false);
    layout->addWidget(news);

    auto* const address = new KelTextWidget;
    address->setCaption("&Address");
    address->setEnabled(news->checked());
    layout->addWidget(address);

    QObject::connect(news, &KelCheckWidget::toggled, address, &KelTextWidget::setEnabled);

    window.show();
    return QApplication::exec();
}
