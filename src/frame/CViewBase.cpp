#include "frame/CViewBase.h"

#include "platform/Platform.h"

#include <algorithm>

int32_t CViewBase::Guard() const
{
    if (!RenderWindow)
    {
        return STATUS_NOT_READY;
    }
    return RenderWindow->GetGenericWindowId() ? STATUS_OK : STATUS_NO_NATIVE_WINDOW;
}

void CViewBase::Place(int32_t x, int32_t y, int32_t width, int32_t height)
{
    constexpr int32_t leastSize = 4; // pixels
    if (x >= 0 && y >= 0)
    {
        RenderWindow->SetPosition(x, y);
    }
    RenderWindow->SetSize(std::max(width, leastSize), std::max(height, leastSize));
}

void CViewBase::MakeWindow(const vtkSmartPointer<vtkRenderer>& renderer, bool noBorders,
                           void* parentWindow, int32_t x, int32_t y, int32_t width, int32_t height,
                           bool multiSamples)
{
    Renderer = renderer;
    Renderer->SetBackground(0.0, 0.0, 0.0);
    RenderWindow = Platform::NewRenderWindow();
    if (!multiSamples)
    {
        RenderWindow->SetMultiSamples(0);
    }
    if (noBorders)
    {
        RenderWindow->BordersOff();
    }
    RenderWindow->AddRenderer(Renderer);
    RenderWindow->SetParentId(parentWindow);
    Place(x, y, width, height);
    Interactor = Platform::NewInteractor();
    Interactor->SetRenderWindow(RenderWindow);
    Interactor->Initialize();
}

void CViewBase::CloseWindow()
{
    if (Interactor)
    {
        Interactor->SetInteractorStyle(nullptr);
        // When a callback deletes the view, the event that it came from still holds the window.
        Platform::CloseWindow(RenderWindow);
    }
    RenderWindow = nullptr;
    Interactor = nullptr;
}

int32_t CViewBase::UpdateSize(int32_t x, int32_t y, int32_t width, int32_t height)
{
    return WhenReady(
        [&]() -> int32_t
        {
            Place(x, y, width, height);
            return STATUS_OK;
        });
}

int32_t CViewBase::BeginUpdate()
{
    return WhenReady(
        [&]() -> int32_t
        {
            Platform::HoldRenders(RenderWindow);
            return STATUS_OK;
        });
}

int32_t CViewBase::EndUpdate()
{
    return WhenReady(
        [&]() -> int32_t
        { return Platform::ReleaseRenders(RenderWindow) ? STATUS_OK : STATUS_NOT_READY; });
}

int32_t CViewBase::RegisterCallback_ElementAdded(Tarvex_ElementAddedCallback callback)
{
    ElementAddedCallback = callback;
    return STATUS_OK;
}

int32_t CViewBase::RegisterCallback_ElementDragged(Tarvex_ElementDraggedCallback callback)
{
    ElementDraggedCallback = callback;
    return STATUS_OK;
}

int32_t CViewBase::CopyImage(uint8_t* rgb, int32_t capacity, int32_t* width, int32_t* height)
{
    return WhenReady(
        [&]() -> int32_t
        {
            Platform::GetPictureSize(RenderWindow, width, height);
            if (!rgb)
            {
                return STATUS_OK;
            }
            if (capacity < int64_t{3} * *width * *height)
            {
                return STATUS_TOO_SMALL;
            }
            return Platform::CopyPicture(RenderWindow, rgb) ? STATUS_OK : STATUS_NOT_READY;
        });
}

int32_t CViewBase::GetDrawMode(int32_t* mode)
{
    *mode = TARVEX_DRAW_NONE;
    return WhenReady(
        [&]() -> int32_t
        {
            *mode = DrawMode;
            return STATUS_OK;
        });
}
