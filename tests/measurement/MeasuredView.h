// A 3D view of measured data, and samples to show in it.
#pragma once

#include "measurement/SurfaceGrid.h"
#include "view3d/InsideScene.h"

#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>

constexpr int16_t Missing = TARVEX_INVALID_VALUE;

// A height map that a host could give.
struct Samples
{
    // All at height 0, intensity 0.
    Samples(int32_t columns, int32_t rows);

    int16_t& At(int32_t column, int32_t row)
    {
        return Heights[static_cast<size_t>(row * Grid.Columns + column)];
    }
    // Sets X and Y to a grid of the given pitch in raw units.
    void Place(int pitchX, int pitchY);
    // Takes holes of all sizes, single samples among them, out of the samples.
    void PunchHoles();
    bool IsFree() const { return !X.empty(); }

    SurfaceGrid Grid;
    std::vector<int16_t> Heights;
    std::vector<uint8_t> Intensities;
    // For surfaces with free positions only.
    std::vector<int16_t> X;
    std::vector<int16_t> Y;
};

// Hills of about +-4000 counts on 100 units of width, 0.001 units a count.
Samples MakeHills(int32_t columns, int32_t rows);

class MeasuredView : public InsideScene
{
protected:
    using InsideScene::InsideScene;

    int32_t AddSurface(const Samples& samples, bool fullCellsOnly = true) const;
    vtkPolyData* GetDrawn() const
    {
        return vtkPolyData::SafeDownCast(LastActor()->GetMapper()->GetInput());
    }
    // Of a surface or a profile, as the view asks for them.
    Numbers Bounds(int32_t element, bool widen) const
    {
        Numbers b(6);
        EXPECT_EQ(
            View().FindElement(element)->GetBounds(widen, &b[0], &b[1], &b[2], &b[3], &b[4], &b[5]),
            STATUS_OK);
        return b;
    }
};
