// What the mouse does to a 3D view: hover, handles, and hosts that do anything while they hear of
// it.
#include "elements3d/CElement_Draggable.h"
#include "support/MouseFixture.h"

#include <vtkTextActor.h>

namespace
{
class MouseStyles : public MouseFixture<SceneKind>
{
protected:
    int32_t AddActive(const std::string& add, const Numbers& values) const
    {
        // Near enough for handles of a few pixels.
        LookDown();
        EXPECT_EQ(Tarvex_Window_Camera_SetPosition(Id, 0, 0, 12), STATUS_OK);
        return MouseFixture::AddActive(add, values);
    }
    int32_t AddActiveCube(double x = 0) const
    {
        return AddActive("Element_Add_Cube", {x, 0, 0, 1, 1, 1, 0, 1});
    }
    // Where a host position is seen, from the upper left corner.
    Pixel PixelOf(const Vector3& host) const
    {
        Renderer()->SetWorldPoint(host[0], -host[1], host[2], 1.0);
        Renderer()->WorldToDisplay();
        const double* display = Renderer()->GetDisplayPoint();
        return {static_cast<int>(std::lround(display[0])),
                Pixels - 1 - static_cast<int>(std::lround(display[1]))};
    }
    // Of a cube, in the middle of its upper face.
    Vector3 HandleAt(int32_t element, int32_t handle = 1) const
    {
        const auto* shape = dynamic_cast<CElement_Draggable*>(View().FindElement(element));
        return {shape->GetHandleX()[handle], shape->GetHandleY()[handle],
                shape->GetHandleZ()[handle]};
    }
    void DragCube(int32_t cube)
    {
        const Pixel from = PixelOf(HandleAt(cube));
        Drag(1, from, {from.X + 20, from.Y + 10}, 5);
    }
    double CubeX(int32_t cube) const { return Read("Element_Cube_GetValue", cube)[0]; }
};
} // namespace

TEST_F(MouseStyles, DragAHandleOfEachKindByAsMuchAsTheMouseWithEachPress)
{
    const std::tuple<std::string, Numbers, int32_t> cases[] = {
        {"Element_Add_Cube", {0.5, 0, 0, 2, 1, 2, 0, 1}, 1},
        {"Element_Add_Cube", {0.5, 0, 0, 2, 1, 2, 30, 1}, 6},
        {"Element_Add_Cylinder", {0, 0, -1, 0, 0, 1, 0.5}, 1},
        {"Element_Add_Polyhedron", {3, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1, 2}, 1}};
    for (const auto& way : cases)
    {
        SCOPED_TRACE(&way - cases);
        const auto& [add, values, handle] = way;
        const int32_t element = AddActive(add, values);
        const Vector3 before = HandleAt(element, handle);
        const Pixel from = PixelOf(before);
        heard.clear();
        MoveTo(from);
        Click(1);
        Press(1); // without a move between
        MoveTo({from.X + 24, from.Y - 12});
        Release(1);
        const Vector3 after = HandleAt(element, handle);
        EXPECT_EQ(PixelOf(after).X, from.X + 24);
        EXPECT_EQ(PixelOf(after).Y, from.Y - 12);
        EXPECT_EQ(after[2], before[2]);
        EXPECT_EQ(heard, Told('d') + Told('d'));
        EXPECT_EQ(lastElement, element);
        EXPECT_EQ(Tarvex_Element_Remove(Id, element), STATUS_OK);
    }
}

TEST_F(MouseStyles, ShowWhatTheyHoverOver)
{
    const int32_t cube = AddActive("Element_Add_Cube", {0, 0, 0.5, 3, 3, 1, 0, 0});
    const auto cursorAt = [&](const Pixel& at)
    {
        MoveTo(at);
        return Host.TakeCursor();
    };
    RenderCounter renders(Id);
    const Pixel handle = PixelOf(HandleAt(cube));
    const auto arrow = cursorAt({3, 3});
    EXPECT_NE(cursorAt(handle), arrow);
    EXPECT_EQ(cursorAt({handle.X + 10, handle.Y}), arrow);
    EXPECT_EQ(renders.Count, 0);

    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, -1), STATUS_OK);
    ASSERT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 1), STATUS_OK);
    const Picture plain = TakePicture(Id);
    const int actors = CountActors();
    for (const Vector3& host : {Vector3{0.7, 0.6, 1.0}, Vector3{-0.4, 0.3, 1.0}})
    {
        const Pixel at = PixelOf(host);
        renders.Count = 0;
        MoveTo(at);
        EXPECT_EQ(renders.Count, 1);
        Numbers read(3);
        ASSERT_EQ(std::sscanf(View().GetPickTextActor()->GetInput(), "X: %lf Y: %lf Z: %lf",
                              &read[0], &read[1], &read[2]),
                  3);
        EXPECT_THAT(read, Near({host.begin(), host.end()}, 0.04));
        EXPECT_EQ(CountActors(), actors + 1);
        EXPECT_NE(TakePicture(Id).At(at.X, at.Y), plain.At(at.X, at.Y));
    }
    renders.Count = 0;
    MoveTo({3, 150});
    MoveTo({5, 150});
    EXPECT_EQ(renders.Count, 1); // nothing has changed with the second move
    EXPECT_EQ(CountActors(), actors);
    EXPECT_STREQ(View().GetPickTextActor()->GetInput(), "X:\nY:\nZ:");
}

