// kel-conformance FOLDER… prints the conformance page: every member, event and saved property of every class, and which
// tests have come by it where. A FOLDER holds the folders headless, qt, win32 and server, as far as it has them; in
// these stands a file a test, with lines such as "KelText get Caption". Ends with 1, and says so, when something was
// come by nowhere.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "controls/Classes.h"
#include "values/Text.h"

namespace {

using Tests = std::set<std::string>;

constexpr struct {
    const char* folder;
    const char* title;
} Homes[] = {{"headless", "in memory"}, {"qt", "Qt"}, {"win32", "Windows"}, {"server", "component server"}};

constexpr std::size_t WidgetHomes = 3;  ///< the first ones play the same scripts

/// By home, then by "KelText get Caption".
std::vector<std::map<std::string, Tests>> readUsed(const std::vector<std::string>& folders) {
    std::vector<std::map<std::string, Tests>> used(std::size(Homes));
    for (std::size_t home = 0; home < std::size(Homes); ++home) {
        for (const std::string& folder : folders) {
            const std::filesystem::path path = std::filesystem::path(folder) / Homes[home].folder;
            if (!std::filesystem::is_directory(path)) continue;
            for (const auto& entry : std::filesystem::directory_iterator(path)) {
                std::ifstream file(entry.path());
                for (std::string line; std::getline(file, line);) {
                    if (line.ends_with('\r')) line.pop_back();
                    used[home][line].insert(entry.path().filename().string());
                }
            }
        }
    }
    return used;
}

std::string listed(const Tests& tests) {
    std::string list;
    for (const std::string& test : tests) list += (list.empty() ? "" : ", ") + test;
    return list;
}

class Page {
public:
    explicit Page(std::vector<std::map<std::string, Tests>> used) : Used_(std::move(used)) {}

    void addClass(const kel::ClassModel& model) {
        Class_ = kel::toUtf8(model.name);
        Text_ += "\n## " + Class_ + "\n\n| | scripts, played in memory, on Qt and on Windows | component server |\n" +
                 "|---|---|---|\n";
        for (const kel::MemberRow& row : model.members) {
            if (row.get != nullptr) addRow("get", row.name, model.isControl());
            if (row.put != nullptr) addRow("put", row.name, model.isControl());
            if (row.call != nullptr) addRow("call", row.name, true);
        }
        for (const kel::EventRow& row : model.events) addRow("event", row.name, true);
        for (const kel::PersistedRow& row : model.loaded) addRow("load", row.name, true);
        for (const kel::PersistedRow& row : model.saved) addRow("save", row.name, true);
    }

    const std::string& text() const { return Text_; }
    const std::vector<std::string>& gaps() const { return Gaps_; }

private:
    void addRow(const std::string& how, std::u16string_view member, bool scripted) {
        const std::string key = Class_ + " " + how + " " + kel::toUtf8(member);
        const Tests& server = testsOf(std::size(Homes) - 1, key);
        if (server.empty()) Gaps_.push_back(key + ": " + Homes[std::size(Homes) - 1].title);
        Text_ += "| `" + kel::toUtf8(member) + "` " + how + " | " + (scripted ? scripts(key) : "-") + " | " +
                 listed(server) + " |\n";
    }

    /// The tests of all homes that have widgets, and then what only some of them have.
    std::string scripts(const std::string& key) {
        Tests common = testsOf(0, key);
        for (std::size_t home = 1; home < WidgetHomes; ++home) {
            const Tests& tests = testsOf(home, key);
            std::erase_if(common, [&](const std::string& test) { return !tests.contains(test); });
        }
        std::string text = listed(common);
        for (std::size_t home = 0; home < WidgetHomes; ++home) {
            Tests others = testsOf(home, key);
            if (others.empty()) Gaps_.push_back(key + ": " + Homes[home].title);
            std::erase_if(others, [&](const std::string& test) { return common.contains(test); });
            if (!others.empty())
                text += std::string(text.empty() ? "" : "; ") + "only " + Homes[home].title + ": " + listed(others);
        }
        return text;
    }

    const Tests& testsOf(std::size_t home, const std::string& key) const {
        static const Tests None;
        const auto found = Used_[home].find(key);
        return found == Used_[home].end() ? None : found->second;
    }

    std::vector<std::map<std::string, Tests>> Used_;
    std::string Class_;
    std::string Text_ =
        "# Conformance\n\n"
        "Which tests come by each member, event and saved property, written by the test run itself. A script "
        "`combo.list`\n"
        "is `tests/play/combo/list.play`, `example.NAME` is `examples/forms/NAME.play`, and `window-handle` asks for "
        "what\n"
        "no script can hold; what the component server does is asked by the clients in `tests/windows/ole`, under the\n"
        "name of their group. \"load\" and \"save\" are of a form file or a property bag, with a value that is not "
        "the\n"
        "default.\n";
    std::vector<std::string> Gaps_;
};

}  // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::cerr << "kel-conformance FOLDER…\n";
        return 2;
    }
    Page page(readUsed({arguments + 1, arguments + count}));
    for (const kel::ClassModel* model : kel::libraryClasses().all()) page.addClass(*model);
    std::cout << page.text();
    for (const std::string& gap : page.gaps()) std::cerr << "no test comes by " << gap << "\n";
    return page.gaps().empty() && std::cout.flush() ? 0 : 1;
}
