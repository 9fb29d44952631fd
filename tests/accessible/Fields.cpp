#include <KelCheckWidget.h>
#include <KelComboWidget.h>
#include <KelDateWidget.h>
#include <KelNumberWidget.h>
#include <KelProgressBarWidget.h>
#include <KelTextWidget.h>
#include <KelTimeWidget.h>
#include <QApplication>
#include <QDate>
#include <QFormLayout>
#include <QLabel>
#include <QTime>

namespace {

template <class Field>
Field& add(QFormLayout& layout, const char* caption) {
    auto* const field = new Field;
    field->setCaption(QLatin1String(caption));
    layout.addRow(field);
    return *field;
}

}  // namespace

/// A window with a field of each kind, for the client beside it to find on the bus.
int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Fields"));
    QFormLayout layout(&window);

    auto& name = add<KelTextWidget>(layout, "&Name");
    name.setMaxLength(5);
    name.setToolTip(QStringLiteral("As on the passport"));
    auto* const labelled = new KelTextWidget;
    labelled->setMandatory(false);
    layout.addRow(QStringLiteral("&Street"), labelled);
    auto* const memo = new KelTextWidget;
    memo->setMultiLine(true);
    layout.addRow(QStringLiteral("&Memo"), memo);
    auto& secret = add<KelTextWidget>(layout, "Password");
    secret.setPasswordChar(QStringLiteral("*"));
    secret.setText(QStringLiteral("abc"));
    auto& number = add<KelNumberWidget>(layout, "&Amount");
    number.setMinValue(0);
    number.setMaxValue(100);
    number.setUpDown(true);
    number.setUpDownChange(5);
    number.setProperty("value", 40);
    auto& date = add<KelDateWidget>(layout, "&Date");
    date.setProperty("value", QDate(2013, 3, 15));
    auto& time = add<KelTimeWidget>(layout, "&Time");
    time.setProperty("value", QTime(18, 0));
    auto& choice = add<KelComboWidget>(layout, "&Fruit");
    choice.setProperty("list", QStringLiteral("Apple,Banana,Cherry"));
    choice.setText(QStringLiteral("Banana"));
    auto& locked = add<KelTextWidget>(layout, "Number");
    locked.setText(QStringLiteral("C-17"));
    locked.setLocked(true);
    auto& check = add<KelCheckWidget>(layout, "&Consent");
    check.setProperty("value", 1);
    auto* const plain = new KelCheckWidget;
    layout.addRow(QStringLiteral("&Urgent"), plain);
    auto* const bar = new KelProgressBarWidget;
    layout.addRow(QStringLiteral("Copying"), bar);

    window.show();
    bar->setProperty("value", 42);
    return QApplication::exec();
}
