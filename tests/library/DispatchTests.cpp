#include "library/Dispatch.h"

#include <gtest/gtest.h>

#include <set>

#include "controls/Classes.h"
#include "host/PropertyBag.h"
#include "values/Text.h"

namespace kel {
namespace {

/// An object with a member of every shape that a host can meet.
class Sample final : public LibraryObject {
public:
    const ClassModel& model() const override;

    std::u16string get_Name() const { return Name; }
    void put_Name(const std::u16string& name) { Name = name; }
    std::int16_t get_Count() const { return Count; }
    void put_Count(std::int16_t count) { Count = count; }
    double get_Size() const { return 2.5; }
    bool get_Check(std::u16string& text, std::int16_t times) {
        text += u"!";
        return times == 3;
    }
    void Reset(bool hard) { Hard = hard; }
    std::int32_t Add(std::int32_t left, std::int32_t right) { return left + right; }

    std::u16string Name = u"n";
    std::int16_t Count = 1;
    bool Hard = true;
};

constexpr MemberRow SampleMembers[] = {
    property<&Sample::get_Name, &Sample::put_Name>(u"Name", 0, u"").hiddenByReference(),
    property<&Sample::get_Count, &Sample::put_Count>(u"Count", 1, u""),
    property<&Sample::get_Size>(u"Size", 2, u""),
    property<&Sample::get_Check>(u"Check", 3, u"").arguments(u"Text", u"Times").lastOptional(),
    method<&Sample::Reset>(u"Reset", 4, u"").arguments(u"Hard").lastOptional(),
    method<&Sample::Add>(u"Add", 5, u"").arguments(u"Left", u"Right"),
};
const ClassModel SampleModel{.name = u"Sample", .help = u"", .members = SampleMembers};
const ClassModel& Sample::model() const { return SampleModel; }

using Kind = DispatchFault::Kind;

class Dispatch : public testing::Test {
protected:
    const MemberRow& member(std::u16string_view name) { return *findMember(SampleModel, name); }
    DispatchFault get(std::u16string_view name, std::vector<Variant>& arguments) {
        return getMember(sample, member(name), arguments, result, region);
    }
    DispatchFault put(std::u16string_view name, const Variant& value) {
        return putMember(sample, member(name), value, region);
    }
    DispatchFault call(std::u16string_view name, std::vector<Variant> arguments) {
        return callMember(sample, member(name), arguments, result, region);
    }

