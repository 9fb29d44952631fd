#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <span>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "library/DesignFacts.h"
#include "library/KelDateDaysFlag.h"
#include "library/Message.h"
#include "values/Coercion.h"
#include "values/Text.h"
#include "values/Variant.h"

/// The public surface of the library as data. Each class writes its members, events and persisted
/// properties once, as rows bound to its C++ accessors; late-bound dispatch, the type library, the Qt
/// properties and the reference page are made from these rows.
///
///     constexpr MemberRow members[] = {
///         property<&KelText::get_Caption, &KelText::put_Caption>(u"Caption", 0x6803000E, u"Text of the caption"),
///         method<&KelText::TooltipSet>(u"TooltipSet", 0x60030010, u"Sets the tooltip").arguments(u"Tooltip"),
///     };
///
/// The order of the rows is the order of the interface's function table, get before put.
namespace kel {

struct ControlHost;
struct SharedSettings;
class Control;

enum class TypeTag : std::uint8_t {
    None,
    String,
    Boolean,
    Integer16,
    Integer32,
    Double,
    Date,
    Any,
    DaysFlag,
    Object,
    Strings
};

/// The type's name as documentation and messages call it: "16-bit integer".
std::u16string_view nameOf(TypeTag type);

struct DispatchFault {
    enum class Kind : std::uint8_t {
        None,
        UnknownName,
        UnknownMember,
        NotReadable,
        NotWritable,
        NotCallable,
        ArgumentCount,
        TypeMismatch,
        Overflow
    };
    Kind kind = Kind::None;
    int argument = -1;  ///< the argument at fault, counted from 0; the value of a put comes last

    constexpr bool ok() const { return kind == Kind::None; }
    friend constexpr bool operator==(DispatchFault, DispatchFault) = default;
};

/// Calls one accessor: coerces `arguments`, runs it, stores the result, writes by-reference arguments back.
using Thunk = DispatchFault (*)(Object& target, std::span<Variant> arguments, Variant* result,
                                const RegionalSettings& region);

struct ParameterRow {
    std::u16string_view name;
    TypeTag type = TypeTag::None;
    bool byReference = false;
    bool optional = false;  ///< left out: 0, False or ""

    /// Callers hand over a pointer: to what is written back, and to an array, which Basic passes in no other way.
    constexpr bool isPointer() const { return byReference || type == TypeTag::Strings; }
};

inline constexpr std::int32_t DefaultMemberId = 0;
inline constexpr std::int32_t EnabledId = -514;
inline constexpr std::int32_t CaptionId = -518;

/// A default as a property bag compares it; text stays a view on static storage.
using PropertyDefault = std::variant<std::u16string_view, bool, std::int16_t, std::int32_t, double, Date>;

/// One property as a form file or another property bag keeps it.
struct PersistedRow {
    std::u16string_view name;      ///< as written
    std::u16string_view readName;  ///< as read; differs for historical reasons in one case
    TypeTag type = TypeTag::None;
    PropertyDefault readDefault;
    PropertyDefault writeDefault;
    /// Puts a value of exactly `type` through the public setter.
    void (*load)(Object& target, const Variant& value) = nullptr;
    /// The value to save, of exactly `type`.
    Variant (*save)(const Object& target) = nullptr;
    /// Whether two texts load as the same; nullptr: only equal ones do.
    bool (*loadsSame)(std::u16string_view left, std::u16string_view right) = nullptr;
};

namespace detail {

/// The row with what `change` does to it.
template <class Row, class Change>
constexpr Row with(Row row, Change change) {
    change(row);
    return row;
}

}  // namespace detail

struct MemberRow {
    std::u16string_view name;
    std::int32_t id = 0;
    std::u16string_view help;
    bool isMethod = false;
    bool hidden = false;          ///< not listed by browsers and designers
    bool putByReference = false;  ///< the put's argument is a pointer; the caller's variable never changes
    bool trusted = false;         ///< not for a script that its host does not trust
    TypeTag type = TypeTag::None;
    Thunk get = nullptr;
    Thunk put = nullptr;
    Thunk call = nullptr;
    std::uint8_t parameterCount = 0;
    std::array<ParameterRow, 4> parameterRows{};
    PersistedRow persisted{};  ///< how a property is saved; of no type where it is not
    /// Saved properties are read and written in the order of their rows, but for those that come before this one.
    std::u16string_view readBefore{};
    std::u16string_view writtenBefore{};
    DesignFacts design{};

