// Runs the tests whose names begin with the first argument; all of them without one.

#include "tests/windows/ole/Check.h"

int main(int argc, char** argv) { return kel::tests::runTests(argc > 1 ? argv[1] : ""); }
