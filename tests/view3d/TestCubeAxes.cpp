// What the scale frame shows: its Y labels against the places where they stand.
#include "view3d/CCubeAxesActor.h"
#include "view3d/InsideScene.h"

#include <vtkAxisFollower.h>

#include <cmath>
#include <cstdlib>

using CubeAxes = InsideScene;

TEST_F(CubeAxes, LabelsReadTheHostYOfTheirPlaceAfterEachChangeOfBoundsInEveryFlyMode)
{
    // Crossing zero, one-sided, large, small, and back again on the same actor.
    const double cases[][3] = {
        {-5, 25, 0.01}, {-3.5, -3, 0.001}, {-2.5e6, 1.5e6, 1e3}, {0, 1e-3, 1e-6}, {-5, 25, 0.01}};
    for (int32_t round = 0; round < 20; ++round)
    {
        const auto& [low, high, tolerance] = cases[round / 4];
        const double extent = high - low;
        Tarvex_Window_Cube_Add_Resize(Id, -1, 0, extent, low, high, 0, extent);
        // A later picture finds labels that are turned already.
        ASSERT_EQ(Tarvex_Window_Cube_FlyMode(Id, round % 5), STATUS_OK);
        Tarvex_Window_Camera_SetViewDirection(Id, -0.5, round % 3 - 0.7, -0.4, 0, 0, 1);
        ASSERT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        int count = 0;
        for (CInvertedAxisActor* axis : View().GetCubeAxes()->GetDrawnYAxes())
        {
            // Labels are in units of the exponent in the title.
            const std::string title = axis->GetTitle();
            const size_t power = title.find("x10^");
            const double unit =
                power == std::string::npos ? 1.0 : std::pow(10.0, std::atof(&title[power + 4]));
            for (int label = 0; label < axis->GetNumberOfLabelsBuilt(); ++label, ++count)
            {
                const double worldY = axis->GetLabelActors()[label]->GetPosition()[1];
                const std::string text = axis->GetLabelText(label);
                EXPECT_NEAR(std::atof(text.c_str()) * unit, -worldY, tolerance) << text << title;
                EXPECT_NE(text.substr(0, 2), "-0") << text;
            }
        }
        EXPECT_GE(count, 3) << "round " << round;
    }
}
