// The look of new 3D elements: one record per family of element types, global to the process.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

struct ElementDefaults
{
    double Transparency = 0.0; // 0 .. 1
    uint8_t Color[3] = {255, 255, 255};
    double Size = 0.5; // line width in pixels; a point's radius in scene units
    double Ambient = 1.0;
    double Diffuse = 1.0;
    double Specular = 0.0;
    double SpecularPower = 1.0;
    // surfaces
    int32_t Palette = 0;
    bool AutoScale = true;
    double ClipPercent = 0.0;
    double FixedMin = -10.0;
    double FixedMax = 10.0;
    // line
    double LineStart = -10.0;
    double LineEnd = 10.0;
    // plane: xmin, xmax, ymin, ymax, zmin, zmax
    double DrawSize[6] = {-10.0, 10.0, -10.0, 10.0, -10.0, 10.0};
};

class ElementDefaultsTable
{
public:
    ElementDefaultsTable();
    // The record that serves an element type, or null for a number that is no 3D element type.
    ElementDefaults* Find(int32_t elementType);

private:
    std::array<ElementDefaults, 12> Records;
};
