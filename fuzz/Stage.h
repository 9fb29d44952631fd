#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "forms/play/PlaySystem.h"
#include "host/PropertyBag.h"
#include "platform/headless/HeadlessWindow.h"

/// What the targets that work whole controls stand on.
namespace kel::fuzz {

/// A home in memory on a machine whose clock stands still.
class Stage {
public:
    explicit Stage(const RegionalSettings& region);

    Home& home() { return *Home_; }
    PlaySystem& system() { return System_; }
    /// Message boxes and beeps so far.
    std::size_t said() const { return Said_; }

private:
    std::unique_ptr<Home> Home_;
    std::size_t Said_ = 0;
    PlaySystem System_;
};

/// A property bag in memory.
class Bag final : public PropertyBag {
public:
    Variant readProperty(const PersistedRow& row) override;
    void writeProperty(const PersistedRow& row, const Variant& value) override;
    bool operator==(const Bag& other) const { return Values_ == other.Values_; }
    bool has(std::u16string_view name) const { return Values_.contains(lowered(name)); }
    /// The first property that differs.
    std::u16string differenceFrom(const Bag& other) const;

private:
    static std::u16string lowered(std::u16string_view name);

    std::map<std::u16string, Variant> Values_;  ///< by their names in small letters
};

/// A folder for the files of this process, made when it is first asked for and empty then. It goes with the process.
const std::filesystem::path& folder();
void writeInFolder(const std::string& name, std::string_view bytes);

/// What must hold of a control whatever has been done to it.
void checkControl(PlacedControl& placed);

}  // namespace kel::fuzz
