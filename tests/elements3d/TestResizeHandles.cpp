// The handles of all classes that have them: statuses, their life in the scene, and the active
// element of a view with its drag target.
#include "elements3d/SolidView.h"

#include "frame/Forwarders.h"
#include "interaction3d/MyDefaultInteractorStyle.h"

#include <vtkPropPicker.h>
#include <vtkProperty.h>

namespace
{
class ResizeHandles : public SolidView
{
protected:
    ResizeHandles()
    {
        Elements = {AddCube(2, 2), AddCylinder({0, 0, 0}, {0, 0, 10}, 2), AddPolyhedron()};
    }

    void Invalidate()
    {
        Tarvex_Element_Cube_SetValue(Id, Elements[0], NaN, 0, 0, 1, 1, 1, 0);
        Tarvex_Element_Cylinder_SetValue(Id, Elements[1], NaN, 0, 0, 0, 0, 10, 2);
        Tarvex_Element_Polyhedron_ChangePoint(Id, Elements[2], 0, NaN, 0, 0);
    }
    void MakeValid()
    {
        const double x[] = {0, 3, 0, 1};
        const double y[] = {0, 0, 3, 1};
        Tarvex_Element_Cube_SetValue(Id, Elements[0], 0, 0, 0, 1, 1, 1, 0);
        Tarvex_Element_Cylinder_SetValue(Id, Elements[1], 0, 0, 0, 0, 0, 10, 2);
        Tarvex_Element_Polyhedron_SetValue(Id, Elements[2], 4, x, y, y, 0, 0, 1, 2);
    }
    // The styles know exactly the handles of the active element.
    void ExpectTarget(int32_t elementId) const
    {
        int32_t active = 99;
        EXPECT_EQ(Tarvex_Window_GetActiveElement(Id, &active), STATUS_OK);
        EXPECT_EQ(active, elementId);
        const auto& target = View->GetDefaultStyle()->GetDragTarget();
        if (elementId < 0)
        {
            EXPECT_FALSE(target.Actors || target.X || target.Y || target.Z || target.Forward);
            return;
        }
        EXPECT_EQ(target.Actors, Get(elementId).GetHandleActors());
        EXPECT_EQ(target.X, Get(elementId).GetHandleX());
        EXPECT_EQ(target.Y, Get(elementId).GetHandleY());
        EXPECT_EQ(target.Z, Get(elementId).GetHandleZ());
        EXPECT_EQ(target.Forward, &ForwardDrag);
    }
    size_t SeenActors() const
    {
        size_t seen = 0;
        for (vtkActor* actor : ActorsInScene())
        {
            seen += actor->GetVisibility() ? 1 : 0;
        }
        return seen;
    }

