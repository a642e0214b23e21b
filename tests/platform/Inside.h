// What a host cannot see: the VTK objects behind a view, and when they draw.
#pragma once

#include "frame/CWindowManager.h"
#include "support/TestHost.h"

#include <vtkCallbackCommand.h>
#include <vtkNew.h>

// For as long as it lives; a view that is not there is none to look into.
template <class View = CWindow>
View& ViewOf(int32_t windowId)
{
    View* found = nullptr;
    const auto find = [&](View& view) -> int32_t
    {
        found = &view;
        return STATUS_OK;
    };
    CWindowManager::Instance->Call<View>(windowId, find);
    return *found;
}

// Like a call of the interface, under the lock and in its scope: also beside other threads.
template <class View = CWindow>
NativeWindow NativeOf(int32_t windowId)
{
    NativeWindow native = 0;
    const auto find = [&](View& view) -> int32_t
    {
        native = reinterpret_cast<NativeWindow>(view.GetRenderWindow()->GetGenericWindowId());
        return STATUS_OK;
    };
    CWindowManager::Instance->Call<View>(windowId, find);
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
