#include "tests/windows/ole/Check.h"

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <vector>

namespace kel::tests {

namespace {

struct Test {
    const char* name;
    void (*body)();
};

std::vector<Test>& tests() {
    static std::vector<Test> All;
    return All;
}

bool run(const Test& test) {
    try {
        test.body();
        std::printf("ok %s\n", test.name);
        return true;
    } catch (const Failure& failure) {
        std::printf("FAILED %s: %s\n", test.name, failure.why.c_str());
    } catch (const std::exception& error) {
        std::printf("FAILED %s: %s\n", test.name, error.what());
    }
    return false;
}

}  // namespace

Registered::Registered(const char* name, void (*body)()) { tests().push_back({name, body}); }

int runTests(const std::string& prefix) {
    int failed = 0;
    for (const Test& test : tests()) {
        if (std::strncmp(test.name, prefix.c_str(), prefix.size()) != 0) continue;
        failed += run(test) ? 0 : 1;
        std::fflush(stdout);
    }
    return failed;
}

void fail(const char* file, int line, const std::string& what) {
    const char* const name = std::strrchr(file, '/');
    throw Failure{std::string(name != nullptr ? name + 1 : file) + ":" + std::to_string(line) + ": " + what};
}

std::string shown(const std::wstring& value) {
    std::string text(value.size() * 3 + 1, '\0');
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, value.data(), static_cast<int>(value.size()), text.data(),
                                          static_cast<int>(text.size()), nullptr, nullptr);
    text.resize(static_cast<std::size_t>(bytes));
    return '"' + text + '"';
}

std::string shownCode(long code) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(code));
    return text;
}

}  // namespace kel::tests
