#pragma once

#include <functional>
#include <string>

/// Named tests of one program. Each prints "ok NAME" or "FAILED NAME: why".
namespace kel::tests {

/// Thrown by a check that did not hold; ends its test.
struct Failure {
    std::string why;
};

struct Registered {
    Registered(const char* name, void (*body)());
};

/// Runs the tests whose names begin with `prefix`; the number of those that failed.
int runTests(const std::string& prefix);

[[noreturn]] void fail(const char* file, int line, const std::string& what);

std::string shown(const std::wstring& value);
template <class Number>
std::string shown(Number value) {
    return std::to_string(value);
}
std::string shownCode(long code);

/// What is done to a scene in a row of a test.
template <class Scene>
struct NamedDeed {
    const char* name;
    void (*act)(Scene& scene);
};

}  // namespace kel::tests

#define TEST(name)                                                      \
    static void name();                                                 \
    static const kel::tests::Registered name##Registered(#name, &name); \
    static void name()

#define EXPECT(condition)                                                   \
    do {                                                                    \
        if (!(condition)) kel::tests::fail(__FILE__, __LINE__, #condition); \
    } while (false)

#define EXPECT_EQ(actual, wanted)                                                                             \
    do {                                                                                                      \
        const auto actualValue = (actual);                                                                    \
        const decltype(actualValue)& wantedValue = (wanted);                                                  \
        if (!(actualValue == wantedValue))                                                                    \
            kel::tests::fail(                                                                                 \
                __FILE__, __LINE__,                                                                           \
                #actual " is " + kel::tests::shown(actualValue) + ", not " + kel::tests::shown(wantedValue)); \
    } while (false)

/// An HRESULT.
#define EXPECT_CODE(call, wanted)                                                       \
    do {                                                                                \
        const long code = (call);                                                       \
        if (code != static_cast<long>(wanted))                                          \
            kel::tests::fail(__FILE__, __LINE__,                                        \
                             #call " gives " + kel::tests::shownCode(code) + ", not " + \
                                 kel::tests::shownCode(static_cast<long>(wanted)));     \
    } while (false)
