// Loading and unloading while the process goes on, and what is left to its end. Each case is a
// process of its own: a library that is loaded once hides what a second load would show.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "support/Process.h"
#include "support/TestHost.h"

#include <cstdlib>
#include <dlfcn.h>

namespace
{
// The shared library as a plugin host takes it; unloaded at the end.
class Library
{
public:
    ~Library() { EXPECT_TRUE(!Loaded || dlclose(Loaded) == 0); }

    // Leaves it to the end of the process.
    void KeepLoaded() { Loaded = nullptr; }

    // A view that has drawn a picture.
    int32_t MakeView(const TestHost& host) const
    {
        int32_t id = -1;
        int32_t element = -1;
        EXPECT_EQ(Create(host.Handle(), 1, 0, 0, 200, 150, &id), STATUS_OK);
        EXPECT_EQ(AddPoint(id, 0.0, 0.0, 0.0, &element), STATUS_OK);
        EXPECT_EQ(ProcessEvents(), STATUS_OK);
        return id;
    }

private:
    template <class Function>
    Function* Find(const char* name) const
    {
        auto* function = reinterpret_cast<Function*>(dlsym(Loaded, name));
        EXPECT_NE(function, nullptr) << name;
        return function;
    }
    void* Loaded = dlopen(testArguments.at(1).c_str(), RTLD_NOW | RTLD_LOCAL);

public:
#define FIND(function) Find<decltype(function)>(#function)
    decltype(&Tarvex_Window_Create) Create = FIND(Tarvex_Window_Create);
    decltype(&Tarvex_Window_Delete) Delete = FIND(Tarvex_Window_Delete);
    decltype(&Tarvex_Element_Add_Point) AddPoint = FIND(Tarvex_Element_Add_Point);
    decltype(&TarvexExt_GetEventDescriptor) GetDescriptor = FIND(TarvexExt_GetEventDescriptor);
    decltype(&TarvexExt_ProcessEvents) ProcessEvents = FIND(TarvexExt_ProcessEvents);
#undef FIND
};
} // namespace

TEST(Load, EndsNoProcess)
{
    RunInProcesses("LoadProcess");
}

TEST(LoadProcess, DISABLED_WorksFiveTimesInARow)
{
    const TestHost host;
    int descriptors = 0;
    for (int round = 0; round < 5; ++round)
    {
        {
            const Library library;
            const int32_t id = library.MakeView(host);
            EXPECT_EQ(id, 0);
            if (round % 2 == 0)
            {
                EXPECT_EQ(library.Delete(id), STATUS_OK);
            }
            // Otherwise unloading deletes the view.
        }
        EXPECT_TRUE(host.Children().empty());
        if (round == 0)
        {
            descriptors = CountDescriptors();
        }
        EXPECT_EQ(CountDescriptors(), descriptors);
    }
}

TEST(LoadProcess, DISABLED_LeavesLiveViewsToTheNormalEnd)
{
    static const TestHost host; // closed at the end, after the library's own end
    Library library;
    library.MakeView(host);
    library.MakeView(host);
    library.KeepLoaded();
}

TEST(LoadProcess, DISABLED_NeedsNoXServer)
{
    for (const char* display : {"", ":4242"})
    {
        setenv("DISPLAY", display, 1);
        const int descriptors = CountDescriptors();
        {
            const Library library;
            int32_t id = -1;
            int32_t element = 0;
            int32_t descriptor = 0;
            EXPECT_EQ(library.GetDescriptor(&descriptor), STATUS_NO_NATIVE_WINDOW);
            EXPECT_EQ(descriptor, -1);
            EXPECT_EQ(library.Create(nullptr, 1, 0, 0, 200, 150, &id), STATUS_OK);
            EXPECT_EQ(library.AddPoint(id, 0.0, 0.0, 0.0, &element), STATUS_NO_NATIVE_WINDOW);
            EXPECT_EQ(element, -1);
            EXPECT_EQ(library.ProcessEvents(), STATUS_OK);
            EXPECT_EQ(library.Delete(id), STATUS_OK);
            EXPECT_EQ(library.ProcessEvents(), STATUS_OK);
        }
        EXPECT_EQ(CountDescriptors(), descriptors);
    }
}
