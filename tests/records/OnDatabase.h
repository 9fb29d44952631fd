#pragma once

#include <gtest/gtest.h>

#include <unistd.h>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <QCoreApplication>
#include <QSqlQuery>

#include "library/Dispatch.h"
#include "platform/headless/HeadlessHome.h"
#include "platform/qt/sql/SqlConnection.h"
#include "platform/qt/sql/SqlStore.h"
#include "records/OpenTable.h"
#include "records/RecordForm.h"
#include "values/Text.h"

/// Records on a real database: on the server of KEL_POSTGRES where that is set, else in a file.
namespace kel::test {

using namespace records;

inline const std::string& databaseAddress() {
    static const std::string Address = [] {
        if (const char* const server = std::getenv("KEL_POSTGRES")) return std::string(server);
        const std::string name = "kel-records-" + std::to_string(getpid()) + ".sqlite";
        return (std::filesystem::temp_directory_path() / name).string();
    }();
    return Address;
}

/// Databases want an application object; where there is none yet it is made. Between two of them a test may split into
/// processes.
class Application {
public:
    Application() {
        if (QCoreApplication::instance() == nullptr) Core_.emplace(Count_, Arguments_);
    }

private:
    char Name_[6] = "tests";
    char* Arguments_[2] = {Name_, nullptr};
    int Count_ = 1;
    std::optional<QCoreApplication> Core_;
};

/// Each test has an empty database, and what a database administrator would run in it.
class OnDatabase : public ::testing::Test {
protected:
    OnDatabase() : Direct_(databaseAddress(), {}) { clear(); }
    ~OnDatabase() override {
        clear();
        if (!Direct_.isServer()) std::filesystem::remove(databaseAddress());
    }

    void execute(const char* statement) { Direct_.execute(QString::fromUtf8(statement)); }
    bool isServer() const { return Direct_.isServer(); }
    std::unique_ptr<Store> open() { return qt::openStore(databaseAddress(), {}); }
    std::string value(const char* query) {
        QSqlQuery& result = Direct_.run(QString::fromUtf8(query));
        const std::string text = result.next() ? result.value(0).toString().toStdString() : "no row";
        result.finish();
        return text;
    }

private:
    void clear() {
        for (const char* table : {"member", "line", "odd", "parent"})
            execute((std::string("DROP TABLE IF EXISTS ") + table).c_str());
    }

    Application Application_;
    qt::SqlConnection Direct_;
};

/// A person at a form, who answers as told.
class Person final : private Questions {
public:
    Person(const std::string& form, Store& store, const std::u16string& table)
        : Home_(headless::makeHome({.region = &defaultRegion()})),
          Form_(*Home_, Home_->system(), Observer_, FormFile::parse(form, "member.frm")) {
        Form_.show();
        Records_ = store.open(openTable(store, Form_, table, Home_->region(), [](const auto&) { return true; }));
        Questions& questions = *this;
        form_.emplace(Form_, *Records_, questions, Home_->region(), &store);
    }

    RecordForm& records() { return *form_; }
    void put(std::u16string_view field, const Variant& value) {
        Control& control = Form_.find(field)->control();
        putMember(control, *findMember(control.model(), DefaultMemberId), value, Home_->region());
    }
    void click(std::u16string_view field) { Form_.window().click(*Form_.find(field), 1); }
    void press(const KeyStroke& stroke) { Form_.window().press(stroke); }
    const TextEntry& entry(std::u16string_view field) { return *Form_.find(field)->control().widgets().entry; }
    std::u16string text(std::u16string_view field) { return Form_.find(field)->control().widgets().entry->text(); }
    Variant get(std::u16string_view field, std::u16string_view member) {
        Control& control = Form_.find(field)->control();
        Variant value;
        getMember(control, *findMember(control.model(), member), {}, value, Home_->region());
        return value;
    }
    /// In place of what stands there.
    void type(std::u16string_view field, std::u16string_view text) {
        Form_.window().focus(*Form_.find(field));
        Form_.window().press({keys::Home, 0, NoModifier});
        Form_.window().press({keys::End, 0, ShiftKey});
        for (const char16_t unit : text) Form_.window().press({0, unit, NoModifier});
    }
    /// Opens the list and closes it again.
    void drop(std::u16string_view field) {
        Form_.window().focus(*Form_.find(field));
        for (int i = 0; i < 2; ++i) Form_.window().press({keys::F4, 0, NoModifier});
    }
    std::u16string focused() { return Form_.window().focused() == nullptr ? u"" : Form_.window().focused()->name(); }

    Unsaved unsaved = Unsaved::Stay;
    std::optional<std::vector<Choice>> choices;
    bool keeps = false;
    std::string heard;
    int asked = 0;  ///< how often about differences

private:
    Unsaved aboutUnsaved() override { return unsaved; }
    bool reallyDelete() override { return true; }
    bool keepDeleted() override { return keeps; }
    void say(std::u16string_view message) override { heard += toUtf8(message) + "\n"; }
    std::optional<std::vector<Choice>> aboutDifferences(const std::vector<Difference>& differences) override {
        for (const Difference& each : differences)
            heard += toUtf8(each.field + u": " + each.loaded + u" / " + each.mine + u" / " + each.theirs) + "\n";
        ++asked;
        return choices;
    }

    SilentObserver Observer_;
    std::unique_ptr<Home> Home_;
    Form Form_;
    std::unique_ptr<RecordStore> Records_;
    std::optional<RecordForm> form_;
};

inline std::string formOf(const std::vector<std::array<std::string, 3>>& fields) {
    std::string text = "VERSION 5.00\r\nBegin VB.Form frmMember\r\n";
    for (const auto& [name, kind, extra] : fields)
        text += "   Begin KelControls8." + kind + " " + name + "\r\n      Width = 3000\r\n      Mandatory = 0\r\n" +
                extra + "   End\r\n";
    return text + "End\r\n";
}

inline const std::string UpTo99 = "      MaxValue = 99\r\n";
inline const std::string MemberForm =
    formOf({{"txtName", "KelText", ""}, {"numFee", "KelNumber", UpTo99}, {"datJoined", "KelDate", ""}});

}  // namespace kel::test
