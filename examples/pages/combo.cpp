#include <QApplication>
#include <QVBoxLayout>

#include <KelControls8/KelComboWidget.h>

/// A choice of countries, each with its code as its tag.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);

    auto* const country = new KelComboWidget;
    country->setCaption("&Country");
    country->setItems({"Austria", "Belgium", "Denmark", "France", "Germany"});
    country->setListTag("AT,BE,DK,FR,DE");
    country->setCurrentData("DK");
    layout->addWidget(country);

    QObject::connect(country, &KelComboWidget::textChanged, &window,
                     [&window, country] { window.setWindowTitle(country->currentData().toString()); });

    window.show();
    return QApplication::exec();
}
