#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "library/DesignFacts.h"

/// The identifiers under which component hosts and form files know the library. They are never changed.
namespace kel {

/// A globally unique identifier, laid out as component hosts hold it.
struct Guid {
    std::uint32_t data1 = 0;
    std::uint16_t data2 = 0;
    std::uint16_t data3 = 0;
    std::array<std::uint8_t, 8> data4{};
    friend constexpr bool operator==(const Guid&, const Guid&) = default;
};

/// Reads "01234567-89AB-CDEF-0123-456789ABCDEF" at compile time.
consteval Guid guid(std::string_view text) {
    std::array<std::uint8_t, 16> bytes{};
    std::size_t nibbles = 0;
    for (const char c : text) {
        if (c == '-') continue;
        const int digit = c >= '0' && c <= '9' ? c - '0' : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
        if (digit < 0 || nibbles == 32) throw "a GUID is 32 upper-case hexadecimal digits";
        bytes.at(nibbles / 2) = static_cast<std::uint8_t>(bytes.at(nibbles / 2) * 16 + digit);
        ++nibbles;
    }
    if (nibbles != 32) throw "a GUID is 32 upper-case hexadecimal digits";
    Guid out;
    for (std::size_t i = 0; i < 4; ++i) out.data1 = out.data1 << 8U | bytes[i];
    out.data2 = static_cast<std::uint16_t>(bytes[4] << 8U | bytes[5]);
    out.data3 = static_cast<std::uint16_t>(bytes[6] << 8U | bytes[7]);
    for (std::size_t i = 0; i < 8; ++i) out.data4[i] = bytes[i + 8];
    return out;
}

/// "01234567-89AB-CDEF-0123-456789ABCDEF"
std::string textOf(const Guid& guid);

struct ClassIdentity {
    std::u16string_view name;
    Guid coclass;
    Guid dispatch;  ///< of the interface `_Class`
    Guid events;    ///< of the interface `__Class`; all zero where there is none

    constexpr bool hasEvents() const { return events != Guid{}; }
};

struct PageIdentity {
    DesignPage page;
    Guid coclass;
};

namespace identities {

inline constexpr Guid TypeLibrary = guid("0992557C-BAC4-4203-B9CA-4ED27EA3B85A");
inline constexpr std::uint16_t MajorVersion = 1;
inline constexpr std::uint16_t MinorVersion = 4;
inline constexpr Guid DaysFlag = guid("8276BCE5-CF9D-473E-BAEB-E4DE47243A18");  ///< the enumeration KelDateDaysFlag

/// The default run-time object, creatable as "KelRuntime8.Runtime".
inline constexpr Guid Runtime = guid("1EC881C2-05B7-4BD2-915D-42369229EA63");

inline constexpr std::array Classes{
    ClassIdentity{u"KelProgressBar", guid("97B9DB88-CF04-4975-BC02-77EBF48A7965"),
                  guid("CA5C1279-8E24-4808-A02C-94CE9CE8CC0E"), guid("5F20C58F-B847-4DC4-BD83-6A880C43B2BC")},
    ClassIdentity{u"KelNumber", guid("0748AF21-E75B-4EA4-9EAC-EB83A4014658"),
                  guid("76F76C3A-9C9E-4F93-8EA5-85DE015AF2AD"), guid("26AE8755-EF82-432D-BC03-6B124442FDF9")},
    ClassIdentity{u"KelCheck", guid("21437BAA-D954-48B8-A230-E5D26DDAFCA5"),
                  guid("3EB2A166-3CB8-4DA6-8ED2-575233EA21AC"), guid("50EA8DCE-5B03-4D33-B3D7-673020997182")},
    ClassIdentity{u"KelCombo", guid("60DA142F-421A-45BB-9B31-257591A536A7"),
                  guid("8E3D8D93-FBF3-4AC0-821E-CD9493F55F53"), guid("9F877E39-6E52-4A89-89F9-5F912DB23756")},
    ClassIdentity{u"KelDate", guid("5178E6EE-6D2B-44C2-9B5C-868ED41D759C"),
                  guid("C2CE2CE3-B940-4B99-8828-01A3CB4E082F"), guid("26010EAC-E77B-4514-9F1B-48046E606AE0")},
    ClassIdentity{u"KelTime", guid("46D512C5-9012-46B3-9011-6DCCC5D58FE7"),
                  guid("B9DEF481-4EB6-4D2D-ACD0-96039594257F"), guid("EA9F8306-10AC-447A-8AE5-8E3A070EB01E")},
    ClassIdentity{u"KelText", guid("E81EBF3D-FA2E-49BE-BF46-492E8CC5399F"),
                  guid("025E972A-45DA-4A62-A197-5B6666159407"), guid("0E40D282-D600-4695-96B0-2610108FFAFA")},
    ClassIdentity{u"KelControlHandler", guid("EE0BEC45-2027-458E-AF3C-7E1F1C7C2470"),
                  guid("1B28A375-173A-4438-8DFB-D2C78383032B"), Guid{}},
};

/// The pages of property dialogs, in the order in which a dialog shows them.
inline constexpr std::array Pages{
    PageIdentity{DesignPage::General, guid("C263EF98-362C-489F-84A9-45E1F44968DA")},
    PageIdentity{DesignPage::List, guid("221B5D02-BF65-4C5B-A07D-7AC8879A620E")},
    PageIdentity{DesignPage::Format, guid("0E2614EA-5BD5-4E5E-AC48-FD50AA7366F5")},
    PageIdentity{DesignPage::Numbers, guid("A827F306-E654-4A90-B856-5078D8E612C6")},
};

}  // namespace identities

/// nullptr when the library has no class of this exact name.
constexpr const ClassIdentity* findIdentity(std::u16string_view className) {
    for (const ClassIdentity& identity : identities::Classes)
        if (identity.name == className) return &identity;
    return nullptr;
}

}  // namespace kel
