// Elements that the user reshapes with the mouse while they are the active element of their view:
// they show handles, and follow one that is dragged.
#pragma once

#include "elements3d/CElement_Shape.h"
#include "elements3d/CResizeHandles.h"

class CElement_Draggable : public CElement_Shape
{
public:
    CElement_Draggable(int32_t elementType, int32_t handleCapacity);

    // `radius` in scene units. An invalid element shows no handles: it refuses both directions with
    // STATUS_INVALID_VALUES, but none are left either.
    virtual int32_t ShowHandles(bool on, double radius);
    // Host coordinates. Judges no numbers: those of a mouse are usable, and others only hide.
    int32_t MoveHandle(int32_t handle, double x, double y, double z);
    // The button has gone up: the next MoveHandle begins a new drag.
    virtual void EndDrag();

    // Null unless valid and with handles on.
    vtkActorCollection* GetHandleActors() const;
    const double* GetHandleX() const;
    const double* GetHandleY() const;
    const double* GetHandleZ() const;

    int32_t SetInScene(bool inScene) override;
    int32_t SetColor(uint8_t red, uint8_t green, uint8_t blue) override;

protected:
    // Positions of the handles from a valid geometry.
    virtual void PlaceHandles() = 0;
    // The geometry into the VTK sources, from the positions of the handles if that helps: if they
    // can be drawn, so can the element. Unless `visible` the sources keep what they hold.
    virtual void Draw(bool visible) = 0;
    // Moves one handle of a valid element, and what goes with it.
    virtual void DragHandle(int32_t handle, const Vector3& position) = 0;

    // What each change of the geometry ends with. The lighting of the creation comes back.
    void Refresh();
    // ShowHandles from its second test on.
    int32_t SwitchHandles(bool on, double radius);

    CResizeHandles Handles;
    bool HandlesOn = false;

private:
    bool IsVisible() const { return Valid && Handles.AreDrawable(); }
    void BuildHandles();

    double HandleRadius = 0.5;
};
