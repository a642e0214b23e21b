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

using HostPoint = std::array<double, 3>;

class ShapeView : public ViewFixture
{
protected:
    void AddNew(const Export& function, const Numbers& given)
    {
        Element = Add(function, given);
        const auto find = [this](const CWindow& view)
        {
            Actor = view.GetRenderer()->GetActors()->GetLastActor();
            return STATUS_OK;
        };
        CWindowManager::Instance->Call<CWindow>(Id, find);
    }
    void Set(const Export& function, const Numbers& given) const
    {
        EXPECT_EQ(Call(function, Element, given), STATUS_OK);
    }
    // Neither drawn nor counted in the bounds of the scene.
    bool IsHidden() const
    {
        EXPECT_EQ(Actor->GetVisibility(), Actor->GetUseBounds());
        return !Actor->GetVisibility();
    }
    // The points of the first cell along its path, in host coordinates. The bounds that the camera
    // goes by are those of these points.
    std::vector<HostPoint> Outline() const
    {
        auto* mapper = vtkPolyDataMapper::SafeDownCast(Actor->GetMapper());
        mapper->Update();
        vtkPoints* points = mapper->GetInput()->GetCell(0)->GetPoints();
        std::vector<HostPoint> outline;
        vtkBoundingBox box;
        for (vtkIdType point = 0; point < points->GetNumberOfPoints(); ++point)
        {
            double world[4] = {0, 0, 0, 1};
            points->GetPoint(point, world);
            Actor->GetMatrix()->MultiplyPoint(world, world);
            box.AddPoint(world);
            outline.push_back({world[0], -world[1], world[2]});
        }
        double bounds[6];
        box.GetBounds(bounds);
        EXPECT_THAT(Numbers(Actor->GetBounds(), Actor->GetBounds() + 6),
                    testing::Pointwise(testing::DoubleNear(1e-5), bounds));
        return outline;
    }
    void ExpectOutline(const std::vector<HostPoint>& expected) const
    {
        EXPECT_FALSE(IsHidden());
        const std::vector<HostPoint> outline = Outline();
        ASSERT_EQ(outline.size(), expected.size());
        for (size_t at = 0; at < expected.size(); ++at)
        {
            EXPECT_THAT(outline[at], testing::Pointwise(testing::DoubleNear(1e-5), expected[at]))
                << "point " << at;
        }
    }

    int32_t Element = TARVEX_NONE;
    vtkActor* Actor = nullptr;
};
