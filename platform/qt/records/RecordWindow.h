#pragma once

#include <memory>
#include <string>

namespace kel {
class Form;
class Home;
namespace records {
class Store;
struct Table;
}  // namespace records
}  // namespace kel

namespace kel::qt {

/// A form of Qt's home in a window with its records: menus, tool bar, status bar, and a list beside the form. Shows
/// itself and the form.
class RecordWindow {
public:
    /// `unseen` is a home that shows nothing, where lists are read. All of it outlives the window. Throws
    /// records::StoreError where the form does not fit the table.
    RecordWindow(Form& form, Home& home, Home& unseen, records::Store& store, const records::Table& table);
    RecordWindow(const RecordWindow&) = delete;
    RecordWindow& operator=(const RecordWindow&) = delete;
    ~RecordWindow();

    /// The whole window as the bytes of a PNG file.
    std::string picture() const;

private:
    class Implementation;
    std::unique_ptr<Implementation> Implementation_;
};

/// Asks whether columns that the table does not have shall be added to it.
bool askToAddColumns(const std::u16string& names);

}  // namespace kel::qt
