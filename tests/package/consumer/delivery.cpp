#include <KelControls8/KelCheckWidget.h>
#include <KelControls8/KelComboWidget.h>
#include <KelControls8/KelDateWidget.h>
#include <KelControls8/KelNumberWidget.h>
#include <KelControls8/KelProgressBarWidget.h>
#include <KelControls8/KelTextWidget.h>
#include <KelControls8/KelTimeWidget.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <QAbstractButton>
#include <QApplication>
#include <QDataWidgetMapper>
#include <QFile>
#include <QFormLayout>
#include <QMetaProperty>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QStringList>
#include <QWizard>
#ifdef HAS_UITOOLS
#include <QUiLoader>
#endif

#include "ui_delivery.h"

/// A form of all seven on the records of a database, made in code, by uic and by a loader of forms. Looking at records
/// changes no byte of them, nor does storing them as they are.
namespace {

const char* const Names[] = {"customer", "weight", "due", "before", "carrier", "insured", "loaded"};

using Form = std::unique_ptr<QWidget>;

// ---- Three ways to a form

Form inCode() {
    Form form(new QWidget);
    auto* const layout = new QFormLayout(form.get());
    auto* const weight = new KelNumberWidget;
    weight->setDecimals(2);
    auto* const carrier = new KelComboWidget;
    carrier->setItems({"Post", "Rail", "Road, express"});
    QWidget* const fields[] = {new KelTextWidget,       weight,  new KelDateWidget,
                               new KelTimeWidget,       carrier, new KelCheckWidget,
                               new KelProgressBarWidget};
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        fields[i]->setObjectName(Names[i]);
        layout->addRow(Names[i], fields[i]);
    }
    return form;
}

Form byUic() {
    Form form(new QWidget);
    Ui::Delivery().setupUi(form.get());
    return form;
}

#ifdef HAS_UITOOLS

template <class Widget>
QWidget* make(QWidget* parent) {
    return new Widget(parent);
}

/// Where there is no plugin, a program says itself what the classes are.
class Loader : public QUiLoader {
public:
    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        const QMap<QString, QWidget* (*)(QWidget*)> makers = {{"KelTextWidget", make<KelTextWidget>},
                                                              {"KelNumberWidget", make<KelNumberWidget>},
                                                              {"KelDateWidget", make<KelDateWidget>},
                                                              {"KelTimeWidget", make<KelTimeWidget>},
                                                              {"KelComboWidget", make<KelComboWidget>},
                                                              {"KelCheckWidget", make<KelCheckWidget>},
                                                              {"KelProgressBarWidget", make<KelProgressBarWidget>}};
        if (!makers.contains(className)) return QUiLoader::createWidget(className, parent, name);
        QWidget* const made = makers[className](parent);
        made->setObjectName(name);
        return made;
    }
};

Form byLoader(QUiLoader& loader) {
    QFile file(DELIVERY_UI);
    file.open(QFile::ReadOnly);
    return Form(loader.load(&file));
}

#endif

// ---- What is done with it

/// Each value as the database has it, its type included.
QStringList bytes() {
    QStringList records;
    QSqlQuery query(
        "SELECT quote(customer), quote(weight), quote(due), quote(\"before\"), quote(carrier), "
        "quote(insured), quote(loaded) FROM delivery ORDER BY id");
    while (query.next()) {
        QStringList values;
        for (int i = 0; i < int(std::size(Names)); ++i) values += query.value(i).toString();
        records += values.join("|");
    }
    return records;
}

void fill() {
    QSqlQuery query;
    query.exec("DROP TABLE IF EXISTS delivery");
    query.exec(
        "CREATE TABLE delivery (id INTEGER PRIMARY KEY, customer TEXT, weight REAL, due TEXT, \"before\" TEXT, "
        "carrier TEXT, insured INTEGER, loaded INTEGER)");
    query.exec("INSERT INTO delivery VALUES (1, 'Weber', 12.5, '2026-11-30', '18:30:00', 'Rail', 1, 3)");
    query.exec("INSERT INTO delivery VALUES (2, NULL, NULL, NULL, NULL, NULL, NULL, NULL)");
    // What the fields show cut or rounded, and what they have no item for.
    query.exec(
        "INSERT INTO delivery VALUES (3, 'a' || char(10) || 'b', 1.23456, '2026-11-30T08:15:00', "
        "'18:30:15.600', 'Airship', 7, 99)");
}

/// Says "same" where two lists are, else the first that differs.
const char* compared(const QStringList& before, const QStringList& after) {
    for (int i = 0; i < before.size(); ++i)
        if (before[i] != after.value(i))
            std::printf("  was %s\n  is  %s\n", qPrintable(before[i]), qPrintable(after.value(i)));
    return before == after ? "same" : "CHANGED";
}

void useOnRecords(QWidget& form) {
    fill();
    QSqlTableModel model;
    model.setTable("delivery");
    model.select();
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setSubmitPolicy(QDataWidgetMapper::AutoSubmit);
    for (const char* const name : Names) mapper.addMapping(form.findChild<QWidget*>(name), model.fieldIndex(name));
    const QStringList before = bytes();
    form.show();
    QApplication::setActiveWindow(&form);
    for (int row = 0; row < model.rowCount(); ++row) {
        mapper.setCurrentIndex(row);
        for (const char* const name : Names) form.findChild<QWidget*>(name)->setFocus();
        mapper.submit();
    }
    std::printf(" looked at: %s", compared(before, bytes()));
    mapper.setCurrentIndex(1);
    form.findChild<KelNumberWidget*>("weight")->setValue(2.25);
    mapper.submit();
    std::printf(", changed: %s", qPrintable(bytes().value(1)));
}

/// Only a page whose fields are filled in lets on.
void useInWizard(Form form) {
    struct Page : QWizardPage {
        using QWizardPage::registerField;
    };
    QWizard wizard;
    const QWidget* const fields = form.get();
    auto* const page = new Page;
    (new QVBoxLayout(page))->addWidget(form.release());
    for (const char* const name : {"customer", "due", "carrier", "insured"}) {
        auto* const field = fields->findChild<QWidget*>(name);
        const QMetaProperty user = field->metaObject()->userProperty();
        wizard.setDefaultProperty(field->metaObject()->className(), user.name(),
                                  '2' + user.notifySignal().methodSignature());
        page->registerField(QString(name) + '*', field);
        field->setProperty(user.name(), QVariant());
    }
    wizard.addPage(page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    QString told;
    const auto tell = [&] { told += wizard.button(QWizard::NextButton)->isEnabled() ? '+' : '-'; };
    tell();
    fields->findChild<KelTextWidget*>("customer")->setText("Weber");
    fields->findChild<KelDateWidget*>("due")->setDate(QDate(2026, 11, 30));
    fields->findChild<KelComboWidget*>("carrier")->setText("Post");
    tell();
    fields->findChild<KelCheckWidget*>("insured")->setChecked(true);
    tell();
    std::printf(", wizard: %s %s\n", qPrintable(told), qPrintable(wizard.field("due").toDate().toString(Qt::ISODate)));
}

void use(const char* way, const std::function<Form()>& made) {
    std::printf("%s", way);
    const Form form = made();
    useOnRecords(*form);
    useInWizard(made());
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName(":memory:");
    if (!database.open()) return 1;
    use("code", inCode);
    use("uic", byUic);
#ifdef HAS_UITOOLS
    Loader own;
    use("loader", [&] { return byLoader(own); });
    QUiLoader plugin;
    if (plugin.availableWidgets().contains("KelTextWidget")) use("plugin", [&] { return byLoader(plugin); });
#endif
    return 0;
}
