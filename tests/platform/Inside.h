// What a host cannot see: the VTK objects behind a view, and when they draw.
#pragma once

#include "frame/CWindowManager.h"
#include "support/TestHost.h"

#include <vtkCallbackCommand.h>
#include <vtkNew.h>

template <class View = CWindow, class Action>
void Inside(int32_t windowId, Action&& action)
{
    CWindowManager::Instance->Call<View>(windowId,
                                         [&](View& view) -> int32_t
                                         {
                                             action(view);
                                             return STATUS_OK;
                                         });
}

// For as long as it lives; a view that is not there is none to look into.
template <class View = CWindow>
View& ViewOf(int32_t windowId)
{
    View* found = nullptr;
    Inside<View>(windowId, [&](View& view) { found = &view; });
    return *found;
}

template <class View = CWindow>
NativeWindow NativeOf(int32_t windowId)
{
    NativeWindow native = 0;
    Inside<View>(
        windowId, [&](View& view)
        { native = reinterpret_cast<NativeWindow>(view.GetRenderWindow()->GetGenericWindowId()); });
    return native;
}

class RenderCounter
{
public:
    explicit RenderCounter(int32_t windowId) : RenderCounter(ViewOf(windowId)) {}
    template <class View>
    explicit RenderCounter(View& view)
    {
        Command->SetClientData(&Count);
        Command->SetCallback([](vtkObject*, unsigned long, void* count, void*)
                             { ++*static_cast<int*>(count); });
        view.GetRenderWindow()->AddObserver(vtkCommand::EndEvent, Command);
    }
    ~RenderCounter() { Command->SetCallback(nullptr); }
    RenderCounter(const RenderCounter&) = delete;
    RenderCounter& operator=(const RenderCounter&) = delete;

    int Count = 0;

private:
    vtkNew<vtkCallbackCommand> Command;
};
