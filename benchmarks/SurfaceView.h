// What the benchmarks do with a surface in a view of 800 x 600 pixels. Each operation returns when
// its picture is there.
#pragma once

#include "HeightMap.h"

#include <array>

class SurfaceView
{
public:
    static constexpr int Width = 800;
    static constexpr int Height = 600;

    virtual ~SurfaceView() = default;

    // What has to be done before the clock starts; only a view that is given ready arrays does
    // anything here.
    virtual void Prepare(const HeightMap& /*map*/) {}
    virtual void Add(const HeightMap& map) = 0;
    virtual void Remove() = 0;
    virtual void Replace(const HeightMap& map) = 0;
    virtual void SetPalette(int palette) = 0;
    virtual void SetRange(double lowest, double highest) = 0;
    // The whole surface from above.
    virtual void FrameAll() = 0;
    // Looks along a direction at the middle of what FrameAll showed.
    virtual void Look(const std::array<double, 3>& direction) = 0;
};
