// What drawing with the mouse has in common in both kinds of view.
#pragma once

#include <cstdint>

// How a shape is drawn.
enum class DrawGesture
{
    Box,     // two opposite corners
    Disc,    // centre and rim
    Vertices // a click each
};

// What the rubber band looks like and the finished element takes over.
struct DrawnLook
{
    static constexpr double Size = 1.0; // pixels
    static constexpr double Transparency = 0.0;
    static constexpr uint8_t Color[3] = {255, 255, 0};
};
