// The same engine under libFuzzer, which looks for sequences that reach new code.
#include "fuzz/Engine.h"

#include <cstdlib>
#include <iostream>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // New views take longer than a sequence of calls.
    static Engine engine(false, false);
    if (!engine.Run({data, size}, true))
    {
        std::cerr << engine.GetComplaint() << std::endl;
        std::abort();
    }
    return 0;
}
