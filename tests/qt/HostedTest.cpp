#include <gtest/gtest.h>
#include <KelCheckWidget.h>
#include <KelComboWidget.h>
#include <KelDateWidget.h>
#include <KelNumberWidget.h>
#include <KelTextWidget.h>
#include <KelTimeWidget.h>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDataWidgetMapper>
#include <QFormLayout>
#include <QItemEditorFactory>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>
#include <QWizard>

#include "tests/qt/QtForm.h"

/// To its program a field is one widget, whatever it is made of: watched, derived from, bound to data, edited in.
namespace kel::test {
namespace {

QString nameOf(const QEvent& event) {
    switch (event.type()) {
        case QEvent::ShortcutOverride: return "override ";
        case QEvent::KeyPress: return "press ";
        case QEvent::KeyRelease: return "release ";
        case QEvent::FocusIn: return "in ";
        case QEvent::FocusOut: return "out ";
        default: return {};
    }
}

/// Writes down what it sees of keys and focus.
class Watcher final : public QObject {
public:
    QString takeLog() { return std::exchange(Log_, {}); }
    bool swallows = false;

private:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        Log_ += nameOf(*event);
        return swallows && event->type() == QEvent::KeyPress;
    }
    QString Log_;
};

template <class Field>
class Derived final : public Field {
public:
    using Field::Field;
    QString takeLog() { return std::exchange(Log_, {}); }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        Log_ += nameOf(*event);
        if (event->key() == Qt::Key_Escape) return event->ignore();
        if (event->key() != Qt::Key_7) Field::keyPressEvent(event);
    }
    void keyReleaseEvent(QKeyEvent* event) override { Log_ += nameOf(*event); }
    void focusInEvent(QFocusEvent* event) override { Log_ += nameOf(*event); }
    void focusOutEvent(QFocusEvent* event) override { Log_ += nameOf(*event); }

private:
    QString Log_;
};

void handleEvents() { QCoreApplication::processEvents(); }

void showActive(QWidget& window) {
    window.show();
    QApplication::setActiveWindow(&window);
    handleEvents();
}

/// To the widget with the focus; Qt offers it as a shortcut first.
void strike(int key, const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    handleEvents();
}

template <class Field>
std::string whatIsSeen(QString (*textOf)(const Field&)) {
    QWidget window;
    Watcher above;
    Watcher watcher;
    auto* const field = new Derived<Field>(&window);
    auto* const other = new QLineEdit(&window);
    other->move(0, 100);
    showActive(window);
    window.installEventFilter(&above);
    field->installEventFilter(&watcher);
    other->setFocus();
    above.takeLog();
    watcher.takeLog();
    field->takeLog();
    QString seen;
    const auto note = [&](const char* what) {
        seen += QString::fromLatin1(what) + ": " + watcher.takeLog() + "/ " + field->takeLog() + "/ " +
                above.takeLog() + textOf(*field) + u'\n';
    };
    field->setFocus();
    note("enter");
    EXPECT_TRUE(field->hasFocus());
    strike(Qt::Key_5, "5");
    note("a digit");
    strike(Qt::Key_7, "7");
    note("kept by the class");
    strike(Qt::Key_Escape);
    note("left to the window");
    watcher.swallows = true;
    strike(Qt::Key_6, "6");
    note("kept by the filter");
    watcher.swallows = false;
    QTest::keyClick(field, Qt::Key_8);
    note("sent to the widget");
    strike(Qt::Key_Tab);
    note("leave");
    EXPECT_TRUE(other->hasFocus());
    EXPECT_FALSE(field->hasFocus());
    return seen.toStdString();
}

TEST(OneWidget, IsWatchedAndDerivedFromAsALineEdit) {
    const std::string stock = whatIsSeen<QLineEdit>([](const QLineEdit& edit) { return edit.text(); });
    EXPECT_EQ(stock,
              "enter: in / in / \n"
              "a digit: override press release / press release / 5\n"
              "kept by the class: override press release / press release / 5\n"
              "left to the window: override press release / press release / override press 5\n"
              "kept by the filter: override press release / release / 5\n"
              "sent to the widget: override press release / press release / 58\n"
              "leave: override press out / out / override 58\n");
    EXPECT_EQ(whatIsSeen<KelTextWidget>([](const KelTextWidget& field) { return field.text(); }), stock);
}

TEST(OneWidget, HasTheMenuThatItsProgramWants) {
    QWidget window;
    KelTextWidget field(&window);
    field.resize(300, 20);
    showActive(window);
    QWidget& box = widgetOf(*field.control().widgets().entry);
    QSignalSpy wanted(&field, &QWidget::customContextMenuRequested);
    for (const Qt::ContextMenuPolicy policy : {Qt::CustomContextMenu, Qt::DefaultContextMenu}) {
        field.setContextMenuPolicy(policy);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), box.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&box, &event);
        EXPECT_EQ(QApplication::activePopupWidget() != nullptr, policy == Qt::DefaultContextMenu);
    }
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted[0][0].toPoint(), box.pos() + QPoint(5, 5)) << "as the widget counts";
    QApplication::activePopupWidget()->close();
}

