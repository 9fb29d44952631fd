#include "platform/qt/home/QtHome.h"
#include "platform/qt/records/RecordWindow.h"
#include "tests/records/OnDatabase.h"

/// The window around a form with its records.
namespace kel::test {
namespace {

class WindowTest : public OnDatabase {
protected:
    WindowTest() : Home_(qt::makeHome({})), Unseen_(headless::makeHome({})), Store_(open()) {}

    void openWindow(const std::string& file) {
        Form_.emplace(*Home_, Home_->system(), Observer_, FormFile::parse(file, "member.frm"));
        Window_.emplace(*Form_, *Home_, *Unseen_, *Store_, Store_->table(u"member").value());
    }

    SilentObserver Observer_;
    std::unique_ptr<Home> Home_;
    std::unique_ptr<Home> Unseen_;
    std::unique_ptr<Store> Store_;
    std::optional<Form> Form_;
    std::optional<qt::RecordWindow> Window_;
};

TEST_F(WindowTest, FormThatDoesNotFitIsRefused) {
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name DATE)");
    EXPECT_THROW(openWindow(formOf({{"txtName", "KelText", ""}})), StoreError);
}

}  // namespace
}  // namespace kel::test
