#include "frame/FailingAllocations.h"

#include <cstdlib>
#include <new>

extern "C" char __executable_start; // NOLINT: the linker's names for the program's own code
extern "C" char etext;              // NOLINT

namespace
{
int untilFailure = 0; // 0: none is to fail
bool failed = false;

void* TakeOrNull(std::size_t size, const void* caller)
{
    const auto* code = static_cast<const char*>(caller);
    if (untilFailure == 0 || code < &__executable_start || code >= &etext || --untilFailure > 0)
    {
        return std::malloc(size > 0 ? size : 1);
    }
    failed = true;
    return nullptr;
}
} // namespace

void FailAllocation(int place)
{
    failed = false;
    untilFailure = place;
}

bool StopFailing()
{
    untilFailure = 0;
    return failed;
}

void* operator new(std::size_t size)
{
    void* memory = TakeOrNull(size, __builtin_return_address(0));
    if (!memory)
    {
        throw std::bad_alloc();
    }
    return memory;
}

// These forms too, so that none of a sanitizer's is paired with one of these. Those for arrays
// are pairs of their own.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return TakeOrNull(size, __builtin_return_address(0));
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