TEST(OneWidget, TakesGroundAndBorderFromAStyleSheet) {
    QWidget window;
    KelTextWidget field(&window);
    field.setCaptionWidth(1200);
    field.setStyleSheet("KelTextWidget { background: #00ff00; border: 2px solid #ff0000; }");
    field.resize(300, 20);
    const QImage picture = window.grab().toImage();
    EXPECT_EQ(picture.pixelColor(1, 10), QColor(255, 0, 0));
    EXPECT_EQ(picture.pixelColor(40, 10), QColor(0, 255, 0)) << "behind the caption";
}

TEST(OneWidget, IsNamedAndReachedByItsLabel) {
    QWidget window;
    QFormLayout layout(&window);
    auto* const first = new QLineEdit;
    auto* const field = new KelDateWidget;
    layout.addRow("&First", first);
    layout.addRow("&Date", field);
    showActive(window);
    first->setFocus();
    QTest::keyClick(first, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_EQ(layout.labelForField(field)->property("text"), "&Date");
    static_cast<QWidget*>(field)->setEnabled(false);
    first->setFocus();
    QTest::keyClick(first, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(first->hasFocus()) << "a disabled one is not";
    KelComboWidget combo;
    combo.setEnabled(false);
    EXPECT_FALSE(combo.isEnabled());
    EXPECT_FALSE(combo.control().widgets().entry->enabled());
}

// ---- Bound data

/// A table with a record of everything, one of nothing and one of what the fields show in part.
class Table {
public:
    Table() {
        Base.setDatabaseName(":memory:");
        EXPECT_TRUE(Base.open()) << Base.lastError().text().toStdString();
        run("create table t (id integer primary key, name text, price real, day date, hour time, town text, paid "
            "boolean, touched integer default 0)");
        run("create trigger touch after update on t begin update t set touched = 1 where id = new.id and touched = 0; "
            "end");
        run("insert into t values (1, 'Anna', 12.5, '2013-03-15', '18:30:00', 'Bern', 1, 0)");
        run("insert into t values (2, null, null, null, null, null, null, 0)");
        run("insert into t values (3, 'two' || char(10) || 'lines ', 3.14159265, '2013-03-15 07:00', '18:30:00.25', "
            "'Elsewhere', 0, 0)");
        run("insert into t values (4, '', 0.0, 'some day', '', '', 'no', 0)");
    }
    ~Table() {
        Base = {};
        QSqlDatabase::removeDatabase("records");
    }

    void run(const char* statement) const {
        QSqlQuery query(Base);
        EXPECT_TRUE(query.exec(statement)) << query.lastError().text().toStdString();
    }
    QStringList records() const {
        QStringList found;
        QSqlQuery query(
            "select quote(name)||' '||quote(price)||' '||quote(day)||' '||quote(hour)||' '||quote(town)||' '||"
            "quote(paid)||' '||touched from t order by id",
            Base);
        while (query.next()) found += query.value(0).toString();
        return found;
    }

    QSqlDatabase Base = QSqlDatabase::addDatabase("QSQLITE", "records");
};

class MappedFields : public testing::Test {
protected:
    MappedFields() {
        combo.setItems({"Bern", "Basel"});
        name.setMultiLine(true);
        model.setTable("t");
        model.setEditStrategy(QSqlTableModel::OnFieldChange);
        model.select();
        mapper.setModel(&model);
        mapper.setSubmitPolicy(QDataWidgetMapper::AutoSubmit);
        int section = 0;
        int top = 0;
        for (QWidget* const field : Fields) {
            field->setGeometry(0, top += 25, 300, 20);
            mapper.addMapping(field, ++section);
        }
        showActive(window);
    }
    ~MappedFields() override {
        mapper.clearMapping();
        model.clear();
    }

    Table table;
    QSqlTableModel model{nullptr, table.Base};
    QWidget window;
    KelTextWidget name{&window};
    KelNumberWidget price{&window};
    KelDateWidget day{&window};
    KelTimeWidget hour{&window};
    KelComboWidget combo{&window};
    KelCheckWidget paid{&window};
    QWidget* const Fields[6] = {&name, &price, &day, &hour, &combo, &paid};
    QDataWidgetMapper mapper;
};

TEST_F(MappedFields, ShowEachRecordAndNothingOfTheOneBefore) {
    const struct {
        QString name;
        double price;
        QDate day;
        QTime hour;
        QString town;
        bool paid;
    } rows[] = {
        {"Anna", 12.5, {2013, 3, 15}, {18, 30}, "Bern", true},
        {"", 0, {}, {}, "", false},
        {"two\nlines ", 3.14, {2013, 3, 15}, {18, 30}, "", false},
        {"", 0, {}, {}, "", true},
    };
    for (int record = 0; record < 4; ++record) {
        mapper.setCurrentIndex(record);
        EXPECT_EQ(name.text(), rows[record].name) << record;
        EXPECT_EQ(price.value(), rows[record].price) << record;
        EXPECT_EQ(day.date(), rows[record].day) << record;
        EXPECT_EQ(hour.time(), rows[record].hour) << record;
        EXPECT_EQ(combo.text(), rows[record].town) << record;
        EXPECT_EQ(paid.checked(), rows[record].paid) << record;
    }
}

TEST_F(MappedFields, LeaveWhatIsOnlyLookedAt) {
    const QStringList before = table.records();
    for (int record = 0; record < 4; ++record) {
        mapper.setCurrentIndex(record);
        for (QWidget* const field : Fields) {
            field->setFocus();
            handleEvents();
        }
        EXPECT_TRUE(mapper.submit());
    }
    EXPECT_EQ(table.records(), before) << "to the byte, and no record is written";
}

TEST_F(MappedFields, StoreWhatIsTyped) {
    mapper.setCurrentIndex(1);
    day.setFocus();
    handleEvents();
    QTest::keyClicks(QApplication::focusWidget(), "15/03/2013");
    strike(Qt::Key_Tab);
    EXPECT_EQ(table.records()[1], "NULL NULL '2013-03-15' NULL NULL NULL 1") << "by leaving the field";
    mapper.setCurrentIndex(0);
    const auto retype = [](QWidget& field, const char* text) {
        field.setFocus();
        handleEvents();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
        QTest::keyClicks(QApplication::focusWidget(), text);
    };
    retype(name, "Ida");
    retype(price, "7.25");
    retype(hour, "");
    retype(combo, "Ba");
    paid.setFocus();
    strike(Qt::Key_Space, " ");
    name.setFocus();
    handleEvents();
    EXPECT_EQ(table.records()[0], "'Ida' 7.25 '2013-03-15' NULL 'Basel' 0 1");
}

TEST(OneWidget, MustBeFilledInOnAWizardsPage) {
    QWizard wizard;
    wizard.setDefaultProperty("KelTextWidget", "text", SIGNAL(textChanged(QString)));
    wizard.setDefaultProperty("KelDateWidget", "date", SIGNAL(dateChanged(QDate)));
    class Page final : public QWizardPage {
    public:
        Page() {
            registerField("name*", &name);
            registerField("born*", &born);
        }
        KelTextWidget name{this};
        KelDateWidget born{this};
    };
    auto* const page = new Page;
    wizard.addPage(page);
    wizard.show();
    EXPECT_FALSE(page->isComplete());
    QTest::keyClicks(&page->name, "A");
    EXPECT_FALSE(page->isComplete());
    page->born.setDate({1990, 1, 31});
    EXPECT_TRUE(page->isComplete());
    EXPECT_EQ(wizard.field("born").toDate(), QDate(1990, 1, 31));
    page->born.clear();
    EXPECT_FALSE(page->isComplete());
}

TEST(OneWidget, EditsTheCellsOfATable) {
    QItemEditorFactory factory;
    factory.registerEditor(QMetaType::QDate, new QStandardItemEditorCreator<KelDateWidget>);
    QStyledItemDelegate delegate;
    delegate.setItemEditorFactory(&factory);
    const QDate before(2013, 3, 15);
    const struct {
        const char* what;
        int key;
        QDate stored;
        int row;  ///< the current one afterwards
    } rows[] = {
        {"Enter", Qt::Key_Return, {2013, 3, 16}, 0},
        {"Escape", Qt::Key_Escape, before, 0},
        {"Tab", Qt::Key_Tab, {2013, 3, 16}, 1},
        {"another widget", 0, {2013, 3, 16}, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        QWidget window;
        QTableView view(&window);
        QLineEdit other(&window);
        QStandardItemModel model(2, 1);
        view.setModel(&model);
        view.setItemDelegate(&delegate);
        view.resize(300, 200);
        other.move(0, 210);
        for (int i = 0; i < 2; ++i) model.setData(model.index(i, 0), before);
        showActive(window);
        view.setFocus();
        view.setCurrentIndex(model.index(0, 0));
        view.edit(model.index(0, 0));
        auto* const editor = view.findChild<KelDateWidget*>();
        ASSERT_NE(editor, nullptr);
        EXPECT_TRUE(editor->hasFocus());
        EXPECT_EQ(editor->date(), before);
        strike(Qt::Key_Up);
        if (row.key != 0)
            strike(row.key);
        else
            other.setFocus();
        handleEvents();
        EXPECT_EQ(model.index(0, 0).data(Qt::EditRole).toDate(), row.stored);
        EXPECT_EQ(view.currentIndex().row(), row.row);
        EXPECT_EQ(view.findChild<KelDateWidget*>() != nullptr, row.row == 1) << "the next cell is edited after Tab";
    }
}

}  // namespace
}  // namespace kel::test
