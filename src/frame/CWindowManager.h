// The singleton behind all exports: owns the views and the look of new elements, finds a view for
// each call, and is the one way of mouse events back into a view.
#pragma once

#include "frame/CCriticalSection.h"
#include "frame/CIdList.h"
#include "frame/ElementDefaults.h"
#include "frame/Guarded.h"
#include "frame/LastErrorText.h"
#include "platform/Platform.h"
#include "view2d/CWindow2D.h"
#include "view3d/CWindow.h"

#include <string>
#include <type_traits>
#include <utility>

class CWindowManager
{
public:
    CWindowManager() = default;
    ~CWindowManager();
    CWindowManager(const CWindowManager&) = delete;
    CWindowManager& operator=(const CWindowManager&) = delete;

    // Null before load and after unload. Owned by the module.
    static CWindowManager* Instance;
    // Re-entrant on its thread: an export may be called out of a callback of another one.
    static CriticalSection GlobalLock;

    // The common road of a call that names a view: guard, lock, find, act.
    template <class View, class Action>
    int32_t Call(int32_t windowId, Action&& action)
    {
        return Locked(
            [&]() -> int32_t
            {
                View* view = Of<View>().Views.Find(windowId);
                return view ? action(*view) : int32_t{STATUS_WINDOW_NOT_FOUND};
            });
    }

    // The road of a mouse event into a view. The event of a deleted view is dropped, and there is
    // nobody to report a failure to.
    template <class View, class Action>
    static void Forward(int32_t windowId, Action&& action)
    {
        std::string unused;
        Guarded(unused,
                [&]() -> int32_t
                {
                    CCriticalSection lock(&GlobalLock);
                    View* view = Instance ? Instance->Of<View>().Views.Find(windowId) : nullptr;
                    if (view)
                    {
                        action(*view);
                    }
                    return STATUS_OK;
                });
    }

    template <class View>
    int32_t Create(void* parentWindow, bool noBorders, int32_t x, int32_t y, int32_t width,
                   int32_t height, int32_t* windowId)
    {
        return Locked(
            [&]() -> int32_t
            {
                Registry<View>& registry = Of<View>();
                registry.Views.Reserve();
                auto view = std::make_unique<View>(registry.NextId);
                const int32_t status = view->Create(noBorders, parentWindow, x, y, width, height);
                if (status == STATUS_OK)
                {
                    registry.Views.Append(std::move(view));
                    *windowId = registry.NextId++;
                }
                return status;
            });
    }

    template <class View>
    int32_t Delete(int32_t windowId)
    {
        return Locked(
            [&]() -> int32_t
            { return Of<View>().Views.Remove(windowId) ? STATUS_OK : STATUS_WINDOW_NOT_FOUND; });
    }

    // Views of both kinds.
    int32_t DeleteAll();

    template <class View>
    int32_t GetCount(int32_t* count)
    {
        return Locked(
            [&]() -> int32_t
            {
                *count = Of<View>().Views.GetCount();
                return STATUS_OK;
            });
    }

    template <class View>
    int32_t GetIDFromIndex(int32_t index, int32_t* windowId)
    {
        return Locked(
            [&]() -> int32_t
            {
                const View* view = Of<View>().Views.At(index);
                if (!view)
                {
                    return STATUS_BAD_INDEX;
                }
                *windowId = view->Id;
                return STATUS_OK;
            });
    }

    int32_t GetDefault(int32_t windowId, int32_t type, double* transparency, uint8_t* red,
                       uint8_t* green, uint8_t* blue, double* size, double* ambient,
                       double* diffuse, double* specular, double* specularPower, int32_t* palette,
                       uint8_t* autoScale, double* clipPercent, double* fixedMin, double* fixedMax,
                       double* lineStart, double* lineEnd, double* xmin, double* xmax, double* ymin,
                       double* ymax, double* zmin, double* zmax);
    int32_t SetDefault(int32_t windowId, int32_t type, double transparency, uint8_t red,
                       uint8_t green, uint8_t blue, double size, double ambient, double diffuse,
                       double specular, double specularPower, int32_t palette, uint8_t autoScale,
                       double clipPercent, double fixedMin, double fixedMax, double lineStart,
                       double lineEnd, double xmin, double xmax, double ymin, double ymax,
                       double zmin, double zmax);

    // Handles the events that wait for all views; -19 once the window system was lost.
    int32_t ProcessEvents();
    int32_t GetEventDescriptor(int32_t* descriptor);

    ElementDefaultsTable Defaults;

private:
    template <class View>
    struct Registry
    {
        int32_t NextId = 0; // only goes up: an id is never used twice
        CIdList<View> Views;
    };

    template <class View>
    Registry<View>& Of()
    {
        if constexpr (std::is_same_v<View, CWindow>)
        {
            return Windows;
        }
        else
        {
            return Windows2D;
        }
    }

    template <class Action>
    int32_t Locked(Action&& action)
    {
        // The guard writes LastError. The other two are inside it: an exception leaves them first.
        CCriticalSection lock(&GlobalLock);
        return Guarded(LastError,
                       [&]() -> int32_t
                       {
                           MessageCapture messages;
                           Platform::CallScope scope;
                           return action();
                       });
    }

    std::string LastError;
    Registry<CWindow> Windows;
    Registry<CWindow2D> Windows2D;
};
