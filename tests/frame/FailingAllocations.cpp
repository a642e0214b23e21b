#include "frame/FailingAllocations.h"

#include <cstdlib>
#include <new>

extern "C" char __executable_start; // NOLINT: the linker's names for the program's own code
extern "C" char etext;              // NOLINT

namespace
{
int untilFailure = 0; // 0: none is to fail
bool failed = false;

bool IsToFail(const void* caller)
{
    const auto* code = static_cast<const char*>(caller);
    if (untilFailure == 0 || code < &__executable_start || code >= &etext || --untilFailure > 0)
    {
        return false;
    }
    failed = true;
    return true;
}

void* TakeOrNull(std::size_t size, const void* caller)
{
    return IsToFail(caller) ? nullptr : std::malloc(size > 0 ? size : 1);
}

void* Take(std::size_t size, const void* caller)
{
    void* memory = TakeOrNull(size, caller);
    if (!memory)
    {
        throw std::bad_alloc();
    }
    return memory;
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

// All forms, so that none of a sanitizer's is paired with one of these.
void* operator new(std::size_t size)
{
    return Take(size, __builtin_return_address(0));
}

void* operator new[](std::size_t size)
{
    return Take(size, __builtin_return_address(0));
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return TakeOrNull(size, __builtin_return_address(0));
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return TakeOrNull(size, __builtin_return_address(0));
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}