    constexpr std::span<const ParameterRow> parameters() const { return {parameterRows.data(), parameterCount}; }
    constexpr bool isPersisted() const { return persisted.type != TypeTag::None; }
    /// Whether a designer sets it: forms keep what it is given.
    constexpr bool isDesigned() const { return isPersisted() && put != nullptr && !hidden; }

    template <class... Names>
    constexpr MemberRow arguments(Names... names) const {
        MemberRow row = *this;
        std::size_t index = 0;
        ((row.parameterRows.at(index++).name = names), ...);
        if (index != row.parameterCount) throw "every parameter needs its name";
        return row;
    }
    constexpr MemberRow lastOptional() const {
        return detail::with(*this,
                            [](MemberRow& row) { row.parameterRows.at(row.parameterCount - 1U).optional = true; });
    }
    constexpr MemberRow hiddenByReference() const {
        return detail::with(*this, [](MemberRow& row) {
            row.hidden = true;
            row.putByReference = true;
        });
    }
    constexpr MemberRow forTrusted() const {
        return detail::with(*this, [](MemberRow& row) { row.trusted = true; });
    }
    constexpr MemberRow byReference() const {
        return detail::with(*this, [](MemberRow& row) { row.putByReference = true; });
    }
};

struct EventRow {
    std::u16string_view name;
    std::int32_t id = 0;
    std::u16string_view help;
    std::span<const ParameterRow> parameters{};
};

namespace detail {

template <class T>
inline constexpr TypeTag tagOf = TypeTag::None;
template <>
inline constexpr TypeTag tagOf<std::u16string> = TypeTag::String;
template <>
inline constexpr TypeTag tagOf<bool> = TypeTag::Boolean;
template <>
inline constexpr TypeTag tagOf<std::int16_t> = TypeTag::Integer16;
template <>
inline constexpr TypeTag tagOf<std::int32_t> = TypeTag::Integer32;
template <>
inline constexpr TypeTag tagOf<double> = TypeTag::Double;
template <>
inline constexpr TypeTag tagOf<Date> = TypeTag::Date;
template <>
inline constexpr TypeTag tagOf<Variant> = TypeTag::Any;
template <>
inline constexpr TypeTag tagOf<KelDateDaysFlag> = TypeTag::DaysFlag;
template <>
inline constexpr TypeTag tagOf<ObjectPtr> = TypeTag::Object;
template <>
inline constexpr TypeTag tagOf<StringArray> = TypeTag::Strings;

template <class T>
CoercionFault coerceArgument(const Variant& value, const RegionalSettings& region, T& out) {
    if constexpr (std::is_same_v<T, KelDateDaysFlag>) {
        std::int32_t number = 0;
        const CoercionFault fault = coerce(value, region, number);
        if (fault == CoercionFault::None) out = static_cast<KelDateDaysFlag>(number);
        return fault;
    } else {
        return coerce(value, region, out);
    }
}

template <class T>
Variant toVariant(T&& value) {
    using Plain = std::remove_cvref_t<T>;
    if constexpr (std::is_same_v<Plain, KelDateDaysFlag>) {
        return static_cast<std::int32_t>(value);
    } else if constexpr (std::is_same_v<Plain, Variant>) {
        return std::forward<T>(value);
    } else {
        return Variant(std::in_place_type<Plain>, std::forward<T>(value));
    }
}

/// An accessor taken apart: its class, its result and its parameters.
template <class F>
struct Accessor;
template <class C, class R, class... A>
struct Accessor<R (C::*)(A...)> {
    using Class = C;
    using Result = R;
    using Values = std::tuple<std::remove_cvref_t<A>...>;
    static constexpr std::size_t Count = sizeof...(A);
    static constexpr std::array<ParameterRow, 4> Parameters{
        ParameterRow{{},
                     tagOf<std::remove_cvref_t<A>>,
                     std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>>,
                     false}...};
};
template <class C, class R, class... A>
struct Accessor<R (C::*)(A...) const> : Accessor<R (C::*)(A...)> {};

constexpr DispatchFault argumentFault(CoercionFault fault, std::size_t index) {
    return {fault == CoercionFault::Overflow ? DispatchFault::Kind::Overflow : DispatchFault::Kind::TypeMismatch,
            static_cast<int>(index)};
}

template <class T>
DispatchFault readArgument(std::span<Variant> arguments, std::size_t index, const RegionalSettings& region, T& out) {
    if (index >= arguments.size() || std::holds_alternative<Missing>(arguments[index])) return {};
    const CoercionFault fault = coerceArgument(arguments[index], region, out);
    return fault == CoercionFault::None ? DispatchFault{} : argumentFault(fault, index);
}

template <bool ByReference, class T>
void writeBack([[maybe_unused]] std::span<Variant> arguments, [[maybe_unused]] std::size_t index,
               [[maybe_unused]] T& value) {
    if constexpr (ByReference) {
        if (index < arguments.size()) arguments[index] = toVariant(std::move(value));
    }
}

/// The object that an accessor of class `C` works on: the control itself, or the part of it that `C::of` finds.
template <class C>
C& targetOf(Object& object) {
    if constexpr (std::is_base_of_v<Object, C>)
        return static_cast<C&>(object);
    else
        return C::of(object);
}
template <class C>
const C& targetOf(const Object& object) {
    if constexpr (std::is_base_of_v<Object, C>)
        return static_cast<const C&>(object);
    else
        return C::of(object);
}

template <auto F, std::size_t... I>
DispatchFault invokeAccessor(Object& target, [[maybe_unused]] std::span<Variant> arguments,
                             [[maybe_unused]] Variant* result, [[maybe_unused]] const RegionalSettings& region,
                             std::index_sequence<I...>) {
    using Traits = Accessor<decltype(F)>;
    typename Traits::Values values{};
    DispatchFault fault;
    static_cast<void>(((fault = readArgument(arguments, I, region, std::get<I>(values))).ok() && ...));
    if (!fault.ok()) return fault;
    auto& object = targetOf<typename Traits::Class>(target);
    if constexpr (std::is_void_v<typename Traits::Result>) {
        (object.*F)(std::get<I>(values)...);
    } else {
        Variant value = toVariant((object.*F)(std::get<I>(values)...));
        if (result != nullptr) *result = std::move(value);
    }
    (writeBack<Traits::Parameters[I].byReference>(arguments, I, std::get<I>(values)), ...);
    return {};
}

template <auto F>
DispatchFault invoke(Object& target, std::span<Variant> arguments, Variant* result, const RegionalSettings& region) {
    return invokeAccessor<F>(target, arguments, result, region,
                             std::make_index_sequence<Accessor<decltype(F)>::Count>{});
}

template <auto F>
constexpr MemberRow rowFor(std::u16string_view name, std::int32_t id, std::u16string_view help) {
    using Traits = Accessor<decltype(F)>;
    MemberRow row;
    row.name = name;
    row.id = id;
    row.help = help;
    row.type = tagOf<std::remove_cvref_t<typename Traits::Result>>;
    row.parameterCount = static_cast<std::uint8_t>(Traits::Count);
    row.parameterRows = Traits::Parameters;
    return row;
}

}  // namespace detail

template <auto Get>
constexpr MemberRow property(std::u16string_view name, std::int32_t id, std::u16string_view help) {
    MemberRow row = detail::rowFor<Get>(name, id, help);
    row.get = &detail::invoke<Get>;
    return row;
}

template <auto Call>
constexpr MemberRow method(std::u16string_view name, std::int32_t id, std::u16string_view help) {
    MemberRow row = detail::rowFor<Call>(name, id, help);
    row.isMethod = true;
    row.call = &detail::invoke<Call>;
    return row;
}

namespace detail {

/// The type that a setter takes.
template <auto Put>
using PutValue = std::tuple_element_t<0, typename Accessor<decltype(Put)>::Values>;

template <auto Put>
void loadProperty(Object& target, const Variant& value) {
    using Value = PutValue<Put>;
    auto& object = targetOf<typename Accessor<decltype(Put)>::Class>(target);
    if constexpr (std::is_same_v<Value, Variant>)
        (object.*Put)(value);
    else
        (object.*Put)(std::get<Value>(value));
}

template <auto Get>
Variant saveProperty(const Object& target) {
    return toVariant((targetOf<typename Accessor<decltype(Get)>::Class>(target).*Get)());
}

template <class T>
struct DefaultOf {
    using type = T;
};
template <>
struct DefaultOf<std::u16string> {
    using type = std::u16string_view;
};
template <>
struct DefaultOf<Variant> {
    using type = PropertyDefault;
};

}  // namespace detail

/// The row of a property that can be put. It knows the property's type, so that a default of another one, or a way of
/// saving that the setter does not understand, does not compile.
template <auto Get, auto Put>
struct PropertyRow : MemberRow {
    /// A default of the type that `Load` takes.
    template <auto Load>
    using Default = typename detail::DefaultOf<detail::PutValue<Load>>::type;

