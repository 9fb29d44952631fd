#include <KelControls8/KelCheckWidget.h>
#include <KelControls8/KelComboWidget.h>
#include <KelControls8/KelDateWidget.h>
#include <KelControls8/KelNumberWidget.h>
#include <KelControls8/KelProgressBarWidget.h>
#include <KelControls8/KelTextWidget.h>
#include <KelControls8/KelTimeWidget.h>

#include <cstdio>
#include <QApplication>
#include <QFormLayout>
#include <QVariant>

#if __has_include("values/Text.h") || __has_include("platform/qt/control/KelControlWidget.h") || \
                                                    __has_include("KelTextWidget.h")
#error "more than the public headers is to be found"
#endif

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    KelTextWidget article;
    KelNumberWidget quantity;
    KelDateWidget due;
    KelTimeWidget at;
    KelComboWidget town;
    KelCheckWidget paid;
    KelProgressBarWidget done;
    QFormLayout layout(&window);
    for (QWidget* field : std::initializer_list<QWidget*>{&article, &quantity, &due, &at, &town, &paid, &done})
        layout.addRow(field);
    int changes = 0;
    QObject::connect(&article, &KelTextWidget::change, &window, [&changes] { ++changes; });
    article.setCaption(QStringLiteral("&Article"));
    article.setText(QStringLiteral("pipe"));
    quantity.setProperty("value", 12.5);
    window.show();
    QApplication::processEvents();
    std::printf("%s %g %d\n", qPrintable(article.text()), quantity.property("value").toDouble(), changes);
    return 0;
}
