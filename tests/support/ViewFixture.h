// What most tests start from: a host's window with one 3D view in it.
#pragma once

#include "Tarvex.h"
#include "support/Picture.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <limits>

class ViewFixture : public testing::Test
{
protected:
    ViewFixture()
    {
        EXPECT_EQ(Tarvex_Window_Create(Host.Handle(), 1, 0, 0, Pixels, Pixels, &Id), STATUS_OK);
    }
    ~ViewFixture() override { Tarvex_Window_Delete(Id); }

    // The camera 100 units over the origin, whatever the scene holds, looking down: the picture is
    // about 53.6 units high there.
    void LookDown() const
    {
        EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_SetPosition(Id, 0, 0, 100), STATUS_OK);
    }
    int32_t AddPoint(double x, double y, double z) const
    {
        int32_t element = TARVEX_NONE;
        EXPECT_EQ(Tarvex_Element_Add_Point(Id, x, y, z, &element), STATUS_OK);
        return element;
    }
    int32_t AddLine(double x, double y, double z, double dx, double dy, double dz) const
    {
        int32_t element = TARVEX_NONE;
        EXPECT_EQ(Tarvex_Element_Add_Line(Id, x, y, z, dx, dy, dz, &element), STATUS_OK);
        return element;
    }
    bool IsValid(int32_t element) const
    {
        uint8_t valid = 2;
        EXPECT_EQ(Tarvex_Element_HasValidValues(Id, element, &valid), STATUS_OK);
        EXPECT_LE(valid, 1);
        return valid == 1;
    }

    static constexpr int Pixels = 200; // width and height of the view
    static constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

    TestHost Host{Pixels, Pixels};
    int32_t Id = TARVEX_NONE;
};

inline bool IsLit(const Picture::Color& color)
{
    return color != Picture::Color{0, 0, 0};
}