    /// Saved, and with the same default left out when it is written and taken when it is not found.
    constexpr PropertyRow saved(Default<Put> byDefault) const { return savedAs<Put, Get>(byDefault); }

    /// The same for a property that is loaded and saved in another form than hosts see.
    template <auto Load, auto Save>
    constexpr PropertyRow savedAs(Default<Load> byDefault) const {
        using Saved = std::remove_cvref_t<typename detail::Accessor<decltype(Save)>::Result>;
        static_assert(std::is_same_v<detail::PutValue<Load>, Saved>, "what is saved is what is loaded");
        PropertyRow row = *this;
        row.persisted = {.name = name,
                         .readName = name,
                         .type = detail::tagOf<Saved>,
                         .readDefault = byDefault,
                         .writeDefault = byDefault,
                         .load = &detail::loadProperty<Load>,
                         .save = &detail::saveProperty<Save>};
        return row;
    }

    /// A text that is another one in writing alone is no change.
    constexpr PropertyRow sameWhere(bool (*loadsSame)(std::u16string_view, std::u16string_view)) const {
        return detail::with(*this, [&](PropertyRow& row) { row.persisted.loadsSame = loadsSame; });
    }
    constexpr PropertyRow readAs(std::u16string_view otherName) const {
        return detail::with(*this, [&](PropertyRow& row) { row.persisted.readName = otherName; });
    }
    constexpr PropertyRow writtenUnless(Default<Put> value) const {
        return detail::with(*this, [&](PropertyRow& row) { row.persisted.writeDefault = value; });
    }
    constexpr PropertyRow beforeReading(std::u16string_view otherName) const {
        return detail::with(*this, [&](PropertyRow& row) { row.readBefore = otherName; });
    }
    constexpr PropertyRow beforeWriting(std::u16string_view otherName) const {
        return detail::with(*this, [&](PropertyRow& row) { row.writtenBefore = otherName; });
    }

