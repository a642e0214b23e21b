// A part of the drawing surface of a renderer, and what lies outside of it for certain.
#pragma once

class vtkRenderer;

// In normalised device coordinates: -1 to 1 is the whole drawing surface.
struct ViewArea
{
    // All of it or, while a selector draws, the pixels that it asks for; wider by `margin` pixels
    // on each side.
    ViewArea(vtkRenderer* renderer, double margin);

    // True only if nothing within the box (xmin, xmax, ymin ...) is in the area. `toDevice` leads
    // from the box's coordinates to those of the device.
    bool IsOutside(const double* box, const double (&toDevice)[16]) const;

    double Left = -1.0;
    double Right = 1.0;
    double Bottom = -1.0;
    double Top = 1.0;
};

// From VTK's world to normalised device coordinates.
void GetWorldToDevice(vtkRenderer* renderer, double (&matrix)[16]);
