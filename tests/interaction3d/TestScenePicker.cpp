// The picker of one pixel beside VTK's own.
#include "interaction3d/CScenePicker.h"
#include "platform/Inside.h"
#include "support/ViewFixture.h"

#include <vtkActor.h>
#include <vtkMath.h>
#include <vtkPropPicker.h>

#include <cmath>

namespace
{
double Distance(const Vector3& left, const double* right)
{
    return std::sqrt(vtkMath::Distance2BetweenPoints(left.data(), right));
}

// How far apart two positions in one pixel are whose depths differ by the rounding of OpenGL.
double DepthStep(vtkRenderer* renderer, const Vector3& position)
{
    constexpr double step = 3.0 / (1 << 24);
    renderer->SetWorldPoint(position[0], position[1], position[2], 1.0);
    renderer->WorldToDisplay();
    const double depth = renderer->GetDisplayPoint()[2];
    return Distance(ToWorld(renderer, 0, 0, depth), ToWorld(renderer, 0, 0, depth + step).data());
}

class ScenePicker : public ViewFixture
{
protected:
    ScenePicker()
    {
        std::vector<int16_t> heights(130 * 90);
        for (size_t at = 0; at < heights.size(); ++at)
        {
            const auto column = static_cast<double>(at % 130);
            const auto row = static_cast<double>(at / 130);
            const bool missing = std::hypot(column - 40, row - 30) < 9;
            heights[at] = static_cast<int16_t>(missing ? -32768 : 900 * std::sin(column / 9));
        }
        int32_t surface = -1;
        Tarvex_Element_Add_SurfaceUniform(Id, heights.data(), nullptr, 130, 90, 0.2, 0.2, 0.002, 0,
                                          0, 0, 0, &surface);
        const int32_t point = AddPoint(3, 3, 4);
        Tarvex_Element_SetSize(Id, point, 2);
        const int32_t glass = Add(Tarvex_Element_Add_Cube, {1, 12, 8, 4, 6, 6, 6, 0, 0, 0});
        Tarvex_Element_SetTransparency(Id, glass, 0.6);
        const int32_t nothing = AddPoint(20, 14, 4);
        Tarvex_Element_SetSize(Id, nothing, 3);
        Tarvex_Element_SetTransparency(Id, nothing, 1.0);
        const int32_t hidden = AddPoint(22, 4, 4);
        Tarvex_Element_SetSize(Id, hidden, 3);
        Tarvex_Element_Show(Id, hidden, 0);
        AddLine(0, 0, 6, 1, 1, 0);
        Tarvex_Window_ScalarBar_Add(Id, surface);
    }
};
} // namespace

TEST_F(ScenePicker, FindsWhatVtkFindsAndLeavesThePictureAlone)
{
    const struct
    {
        bool Parallel;
        double Direction[3];
    } cameras[] = {{false, {0.1, 0, -1}}, {false, {1, 2, -1.5}}, {true, {-2, 1, -1}}};
    for (const auto& camera : cameras)
    {
        SCOPED_TRACE(&camera - cameras);
        const double* to = camera.Direction;
        ASSERT_EQ(Tarvex_Window_Camera_EnableParallelProjection(Id, camera.Parallel), STATUS_OK);
        ASSERT_EQ(Tarvex_Window_Camera_SetViewDirection(Id, to[0], to[1], to[2], 0, 0, 1),
                  STATUS_OK);
        ASSERT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        const Picture before = TakePicture(Id);
        vtkRenderer* renderer = ViewOf(Id).GetRenderer();
        struct Found
        {
            int X, Y;
            vtkProp* Prop;
            Vector3 Position;
        };
        std::vector<Found> found;
        CScenePicker picker;
        for (int y = -3; y <= Pixels + 3; y += 7)
        {
            for (int x = -4; x <= Pixels + 3; x += 7)
            {
                picker.Forget();
                const Vector3 position = picker.Pick(renderer, x, y);
                found.push_back({x, y, picker.GetProp(), position});
            }
        }
        for (const bool rendered : {false, true})
        {
            EXPECT_EQ(TakePicture(Id).CountDifferences(before), 0) << rendered;
            EXPECT_EQ(Host.TakeScreen(NativeOf(Id)).CountDifferences(before), 0) << rendered;
            ViewOf(Id).GetRenderWindow()->Render();
        }

        int hits = 0;
        const vtkNew<vtkPropPicker> stock;
        for (const Found& ours : found)
        {
            SCOPED_TRACE(testing::Message() << ours.X << ", " << ours.Y);
            hits += stock->PickProp(ours.X, ours.Y, renderer);
            EXPECT_EQ(ours.Prop, stock->GetViewProp());
            EXPECT_LE(Distance(ours.Position, stock->GetPickPosition()),
                      DepthStep(renderer, ours.Position));
        }
        EXPECT_GT(hits, 100);
    }
}