    // ---- For designers

    constexpr PropertyRow in(Category category) const {
        return detail::with(*this, [&](PropertyRow& row) { row.design.category = category; });
    }
    constexpr PropertyRow on(DesignPage page) const {
        return detail::with(*this, [&](PropertyRow& row) { row.design.page = page; });
    }
    /// `names` stands for good.
    constexpr PropertyRow choices(std::span<const std::u16string_view> names) const {
        return detail::with(*this, [&](PropertyRow& row) { row.design.choices = names; });
    }
    constexpr PropertyRow linesWhere(std::u16string_view switchName) const {
        return detail::with(*this, [&](PropertyRow& row) { row.design.linesWhere = switchName; });
    }
    constexpr PropertyRow bound() const {
        return detail::with(*this, [](PropertyRow& row) { row.design.isBound = true; });
    }
};

template <auto Get, auto Put>
constexpr PropertyRow<Get, Put> property(std::u16string_view name, std::int32_t id, std::u16string_view help) {
    using Value = std::remove_cvref_t<typename detail::Accessor<decltype(Get)>::Result>;
    using Values = typename detail::Accessor<decltype(Put)>::Values;
    static_assert(std::is_same_v<Values, std::tuple<Value>>, "get and put of a property have one type");
    PropertyRow<Get, Put> row{property<Get>(name, id, help)};
    row.put = &detail::invoke<Put>;
    return row;
}

/// Finds rows by name without regard to case, and by identifier. Built at compile time: rows that cannot be told apart
/// do not compile, nor does one that names another which there is not.
class MemberIndex {
public:
    constexpr explicit MemberIndex(std::span<const MemberRow> rows) {
        for (std::size_t i = 0; i < rows.size(); ++i) Ids_.at(i) = rows[i].id;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (find(rows, rows[i].id) != &rows[i]) throw "two members have one identifier";
            std::size_t slot = hashOf(rows[i].name) % Slots;
            for (; Rows_[slot] != 0; slot = (slot + 1) % Slots)
                if (equalsIgnoringCase(rows[Rows_[slot] - 1U].name, rows[i].name)) throw "two members have one name";
            Rows_[slot] = static_cast<std::uint8_t>(i + 1);
        }
        for (const MemberRow& row : rows)
            if (!row.design.linesWhere.empty() && find(rows, row.design.linesWhere) == nullptr)
                throw "there is no property that says whether a text has several lines";
    }

