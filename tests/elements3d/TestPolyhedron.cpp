// Corners, edges and handles of a polyhedron, and what dragging them does.
#include "elements3d/SolidView.h"

#include <vtkCell.h>

#include <set>

namespace
{
class Polyhedron : public SolidView
{
};

TEST_F(Polyhedron, HandlesAreBothRingsAndTheirMeans)
{
    const int32_t id = AddPolyhedron();
    std::vector<Vector3> positions = {{0, 0, -2}, {3, 0, -2}, {0, 3, -2},
                                      {0, 0, 2},  {3, 0, 2},  {0, 3, 2}};
    ExpectNear(DrawnPoints(ActorsInScene().back()), positions, 1e-6);
    positions.push_back({1, 1, -2});
    positions.push_back({1, 1, 2});
    ExpectNear(Handles(id), positions);
}

TEST_F(Polyhedron, TheLineWalksAllEdgesAndNothingElse)
{
    for (const int32_t count : {3, 4, 5, 250})
    {
        const std::vector<double> zeros(static_cast<size_t>(count), 0.0);
        int32_t id = TARVEX_NONE;
        ASSERT_EQ(Tarvex_Element_Add_Polyhedron(Id, count, zeros.data(), zeros.data(), zeros.data(),
                                                1, 0, 0, 1, &id),
                  STATUS_OK);
        vtkIdList* path = GeometryOf(ActorsInScene().back())->GetCell(0)->GetPointIds();
        std::set<std::set<vtkIdType>> edges;
        for (vtkIdType at = 1; at < path->GetNumberOfIds(); ++at)
        {
            const vtkIdType from = path->GetId(at - 1);
            const vtkIdType to = path->GetId(at);
            const vtkIdType step = (to - from + count) % count;
            const bool side = step == 0 && from != to;
            const bool onRing = from / count == to / count && (step == 1 || step == count - 1);
            EXPECT_TRUE(side || onRing) << from << " to " << to;
            edges.insert({from, to});
        }
        EXPECT_EQ(edges.size(), 3 * static_cast<size_t>(count)) << count << " points";
    }
}

TEST_F(Polyhedron, ARingHandleMovesItsPointAndAMeanTheWholeBody)
{
    struct Case
    {
        int32_t Handle;
        Vector3 To;
        std::vector<Vector3> Expected;
    };
    const Case cases[] = {{1, {5, 6, -1}, {{0, 0, 0}, {5, 6, 1}, {0, 3, 0}}},
                          {5, {1, 4, 2}, {{0, 0, 0}, {3, 0, 0}, {1, 4, 0}}},
                          {6, {2, 3, 0}, {{1, 2, 2}, {4, 2, 2}, {1, 5, 2}}},
                          {7, {1, 1, 0}, {{0, 0, -2}, {3, 0, -2}, {0, 3, -2}}}};
    for (const Case& drag : cases)
    {
        SCOPED_TRACE(drag.Handle);
        const int32_t id = AddPolyhedron();
        ASSERT_EQ(Get(id).MoveHandle(drag.Handle, drag.To[0], drag.To[1], drag.To[2]), STATUS_OK);
        Vector3 x = {};
        Vector3 y = {};
        Vector3 z = {};
        double axis[4] = {};
        Tarvex_Element_Polyhedron_GetValue(Id, id, x.data(), y.data(), z.data(), &axis[0], &axis[1],
                                           &axis[2], &axis[3]);
        ExpectNear({{x[0], y[0], z[0]}, {x[1], y[1], z[1]}, {x[2], y[2], z[2]}}, drag.Expected);
        ExpectNear({Handles(id)[static_cast<size_t>(drag.Handle)]}, {drag.To});
    }
}
} // namespace
