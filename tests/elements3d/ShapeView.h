// A 3D view whose newest element is read back from its actor: what is drawn, and where.
#pragma once

#include "view3d/InsideScene.h"

#include <vtkBoundingBox.h>
#include <vtkCell.h>
#include <vtkMatrix4x4.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>

using HostPoint = std::array<double, 3>;

class ShapeView : public InsideScene
{
protected:
    void AddNew(const std::string& function, const Numbers& given)
    {
        Element = Add(function, given);
        Actor = LastActor();
    }
    void Set(const std::string& function, const Numbers& given) const
    {
        EXPECT_EQ(Do(function, Element, given), STATUS_OK);
    }
    // Neither drawn nor counted in the bounds of the scene.
    bool IsHidden() const
    {
        EXPECT_EQ(Actor->GetVisibility(), Actor->GetUseBounds());
        return !Actor->GetVisibility();
    }
    // The points of the first cell, along its path, in host coordinates. The bounds that the camera
    // goes by are those of these points.
    std::vector<HostPoint> Outline() const
    {
        auto* mapper = vtkPolyDataMapper::SafeDownCast(Actor->GetMapper());
        mapper->Update();
        vtkPoints* points = mapper->GetInput()->GetCell(0)->GetPoints();
        std::vector<HostPoint> drawn;
        vtkBoundingBox box;
        for (vtkIdType point = 0; point < points->GetNumberOfPoints(); ++point)
        {
            double world[4] = {0, 0, 0, 1};
            points->GetPoint(point, world);
            Actor->GetMatrix()->MultiplyPoint(world, world);
            box.AddPoint(world);
            drawn.push_back({world[0], -world[1], world[2]});
        }
        Numbers bounds(6);
        box.GetBounds(bounds.data());
        EXPECT_THAT(Numbers(Actor->GetBounds(), Actor->GetBounds() + 6), Near(bounds, 1e-5));
        return drawn;
    }
    static void ExpectNear(const std::vector<HostPoint>& points,
                           const std::vector<HostPoint>& expected)
    {
        ASSERT_EQ(points.size(), expected.size());
        for (size_t at = 0; at < expected.size(); ++at)
        {
            EXPECT_THAT(points[at], Near({expected[at].begin(), expected[at].end()}, 1e-5)) << at;
        }
    }
    void ExpectOutline(const std::vector<HostPoint>& expected) const
    {
        EXPECT_FALSE(IsHidden());
        ExpectNear(Outline(), expected);
    }

    int32_t Element = TARVEX_NONE;
    vtkActor* Actor = nullptr;
};
