// What the scale frame shows: its Y labels against the places where they stand.
#include "frame/CWindowManager.h"
#include "support/TestHost.h"
#include "view3d/CCubeAxesActor.h"

#include <gtest/gtest.h>

#include <vtkAxisFollower.h>
#include <vtkProperty.h>
#include <vtkTextProperty.h>

#include <cmath>
#include <cstdlib>

namespace
{
class CubeAxes : public testing::Test
{
protected:
    CubeAxes()
    {
        EXPECT_EQ(Tarvex_Window_Create(Host.Handle(), 0, 0, 0, 400, 300, &Id), STATUS_OK);
    }
    ~CubeAxes() override { Tarvex_Window_Delete(Id); }

    CCubeAxesActor* Actor() const
    {
        CCubeAxesActor* actor = nullptr;
        CWindowManager::Instance->Call<CWindow>(Id,
                                                [&](const CWindow& view)
                                                {
                                                    actor = view.GetCubeAxes();
                                                    return STATUS_OK;
                                                });
        return actor;
    }

    // Each drawn Y label reads the host Y of its place, in units of the exponent in the title.
    // Returns how many labels there are.
    int CheckLabels(double tolerance) const
    {
        int count = 0;
        for (CInvertedAxisActor* axis : Actor()->GetDrawnYAxes())
        {
            const std::string title = axis->GetTitle();
            const size_t power = title.find("x10^");
            const double unit =
                power == std::string::npos ? 1.0 : std::pow(10.0, std::atof(&title[power + 4]));
            for (int label = 0; label < axis->GetNumberOfLabelsBuilt(); ++label, ++count)
            {
                const double worldY = axis->GetLabelActors()[label]->GetPosition()[1];
                const std::string text = axis->GetLabelText(label);
                EXPECT_NEAR(std::atof(text.c_str()) * unit, -worldY, tolerance)
                    << '"' << text << "\" under the title " << title;
                EXPECT_NE(text.substr(0, 2), "-0") << text;
            }
        }
        return count;
    }

    TestHost Host;
    int32_t Id = -1;
};
} // namespace

TEST_F(CubeAxes, LabelsReadHostYInEveryFlyModeFromEverySide)
{
    ASSERT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, 0, 40, -5, 25, 0, 12), STATUS_OK);
    const double directions[][3] = {{-0.5, 0.7, -0.5}, {0.6, 0.5, -0.3}, {0.3, -0.8, 0.4}};
    for (int32_t mode = TARVEX_FLY_OUTER_EDGES; mode <= TARVEX_FLY_STATIC_EDGES; ++mode)
    {
        ASSERT_EQ(Tarvex_Window_Cube_FlyMode(Id, mode), STATUS_OK);
        for (const double* direction : directions)
        {
            Tarvex_Window_Camera_SetViewDirection(Id, direction[0], direction[1], direction[2], 0,
                                                  0, 1);
            ASSERT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
            EXPECT_GE(CheckLabels(0.01), 4) << "fly mode " << mode;
        }
    }
}

TEST_F(CubeAxes, LabelsReadHostYAfterEachChangeOfBounds)
{
    struct Case
    {
        double Ymin;
        double Ymax;
        double Tolerance;
    };
    // Crossing zero, one-sided, fine, offset, large, and back again on the same actor.
    const Case cases[] = {
        {-5, 25, 0.01},  {3, 3.5, 0.001},      {-3.5, -3, 0.001},         {-2.5e6, 1.5e6, 1e3},
        {0, 1e-3, 1e-6}, {-2e-6, -1e-6, 1e-8}, {100000.0, 100010.0, 0.5}, {-40, 0, 0.01},
        {-5, 25, 0.01}};
    for (const Case& range : cases)
    {
        SCOPED_TRACE(testing::Message() << range.Ymin << " to " << range.Ymax);
        const double extent = range.Ymax - range.Ymin;
        ASSERT_EQ(
            Tarvex_Window_Cube_Add_Resize(Id, -1, 0, extent, range.Ymin, range.Ymax, 0, extent),
            STATUS_OK);
        Tarvex_Window_Camera_SetViewDirection(Id, -0.5, 0.7, -0.5, 0, 0, 1);
        ASSERT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        EXPECT_GE(CheckLabels(range.Tolerance), 3);
        // A second picture finds labels that are turned already.
        ASSERT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        EXPECT_GE(CheckLabels(range.Tolerance), 3);
    }
}

TEST_F(CubeAxes, ColoursAndSwitchesReachTheirPartOfTheirAxisOnly)
{
    ASSERT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, 0, 1, 0, 1, 0, 1), STATUS_OK);
    vtkCubeAxesActor* actor = Actor();
    ASSERT_EQ(Tarvex_Window_Cube_AxisColoring(Id, TARVEX_AXIS_Y, 3, 255, 0, 51), STATUS_OK);
    EXPECT_EQ(actor->GetYAxesLinesProperty()->GetColor()[2], 0.2);
    EXPECT_EQ(actor->GetXAxesLinesProperty()->GetColor()[2], 1.0);
    EXPECT_EQ(actor->GetYAxesGridlinesProperty()->GetColor()[2], 1.0);
    ASSERT_EQ(Tarvex_Window_Cube_AxisColoring(Id, TARVEX_AXIS_ALL, 5, 0, 255, 0), STATUS_OK);
    for (int axis = 0; axis < 3; ++axis)
    {
        EXPECT_EQ(actor->GetLabelTextProperty(axis)->GetColor()[0], 0.0);
        EXPECT_EQ(actor->GetTitleTextProperty(axis)->GetColor()[0], 1.0);
    }
    ASSERT_EQ(Tarvex_Window_Cube_Visibility(Id, TARVEX_AXIS_Z, 6, 1), STATUS_OK);
    EXPECT_TRUE(actor->GetDrawZGridpolys());
    EXPECT_FALSE(actor->GetDrawXGridpolys());
    // The interface counts the grid's places the other way round.
    const int places[] = {2, 1, 0};
    for (int32_t place = 0; place < 3; ++place)
    {
        ASSERT_EQ(Tarvex_Window_Cube_GridLineLocation(Id, place), STATUS_OK);
        EXPECT_EQ(actor->GetGridLineLocation(), places[place]);
    }
}