    static constexpr size_t BodyActors = 5; // a box, a tube with two rims, a wire model
    std::array<int32_t, 3> Elements = {};
};
TEST_F(ResizeHandles, StatusesOfShowingAndMoving)
{
    const int32_t last[] = {9, 9, 7};
    for (size_t at = 0; at < 3; ++at)
    {
        SCOPED_TRACE(Elements[at]);
        CElement_Draggable& element = Get(Elements[at]);
        EXPECT_EQ(element.ShowHandles(true, 1e-11), STATUS_TOO_SMALL);
        EXPECT_EQ(element.GetHandleActors(), nullptr);
        EXPECT_EQ(element.ShowHandles(true, 1e-10), STATUS_OK);
        EXPECT_NE(element.GetHandleX(), nullptr);
        EXPECT_EQ(element.MoveHandle(last[at] + 1, 0, 0, 0), STATUS_OUT_OF_RANGE);
        EXPECT_EQ(element.MoveHandle(-1, 0, 0, 0), STATUS_OUT_OF_RANGE);
        EXPECT_EQ(element.MoveHandle(last[at], 1, 2, 3), STATUS_OK);
    }
    Invalidate();
    for (size_t at = 0; at < 3; ++at)
    {
        SCOPED_TRACE(Elements[at]);
        CElement_Draggable& element = Get(Elements[at]);
        const bool cube = at == 0;
        EXPECT_EQ(element.GetHandleActors(), nullptr);
        EXPECT_EQ(element.GetHandleZ(), nullptr);
        EXPECT_EQ(element.MoveHandle(0, 0, 0, 0), STATUS_INVALID_VALUES);
        EXPECT_EQ(element.MoveHandle(99, 0, 0, 0), STATUS_INVALID_VALUES);
        EXPECT_EQ(element.ShowHandles(true, 1e-11),
                  cube ? STATUS_TOO_SMALL : STATUS_INVALID_VALUES);
        EXPECT_EQ(element.ShowHandles(true, 0.05), STATUS_INVALID_VALUES);
        EXPECT_EQ(element.ShowHandles(false, 0.05), cube ? STATUS_OK : STATUS_INVALID_VALUES);
    }
    // What was refused leaves nothing that comes back with good values.
    MakeValid();
    EXPECT_EQ(ActorsInScene().size(), BodyActors);
}

TEST_F(ResizeHandles, LieMirroredInTheSceneAndArePickedAsTheirNumber)
{
    Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP);
    CElement_Draggable& cube = Get(Elements[0]);
    Tarvex_Element_Cube_SetValue(Id, Elements[0], 20, 10, 0, 4, 2, 1, 0);
    Tarvex_Element_SetColor(Id, Elements[0], 255, 0, 51);
    ASSERT_EQ(cube.ShowHandles(true, 0.5), STATUS_OK);
    Tarvex_Window_Camera_AutoSize(Id);
    vtkRenderer* renderer = View->GetRenderer();
    const vtkNew<vtkPropPicker> picker;
    for (int32_t handle = 6; handle < 10; ++handle) // the corners of the top
    {
        renderer->SetWorldPoint(cube.GetHandleX()[handle], -cube.GetHandleY()[handle],
                                cube.GetHandleZ()[handle], 1.0);
        renderer->WorldToDisplay();
        const double* pixel = renderer->GetDisplayPoint();
        ASSERT_EQ(picker->PickProp(pixel[0], pixel[1], renderer), 1);
        auto* actor = vtkActor::SafeDownCast(picker->GetViewProp());
        EXPECT_EQ(cube.GetHandleActors()->IsItemPresent(actor), handle + 1);
        EXPECT_EQ(actor->GetProperty()->GetColor()[2], 0.2);
        EXPECT_EQ(actor->GetProperty()->GetAmbient(), 1.0);
        EXPECT_EQ(actor->GetProperty()->GetDiffuse(), 0.0);
        EXPECT_NEAR(actor->GetBounds()[1] - actor->GetBounds()[0], 1.0, 0.01);
    }
    // The colour follows at once, the opacity with the next change of the geometry.
    vtkProperty* look = cube.GetHandleActors()->GetLastActor()->GetProperty();
    Tarvex_Element_SetColor(Id, Elements[0], 0, 255, 0);
    EXPECT_EQ(look->GetColor()[1], 1.0);
    Tarvex_Element_SetTransparency(Id, Elements[0], 0.25);
    Tarvex_Element_Cube_SetValue(Id, Elements[0], 20, 10, 0, 4, 2, 1, 0);
    EXPECT_EQ(look->GetOpacity(), 0.75);
}

TEST_F(ResizeHandles, KeepTheirAddressesWhateverTheNumberOfPoints)
{
    CElement_Draggable& element = Get(Elements[2]);
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, Elements[2]), STATUS_OK);
    for (int32_t count = 4; count <= 250; ++count)
    {
        ASSERT_EQ(Tarvex_Element_Polyhedron_InsertPoint(Id, Elements[2], 3, count, 0, 0),
                  STATUS_OK);
    }
    EXPECT_EQ(Tarvex_Element_Polyhedron_InsertPoint(Id, Elements[2], 0, 0, 0, 0),
              STATUS_OUT_OF_RANGE);
    ExpectTarget(Elements[2]);
    EXPECT_EQ(element.GetHandleActors()->GetNumberOfItems(), 502);
    EXPECT_EQ(ActorsInScene().size(), BodyActors + 502);
    MakeValid();
    ExpectTarget(Elements[2]);
    EXPECT_EQ(element.GetHandleActors()->GetNumberOfItems(), 10);
    EXPECT_EQ(ActorsInScene().size(), BodyActors + 10);
}

TEST_F(ResizeHandles, HideWhileTheElementIsInvalidOrOutOfTheScene)
{
    const double tooLarge = 1e31;
    for (const int32_t id : Elements)
    {
        SCOPED_TRACE(id);
        MakeValid();
        ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, id), STATUS_OK);
        ASSERT_EQ(SeenActors(), BodyActors + 10);
        Tarvex_Element_Show(Id, id, 0);
        EXPECT_LT(ActorsInScene().size(), BodyActors);
        Tarvex_Element_Show(Id, id, 1);
        EXPECT_EQ(SeenActors(), BodyActors + 10);
        Invalidate();
        EXPECT_EQ(SeenActors(), 0U);
        MakeValid();
        EXPECT_EQ(SeenActors(), BodyActors + 10);
        ASSERT_EQ(Get(id).MoveHandle(0, tooLarge, tooLarge, 0), STATUS_OK);
        EXPECT_TRUE(Get(id).HasValidValues());
        EXPECT_LT(SeenActors(), BodyActors);
        // It stops being active while it cannot be seen.
        Invalidate();
        ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, -1), STATUS_OK);
        MakeValid();
        EXPECT_EQ(ActorsInScene().size(), BodyActors);
    }
}

