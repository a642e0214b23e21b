// The mouse style of a 3D view while nothing is drawn: camera motion, each button behind a switch.
#pragma once

#include <vtkInteractorStyleTrackballCamera.h>

#include <cstdint>

class MyDefaultInteractorStyle : public vtkInteractorStyleTrackballCamera
{
public:
    static MyDefaultInteractorStyle* New();
    vtkTypeMacro(MyDefaultInteractorStyle, vtkInteractorStyleTrackballCamera);

    void SetWindowId(int32_t windowId) { WindowId = windowId; }
    // `right` also switches the wheel: both zoom.
    void SetMouseFlags(bool left, bool middle, bool right);
    // Ends a camera motion whose button is still held, before the style is taken out or its switches
    // change: nothing may go on moving without a button. Does not render.
    void EndMotion();

    // A release always reaches the base class: a motion begun before a switch was turned must end.
    void OnLeftButtonDown() override;
    void OnMiddleButtonDown() override;
    void OnRightButtonDown() override;
    void OnMouseWheelForward() override;
    void OnMouseWheelBackward() override;

protected:
    MyDefaultInteractorStyle() = default;
    ~MyDefaultInteractorStyle() override = default;

private:
    int32_t WindowId = -1;
    bool LeftEnabled = true;
    bool MiddleEnabled = true;
    bool RightEnabled = true;
};
