// What a host cannot see: the VTK objects behind a view, and when they draw.
#pragma once

#include "frame/CWindowManager.h"
#include "support/TestHost.h"

#include <functional>
#include <memory>

#include <vtkCallbackCommand.h>
#include <vtkInteractorObserver.h>
#include <vtkNew.h>

template <class Action>
void Inside(int32_t windowId, Action&& action)
{
    CWindowManager::Instance->Call<CWindow>(windowId,
                                            [&](CWindow& view) -> int32_t
                                            {
                                                action(view);
                                                return STATUS_OK;
                                            });
}

inline NativeWindow NativeOf(int32_t windowId)
{
    NativeWindow native = 0;
    Inside(
        windowId, [&](CWindow& view)
        { native = reinterpret_cast<NativeWindow>(view.GetRenderWindow()->GetGenericWindowId()); });
    return native;
}

// Calls an action at a VTK event, as long as it lives.
class Observer
{
public:
    Observer(vtkObject* subject, unsigned long event, std::function<void()> action)
        : Action(std::move(action))
    {
        Command->SetClientData(this);
        Command->SetCallback([](vtkObject*, unsigned long, void* self, void*)
                             { static_cast<Observer*>(self)->Action(); });
        subject->AddObserver(event, Command, 1.0F);
    }
    ~Observer() { Command->SetCallback(nullptr); }
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

private:
    std::function<void()> Action;
    vtkNew<vtkCallbackCommand> Command;
};

class RenderCounter
{
public:
    explicit RenderCounter(int32_t windowId)
    {
        Inside(windowId,
               [&](CWindow& view)
               {
                   Counting = std::make_unique<Observer>(view.GetRenderWindow(),
                                                         vtkCommand::EndEvent, [this] { ++Count; });
               });
    }

    int Count = 0;

private:
    std::unique_ptr<Observer> Counting;
};
