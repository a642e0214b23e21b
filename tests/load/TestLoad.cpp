// Loading and unloading while the process goes on, and what is left to its end. Each case is a
// process of its own: a library that is loaded once hides what a second load would show.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "support/Effort.h"
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

    // A view of each kind that has drawn a picture; both are the first of theirs.
    void MakeViews(const TestHost& host) const
    {
        int32_t scene = -1;
        int32_t chart = -1;
        int32_t element = -1;
        EXPECT_EQ(Create(host.Handle(), 1, 0, 0, 200, 150, &scene), STATUS_OK);
        EXPECT_EQ(AddPoint(scene, 0.0, 0.0, 0.0, &element), STATUS_OK);
        EXPECT_EQ(CreateChart(host.Handle(), 1, 200, 0, 200, 150, &chart), STATUS_OK);
        EXPECT_EQ(AddPointToChart(chart, 0.0, 0.0, &element), STATUS_OK);
        EXPECT_EQ(ProcessEvents(), STATUS_OK);
        EXPECT_EQ(scene, 0);
        EXPECT_EQ(chart, 0);
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
    decltype(&Tarvex_Window2D_Create) CreateChart = FIND(Tarvex_Window2D_Create);
    decltype(&Tarvex_Element2D_Add_Point) AddPointToChart = FIND(Tarvex_Element2D_Add_Point);
    decltype(&TarvexExt_GetEventDescriptor) GetDescriptor = FIND(TarvexExt_GetEventDescriptor);
    decltype(&TarvexExt_ProcessEvents) ProcessEvents = FIND(TarvexExt_ProcessEvents);
#undef FIND
};
} // namespace

TEST(Load, EndsNoProcess)
{
    RunInProcesses("LoadProcess");
}

TEST(LoadProcess, DISABLED_WorksManyTimesInARow)
{
    const TestHost host;
    int descriptors = 0;
    const int rounds = Effort(5, 20);
    for (int round = 0; round < rounds; ++round)
    {
        {
            const Library library;
            library.MakeViews(host);
            if (round % 2 == 0)
            {
                EXPECT_EQ(library.Delete(0), STATUS_OK);
            }
            // Unloading deletes what is left.
        }
        EXPECT_TRUE(host.Children().empty());
        if (round == 0)
        {
            descriptors = Holdings().Descriptors;
        }
        EXPECT_EQ(Holdings().Descriptors, descriptors);
    }
    ReportFigure("load", std::to_string(rounds) + " rounds of load, create and unload");
}

TEST(LoadProcess, DISABLED_LeavesLiveViewsToTheNormalEnd)
{
    static const TestHost host; // closed at the end, after the library's own end
    Library library;
    library.MakeViews(host);
    library.KeepLoaded();
}

TEST(LoadProcess, DISABLED_NeedsNoXServer)
{
    for (const char* display : {"", ":4242"})
    {
        setenv("DISPLAY", display, 1);
        const int descriptors = Holdings().Descriptors;
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
        EXPECT_EQ(Holdings().Descriptors, descriptors);
    }
}
