#include <QApplication>

#include <KelControls8/KelTextWidget.h>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    KelTextWidget name;
    name.setCaption("&Name");
    name.setMaxLength(40);
    QObject::connect(&name, &KelTextWidget::textChanged, &name, &QWidget::setWindowTitle);
    name.show();
    return QApplication::exec();
}
