// The main function of the test programs.
#include "support/Process.h"

#include <gmock/gmock.h>

#include <dlfcn.h>

int main(int argc, char** argv)
{
#ifdef __SANITIZE_ADDRESS__
    // Mesa's software driver leaks a little each time that it is unloaded with the last display; it
    // stays, or leak reports could not name it.
    dlopen("/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so", RTLD_LAZY | RTLD_NODELETE);
#endif
    testing::InitGoogleMock(&argc, argv);
    testArguments.assign(argv, argv + argc);
    return RUN_ALL_TESTS();
}
