// Cubes, cylinders and polyhedra from inside: their handles lie on what is drawn, dragging them
// does what it should, and the active element of a view is the drag target.
#include "elements3d/CElement_Draggable.h"
#include "elements3d/ShapeView.h"
#include "interaction3d/MyDefaultInteractorStyle.h"
#include "platform/Inside.h"

namespace
{
class ResizeHandles : public ShapeView
{
protected:
    ResizeHandles()
    {
        Inside(Id, [this](CWindow& view) { View = &view; });
    }
    CElement_Draggable& Get() const
    {
        return dynamic_cast<CElement_Draggable&>(*View->FindElement(Element));
    }
    std::vector<HostPoint> Handles() const
    {
        const CElement_Draggable& element = Get();
        EXPECT_EQ(Get().ShowHandles(true, 0.05), STATUS_OK);
        std::vector<HostPoint> handles;
        for (int32_t at = 0; at < element.GetHandleActors()->GetNumberOfItems(); ++at)
        {
            handles.push_back(
                {element.GetHandleX()[at], element.GetHandleY()[at], element.GetHandleZ()[at]});
        }
        return handles;
    }
    int CountActors() const { return View->GetRenderer()->GetActors()->GetNumberOfItems(); }

    const Numbers Cube = {0, 0, 0, 2, 4, 6, 0};
    const Numbers TurnedCube = {0, 0, 0, 2, 4, 6, 90};
    const Numbers Cylinder = {0, 0, 0, 0, 0, 10, 2};
    // A triangle at z = 0, swept from -2 to 2.
    const Numbers Polyhedron = {3, 0, 3, 0, 0, 0, 0, 3, 0, 0, 0, 0, 0, 0, 0, 2, 4};
    CWindow* View = nullptr;
};

TEST_F(ResizeHandles, LieOnTheDrawnCorners)
{
    // Those handles that are no corners, and the place of the first.
    const std::tuple<Export, Numbers, std::vector<HostPoint>, int> cases[] = {
        {Tarvex_Element_Add_Cube, Cube, {{0, 0, -3}, {0, 0, 3}}, 0},
        {Tarvex_Element_Add_Cube, {0, 0, 0, 2, 4, 6, 30}, {{0, 0, -3}, {0, 0, 3}}, 0},
        {Tarvex_Element_Add_Polyhedron, Polyhedron, {{1, 1, -2}, {1, 1, 2}}, 6}};
    for (const auto& [add, given, others, place] : cases)
    {
        AddNew(add, given);
        std::vector<HostPoint> expected = DrawnPoints();
        expected.insert(expected.begin() + place, others.begin(), others.end());
        ExpectNear(Handles(), expected);
    }
}

TEST_F(ResizeHandles, MoveOrResizeTheirShape)
{
    // A handle, where it is dragged, and what the shape tells then.
    const std::tuple<Export, Numbers, int32_t, HostPoint, Export, Numbers> cases[] = {
        {Tarvex_Element_Add_Cube,
         Cube,
         2,
         {-3, -4, 99},
         Tarvex_Element_Cube_GetValue,
         {-1, -1, 0, 4, 6, 6, 0}}, // opposite at (1, 2)
        {Tarvex_Element_Add_Cube,
         Cube,
         9,
         {-1, 6, 99},
         Tarvex_Element_Cube_GetValue,
         {0, 2, 0, 2, 8, 6, 0}}, // opposite at (1, -2)
        {Tarvex_Element_Add_Cube,
         TurnedCube,
         2,
         {6, -3, 99},
         Tarvex_Element_Cube_GetValue,
         {2, -1, 0, 4, 8, 6, 90}}, // opposite at (-2, 1)
        {Tarvex_Element_Add_Cube,
         TurnedCube,
         1,
         {7, 8, 99},
         Tarvex_Element_Cube_GetValue,
         {7, 8, 0, 2, 4, 6, 90}},
        // The end moves all of it, a rim resizes it by the distance from its end.
        {Tarvex_Element_Add_Cylinder,
         Cylinder,
         1,
         {1, 2, 3},
         Tarvex_Element_Cylinder_GetValue,
         {1, 2, -7, 1, 2, 3, 2}},
        {Tarvex_Element_Add_Cylinder,
         Cylinder,
         6,
         {0, 0, 4},
         Tarvex_Element_Cylinder_GetValue,
         {0, 0, 0, 0, 0, 10, 6}}};
    for (const auto& [add, given, handle, to, get, expected] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(expected));
        AddNew(add, given);
        EXPECT_EQ(Get().MoveHandle(handle, to[0], to[1], to[2]), STATUS_OK);
        EXPECT_THAT(Read(get, Element), testing::Pointwise(testing::DoubleNear(1e-6), expected));
        EXPECT_EQ(Get().MoveHandle(10, 0, 0, 0), STATUS_OUT_OF_RANGE);
    }
}

TEST_F(ResizeHandles, KeepTheCornerOppositeToThemUntilTheDragEnds)
{
    AddNew(Tarvex_Element_Add_Cube, Cube);
    // Across the opposite corner, (1, 2).
    for (const double step : {0.0, 1.0, 2.0, 4.0})
    {
        EXPECT_EQ(Get().MoveHandle(2, step, step, 0), STATUS_OK);
    }
    EXPECT_EQ(Read(Tarvex_Element_Cube_GetValue, Element), (Numbers{2.5, 3, 0, 3, 2, 6, 0}));
    Get().EndDrag();
    EXPECT_EQ(Get().MoveHandle(2, 0, 0, 0), STATUS_OK); // now against (4, 4)
    EXPECT_EQ(Read(Tarvex_Element_Cube_GetValue, Element), (Numbers{2, 2, 0, 4, 4, 6, 0}));
}

TEST_F(ResizeHandles, MoveAPointOrAllOfAPolyhedron)
{
    AddNew(Tarvex_Element_Add_Polyhedron, Polyhedron);
    EXPECT_EQ(Get().MoveHandle(1, 5, 6, -1), STATUS_OK);
    EXPECT_EQ(Get().MoveHandle(5, 1, 3, 2), STATUS_OK);
    ExpectNear(Handles(), {{0, 0, -2},
                           {5, 6, -1},
                           {1, 3, -2},
                           {0, 0, 2},
                           {5, 6, 3},
                           {1, 3, 2},
                           {2, 3, -5. / 3},
                           {2, 3, 7. / 3}});
}

TEST_F(ResizeHandles, AreHiddenWithTheActiveElementAndGoWithIt)
{
    const int32_t point = AddPoint(0, 0, 0);
    AddNew(Tarvex_Element_Add_Cube, Cube);
    const int without = CountActors();
    for (const auto& [next, status] :
         {std::pair(TARVEX_NONE, STATUS_OK), {99, STATUS_BAD_INDEX}, {point, STATUS_OK}})
    {
        ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, Element), STATUS_OK);
        EXPECT_EQ(Read(Tarvex_Window_GetActiveElement), Numbers{static_cast<double>(Element)});
        for (const uint8_t shown : {1, 0, 1})
        {
            Tarvex_Element_Show(Id, Element, shown);
            EXPECT_EQ(CountActors(), shown ? without + 10 : without - 1);
        }
        EXPECT_EQ(Tarvex_Window_SetActiveElement(Id, next), status);
        EXPECT_EQ(Read(Tarvex_Window_GetActiveElement), Numbers{TARVEX_NONE});
        const auto& target = View->GetDefaultStyle()->GetDragTarget();
        EXPECT_FALSE(target.Actors || target.X || target.Y || target.Z || target.Forward);
        EXPECT_EQ(CountActors(), without);
    }
}
} // namespace