    Sample sample;
    Variant result = Missing{};
    std::vector<Variant> none;
    const RegionalSettings& region = defaultRegion();
};

TEST_F(Dispatch, FindsMembersByNameInAnyCaseAndByIdentifier) {
    EXPECT_EQ(findMember(SampleModel, u"cOUNT"), &SampleMembers[1]);
    EXPECT_EQ(findMember(SampleModel, 0), &SampleMembers[0]);
    EXPECT_EQ(findMember(SampleModel, u"Coun"), nullptr);
    EXPECT_EQ(findMember(SampleModel, u""), nullptr);
    EXPECT_EQ(findMember(SampleModel, 99), nullptr);
}

TEST_F(Dispatch, RefusesWhatCannotAndChangesNothing) {
    const struct {
        Variant value;
        Kind kind;
    } cases[] = {
        {u"twelve", Kind::TypeMismatch}, {Null{}, Kind::TypeMismatch},      {40000, Kind::Overflow},
        {u"40000", Kind::Overflow},      {ObjectPtr(), Kind::TypeMismatch}, {Missing{}, Kind::ArgumentCount},
    };
    for (const auto& test : cases) EXPECT_EQ(put(u"Count", test.value).kind, test.kind);
    EXPECT_EQ(sample.Count, 1);
    EXPECT_EQ(put(u"Size", 1).kind, Kind::NotWritable);
    EXPECT_EQ(put(u"Reset", true).kind, Kind::NotWritable);
    EXPECT_EQ(get(u"Reset", none).kind, Kind::NotReadable);
    EXPECT_EQ(call(u"Name", {}).kind, Kind::NotCallable);
}

TEST_F(Dispatch, CountsArgumentsAndFillsInOptionalOnes) {
    std::vector<Variant> arguments{std::u16string(u"a")};
    EXPECT_TRUE(get(u"Check", arguments).ok());
    EXPECT_EQ(std::get<bool>(result), false);
    EXPECT_EQ(std::get<std::u16string>(arguments[0]), u"a!") << "a by-reference argument comes back";
    arguments = {std::u16string(u"a"), std::int32_t{3}};
    EXPECT_TRUE(get(u"Check", arguments).ok());
    EXPECT_EQ(std::get<bool>(result), true);
    EXPECT_EQ(get(u"Check", none).kind, Kind::ArgumentCount);
    EXPECT_TRUE(call(u"Reset", {}).ok());
    EXPECT_FALSE(sample.Hard);
    EXPECT_TRUE(call(u"Reset", {true}).ok());
    EXPECT_TRUE(sample.Hard);
    EXPECT_TRUE(call(u"Reset", {Missing{}}).ok());
    EXPECT_EQ(call(u"Reset", {true, true}).kind, Kind::ArgumentCount);
    EXPECT_EQ(call(u"Add", {Missing{}, 1}).kind, Kind::ArgumentCount);
    EXPECT_TRUE(call(u"Add", {40, u"2"}).ok());
    EXPECT_EQ(std::get<std::int32_t>(result), 42);
    EXPECT_EQ(call(u"Add", {40, u"x"}), (DispatchFault{Kind::TypeMismatch, 1}));
}

TEST_F(Dispatch, SaysWhatIsWrong) {
    const std::vector<Variant> arguments{std::u16string(u"abc")};
    EXPECT_EQ(describeFault(put(u"Count", arguments[0]), SampleModel, u"Count", arguments),
              u"Sample.Count: a value of type 16-bit integer is wanted, not \"abc\"");
    EXPECT_EQ(describeFault({Kind::Overflow, 1}, SampleModel, u"Add", std::vector<Variant>{1, 2.5e10}),
              u"Sample.Add: 25000000000 is out of the range of type 32-bit integer");
    EXPECT_EQ(describeFault({Kind::UnknownName}, SampleModel, u"Nmae", {}), u"Sample.Nmae: there is no such member");
    EXPECT_EQ(describeFault({Kind::NotWritable}, SampleModel, u"Size", {}), u"Sample.Size: it can only be read");
}

TEST(ClassModels, HoldTogether) {
    for (const ClassModel* model : libraryClasses().all()) {
        SCOPED_TRACE(toUtf8(model->name));
        EXPECT_NE(model->isControl(), model->makeObject != nullptr);
        std::set<std::int32_t> ids;
        for (const MemberRow& row : model->members) {
            SCOPED_TRACE(toUtf8(row.name));
            EXPECT_TRUE(ids.insert(row.id).second) << "an identifier is given twice";
            EXPECT_EQ(findMember(*model, row.name), &row);
            EXPECT_EQ(row.isMethod, row.call != nullptr);
            EXPECT_NE(row.isMethod, row.get != nullptr);
            EXPECT_FALSE(row.help.empty());
            for (const ParameterRow& parameter : row.parameters()) EXPECT_FALSE(parameter.name.empty());
        }
    }
}

TEST(ClassModels, AreFoundByNameAndProgramIdentifier) {
    const ClassRegistry& classes = libraryClasses();
    EXPECT_NE(classes.find(u"KelText"), nullptr);
    EXPECT_EQ(classes.find(u"KelText"), classes.find(u"kelcontrols8.keltext"));
    EXPECT_EQ(classes.find(u"Other.KelText"), nullptr);
    EXPECT_EQ(classes.find(u"KelControls8."), nullptr);
}

}  // namespace
}  // namespace kel
