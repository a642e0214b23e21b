// The library, through its C interface.
#pragma once

#include "HostWindow.h"
#include "SurfaceView.h"

#include <cstdint>

class LibrarySurface : public SurfaceView
{
public:
    LibrarySurface();
    ~LibrarySurface() override;

    void Add(const HeightMap& map) override;
    void Remove() override;
    void Replace(const HeightMap& map) override;
    void SetPalette(int palette) override;
    void SetRange(double lowest, double highest) override;
    void FrameAll() override;
    void Look(const std::array<double, 3>& direction) override;

private:
    HostWindow Host;
    int32_t View = -1;
    int32_t Element = -1;
};
