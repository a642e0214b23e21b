// A 3D view whose newest element is read back from its actor: what is drawn, and where.
#pragma once

#include "frame/CWindowManager.h"
#include "support/ViewFixture.h"

#include <vtkActor.h>
#include <vtkActorCollection.h>
#include <vtkBoundingBox.h>
#include <vtkCell.h>
#include <vtkMatrix4x4.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>

#include <array>
#include <vector>

using HostPoint = std::array<double, 3>;

class ShapeView : public ViewFixture
{
protected:
    vtkActor* NewestActor() const
    {
        vtkActor* actor = nullptr;
        const auto find = [&](const CWindow& view)
        {
            actor = view.GetRenderer()->GetActors()->GetLastActor();
            return STATUS_OK;
        };
        CWindowManager::Instance->Call<CWindow>(Id, find);
        return actor;
    }

    // Neither drawn nor counted in the bounds of the scene.
    bool IsHidden() const
    {
        EXPECT_EQ(NewestActor()->GetVisibility(), NewestActor()->GetUseBounds());
        return !NewestActor()->GetVisibility();
    }

    // The points of the first cell along its path, in host coordinates. The bounds that the camera
    // goes by are those of these points.
    std::vector<HostPoint> Outline() const
    {
        vtkActor* actor = NewestActor();
        auto* mapper = vtkPolyDataMapper::SafeDownCast(actor->GetMapper());
        mapper->Update();
        vtkPoints* points = mapper->GetInput()->GetCell(0)->GetPoints();
        std::vector<HostPoint> outline;
        vtkBoundingBox box;
        for (vtkIdType point = 0; point < points->GetNumberOfPoints(); ++point)
        {
            double world[4] = {0.0, 0.0, 0.0, 1.0};
            points->GetPoint(point, world);
            actor->GetMatrix()->MultiplyPoint(world, world);
            box.AddPoint(world);
            outline.push_back({world[0], -world[1], world[2]});
        }
        const vtkBoundingBox bounds(actor->GetBounds());
        box.Inflate(1e-5);
        EXPECT_TRUE(box.Contains(bounds));
        box.Inflate(-2e-5);
        EXPECT_TRUE(!box.IsValid() || bounds.Contains(box));
        return outline;
    }

    void ExpectOutline(const std::vector<HostPoint>& expected) const
    {
        EXPECT_FALSE(IsHidden());
        const std::vector<HostPoint> outline = Outline();
        ASSERT_EQ(outline.size(), expected.size());
        for (size_t at = 0; at < 3 * expected.size(); ++at)
        {
            EXPECT_NEAR(outline[at / 3][at % 3], expected[at / 3][at % 3], 1e-5)
                << "point " << at / 3 << ", axis " << at % 3;
        }
    }

    int32_t Element = TARVEX_NONE;
};