TEST_F(ResizeHandles, EveryWayOutOfActiveClearsTheDragTarget)
{
    int32_t point = -1;
    ASSERT_EQ(Tarvex_Element_Add_Point(Id, 0, 0, 0, &point), STATUS_OK);
    ExpectTarget(-1);
    struct Case
    {
        std::function<int32_t()> Leave;
        int32_t Status;
        int32_t Next;
    };
    const Case cases[] = {
        {[&] { return Tarvex_Window_SetActiveElement(Id, -1); }, STATUS_OK, -1},
        {[&] { return Tarvex_Window_SetActiveElement(Id, -7); }, STATUS_OK, -1},
        {[&] { return Tarvex_Window_SetActiveElement(Id, 99); }, STATUS_BAD_INDEX, -1},
        {[&] { return Tarvex_Window_SetActiveElement(Id, point); }, STATUS_OK, -1},
        {[&] { return Tarvex_Window_SetActiveElement(Id, Elements[1]); }, STATUS_OK, Elements[1]},
        {[&] { return Tarvex_Window_SetActiveElement(Id, Elements[0]); }, STATUS_OK, Elements[0]},
        {[&] { return Tarvex_Element_Remove(Id, Elements[0]); }, STATUS_OK, -1},
    };
    for (const Case& way : cases)
    {
        SCOPED_TRACE(&way - cases);
        ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, Elements[0]), STATUS_OK);
        ExpectTarget(Elements[0]);
        EXPECT_EQ(way.Leave(), way.Status);
        ExpectTarget(way.Next);
    }
    EXPECT_EQ(ActorsInScene().size(), BodyActors - 1 + 1); // without the cube, with the point
    Tarvex_Element_Cylinder_SetValue(Id, Elements[1], NaN, 0, 0, 0, 0, 0, 0);
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, Elements[2]), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_SetActiveElement(Id, Elements[1]), STATUS_OK);
    ExpectTarget(-1);
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, Elements[2]), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_RemoveAll(Id), STATUS_OK);
    ExpectTarget(-1);
    EXPECT_TRUE(ActorsInScene().empty());
}

TEST_F(ResizeHandles, ADragReachesTheElementAndItsEndTheHost)
{
    static int calls;
    static int32_t draggedId;
    calls = 0;
    Tarvex_Window_RegisterCallback_ElementDragged(Id,
                                                  [](int32_t, int32_t elementId)
                                                  {
                                                      ++calls;
                                                      draggedId = elementId;
                                                  });
    ForwardDrag(Id, 0, 1, 2, 3, true); // nothing is active
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, Elements[0]), STATUS_OK);
    ForwardDrag(Id, 0, 1, 2, 3, false);
    ForwardDrag(Id, 0, 4, 5, 6, false);
    ForwardDrag(Id, 10, 4, 5, 6, true); // no such handle
    EXPECT_EQ(calls, 0);
    ForwardDrag(Id, CWindow::NoHandle, 0, 0, 0, true);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(draggedId, Elements[0]);
    double v[7] = {};
    Tarvex_Element_Cube_GetValue(Id, Elements[0], &v[0], &v[1], &v[2], &v[3], &v[4], &v[5], &v[6]);
    EXPECT_EQ(v[0], 4.0);
    EXPECT_EQ(v[1], 5.0);
    // An end is the end: the next drag of the same corner starts from its new opposite one.
    ForwardDrag(Id, 2, 9, 9, 0, true); // across (5, 6)
    ForwardDrag(Id, 2, 4, 4, 0, true); // handle 2 was the corner at (5, 6): now against (9, 9)
    Tarvex_Element_Cube_GetValue(Id, Elements[0], &v[0], &v[1], &v[2], &v[3], &v[4], &v[5], &v[6]);
    EXPECT_NEAR(v[0], 6.5, 1e-12);
    EXPECT_NEAR(v[3], 5.0, 1e-12);
    EXPECT_EQ(calls, 3);
    ForwardDrag(Id + 100, 0, 0, 0, 0, true);
    EXPECT_EQ(calls, 3);
}
} // namespace
