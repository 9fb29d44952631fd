#include <gtest/gtest.h>
#include <KelCheckWidget.h>
#include <KelComboWidget.h>
#include <KelDateWidget.h>
#include <KelNumberWidget.h>
#include <KelProgressBarWidget.h>
#include <KelTextWidget.h>
#include <KelTimeWidget.h>
#include <functional>
#include <QApplication>
#include <QLocale>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>

#include "controls/Classes.h"
#include "tests/qt/QtForm.h"

/// The fields in Qt's own types, and what they tell: every change once, whoever makes it.
namespace kel::test {
namespace {

using Deed = std::function<void()>;

/// Every field in a window of its own that has the focus in it, with a stock field to leave for.
class TypedFields : public testing::Test {
protected:
    TypedFields() {
        int top = 0;
        for (QWidget* const field : Fields) field->setGeometry(0, top += 25, 300, 20);
        combo.setItems({QStringLiteral("Bern"), QStringLiteral("Basel"), QStringLiteral("Chur")});
        combo.setListTag(QStringLiteral("BE,BS,GR"));
        window.show();
        QApplication::setActiveWindow(&window);
    }

    static void enter(QWidget& field) {
        field.setFocus();
        QCoreApplication::processEvents();
    }
    static void type(const char* keys) { QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(keys)); }
    static void press(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCoreApplication::processEvents();
    }

    QWidget window;
    KelTextWidget text{&window};
    KelNumberWidget number{&window};
    KelDateWidget date{&window};
    KelTimeWidget time{&window};
    KelComboWidget combo{&window};
    KelCheckWidget check{&window};
    KelProgressBarWidget bar{&window};
    QWidget* const Fields[7] = {&text, &number, &date, &time, &combo, &check, &bar};
};

QString lowered(std::u16string_view name) {
    QString lower = QString::fromStdU16String(std::u16string(name));
    lower[0] = lower[0].toLower();
    return lower;
}

TEST_F(TypedFields, AreOfQtsOwnTypes) {
    const struct {
        QWidget& field;
        const char* user;
        const char* notify;
        std::vector<std::pair<const char*, const char*>> others;
    } rows[] = {
        {text, "text", "textChanged(QString)", {}},
        {number, "value", "valueChanged(double)", {{"minimum", "double"}, {"maximum", "double"}}},
        {date,
         "date",
         "dateChanged(QDate)",
         {{"minimumDate", "QDate"}, {"maximumDate", "QDate"}, {"daysFlag", "KelDateWidget::DaysFlag"}}},
        {time, "time", "timeChanged(QTime)", {{"minimumTime", "QTime"}, {"maximumTime", "QTime"}}},
        {combo,
         "text",
         "textChanged(QString)",
         {{"items", "QStringList"}, {"currentIndex", "int"}, {"currentData", "QVariant"}}},
        {check, "checked", "toggled(bool)", {}},
        {bar, "value", "valueChanged(int)", {{"minimum", "int"}, {"maximum", "int"}}},
    };
    for (const auto& row : rows) {
        const QMetaObject& meta = *row.field.metaObject();
        SCOPED_TRACE(meta.className());
        EXPECT_STREQ(meta.userProperty().name(), row.user);
        EXPECT_STREQ(meta.userProperty().notifySignal().methodSignature(), row.notify);
        for (const auto& [name, type] : row.others)
            EXPECT_STREQ(meta.property(meta.indexOfProperty(name)).typeName(), type) << name;
        EXPECT_EQ(meta.indexOfProperty("hWnd"), -1) << "reading it would make the window native";
        if (&row.field == &bar) continue;
        EXPECT_TRUE(meta.property(meta.indexOfProperty("valid")).hasNotifySignal());
        EXPECT_TRUE(meta.property(meta.indexOfProperty("changed")).hasNotifySignal());
        EXPECT_GE(meta.indexOfSignal("editingFinished()"), 0);
    }
    EXPECT_EQ(QMetaEnum::fromType<KelDateWidget::DaysFlag>().keyToValue("LastDay"), 2);
}

/// Every member is a property, under its own name or Qt's; what a form saves, tools save and load too, once each.
TEST_F(TypedFields, AreThoseOfTheTypeModel) {
    const std::map<QString, QString> typed = {
        {"KelNumber.minValue", "minimum"},
        {"KelNumber.maxValue", "maximum"},
        {"KelNumber.upDownChange", "singleStep"},
        {"KelDate.value", "date"},
        {"KelDate.minValue", "minimumDate"},
        {"KelDate.maxValue", "maximumDate"},
        {"KelTime.value", "time"},
        {"KelTime.minValue", "minimumTime"},
        {"KelTime.maxValue", "maximumTime"},
        {"KelCheck.value", "checked"},
        {"KelProgressBar.min", "minimum"},
        {"KelProgressBar.max", "maximum"},
    };
    for (const QWidget* const field : Fields) {
        const QMetaObject& meta = *field->metaObject();
        const QString className = QString::fromLatin1(meta.className()).chopped(6);
        const ClassModel& model = *libraryClasses().find(className.toStdU16String());
        QStringList saved;
        for (const PersistedRow& row : model.loaded) {
            if (row.name == u"Enabled") continue;  // every widget's own
            const QString name = lowered(row.name);
            const auto found = typed.find(className + u'.' + name);
            saved += found != typed.end() ? found->second : name;
        }
        QStringList stored;
        QStringList shown;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QString name = QString::fromLatin1(meta.property(i).name());
            if (meta.property(i).isStored()) stored += name;
            if (meta.property(i).isDesignable()) shown += name;
        }
        EXPECT_EQ(stored, saved) << meta.className() << ", in the order in which a form is loaded";
        EXPECT_EQ(shown, stored) << meta.className();
        for (const MemberRow& member : model.members) {
            if (member.isMethod || member.name == u"hWnd" || member.name == u"Enabled" ||
                member.name == u"ChangedCaption")
                continue;
            const int index = meta.indexOfProperty(lowered(member.name).toLatin1());
            ASSERT_GE(index, meta.propertyOffset()) << lowered(member.name).toStdString();
            EXPECT_EQ(meta.property(index).isWritable(), member.put != nullptr) << meta.property(index).name();
        }
    }
}

