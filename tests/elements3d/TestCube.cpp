// Corners and handles of a cube, and what dragging them does.
#include "elements3d/SolidView.h"

#include <vtkCell.h>

#include <set>

namespace
{
class Cube : public SolidView
{
protected:
    // Of a cube whose other values stay: centre z 0, length in z 6.
    struct Box
    {
        double X, Y, LengthX, LengthY, Angle;
    };
    void ExpectBox(int32_t id, const Box& expected) const
    {
        double z = NaN;
        double lengthZ = NaN;
        Box v = {};
        Tarvex_Element_Cube_GetValue(Id, id, &v.X, &v.Y, &z, &v.LengthX, &v.LengthY, &lengthZ,
                                     &v.Angle);
        ExpectNear({{v.X, v.Y, z}, {v.LengthX, v.LengthY, lengthZ}, {v.Angle, 0, 0}},
                   {{expected.X, expected.Y, 0},
                    {expected.LengthX, expected.LengthY, 6},
                    {expected.Angle, 0, 0}});
    }
};

TEST_F(Cube, HandlesAreBottomTopAndTheDrawnCorners)
{
    struct Case
    {
        double LengthX, LengthY, Angle;
        std::vector<std::array<double, 2>> Corners;
    };
    const Case cases[] = {{2, 4, 0, {{-1, -2}, {1, -2}, {1, 2}, {-1, 2}}},
                          {2, 4, 90, {{2, -1}, {2, 1}, {-2, 1}, {-2, -1}}},
                          {-2, 4, 0, {{1, -2}, {-1, -2}, {-1, 2}, {1, 2}}}};
    for (const Case& box : cases)
    {
        std::vector<Vector3> corners;
        for (const double z : {-3.0, 3.0})
        {
            for (const auto& [x, y] : box.Corners)
            {
                corners.push_back({x, y, z});
            }
        }
        std::vector<Vector3> handles = {{0, 0, -3}, {0, 0, 3}};
        handles.insert(handles.end(), corners.begin(), corners.end());
        for (const bool wireframe : {true, false})
        {
            const int32_t id = AddCube(box.LengthX, box.LengthY, box.Angle, wireframe);
            ExpectNear(DrawnPoints(ActorsInScene().back()), corners, 1e-6);
            ExpectNear(Handles(id), handles);
            Tarvex_Element_Remove(Id, id);
        }
    }
}

TEST_F(Cube, WiresAreTheTwelveEdgesAndFacesTheSixSides)
{
    AddCube(2, 4, 0, true);
    vtkPolyData* wires = GeometryOf(ActorsInScene().back());
    vtkIdList* path = wires->GetCell(0)->GetPointIds();
    std::set<std::set<vtkIdType>> edges;
    for (vtkIdType at = 1; at < path->GetNumberOfIds(); ++at)
    {
        double from[3] = {};
        double to[3] = {};
        wires->GetPoint(path->GetId(at - 1), from);
        wires->GetPoint(path->GetId(at), to);
        EXPECT_EQ((from[0] != to[0]) + (from[1] != to[1]) + (from[2] != to[2]), 1);
        edges.insert({path->GetId(at - 1), path->GetId(at)});
    }
    EXPECT_EQ(edges.size(), 12U);

    AddCube(2, 4, 0, false);
    std::set<std::array<double, 6>> sides;
    for (vtkIdType face = 0; face < 6; ++face)
    {
        std::array<double, 6> box = {};
        GeometryOf(ActorsInScene().back())->GetCell(face)->GetBounds(box.data());
        EXPECT_EQ((box[0] == box[1]) + (box[2] == box[3]) + (box[4] == box[5]), 1);
        sides.insert(box);
    }
    EXPECT_EQ(sides.size(), 6U);
}

TEST_F(Cube, ADraggedCornerLeavesTheOppositeOneWhereItIs)
{
    struct Case
    {
        double Angle;
        int32_t Handle;
        double ToX, ToY;
        Box Expected;
    };
    const Case cases[] = {
        {0, 2, -3, -4, {-1, -1, 4, 6, 0}}, // opposite at (1, 2)
        {0, 3, 5, -2, {2, 0, 6, 4, 0}},    // opposite at (-1, 2)
        {0, 8, 2, 3, {0.5, 0.5, 3, 5, 0}}, // opposite at (-1, -2)
        {0, 9, -1, 6, {0, 2, 2, 8, 0}},    // opposite at (1, -2)
        {90, 2, 6, -3, {2, -1, 4, 8, 90}}, // opposite at (-2, 1)
        {0, 0, 7, 8, {7, 8, 2, 4, 0}},     {90, 1, 7, 8, {7, 8, 2, 4, 90}},
    };
    for (const Case& drag : cases)
    {
        SCOPED_TRACE(testing::Message() << "handle " << drag.Handle << ", angle " << drag.Angle);
        const int32_t id = AddCube(2, 4, drag.Angle);
        EXPECT_EQ(Get(id).MoveHandle(drag.Handle, drag.ToX, drag.ToY, 99), STATUS_OK);
        ExpectBox(id, drag.Expected);
    }
}

TEST_F(Cube, ACornerDraggedAcrossItsOppositeKeepsItUntilTheDragEnds)
{
    const int32_t id = AddCube(2, 2);
    CElement_Draggable& cube = Get(id);
    for (const double step : {0.0, 1.0, 2.0, 4.0})
    {
        ASSERT_EQ(cube.MoveHandle(2, step, step, 0), STATUS_OK);
    }
    ExpectBox(id, {2.5, 2.5, 3, 3, 0});
    // Grabbed again, handle 2 is the corner at (1, 1) and its opposite the one at (4, 4).
    cube.EndDrag();
    ASSERT_EQ(cube.MoveHandle(2, 0, 0, 0), STATUS_OK);
    ExpectBox(id, {2, 2, 4, 4, 0});
    // New values from the host in the middle of a drag count at once.
    ASSERT_EQ(Tarvex_Element_Cube_SetValue(Id, id, 10, 10, 0, 2, 2, 6, 0), STATUS_OK);
    ASSERT_EQ(cube.MoveHandle(2, 7, 7, 0), STATUS_OK);
    ExpectBox(id, {9, 9, 4, 4, 0});
}
} // namespace
