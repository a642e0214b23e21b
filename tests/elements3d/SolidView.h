// A view with elements that have handles, reached from inside.
#pragma once

#include "elements3d/CElement_Draggable.h"
#include "frame/CWindowManager.h"
#include "support/ViewFixture.h"

#include <vtkActorCollection.h>
#include <vtkMatrix4x4.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>

#include <vector>

class SolidView : public ViewFixture
{
protected:
    SolidView()
    {
        CWindowManager::Instance->Call<CWindow>(Id,
                                                [&](CWindow& view)
                                                {
                                                    View = &view;
                                                    return STATUS_OK;
                                                });
    }

    int32_t AddCube(double lengthX, double lengthY, double angle = 0, bool wireframe = true) const
    {
        int32_t id = TARVEX_NONE;
        Tarvex_Element_Add_Cube(Id, 0, 0, 0, lengthX, lengthY, 6, angle, wireframe, &id);
        return id;
    }
    int32_t AddCylinder(const Vector3& first, const Vector3& second, double radius) const
    {
        int32_t id = TARVEX_NONE;
        Tarvex_Element_Add_Cylinder(Id, first[0], first[1], first[2], second[0], second[1],
                                    second[2], radius, &id);
        return id;
    }
    // A triangle at z = 0, swept from -2 to 2.
    int32_t AddPolyhedron() const
    {
        const double x[] = {0, 3, 0};
        const double y[] = {0, 0, 3};
        const double z[] = {0, 0, 0};
        int32_t id = TARVEX_NONE;
        Tarvex_Element_Add_Polyhedron(Id, 3, x, y, z, 0, 0, 2, 4, &id);
        return id;
    }

    CElement_Draggable& Get(int32_t id) const
    {
        return dynamic_cast<CElement_Draggable&>(*View->FindElement(id));
    }

    // Switches the handles on and reads their positions.
    std::vector<Vector3> Handles(int32_t id) const
    {
        CElement_Draggable& element = Get(id);
        EXPECT_EQ(element.ShowHandles(true, 0.05), STATUS_OK);
        std::vector<Vector3> handles;
        for (int32_t at = 0; at < element.GetHandleActors()->GetNumberOfItems(); ++at)
        {
            handles.push_back(
                {element.GetHandleX()[at], element.GetHandleY()[at], element.GetHandleZ()[at]});
        }
        return handles;
    }

    std::vector<vtkActor*> ActorsInScene() const
    {
        std::vector<vtkActor*> actors;
        vtkActorCollection* all = View->GetRenderer()->GetActors();
        vtkCollectionSimpleIterator at = nullptr;
        all->InitTraversal(at);
        while (vtkActor* actor = all->GetNextActor(at))
        {
            actors.push_back(actor);
        }
        return actors;
    }
    static vtkPolyData* GeometryOf(vtkActor* actor)
    {
        actor->GetMapper()->Update();
        return vtkPolyDataMapper::SafeDownCast(actor->GetMapper())->GetInput();
    }
    // The points of an actor as they are drawn, in host coordinates.
    static std::vector<Vector3> DrawnPoints(vtkActor* actor)
    {
        std::vector<Vector3> points;
        for (vtkIdType point = 0; point < GeometryOf(actor)->GetNumberOfPoints(); ++point)
        {
            double world[4] = {0.0, 0.0, 0.0, 1.0};
            GeometryOf(actor)->GetPoint(point, world);
            actor->GetMatrix()->MultiplyPoint(world, world);
            points.push_back({world[0], -world[1], world[2]});
        }
        return points;
    }

    static void ExpectNear(const std::vector<Vector3>& values, const std::vector<Vector3>& expected,
                           double tolerance = 1e-12)
    {
        ASSERT_EQ(values.size(), expected.size());
        for (size_t at = 0; at < 3 * values.size(); ++at)
        {
            EXPECT_NEAR(values[at / 3][at % 3], expected[at / 3][at % 3], tolerance)
                << "position " << at / 3 << ", axis " << at % 3;
        }
    }

    CWindow* View = nullptr;
};