TEST_F(TypedFields, TellEveryChangeOnce) {
    const QDate day(2013, 3, 15);
    const QTime hour(18, 30);
    const struct {
        const char* what;
        QWidget& field;
        const char* signal;
        Deed deed;
        std::vector<QVariant> told;
    } rows[] = {
        {"text put", text, SIGNAL(textChanged(QString)), [&] { text.setText("a"); }, {"a"}},
        {"text put again", text, SIGNAL(textChanged(QString)), [&] { text.setText("a"); }, {}},
        {"text typed", text, SIGNAL(textChanged(QString)), [&] { enter(text), type("bc"); }, {"ba", "bca"}},
        {"text edited", text, SIGNAL(textEdited(QString)), [&] { text.setText(""), enter(text), type("x"); }, {"x"}},
        {"text left", text, SIGNAL(textChanged(QString)), [&] { enter(number); }, {}},
        {"as other lines", text, SIGNAL(textChanged(QString)), [&] { text.setMultiLine(true); }, {}},
        {"lines", text, SIGNAL(textChanged(QString)), [&] { text.setText("a\nb"); }, {"a\nb"}},
        {"lines again", text, SIGNAL(textChanged(QString)), [&] { text.setText(text.text()); }, {}},
        {"number put", number, SIGNAL(valueChanged(double)), [&] { number.setValue(2.5); }, {2.5}},
        {"number put again", number, SIGNAL(valueChanged(double)), [&] { number.setValue(2.5); }, {}},
        {"number typed",
         number,
         SIGNAL(valueChanged(double)),
         [&] { number.setSelectOnFocus(true), enter(number), type("7"); },
         {}},
        {"number read", number, SIGNAL(valueChanged(double)), [&] { EXPECT_EQ(number.value(), 7.5); }, {}},
        {"number left", number, SIGNAL(valueChanged(double)), [&] { enter(text); }, {7.5}},
        {"number limited", number, SIGNAL(valueChanged(double)), [&] { number.setMaximum(5); }, {}},
        {"date put", date, SIGNAL(dateChanged(QDate)), [&] { date.setDate(day); }, {day}},
        {"date put again", date, SIGNAL(dateChanged(QDate)), [&] { date.setValue(day); }, {}},
        {"date taken away", date, SIGNAL(dateChanged(QDate)), [&] { date.setDate({}); }, {QDate()}},
        {"date typed", date, SIGNAL(dateChanged(QDate)), [&] { enter(date), type("15/03/2013"); }, {}},
        {"date entered", date, SIGNAL(dateChanged(QDate)), [&] { press(Qt::Key_Return); }, {day}},
        {"date stepped", date, SIGNAL(dateChanged(QDate)), [&] { enter(date), press(Qt::Key_Up); }, {day.addDays(1)}},
        {"time put", time, SIGNAL(timeChanged(QTime)), [&] { time.setTime(hour); }, {hour}},
        {"time stepped",
         time,
         SIGNAL(timeChanged(QTime)),
         [&] { enter(time), press(Qt::Key_Up); },
         {hour.addSecs(3600)}},
        {"choice put", combo, SIGNAL(textChanged(QString)), [&] { combo.setCurrentIndex(2); }, {"Chur"}},
        {"choice put by tag", combo, SIGNAL(textChanged(QString)), [&] { combo.setCurrentData("BS"); }, {"Basel"}},
        {"choice put again", combo, SIGNAL(textChanged(QString)), [&] { combo.setText("Basel"); }, {}},
        {"choice typed",
         combo,
         SIGNAL(textChanged(QString)),
         [&] {
             enter(combo), press(Qt::Key_End),
                 QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier), type("C");
         },
         {"Chur"}},
        {"choice picked",
         combo,
         SIGNAL(activated(int)),
         [&] { press(Qt::Key_F4), press(Qt::Key_Up), press(Qt::Key_Up); },
         {1, 0}},
        {"check put", check, SIGNAL(toggled(bool)), [&] { check.setChecked(true); }, {true}},
        {"check put again", check, SIGNAL(toggled(bool)), [&] { check.setValue(true); }, {}},
        {"check pressed", check, SIGNAL(toggled(bool)), [&] { enter(check), press(Qt::Key_Space); }, {false}},
        {"bar moved", bar, SIGNAL(valueChanged(int)), [&] { bar.setValue(40), bar.setValue(40); }, {40}},
        {"bar started", bar, SIGNAL(valueChanged(int)), [&] { bar.start(); }, {1}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        QSignalSpy spy(&row.field, row.signal);
        row.deed();
        std::vector<QVariant> told;
        for (const QList<QVariant>& arguments : spy) told.push_back(arguments.front());
        EXPECT_EQ(told, row.told);
    }
}

