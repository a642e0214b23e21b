// What most tests start from: a host's window with one view in it, and calls by their names with
// lists of numbers, so that cases fit into tables.
#pragma once

#include "support/Functions.h"
#include "support/Picture.h"
#include "support/TestHost.h"

#include <gmock/gmock.h>

#include <limits>

inline bool IsLit(const Picture::Color& color)
{
    return color != Picture::Color{0, 0, 0};
}

inline auto Near(const Numbers& expected, double tolerance = 1e-6)
{
    return testing::Pointwise(testing::NanSensitiveDoubleNear(tolerance), expected);
}

// A host's window, and calls on a view in it. The names of functions come without "Tarvex_".
class HostFixture : public testing::Test
{
protected:
    HostFixture(decltype(Tarvex_Window_Create) create, int width, int height) : Host(width, height)
    {
        EXPECT_EQ(create(Host.Handle(), 1, 0, 0, width, height, &Id), STATUS_OK);
    }

    // What follows the id of the view: numbers, and arrays of four, in the order of the parameters;
    // 7 or nothing after the last.
    int32_t Do(const std::string& name, Numbers given, Numbers* outputs = nullptr) const
    {
        given.insert(given.begin(), Id);
        Call call = MakeCall("Tarvex_" + name, {});
        call.OutputLength = 16;
        size_t at = 0;
        for (const Role role : call.Called->Roles)
        {
            Numbers& target = IsInput(role) ? call.Inputs.emplace_back() : call.Scalars;
            for (int count = role == Role::Output ? 0 : IsInput(role) ? 4 : 1; count > 0; --count)
            {
                const bool isNumber = role != Role::Name && role != Role::Callback;
                target.push_back(at < given.size() ? given[at++] : isNumber ? 7 : 0);
            }
        }
        const int32_t status = call.Perform();
        for (const Numbers& output : call.Outputs)
        {
            outputs ? outputs->push_back(output[0]) : void();
        }
        return status;
    }
    int32_t Do(const std::string& name, int32_t element, Numbers given) const
    {
        given.insert(given.begin(), element);
        return Do(name, given);
    }
    // Of each output the first number.
    Numbers Read(const std::string& name, int32_t element = TARVEX_NONE) const
    {
        Numbers outputs;
        EXPECT_EQ(Do(name, {static_cast<double>(element)}, &outputs), STATUS_OK) << name;
        return outputs;
    }
    int32_t Add(const std::string& name, const Numbers& given) const
    {
        Numbers id;
        EXPECT_EQ(Do(name, given, &id), STATUS_OK) << name;
        return static_cast<int32_t>(id.at(0));
    }

    static constexpr int Pixels = 200; // width and height of the view
    static constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    static constexpr double Infinity = std::numeric_limits<double>::infinity();

    TestHost Host;
    int32_t Id = TARVEX_NONE;
};

// With a 3D view.
class ViewFixture : public HostFixture
{
protected:
    explicit ViewFixture(int width = Pixels, int height = Pixels)
        : HostFixture(Tarvex_Window_Create, width, height)
    {
    }
    ~ViewFixture() override { Tarvex_Window_Delete(Id); }

    int32_t AddPoint(double x, double y, double z, double size = 0.3) const
    {
        const int32_t point = Add("Element_Add_Point", {x, y, z});
        EXPECT_EQ(Tarvex_Element_SetSize(Id, point, size), STATUS_OK);
        return point;
    }
    int32_t AddLine(double x, double y, double z, double dx, double dy, double dz) const
    {
        return Add("Element_Add_Line", {x, y, z, dx, dy, dz});
    }
    // The camera 100 units over the origin, whatever the scene holds, looking down: the picture is
    // about 53.6 units high there.
    void LookDown() const
    {
        EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_SetPosition(Id, 0, 0, 100), STATUS_OK);
    }
    int CountLit() const { return TakePicture(Id).Count(IsLit); }
};

// With a chart view.
class ChartFixture : public HostFixture
{
protected:
    explicit ChartFixture(int width = Pixels, int height = Pixels)
        : HostFixture(Tarvex_Window2D_Create, width, height)
    {
    }
    ~ChartFixture() override { Tarvex_Window2D_Delete(Id); }
};
