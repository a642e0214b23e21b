// Shapes that the user changes with the mouse while they are the active element of their view: they
// show handles, and follow one that is dragged.
#pragma once

#include "elements2d/CElement_Plotted2D.h"

class CElement_Draggable2D : public CElement_Plotted2D
{
public:
    static constexpr bool EndsDrawing = true;

    CElement_Draggable2D(int32_t elementType, int32_t invalidStatus);

    // Handles on or off. An invalid element refuses both, but shows none from then on either.
    int32_t SetActive(bool active);
    bool IsActive() const { return Handles != nullptr; }
    // The nearest to (x, y) of the handles less than `tolerance` away in X and in Y, all in chart
    // coordinates; -1 if there is none or if none can be seen.
    int32_t FindHandle(double x, double y, double tolerance) const;
    // A step of dragging a handle, which goes on until EndDrag or the drag of another handle.
    // Judges no numbers: those of a mouse are usable, and others only make gaps.
    int32_t DragHandle(int32_t handle, double x, double y);
    // The button has gone up: the next DragHandle begins a new drag.
    void EndDrag();

protected:
    // The places of all handles, kept up to date while the element is valid.
    virtual std::span<const ChartPoint> GetHandles() const = 0;
    // Moves a handle of a valid element, and what goes with it. Returns the handle that is at the
    // mouse then: another one, if this was dragged across the middle of the shape.
    virtual int32_t MoveHandle(int32_t handle, double x, double y) = 0;
    void FillTables() override;

    // Room for so many handles, if there are any.
    void ReserveHandles(int32_t count);

private:
    void FillHandles(CPlotTable& table) const;

    std::unique_ptr<CPlotTable> Handles; // null: not active
    int32_t DraggedHandle = -1;          // as the drag began; -1: none
    int32_t HandleAtMouse = -1;          // as it goes on
};
