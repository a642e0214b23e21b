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
    explicit RenderCounter(int32_t windowId)
    {
        Command->SetClientData(&Count);
        Command->SetCallback([](vtkObject*, unsigned long, void* count, void*)
                             { ++*static_cast<int*>(count); });
        Inside(windowId, [&](CWindow& view)
               { view.GetRenderWindow()->AddObserver(vtkCommand::EndEvent, Command); });
    }
    ~RenderCounter() { Command->SetCallback(nullptr); }
    RenderCounter(const RenderCounter&) = delete;
    RenderCounter& operator=(const RenderCounter&) = delete;

    int Count = 0;

private:
    vtkNew<vtkCallbackCommand> Command;
};
