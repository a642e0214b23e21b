// Tube, rims and handles of a cylinder against its axis, and what dragging does.
#include "elements3d/SolidView.h"

#include <vtkMath.h>
#include <vtkProperty.h>

#include <algorithm>
#include <cmath>

namespace
{
class Cylinder : public SolidView
{
protected:
    // The three actors of the newest cylinder: the two rims, then the tube.
    std::array<vtkActor*, 3> Parts() const
    {
        const std::vector<vtkActor*> all = ActorsInScene();
        return {all[all.size() - 3], all[all.size() - 2], all[all.size() - 1]};
    }
};

TEST_F(Cylinder, TubeRimsAndHandlesLieAroundTheAxisForEveryDirection)
{
    constexpr double radius = 0.5;
    const Vector3 first = {1, 2, 3};
    const Vector3 directions[] = {{0, 0, 10}, {0, -10, 0}, {-1, 0, 0},
                                  {3, 4, 5},  {9, 2, -1},  {1e-3, 0, 1e-3}};
    for (const Vector3& direction : directions)
    {
        SCOPED_TRACE(testing::PrintToString(direction));
        const double length = vtkMath::Norm(direction.data());
        const auto expectOnCylinder = [&](const Vector3& point, double height, double tolerance)
        {
            const Vector3 from = {point[0] - first[0], point[1] - first[1], point[2] - first[2]};
            const double along = vtkMath::Dot(from.data(), direction.data()) / length;
            const double square = vtkMath::Dot(from.data(), from.data()) - along * along;
            EXPECT_NEAR(std::sqrt(std::max(square, 0.0)), radius, tolerance);
            // NaN: at either end.
            const double end = along < length / 2 ? 0.0 : length;
            EXPECT_NEAR(along, std::isnan(height) ? end : height, tolerance);
        };
        const Vector3 second = {1 + direction[0], 2 + direction[1], 3 + direction[2]};
        const int32_t id = AddCylinder(first, second, radius);
        const auto [rim, otherRim, tube] = Parts();
        EXPECT_EQ(DrawnPoints(rim).size(), 100U);
        std::ranges::for_each(DrawnPoints(rim),
                              [&](const Vector3& point) { expectOnCylinder(point, 0.0, 1e-5); });
        std::ranges::for_each(DrawnPoints(otherRim),
                              [&](const Vector3& point) { expectOnCylinder(point, length, 1e-5); });
        std::ranges::for_each(DrawnPoints(tube),
                              [&](const Vector3& point) { expectOnCylinder(point, NaN, 1e-5); });
        // A mirroring frame would turn the faces inside out.
        EXPECT_GT(tube->GetMatrix()->Determinant(), 0.5);

        const std::vector<Vector3> handles = Handles(id);
        ASSERT_EQ(handles.size(), 10U);
        ExpectNear({handles[0], handles[1]}, {first, second});
        for (size_t handle = 2; handle < 10; ++handle)
        {
            expectOnCylinder(handles[handle], handle < 6 ? 0.0 : length, 1e-9);
            const size_t next = handle % 4 == 1 ? handle - 3 : handle + 1;
            EXPECT_NEAR(
                vtkMath::Distance2BetweenPoints(handles[handle].data(), handles[next].data()),
                2 * radius * radius, 1e-9);
        }
        Tarvex_Element_Remove(Id, id);
    }
}

TEST_F(Cylinder, HandlesFollowTheirRuleForTheDirectionAcross)
{
    struct Case
    {
        Vector3 End, Handle2, Handle3;
    };
    const Case cases[] = {{{0, 0, 10}, {2, 0, 0}, {0, 2, 0}},
                          {{0, -10, 0}, {0, 0, 2}, {-2, 0, 0}},
                          {{10, 0, 0}, {0, 2, 0}, {0, 0, 2}}};
    for (const Case& axis : cases)
    {
        const std::vector<Vector3> handles = Handles(AddCylinder({0, 0, 0}, axis.End, 2));
        ExpectNear({handles[2], handles[3]}, {axis.Handle2, axis.Handle3});
    }
}

TEST_F(Cylinder, DraggingMovesTheWholeOrChangesTheRadius)
{
    struct Case
    {
        int32_t Handle;
        Vector3 To, First, Second;
        double Radius;
    };
    const Case cases[] = {
        {0, {1, 2, 3}, {1, 2, 3}, {1, 2, 13}, 2}, {1, {1, 2, 3}, {1, 2, -7}, {1, 2, 3}, 2},
        {3, {0, 7, 0}, {0, 0, 0}, {0, 0, 10}, 7}, {5, {3, 0, 4}, {0, 0, 0}, {0, 0, 10}, 5},
        {6, {0, 0, 6}, {0, 0, 0}, {0, 0, 10}, 4}, {9, {6, 0, 2}, {0, 0, 0}, {0, 0, 10}, 10}};
    for (const Case& drag : cases)
    {
        SCOPED_TRACE(drag.Handle);
        const int32_t id = AddCylinder({0, 0, 0}, {0, 0, 10}, 2);
        ASSERT_EQ(Get(id).MoveHandle(drag.Handle, drag.To[0], drag.To[1], drag.To[2]), STATUS_OK);
        Vector3 first = {};
        Vector3 second = {};
        Vector3 radius = {};
        Tarvex_Element_Cylinder_GetValue(Id, id, &first[0], &first[1], &first[2], &second[0],
                                         &second[1], &second[2], radius.data());
        ExpectNear({first, second, radius}, {drag.First, drag.Second, {drag.Radius, 0, 0}});
        ExpectNear({Handles(id)[0], Handles(id)[1]}, {drag.First, drag.Second});
    }
}

TEST_F(Cylinder, ColourAndSizeReachAllThreePartsTransparencyAndLightingTheTubeOnly)
{
    const int32_t id = AddCylinder({0, 0, 0}, {0, 0, 10}, 2);
    ASSERT_EQ(Tarvex_Element_SetColor(Id, id, 255, 0, 51), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_SetSize(Id, id, 3.0), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_SetTransparency(Id, id, 0.5), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_SetLighting(Id, id, 0.1, 0.2, 0.3, 4.0), STATUS_OK);
    for (vtkActor* part : Parts())
    {
        vtkProperty* look = part->GetProperty();
        const bool tube = part == Parts()[2];
        EXPECT_EQ(look->GetColor()[2], 0.2);
        EXPECT_EQ(look->GetLineWidth(), 3.0F);
        EXPECT_EQ(look->GetOpacity(), tube ? 0.5 : 1.0);
        EXPECT_EQ(look->GetAmbient(), tube ? 0.1 : 1.0);
        EXPECT_EQ(look->GetDiffuse(), tube ? 0.2 : 1.0);
        EXPECT_EQ(look->GetSpecular(), tube ? 0.3 : 0.0);
    }
    ASSERT_EQ(Tarvex_Element_Cylinder_SetValue(Id, id, 1, 1, 1, 1, 1, 1, 2), STATUS_OK);
    for (vtkActor* part : Parts())
    {
        EXPECT_FALSE(part->GetVisibility() || part->GetUseBounds());
    }
    Tarvex_Element_Show(Id, id, 0);
    EXPECT_TRUE(ActorsInScene().empty());
}
} // namespace
