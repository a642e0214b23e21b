// The main function of the test programs.
#include "support/Process.h"

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    testArguments.assign(argv, argv + argc);
    return RUN_ALL_TESTS();
}