TEST_F(TypedFields, TellHowTheyStand) {
    const struct {
        const char* what;
        QWidget& field;
        const char* signal;
        Deed deed;
        std::vector<QVariant> told;
    } rows[] = {
        {"a mandatory text", text, SIGNAL(validChanged(bool)), [&] { enter(text), type("a"); }, {true}},
        {"taken away again", text, SIGNAL(validChanged(bool)), [&] { press(Qt::Key_Backspace); }, {false}},
        {"no longer mandatory", text, SIGNAL(validChanged(bool)), [&] { text.setMandatory(false); }, {true}},
        {"changed by a key", text, SIGNAL(changedChanged(bool)), [&] { type("b"); }, {true}},
        {"and a put", text, SIGNAL(changedChanged(bool)), [&] { text.setText("c"); }, {false}},
        {"by the original", text, SIGNAL(changedChanged(bool)), [&] { text.setTextOriginal("d"); }, {true}},
        {"a number beyond",
         number,
         SIGNAL(validChanged(bool)),
         [&] { number.setMaximum(10), enter(number), press(Qt::Key_Delete), type("5"); },
         {true}},
        {"by a digit more", number, SIGNAL(validChanged(bool)), [&] { type("5"); }, {false}},
        {"as it stands",
         number,
         SIGNAL(changedChanged(bool)),
         [&] { EXPECT_EQ(number.value(), 10) << "as it would be committed"; },
         {}},
        {"by a wider limit", number, SIGNAL(validChanged(bool)), [&] { number.setMaximum(100); }, {true}},
        {"left", number, SIGNAL(editingFinished()), [&] { press(Qt::Key_Tab); }, {{}}},
        {"a date that is none", date, SIGNAL(validChanged(bool)), [&] { date.setDate(QDate(2013, 3, 15)); }, {true}},
        {"before the first",
         date,
         SIGNAL(validChanged(bool)),
         [&] { date.setMinimumDate(QDate(2014, 1, 1)); },
         {false}},
        {"after it again", date, SIGNAL(validChanged(bool)), [&] { date.resetMinimumDate(); }, {true}},
        {"a step", date, SIGNAL(changedChanged(bool)), [&] { enter(date), press(Qt::Key_Up); }, {}},
        {"entered", date, SIGNAL(editingFinished()), [&] { press(Qt::Key_Return); }, {{}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        QSignalSpy spy(&row.field, row.signal);
        row.deed();
        std::vector<QVariant> told;
        for (const QList<QVariant>& arguments : spy) told.push_back(arguments.value(0));
        EXPECT_EQ(told, row.told);
    }
}

TEST(TypedField, IsFinishedByEnterWhereThereIsNowhereToGo) {
    KelDateWidget date;
    date.show();
    QApplication::setActiveWindow(&date);
    date.setFocus();
    const QSignalSpy changed(&date, &KelDateWidget::dateChanged);
    const QSignalSpy finished(&date, &KelDateWidget::editingFinished);
    QTest::keyClicks(&date, "15/03/2013\r");
    QCoreApplication::processEvents();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(finished.count(), 1);
    EXPECT_TRUE(date.hasFocus());
}

/// Whatever is no date is none, not a day in 1899.
TEST_F(TypedFields, KnowNone) {
    const QDate day(2013, 3, 15);
    const QVariant nones[] = {
        {},     QVariant::fromValue(nullptr), QVariant(QDate()), QVariant(QMetaType(QMetaType::QString)), QDateTime(),
        QTime()};
    for (const QVariant& none : nones) {
        for (const char* const property : {"date", "value"}) {
            date.setDate(day);
            date.setProperty(property, none);
            EXPECT_FALSE(date.date().isValid()) << property << none.typeName();
            EXPECT_EQ(QString::fromStdU16String(date.control().widgets().entry->text()), QString()) << none.typeName();
        }
        time.setTime({1, 2});
        time.setProperty("time", none);
        EXPECT_FALSE(time.time().isValid()) << none.typeName();
        number.setValue(5);
        number.setProperty("value", none);
        EXPECT_EQ(number.value(), 0) << none.typeName();
    }
    time.setTime(QTime(18, 30, 15, 600));
    EXPECT_EQ(time.time(), QTime(18, 30, 16));
    time.setTime(QTime(23, 59, 59, 999));
    EXPECT_EQ(time.time(), QTime(23, 59, 59)) << "of the same day";
    date.setProperty("date", QDateTime(day, QTime(18, 0)));
    EXPECT_EQ(date.date(), day);
    combo.setCurrentIndex(-1);
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_FALSE(combo.currentData().isValid());
    combo.setLimitToList(false);
    combo.setText("Bern");
    EXPECT_EQ(combo.currentIndex(), 0);
    EXPECT_EQ(combo.currentData(), QVariant("BE"));
}

QString shown(const qt::KelControlWidget& field) {
    return QString::fromStdU16String(field.control().widgets().entry->text());
}

/// The usual format, of a date made where `locale` is the default.
QString shownIn(const QLocale& locale) {
    const QLocale before;
    QLocale::setDefault(locale);
    KelDateWidget date;
    date.setDate(QDate(2013, 3, 15));
    QLocale::setDefault(before);
    return shown(date);
}

TEST(Locale, IsThatOfTheWidget) {
    const QDate day(2013, 3, 15);
    const QLocale before;
    EXPECT_EQ(shownIn(QLocale::c()), "15/03/2013");
    const auto fill = [&](KelNumberWidget& number, KelDateWidget& date, KelTimeWidget& time) {
        number.setValue(1234.5);
        date.setFormat("Short Date");
        date.setDate(day);
        time.setFormat("Long Time");
        time.setTime({18, 30});
        return shown(number) + u'|' + shown(date) + u'|' + shown(time);
    };
    const struct {
        QLocale locale;
        QString shown;
    } rows[] = {
        {QLocale(QLocale::German, QLocale::Germany), "1.234,50|15.03.2013|18:30:00"},
        {QLocale(QLocale::English, QLocale::UnitedStates), "1,234.50|3/15/2013|6:30:00 PM"},
        {QLocale::c(), "1,234.50|15 Mar 2013|18:30:00"},
    };
    for (const auto& row : rows) {
        {
            QLocale::setDefault(row.locale);
            KelNumberWidget number;
            KelDateWidget date;
            KelTimeWidget time;
            EXPECT_EQ(fill(number, date, time), row.shown) << "made after the default was set";
            QLocale::setDefault(before);
        }
        QWidget window;
        KelNumberWidget number(&window);
        KelDateWidget date(&window);
        KelTimeWidget time(&window);
        fill(number, date, time);
        window.setLocale(row.locale);
        EXPECT_EQ(shown(number) + u'|' + shown(date) + u'|' + shown(time), row.shown) << "moved there";
    }
}

}  // namespace
}  // namespace kel::test
