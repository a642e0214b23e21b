// Cubes, cylinders and polyhedra from inside: their handles lie on what is drawn, dragging them
// does what it should, and the active element of a view is the drag target.
#include "elements3d/CElement_Draggable.h"
#include "frame/CWindowManager.h"
#include "frame/Forwarders.h"
#include "interaction3d/MyDefaultInteractorStyle.h"
#include "support/ViewFixture.h"

#include <vtkActorCollection.h>
#include <vtkMatrix4x4.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>

#include <functional>
#include <vector>

namespace
{
class ResizeHandles : public ViewFixture
{
protected:
    ResizeHandles()
    {
        const auto find = [this](CWindow& view)
        {
            View = &view;
            return STATUS_OK;
        };
        CWindowManager::Instance->Call<CWindow>(Id, find);
    }
    // Length 2 in x, 4 in y, 6 in z.
    int32_t AddCube(double angle = 0) const
    {
        int32_t id = TARVEX_NONE;
        Tarvex_Element_Add_Cube(Id, 0, 0, 0, 2, 4, 6, angle, 1, &id);
        return id;
    }
    // Of radius 2.
    int32_t AddCylinder() const
    {
        int32_t id = TARVEX_NONE;
        Tarvex_Element_Add_Cylinder(Id, 0, 0, 0, 0, 0, 10, 2, &id);
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
    std::vector<Vector3> Handles(int32_t id) const
    {
        const CElement_Draggable& element = Get(id);
        EXPECT_EQ(Get(id).ShowHandles(true, 0.05), STATUS_OK);
        std::vector<Vector3> handles;
        for (int32_t at = 0; at < element.GetHandleActors()->GetNumberOfItems(); ++at)
        {
            handles.push_back(
                {element.GetHandleX()[at], element.GetHandleY()[at], element.GetHandleZ()[at]});
        }
        return handles;
    }
    // The points of the newest actor as they are drawn, in host coordinates.
    std::vector<Vector3> DrawnPoints() const
    {
        vtkActor* actor = View->GetRenderer()->GetActors()->GetLastActor();
        actor->GetMapper()->Update();
        vtkPolyData* data = vtkPolyDataMapper::SafeDownCast(actor->GetMapper())->GetInput();
        std::vector<Vector3> points;
        for (vtkIdType point = 0; point < data->GetNumberOfPoints(); ++point)
        {
            double world[4] = {0.0, 0.0, 0.0, 1.0};
            data->GetPoint(point, world);
            actor->GetMatrix()->MultiplyPoint(world, world);
            points.push_back({world[0], -world[1], world[2]});
        }
        return points;
    }
    int CountActors() const { return View->GetRenderer()->GetActors()->GetNumberOfItems(); }

    static void ExpectNear(const std::vector<Vector3>& values, const std::vector<Vector3>& expected)
    {
        ASSERT_EQ(values.size(), expected.size());
        for (size_t at = 0; at < 3 * values.size(); ++at)
        {
            EXPECT_NEAR(values[at / 3][at % 3], expected[at / 3][at % 3], 1e-6) << at;
        }
    }
    // Centre and lengths in x and y.
    void ExpectCube(int32_t id, const std::array<double, 4>& box) const
    {
        double v[7] = {};
        Tarvex_Element_Cube_GetValue(Id, id, &v[0], &v[1], &v[2], &v[3], &v[4], &v[5], &v[6]);
        ExpectNear({{v[0], v[1], v[2]}, {v[3], v[4], v[5]}},
                   {{box[0], box[1], 0}, {box[2], box[3], 6}});
    }

    CWindow* View = nullptr;
};

TEST_F(ResizeHandles, LieOnTheDrawnCorners)
{
    for (const double angle : {0.0, 30.0})
    {
        const int32_t id = AddCube(angle);
        std::vector<Vector3> expected = {{0, 0, -3}, {0, 0, 3}};
        const std::vector<Vector3> drawn = DrawnPoints();
        expected.insert(expected.end(), drawn.begin(), drawn.end());
        ExpectNear(Handles(id), expected);
    }
    const int32_t id = AddPolyhedron();
    std::vector<Vector3> expected = DrawnPoints();
    expected.push_back({1, 1, -2});
    expected.push_back({1, 1, 2});
    ExpectNear(Handles(id), expected);
}

TEST_F(ResizeHandles, MoveOrResizeACube)
{
    struct Case
    {
        double Angle;
        int32_t Handle;
        double ToX, ToY;
        std::array<double, 4> Expected;
    };
    const Case cases[] = {{0, 2, -3, -4, {-1, -1, 4, 6}}, // opposite at (1, 2)
                          {0, 9, -1, 6, {0, 2, 2, 8}},    // opposite at (1, -2)
                          {90, 2, 6, -3, {2, -1, 4, 8}},  // opposite at (-2, 1)
                          {90, 1, 7, 8, {7, 8, 2, 4}}};
    for (const Case& drag : cases)
    {
        const int32_t id = AddCube(drag.Angle);
        EXPECT_EQ(Get(id).MoveHandle(drag.Handle, drag.ToX, drag.ToY, 99), STATUS_OK);
        ExpectCube(id, drag.Expected);
        EXPECT_EQ(Get(id).MoveHandle(10, 0, 0, 0), STATUS_OUT_OF_RANGE);
    }
    // A corner dragged across its opposite one, (1, 2), keeps that until the drag ends.
    const int32_t id = AddCube();
    for (const double step : {0.0, 1.0, 2.0, 4.0})
    {
        EXPECT_EQ(Get(id).MoveHandle(2, step, step, 0), STATUS_OK);
    }
    ExpectCube(id, {2.5, 3, 3, 2});
    Get(id).EndDrag();
    EXPECT_EQ(Get(id).MoveHandle(2, 0, 0, 0), STATUS_OK); // now against (4, 4)
    ExpectCube(id, {2, 2, 4, 4});
}

TEST_F(ResizeHandles, MoveOrResizeACylinder)
{
    const int32_t id = AddCylinder();
    EXPECT_EQ(Get(id).MoveHandle(1, 1, 2, 3), STATUS_OK);  // the end, so all of it
    EXPECT_EQ(Get(id).MoveHandle(6, 1, 2, -3), STATUS_OK); // a rim, by the distance from the end
    double v[7] = {};
    Tarvex_Element_Cylinder_GetValue(Id, id, &v[0], &v[1], &v[2], &v[3], &v[4], &v[5], &v[6]);
    ExpectNear({{v[0], v[1], v[2]}, {v[3], v[4], v[5]}, {v[6], 0, 0}},
               {{1, 2, -7}, {1, 2, 3}, {6, 0, 0}});
}

TEST_F(ResizeHandles, MoveAPointOrAllOfAPolyhedron)
{
    const int32_t id = AddPolyhedron();
    EXPECT_EQ(Get(id).MoveHandle(1, 5, 6, -1), STATUS_OK);
    EXPECT_EQ(Get(id).MoveHandle(5, 1, 3, 2), STATUS_OK);
    const std::vector<Vector3> expected = {{0, 0, -2}, {5, 6, -1}, {1, 3, -2},      {0, 0, 2},
                                           {5, 6, 3},  {1, 3, 2},  {2, 3, -5. / 3}, {2, 3, 7. / 3}};
    ExpectNear(Handles(id), expected);
}

TEST_F(ResizeHandles, OfTheActiveElementAreTheDragTargetUntilItIsNotActive)
{
    const int32_t cube = AddCube();
    const int32_t point = AddPoint(0, 0, 0);
    const int without = CountActors();
    struct Case
    {
        std::function<int32_t()> Leave;
        int32_t Status;
    };
    const Case cases[] = {
        {[&] { return Tarvex_Window_SetActiveElement(Id, -1); }, STATUS_OK},
        {[&] { return Tarvex_Window_SetActiveElement(Id, 99); }, STATUS_BAD_INDEX},
        {[&] { return Tarvex_Window_SetActiveElement(Id, point); }, STATUS_OK},
        {[&] { return Tarvex_Element_Remove(Id, cube); }, STATUS_OK}};
    for (const Case& way : cases)
    {
        SCOPED_TRACE(&way - cases);
        const auto& target = View->GetDefaultStyle()->GetDragTarget();
        ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, cube), STATUS_OK);
        EXPECT_EQ(target.Actors, Get(cube).GetHandleActors());
        EXPECT_EQ(target.X, Get(cube).GetHandleX());
        EXPECT_EQ(CountActors(), without + 10);
        // Hidden while the element is, back with it.
        Tarvex_Element_Show(Id, cube, 0);
        EXPECT_EQ(CountActors(), without - 1);
        Tarvex_Element_Show(Id, cube, 1);
        EXPECT_EQ(CountActors(), without + 10);
        EXPECT_EQ(way.Leave(), way.Status);
        EXPECT_FALSE(target.Actors || target.X || target.Y || target.Z || target.Forward);
        EXPECT_LE(CountActors(), without);
    }
}

TEST_F(ResizeHandles, ADragReachesTheElementAndItsEndTheHost)
{
    static int calls;
    calls = 0;
    const int32_t cube = AddCube();
    Tarvex_Window_RegisterCallback_ElementDragged(Id, [](int32_t, int32_t element)
                                                  { calls += element == 0 ? 1 : 100; });
    ForwardDrag(Id, 0, 1, 2, 3, true); // nothing is active
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, cube), STATUS_OK);
    ForwardDrag(Id, 0, 4, 5, 6, false);
    ForwardDrag(Id, 10, 9, 9, 9, true); // no such handle
    EXPECT_EQ(calls, 0);
    ForwardDrag(Id, MyDragInteractorStyle::NoHandle, 0, 0, 0, true);
    EXPECT_EQ(calls, 1);
    ExpectCube(cube, {4, 5, 2, 4});
}
} // namespace