    constexpr const MemberRow* find(std::span<const MemberRow> rows, std::u16string_view name) const {
        for (std::size_t slot = hashOf(name) % Slots; Rows_[slot] != 0; slot = (slot + 1) % Slots) {
            const MemberRow& row = rows[Rows_[slot] - 1U];
            if (equalsIgnoringCase(row.name, name)) return &row;
        }
        return nullptr;
    }
    /// The identifiers stand side by side, in a few cache lines.
    constexpr const MemberRow* find(std::span<const MemberRow> rows, std::int32_t id) const {
        for (std::size_t row = 0; row < rows.size(); ++row)
            if (Ids_[row] == id) return &rows[row];
        return nullptr;
    }

private:
    static constexpr std::size_t Slots = 64;
    static constexpr std::size_t MostMembers = 40;
    static constexpr std::size_t hashOf(std::u16string_view name) {
        std::uint32_t hash = 2166136261U;
        for (const char16_t unit : name) hash = (hash ^ toLowerAscii(unit)) * 16777619U;
        return hash;
    }
    std::array<std::uint8_t, Slots> Rows_{};
    std::array<std::int32_t, MostMembers> Ids_{};
};

/// The saved properties of a class in the order in which they are read, or written. Built at compile time.
class PersistedRows {
public:
    /// `before` says which hint of a row counts.
    constexpr PersistedRows(std::span<const MemberRow> rows, std::u16string_view MemberRow::*before) : Rows_(rows) {
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (rows[i].isPersisted()) Order_.at(Count_++) = static_cast<std::uint8_t>(i);
        for (const MemberRow& row : rows)
            if (!(row.*before).empty()) place(row.name, row.*before);
    }

    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = PersistedRow;
        using difference_type = std::ptrdiff_t;
        using pointer = const PersistedRow*;
        using reference = const PersistedRow&;

