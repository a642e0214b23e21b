// The way of mouse events from a style back into its view. A style holds a window id and these
// plain functions, never a pointer to a view: the event of a deleted view is dropped.
#pragma once

#include <cstdint>

void ForwardPick(int32_t windowId, double x, double y, double z);
// `handle` is MyDragInteractorStyle::NoHandle when the button went up where no position could be
// found.
void ForwardDrag(int32_t windowId, int32_t handle, double x, double y, double z, bool finished);
