// Loading and unloading while the process goes on, and what is left to its end. Each case is a
// process of its own: a library that is loaded once hides what a second load would show.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "support/Process.h"
#include "support/TestHost.h"

#include <cstdlib>
#include <dlfcn.h>
#include <vector>

namespace
{
// The shared library as a plugin host takes it; unloaded at the end.
class Library
{
public:
    Library() : Handle(dlopen(testArguments.at(1).c_str(), RTLD_NOW | RTLD_LOCAL))
    {
        if (!Handle)
        {
            ADD_FAILURE() << dlerror();
        }
    }
    ~Library()
    {
        if (Handle)
        {
            EXPECT_EQ(dlclose(Handle), 0);
        }
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    // Leaves it to the end of the process.
    void KeepLoaded() { Handle = nullptr; }

    template <class Function>
    void Find(Function*& function, const char* name) const
    {
        function = reinterpret_cast<Function*>(dlsym(Handle, name));
        EXPECT_NE(function, nullptr) << name;
    }

private:
    void* Handle;
};

struct Exports
{
    explicit Exports(const Library& library)
    {
        library.Find(Create, "Tarvex_Window_Create");
        library.Find(Delete, "Tarvex_Window_Delete");
        library.Find(AddPoint, "Tarvex_Element_Add_Point");
        library.Find(AddSurface, "Tarvex_Element_Add_SurfaceUniform");
        library.Find(GetDescriptor, "TarvexExt_GetEventDescriptor");
        library.Find(ProcessEvents, "TarvexExt_ProcessEvents");
    }

    // A view that has drawn a picture.
    int32_t MakeView(const TestHost& host) const
    {
        int32_t id = -1;
        int32_t element = -1;
        EXPECT_EQ(Create(host.Handle(), 1, 0, 0, 200, 150, &id), STATUS_OK);
        EXPECT_EQ(AddPoint(id, 0.0, 0.0, 0.0, &element), STATUS_OK);
        const std::vector<int16_t> heights(30 * 20, 5);
        EXPECT_EQ(AddSurface(id, heights.data(), nullptr, 30, 20, 1.0, 1.0, 1.0, 0.0, 0.0, 0.0, 0,
                             &element),
                  STATUS_OK);
        EXPECT_EQ(ProcessEvents(), STATUS_OK);
        return id;
    }

    decltype(&Tarvex_Window_Create) Create = nullptr;
    decltype(&Tarvex_Window_Delete) Delete = nullptr;
    decltype(&Tarvex_Element_Add_Point) AddPoint = nullptr;
    decltype(&Tarvex_Element_Add_SurfaceUniform) AddSurface = nullptr;
    decltype(&TarvexExt_GetEventDescriptor) GetDescriptor = nullptr;
    decltype(&TarvexExt_ProcessEvents) ProcessEvents = nullptr;
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
            const Exports exports(library);
            const int32_t id = exports.MakeView(host);
            EXPECT_EQ(id, 0);
            if (round % 2 == 0)
            {
                EXPECT_EQ(exports.Delete(id), STATUS_OK);
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
    const Exports exports(library);
    exports.MakeView(host);
    exports.MakeView(host);
    library.KeepLoaded();
}

TEST(LoadProcess, DISABLED_LeavesViewsOfADestroyedParentToTheNormalEnd)
{
    TestHost host;
    Library library;
    const Exports exports(library);
    exports.MakeView(host);
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
            const Exports exports(library);
            int32_t id = -1;
            int32_t element = 0;
            int32_t descriptor = 0;
            EXPECT_EQ(exports.GetDescriptor(&descriptor), STATUS_NO_NATIVE_WINDOW);
            EXPECT_EQ(descriptor, -1);
            EXPECT_EQ(exports.Create(nullptr, 1, 0, 0, 200, 150, &id), STATUS_OK);
            EXPECT_EQ(exports.AddPoint(id, 0.0, 0.0, 0.0, &element), STATUS_NO_NATIVE_WINDOW);
            EXPECT_EQ(element, -1);
            EXPECT_EQ(exports.ProcessEvents(), STATUS_OK);
            EXPECT_EQ(exports.Delete(id), STATUS_OK);
            EXPECT_EQ(exports.ProcessEvents(), STATUS_OK);
        }
        EXPECT_EQ(CountDescriptors(), descriptors);
    }
}

TEST(LoadProcess, DISABLED_WorksOnceAnXServerIsThere)
{
    const std::string display = std::getenv("DISPLAY");
    unsetenv("DISPLAY");
    const Library library;
    const Exports exports(library);
    int32_t id = -1;
    EXPECT_EQ(exports.Create(nullptr, 1, 0, 0, 200, 150, &id), STATUS_OK);
    setenv("DISPLAY", display.c_str(), 1);
    const TestHost host;
    EXPECT_EQ(exports.MakeView(host), 1);
    EXPECT_EQ(exports.Delete(id), STATUS_OK);
    EXPECT_EQ(exports.Delete(1), STATUS_OK);
}
