// The way of mouse events from a style back into its view. A style holds a window id and these
// plain functions, never a pointer to a view: the event of a deleted view is dropped.
#pragma once

#include <cstdint>

void ForwardPick(int32_t windowId, double x, double y, double z);
// `handle` is MyDragInteractorStyle::NoHandle when the button went up where no position could be
// found.
void ForwardDrag(int32_t windowId, int32_t handle, double x, double y, double z, bool finished);
// Positions under the mouse in a draw mode, in VTK's world; all 0 where nothing was hit.
void ForwardDrawDown(int32_t windowId, double x, double y, double z);
void ForwardDrawMove(int32_t windowId, double x, double y, double z);
void ForwardDrawUp(int32_t windowId, double x, double y, double z);
void ForwardDrawEnd(int32_t windowId);

// Those of chart views; all positions in chart coordinates.
// Which handle of the active element is there; -1: none.
int32_t ForwardFindHandle2D(int32_t windowId, double x, double y);
void ForwardDrag2D(int32_t windowId, int32_t handle, double x, double y, bool finished);
void ForwardDrawDown2D(int32_t windowId, double x, double y);
void ForwardDrawMove2D(int32_t windowId, double x, double y);
void ForwardDrawUp2D(int32_t windowId, double x, double y);
void ForwardDrawEnd2D(int32_t windowId);
