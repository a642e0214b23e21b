// The least that a program can do: points and triangle strips, made beforehand, are uploaded and
// drawn with OpenGL and nothing else. No library can be expected to be much faster than this.
#pragma once

#include "HostWindow.h"
#include "SurfaceView.h"

#include <cstdint>
#include <vector>

struct __GLXcontextRec;

class FloorSurface : public SurfaceView
{
public:
    FloorSurface();
    ~FloorSurface() override;

    void Prepare(const HeightMap& map) override;
    void Add(const HeightMap& map) override;
    void Remove() override;
    void Replace(const HeightMap& map) override;
    void SetPalette(int palette) override;
    void SetRange(double lowest, double highest) override;
    void FrameAll() override;
    void Look(const std::array<double, 3>& direction) override;

private:
    void MakeProgram();
    void Draw();

    unsigned long Window = 0;
    _XDisplay* Connection = nullptr;
    __GLXcontextRec* Context = nullptr;
    unsigned Program = 0;
    unsigned VertexArray = 0;
    unsigned Buffers[3] = {}; // points, heights, indices
    unsigned Texture = 0;

    std::vector<float> Points;
    std::vector<uint32_t> Indices;
    double Size[2] = {100.0, 100.0}; // of the surface, in units
    double Direction[3] = {0.0, 0.0, -1.0};
    int DrawCount = 0;
    float ZScale = 0.001F;
};
