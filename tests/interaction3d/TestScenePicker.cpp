// The picker of one pixel beside VTK's own.
#include "interaction3d/CScenePicker.h"
#include "view3d/InsideScene.h"

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

class ScenePicker : public InsideScene
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
        AddPoint(3, 3, 4, 2);
        const int32_t glass = Add("Element_Add_Cube", {12, 8, 4, 6, 6, 6, 0, 1});
        Tarvex_Element_SetTransparency(Id, glass, 0.6);
        Tarvex_Element_SetTransparency(Id, AddPoint(20, 14, 4, 3), 1.0);
        Tarvex_Element_Show(Id, AddPoint(22, 4, 4, 3), 0);
        AddLine(0, 0, 6, 1, 1, 0);
        Tarvex_Window_ScalarBar_Add(Id, surface);
    }
};
} // namespace

TEST_F(ScenePicker, FindsWhatVtkFindsAndLeavesThePictureAlone)
{
    const Numbers directions[] = {
        {0.1, 0, -1, 0, 0, 1}, {1, 2, -1.5, 0, 0, 1}, {-2, 1, -1, 0, 0, 1}};
    for (const Numbers& direction : directions)
    {
        SCOPED_TRACE(testing::PrintToString(direction));
        const bool isParallel = direction[0] < 0;
        ASSERT_EQ(Tarvex_Window_Camera_EnableParallelProjection(Id, isParallel), STATUS_OK);
        ASSERT_EQ(Do("Window_Camera_SetViewDirection", direction), STATUS_OK);
        ASSERT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        const Picture before = TakePicture(Id);
        struct Found
        {
            int X, Y;
            vtkProp* Prop;
            Vector3 Position;
        };
        std::vector<Found> found;
        CScenePicker picker;
        for (int at = 0; at < 900; ++at)
        {
            const int x = at % 30 * 7 - 4;
            const int y = at / 30 * 7 - 3;
            picker.Forget();
            const Vector3 position = picker.Pick(Renderer(), x, y);
            found.push_back({x, y, picker.GetProp(), position});
        }
        for (const bool rendered : {false, true})
        {
            EXPECT_EQ(TakePicture(Id).CountDifferences(before), 0) << rendered;
            EXPECT_EQ(Host.TakeScreen(NativeOf(Id)).CountDifferences(before), 0) << rendered;
            Render();
        }

        int hits = 0;
        const vtkNew<vtkPropPicker> stock;
        for (const Found& ours : found)
        {
            SCOPED_TRACE(testing::Message() << ours.X << ", " << ours.Y);
            hits += stock->PickProp(ours.X, ours.Y, Renderer());
            EXPECT_EQ(ours.Prop, stock->GetViewProp());
            EXPECT_LE(Distance(ours.Position, stock->GetPickPosition()),
                      DepthStep(Renderer(), ours.Position));
        }
        EXPECT_GT(hits, 100);
    }
}