        constexpr Iterator() = default;
        constexpr Iterator(const MemberRow* rows, const std::uint8_t* at) : Rows_(rows), At_(at) {}
        constexpr reference operator*() const { return Rows_[*At_].persisted; }
        constexpr pointer operator->() const { return &**this; }
        constexpr Iterator& operator++() {
            ++At_;
            return *this;
        }
        constexpr Iterator operator++(int) {
            const Iterator old = *this;
            ++At_;
            return old;
        }
        friend constexpr bool operator==(const Iterator&, const Iterator&) = default;

    private:
        const MemberRow* Rows_ = nullptr;
        const std::uint8_t* At_ = nullptr;
    };

    constexpr Iterator begin() const { return {Rows_.data(), Order_.data()}; }
    constexpr Iterator end() const { return {Rows_.data(), Order_.data() + Count_}; }
    constexpr bool empty() const { return Count_ == 0; }

private:
    constexpr std::size_t positionOf(std::u16string_view name) const {
        std::size_t position = 0;
        while (position < Count_ && Rows_[Order_[position]].name != name) ++position;
        if (position == Count_) throw "a saved property comes before one that is not saved";
        return position;
    }
    constexpr void place(std::u16string_view name, std::u16string_view before) {
        std::size_t from = positionOf(name);
        const std::size_t to = positionOf(before);
        for (; from > to; --from) std::swap(Order_[from], Order_[from - 1]);
        for (; from + 1 < to; ++from) std::swap(Order_[from], Order_[from + 1]);
    }

    std::span<const MemberRow> Rows_;
    std::array<std::uint8_t, 24> Order_{};
    std::size_t Count_ = 0;
};

/// Finds the row of a property by its setter. Built at compile time; the setters stand side by side, so that looking
/// through them is a matter of two cache lines.
class PutIndex {
public:
    constexpr explicit PutIndex(std::span<const MemberRow> rows) {
        for (std::size_t i = 0; i < rows.size(); ++i) Puts_.at(i) = rows[i].put;
    }

    const MemberRow& find(std::span<const MemberRow> rows, Thunk put) const {
        for (std::size_t row = 0; row < rows.size(); ++row)
            if (Puts_[row] == put) return rows[row];
        throw std::logic_error("a property is reported that the class does not have");
    }

private:
    std::array<Thunk, 32> Puts_{};  ///< of each row; nullptr where it has none
};

/// What a class model names for making its controls.
template <class ControlClass>
std::unique_ptr<Control> makeControl(ControlHost& host) {
    return std::make_unique<ControlClass>(host);
}

/// Everything that a host can know of a class.
struct ClassModel {
    std::u16string_view name;
    std::u16string_view help;
    std::span<const MemberRow> members;
    std::span<const EventRow> events{};
    std::span<const MessageRow> messages{};
    PersistedRows loaded{members, &MemberRow::readBefore};
    PersistedRows saved{members, &MemberRow::writtenBefore};
    MemberIndex index{members};
    PutIndex puts{members};
    /// Makes the control for a host that outlives it; null for a class that is no control.
    std::unique_ptr<Control> (*makeControl)(ControlHost& host) = nullptr;
    /// Makes a creatable class that is no control; null for controls.
    ObjectPtr (*makeObject)(SharedSettings& settings) = nullptr;
    /// Its dates are times of day and are written as such.
    bool datesAreTimes = false;
    /// A control of which no field takes the focus, so that hosts leave it out of the order of the Tab key, says false.
    bool takesFocus = true;

    bool isControl() const { return makeControl != nullptr; }

    /// The row of the property that `Put` sets. The class has one.
    template <auto Put>
    const MemberRow& rowPutBy() const {
        return puts.find(members, &detail::invoke<Put>);
    }
};

}  // namespace kel
