#include "memory/FailingAllocations.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <execinfo.h>
#include <link.h>
#include <memory>
#include <new>
#include <utility>
#include <vector>

// What the functions below stand before.
#ifdef TARVEX_SANITIZE
#define REAL(name) __interceptor_##name
#else
#define REAL(name) __libc_##name
#endif
extern "C"
{
    void* REAL(malloc)(size_t);         // NOLINT
    void* REAL(calloc)(size_t, size_t); // NOLINT
    void* REAL(realloc)(void*, size_t); // NOLINT
}

namespace
{
// The least that fails of what a library asks for; or the library asks on behalf of another.
constexpr size_t all = 0;
constexpr size_t none = SIZE_MAX;
constexpr size_t onBehalf = SIZE_MAX - 1;
constexpr std::pair<const char*, size_t> libraries[] = {
    {"libtarvex", all},
    {"libstdc++", onBehalf},
    {"libvtkCommonCore-", 256}, // of data arrays: it asks for nothing else by malloc
    {"libvtk", 100 * 1024}};

struct Code
{
    uintptr_t Begin;
    uintptr_t End;
    size_t Least;
};
std::vector<Code> known;
thread_local int untilFailure = 0; // 0: none is to fail
std::array<void*, 12> callers;
int callerCount = 0;

int NoteCode(dl_phdr_info* object, size_t /*size*/, void* /*data*/)
{
    const auto* library =
        std::ranges::find_if(libraries, [=](const auto& entry)
                             { return std::strstr(object->dlpi_name, entry.first) != nullptr; });
    for (int part = 0; library != std::end(libraries) && part < object->dlpi_phnum; ++part)
    {
        const auto& header = object->dlpi_phdr[part];
        if (header.p_type == PT_LOAD && (header.p_flags & PF_X))
        {
            const uintptr_t begin = object->dlpi_addr + header.p_vaddr;
            known.push_back({begin, begin + header.p_memsz, library->second});
        }
    }
    return 0;
}

size_t LeastOf(void* caller)
{
    const auto address = reinterpret_cast<uintptr_t>(caller);
    const auto code = std::ranges::find_if(
        known, [=](const Code& entry) { return address >= entry.Begin && address < entry.End; });
    return code == known.end() ? none : code->Least;
}

// The caller, or on whose behalf it asks.
void* FindAsker(void* caller)
{
    std::array<void*, 11> frames = {};
    auto* const end = frames.begin() + backtrace(frames.data(), frames.size() - 1);
    return *std::find_if(std::find(frames.begin(), end, caller), end,
                         [](void* frame) { return LeastOf(frame) != onBehalf; });
}

bool Fails(size_t size, void* caller, bool isNew = false)
{
    if (untilFailure == 0 ||
        !(isNew ? LeastOf(FindAsker(caller)) == all : size >= LeastOf(caller)) ||
        --untilFailure > 0)
    {
        return false;
    }
    callerCount = backtrace(callers.data(), callers.size());
    return true;
}

void* New(size_t size, void* caller)
{
    void* memory = Fails(size, caller, true) ? nullptr : REAL(malloc)(size > 0 ? size : 1);
    return memory ? memory : throw std::bad_alloc();
}
} // namespace

void FailAllocation(int place)
{
    if (known.empty())
    {
        dl_iterate_phdr(NoteCode, nullptr);
        backtrace(callers.data(), callers.size()); // loads what it needs
    }
    untilFailure = place;
}

bool StopFailing()
{
    return std::exchange(untilFailure, 0) == 0;
}

std::string DescribeFailure()
{
    const std::unique_ptr<char*, decltype(&std::free)> names(
        backtrace_symbols(callers.data(), callerCount), &std::free);
    std::string text;
    for (int i = 2; i < callerCount; ++i)
    {
        text += std::string("\n  ") + names.get()[i];
    }
    return text;
}

extern "C"
{
    void* malloc(size_t size)
    {
        return Fails(size, __builtin_return_address(0)) ? nullptr : REAL(malloc)(size);
    }
    void* calloc(size_t count, size_t size)
    {
        return Fails(count * size, __builtin_return_address(0)) ? nullptr
                                                                : REAL(calloc)(count, size);
    }
    void* realloc(void* memory, size_t size)
    {
        return Fails(size, __builtin_return_address(0)) ? nullptr : REAL(realloc)(memory, size);
    }
    // VTK holds these by bare pointers while it fills them.
    const char* __lsan_default_suppressions() // NOLINT
    {
        return "leak:vtkFloatArray::New\nleak:vtkDoubleArray::New\n"
               "leak:vtkUnsignedCharArray::New\nleak:vtkPoints::New\nleak:vtkCellArray::New\n";
    }
    // A sanitizer's operator delete takes what these hand out.
    const char* __asan_default_options() // NOLINT
    {
        return "alloc_dealloc_mismatch=0";
    }
}

void* operator new(size_t size)
{
    return New(size, __builtin_return_address(0));
}

void* operator new[](size_t size)
{
    return New(size, __builtin_return_address(0));
}
