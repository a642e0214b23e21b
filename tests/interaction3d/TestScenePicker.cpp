// The picker of one pixel beside VTK's own.
#include "interaction3d/CScenePicker.h"
#include "view3d/InsideScene.h"

#include <vtkPropPicker.h>

#include <cmath>

using ScenePicker = InsideScene;

TEST_F(ScenePicker, FindsWhatVtkFindsAndLeavesThePictureAlone)
{
    std::vector<int16_t> heights(130 * 90);
    for (size_t at = 0; at < heights.size(); ++at)
    {
        const double height = 900 * std::sin(static_cast<double>(at % 130) / 9);
        heights[at] = at % 40 < 9 ? int16_t{TARVEX_INVALID_VALUE} : static_cast<int16_t>(height);
    }
    int32_t surface = -1;
    Tarvex_Element_Add_SurfaceUniform(Id, heights.data(), nullptr, 130, 90, 0.2, 0.2, 0.002, 0, 0,
                                      0, 0, &surface);
    AddPoint(3, 3, 4, 2);
    const int32_t glass = Add("Element_Add_Cube", {12, 8, 4, 6, 6, 6, 0, 1});
    Tarvex_Element_SetTransparency(Id, glass, 0.6);
    Tarvex_Element_SetTransparency(Id, AddPoint(20, 14, 4, 3), 1.0);
    Tarvex_Element_Show(Id, AddPoint(22, 4, 4, 3), 0);
    AddLine(0, 0, 6, 1, 1, 0);
    Tarvex_Window_ScalarBar_Add(Id, surface);
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
        const auto x = [](size_t at) { return static_cast<int>(at) % 30 * 7 - 4; };
        const auto y = [](size_t at) { return static_cast<int>(at) / 30 * 7 - 3; };
        std::vector<std::pair<vtkProp*, Vector3>> found;
        CScenePicker picker;
        while (found.size() < 900)
        {
            picker.Forget();
            const Vector3 position = picker.Pick(Renderer(), x(found.size()), y(found.size()));
            found.emplace_back(picker.GetProp(), position);
        }
        for (const bool rendered : {false, true})
        {
            EXPECT_EQ(TakePicture(Id).CountDifferences(before), 0) << rendered;
            EXPECT_EQ(Host.TakeScreen(NativeOf(Id)).CountDifferences(before), 0) << rendered;
            Render();
        }

        int hits = 0;
        const vtkNew<vtkPropPicker> stock;
        for (size_t at = 0; at < found.size(); ++at)
        {
            SCOPED_TRACE(testing::Message() << x(at) << ", " << y(at));
            hits += stock->PickProp(x(at), y(at), Renderer());
            EXPECT_EQ(found[at].first, stock->GetViewProp());
            const Numbers position(stock->GetPickPosition(), stock->GetPickPosition() + 3);
            EXPECT_THAT(found[at].second, Near(position, 1e-4)); // the rounding of depths
        }
        EXPECT_GT(hits, 100);
    }
}