TEST_F(MouseStyles, EndADragWhereTheHandleWasSeenLast)
{
    const int32_t cube = AddActiveCube();
    const Pixel from = PixelOf(HandleAt(cube));
    // Out of the window: nothing is there to be met.
    Drag(1, from, {-8, from.Y}, 4);
    EXPECT_EQ(heard, Told('d'));
    const double left = CubeX(cube);
    EXPECT_LT(left, -1.0);
    EXPECT_EQ(PixelOf(HandleAt(cube)).X, from.X + 3 * (-8 - from.X) / 4);

    // Above the horizon the plane of the drag is never met.
    heard.clear();
    ASSERT_EQ(Tarvex_Window_Camera_SetViewDirection(Id, 0, 1, 0, 0, 0, 1), STATUS_OK);
    ASSERT_EQ(Tarvex_Window_Camera_SetPosition(Id, left, -12, 1.0), STATUS_OK);
    const Vector3 before = HandleAt(cube);
    const Pixel seen = PixelOf(before);
    Drag(1, seen, {seen.X, 60}, 1);
    EXPECT_EQ(heard, Told('d'));
    EXPECT_EQ(HandleAt(cube), before);
}

TEST_F(MouseStyles, DropADragWhenItsTargetGoes)
{
    const int32_t other = AddActiveCube(1.5);
    const std::function<void(int32_t)> cases[] = {
        [&](int32_t) { Tarvex_Window_SetActiveElement(Id, -1); },
        [&](int32_t) { Tarvex_Window_SetActiveElement(Id, other); },
        [&](int32_t cube) { Tarvex_Element_Remove(Id, cube); },
        [&](int32_t) { Tarvex_Window_EnableInteraction(Id, 0); },
        [&](int32_t) { Tarvex_Window_EnableMouseInteraction(Id, 1, 1, 1); }};
    for (const auto& act : cases)
    {
        SCOPED_TRACE(&act - cases);
        const int32_t cube = AddActiveCube(-0.5);
        heard.clear();
        const Pixel from = PixelOf(HandleAt(cube));
        const int actors = CountActors();
        Begin({from, {from.X + 5, from.Y}});
        EXPECT_EQ(CountActors(), actors + 1);
        EXPECT_GT(CubeX(cube), -0.5);
        act(cube);
        EXPECT_LE(CountActors(), actors);
        const Picture before = TakePicture(Id);
        MoveTo({from.X + 15, from.Y + 8});
        Release(1);
        MoveTo({from.X + 40, from.Y});
        EXPECT_EQ(heard, "");
        EXPECT_EQ(TakePicture(Id).CountDifferences(before), 0);
        Tarvex_Window_EnableInteraction(Id, 1);
        Tarvex_Element_Remove(Id, cube);
    }
}

TEST_F(MouseStyles, LetTheHostDoAnythingWhenAnElementWasDragged)
{
    LetTheHostAnswer('d',
                     [this]
                     {
                         Other = AddActiveCube(1.5);
                         DragCube(AddActiveCube(-0.5));
                     });
}

TEST_F(MouseStyles, DragHandlesOnlyBetweenDrawingGestures)
{
    const int32_t cube = AddActiveCube();
    ASSERT_EQ(Tarvex_Window_SetDrawMode(Id, TARVEX_DRAW_POLYHEDRON), STATUS_OK);
    DragCube(cube);
    EXPECT_EQ(heard, Told('d'));
    EXPECT_EQ(CountElements(), 1);
    const double x = CubeX(cube);
    Draw({{60, 140}, PixelOf(HandleAt(cube)), {140, 150}});
    EXPECT_EQ(Read("Element_Polyhedron_GetPointCount", cube + 1), Numbers{3});
    EXPECT_EQ(heard, Told('d') + Told('a'));
    EXPECT_EQ(CubeX(cube), x);
}
