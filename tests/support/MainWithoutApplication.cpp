#include "support/FreshHome.hpp"
#include "support/RunTests.hpp"
#include <gmock/gmock.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    FreshHome const home;
    return runTests();
}
