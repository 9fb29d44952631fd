#include <QApplication>
#include <QDataWidgetMapper>
#include <QDate>
#include <QFormLayout>
#include <QPushButton>
#include <QStandardItemModel>

#include <KelControls8/KelCheckWidget.h>
#include <KelControls8/KelDateWidget.h>
#include <KelControls8/KelNumberWidget.h>
#include <KelControls8/KelTextWidget.h>

namespace {

/// Name, date of birth, limit, active. What nobody knows is null, and stays so.
void fill(QStandardItemModel& people) {
    const QVariant records[][4] = {{"Anna Weber", QDate(1975, 3, 1), 250.5, true},
                                   {"Jan Novak", QVariant(), QVariant(), false},
                                   {QVariant(), QDate(1990, 12, 24), 0, true}};
    people.setColumnCount(4);
    people.setRowCount(3);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 4; ++column)
            people.setData(people.index(row, column), records[row][column], Qt::EditRole);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QStandardItemModel people;
    fill(people);

    QWidget window;
    auto* const layout = new QFormLayout(&window);
    auto* const name = new KelTextWidget;
    layout->addRow("&Name", name);
    auto* const born = new KelDateWidget;
    born->setDaysFlag(KelDateWidget::BirthDay);
    born->setMandatory(false);
    layout->addRow("&Born", born);
    auto* const limit = new KelNumberWidget;
    limit->setDecimals(2);
    limit->setMandatory(false);
    layout->addRow("&Limit", limit);
    auto* const active = new KelCheckWidget;
    active->setCaption("&Active");
    layout->addRow(active);

    QDataWidgetMapper mapper;
    mapper.setModel(&people);
    mapper.setSubmitPolicy(QDataWidgetMapper::AutoSubmit);
    mapper.addMapping(name, 0);
    mapper.addMapping(born, 1);
    mapper.addMapping(limit, 2);
    mapper.addMapping(active, 3);
    mapper.toFirst();

    auto* const next = new QPushButton("Ne&xt");
    QObject::connect(next, &QPushButton::clicked, &mapper, &QDataWidgetMapper::toNext);
    layout->addRow(next);

    window.show();
    return QApplication::exec();
}
