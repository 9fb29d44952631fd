// Runs the tests whose names begin with the first argument; all of them without one.

#include <windows.h>

#include <ole2.h>

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Used.h"

int main(int argc, char** argv) {
    OleInitialize(nullptr);
    const int failed = kel::tests::runTests(argc > 1 ? argv[1] : "");
    kel::tests::writeUsed();
    OleUninitialize();
    return failed;
}
