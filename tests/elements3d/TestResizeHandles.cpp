// Cubes, cylinders and polyhedra from inside: dragging their handles does what it should, and the
// active element of a view is the drag target.
#include "elements3d/CElement_Draggable.h"
#include "elements3d/ShapeView.h"
#include "interaction3d/MyDefaultInteractorStyle.h"

namespace
{
class ResizeHandles : public ShapeView
{
protected:
    CElement_Draggable& Get() const
    {
        return dynamic_cast<CElement_Draggable&>(*View().FindElement(Element));
    }

    const Numbers Cube = {0, 0, 0, 2, 4, 6, 0};
};

TEST_F(ResizeHandles, MoveOrResizeTheirShape)
{
    const Numbers turned = {0, 0, 0, 2, 4, 6, 90};
    const Numbers cylinder = {0, 0, 0, 0, 0, 10, 2};
    // A handle, where it is dragged, and what the shape tells then.
    const std::tuple<std::string, Numbers, int32_t, HostPoint, Numbers> cases[] = {
        {"Cube", Cube, 2, {-3, -4, 99}, {-1, -1, 0, 4, 6, 6, 0}},  // opposite at (1, 2)
        {"Cube", Cube, 9, {-1, 6, 99}, {0, 2, 0, 2, 8, 6, 0}},     // opposite at (1, -2)
        {"Cube", turned, 2, {6, -3, 99}, {2, -1, 0, 4, 8, 6, 90}}, // opposite at (-2, 1)
        {"Cube", turned, 1, {7, 8, 99}, {7, 8, 0, 2, 4, 6, 90}},
        // The end moves all of it, a rim resizes it by the distance from its end.
        {"Cylinder", cylinder, 1, {1, 2, 3}, {1, 2, -7, 1, 2, 3, 2}},
        {"Cylinder", cylinder, 6, {0, 0, 4}, {0, 0, 0, 0, 0, 10, 6}}};
    for (const auto& [type, given, handle, to, expected] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(expected));
        AddNew("Element_Add_" + type, given);
        EXPECT_EQ(Get().MoveHandle(handle, to[0], to[1], to[2]), STATUS_OK);
        EXPECT_THAT(Read("Element_" + type + "_GetValue", Element), Near(expected));
        EXPECT_EQ(Get().MoveHandle(10, 0, 0, 0), STATUS_OUT_OF_RANGE);
    }
}

TEST_F(ResizeHandles, KeepTheCornerOppositeToThemUntilTheDragEnds)
{
    AddNew("Element_Add_Cube", Cube);
    // Across the opposite corner, (1, 2).
    for (const double step : {0.0, 1.0, 2.0, 4.0})
    {
        EXPECT_EQ(Get().MoveHandle(2, step, step, 0), STATUS_OK);
    }
    EXPECT_EQ(Read("Element_Cube_GetValue", Element), (Numbers{2.5, 3, 0, 3, 2, 6, 0}));
    Get().EndDrag();
    EXPECT_EQ(Get().MoveHandle(2, 0, 0, 0), STATUS_OK); // now against (4, 4)
    EXPECT_EQ(Read("Element_Cube_GetValue", Element), (Numbers{2, 2, 0, 4, 4, 6, 0}));
}

TEST_F(ResizeHandles, MoveAPointOrAllOfAPolyhedron)
{
    // A triangle at z = 0, swept from -2 to 2.
    AddNew("Element_Add_Polyhedron", {3, 0, 3, 0, 0, 0, 0, 3, 0, 0, 0, 0, 0, 0, 0, 2, 4});
    EXPECT_EQ(Get().MoveHandle(1, 5, 6, -1), STATUS_OK);
    EXPECT_EQ(Get().MoveHandle(5, 1, 3, 2), STATUS_OK);
    EXPECT_EQ(Get().MoveHandle(7, 4, 4, 10 / 3.), STATUS_OK); // the mean of the upper ones
    const std::vector<HostPoint> p = {{2, 1, -1}, {7, 7, 0}, {3, 4, -1},
                                      {2, 1, 3},  {7, 7, 4}, {3, 4, 3}};
    // The rings, then up and down the sides.
    ExpectOutline({p[0], p[1], p[2], p[0], p[3], p[4], p[5], p[3], p[4], p[1], p[2], p[5]});
}

TEST_F(ResizeHandles, AreHiddenWithTheActiveElementAndGoWithIt)
{
    AddNew("Element_Add_Cube", Cube);
    const int without = CountActors();
    for (const int32_t next : {TARVEX_NONE, 99})
    {
        ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, Element), STATUS_OK);
        for (const uint8_t shown : {1, 0, 1})
        {
            Tarvex_Element_Show(Id, Element, shown);
            EXPECT_EQ(CountActors(), shown ? without + 10 : without - 1);
        }
        Tarvex_Window_SetActiveElement(Id, next);
        const auto& target = View().GetDefaultStyle()->GetDragTarget();
        EXPECT_FALSE(target.Actors || target.X || target.Y || target.Z || target.Forward);
        EXPECT_EQ(CountActors(), without);
    }
}

TEST_F(ResizeHandles, FollowTheColorAndThePointsOfTheirShape)
{
    AddNew("Element_Add_Polyhedron", {4, -1, 1, 1, -1, -1, -1, 1, 1, 0, 0, 0, 0, 0, 0, 1, 1});
    LookDown();
    Tarvex_Window_Camera_SetPosition(Id, 0, 0, 12);
    const int without = CountActors();
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, Element), STATUS_OK);
    EXPECT_EQ(CountActors(), without + 10);
    Set("Element_Polyhedron_RemovePoint", {1});
    EXPECT_EQ(CountActors(), without + 8);
    const auto isWhite = [](const Picture::Color& color) { return color[1] > 0; };
    EXPECT_GT(TakePicture(Id).Count(isWhite), 0);
    Tarvex_Element_SetColor(Id, Element, 255, 0, 0);
    EXPECT_EQ(TakePicture(Id).Count(isWhite), 0);
    EXPECT_GT(CountLit(), 0);
}
} // namespace
