#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

#include <KelControls8/KelTextWidget.h>

/// A name that is wanted, and a remark in several lines; it can be saved once there is a name.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);

    auto* const name = new KelTextWidget;
    name->setCaption("&Name");
    name->setMaxLength(40);
    layout->addWidget(name);

    auto* const remark = new KelTextWidget;
    remark->setCaption("&Remark");
    remark->setMandatory(false);
    remark->setMultiLine(true);
    layout->addWidget(remark, 1);

    auto* const save = new QPushButton("&Save");
    save->setEnabled(name->valid());
    layout->addWidget(save);

    QObject::connect(name, &KelTextWidget::validChanged, save, &QWidget::setEnabled);
    QObject::connect(name, &KelTextWidget::textChanged, &window, &QWidget::setWindowTitle);

    window.show();
    return QApplication::exec();
}
