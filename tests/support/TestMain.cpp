// The main function of the test programs.
#include <dlfcn.h>
#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    // Mesa's software driver leaks a little each time that it is unloaded with the last display; it
    // stays, or leak reports could not name it.
    dlopen("/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so", RTLD_LAZY | RTLD_NODELETE);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
