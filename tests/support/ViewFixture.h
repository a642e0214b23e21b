// What most tests start from: a host's window with one view in it, and calls with lists of
// numbers, so that cases fit into tables.
#pragma once

#include "Tarvex.h"
#include "support/Picture.h"
#include "support/TestHost.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

using Numbers = std::vector<double>;

// One parameter of a function, from a list of numbers: the next number, 7 after the last; an array
// of the next four; or a variable of the host that holds 77.
template <class T>
struct Parameter
{
    static constexpr bool IsPointer = std::is_pointer_v<T>;
    static constexpr bool IsArray = IsPointer && std::is_const_v<std::remove_pointer_t<T>>;

    Parameter(const Numbers& given, size_t& at)
    {
        Held[0] = IsPointer ? 77 : 7;
        for (int count = IsArray ? 4 : !IsPointer; count > 0 && at < given.size(); --count)
        {
            Held[IsArray ? 4 - count : 0] = static_cast<Number>(given[at++]);
        }
    }
    T Give()
    {
        if constexpr (IsPointer)
        {
            return Held;
        }
        else
        {
            return Held[0];
        }
    }
    void Tell(Numbers& outputs) const
    {
        if (IsPointer && !IsArray)
        {
            // A palette is unsigned, and -1 all the same.
            outputs.push_back(IsPalette ? static_cast<int32_t>(Held[0])
                                        : static_cast<double>(Held[0]));
        }
    }

    using Number = std::remove_const_t<std::remove_pointer_t<T>>;
    static constexpr bool IsPalette = std::is_same_v<Number, uint32_t>;
    Number Held[64] = {};
};

// A function that begins with the id of a view; made from its name.
struct Export
{
    template <class... Rest>
    Export(int32_t (*function)(int32_t, Rest...))
        : HasIntegers(((std::is_same_v<Rest, int32_t*> || std::is_same_v<Rest, uint32_t*>) || ...))
    {
        Perform = [function](int32_t view, const Numbers& given, Numbers& outputs)
        {
            [[maybe_unused]] size_t at = 0;
            std::tuple<Parameter<Rest>...> parameters{Parameter<Rest>(given, at)...};
            const auto call = [&](auto&... parameter)
            {
                const int32_t status = function(view, parameter.Give()...);
                (parameter.Tell(outputs), ...);
                return status;
            };
            return std::apply(call, parameters);
        };
    }

    bool HasIntegers; // among its outputs
    // Appends what the function hands out and returns the status.
    std::function<int32_t(int32_t view, const Numbers& given, Numbers& outputs)> Perform;
};

// With the numbers that the other functions for rectangles take.
inline int32_t AddCentered(int32_t view, double x, double y, double z, double width, double height,
                           double angle, int32_t* element)
{
    return Tarvex_Element_Add_Rectangle(view, 1, x, y, z, width, height, angle, element);
}

inline bool IsLit(const Picture::Color& color)
{
    return color != Picture::Color{0, 0, 0};
}

// A host's window, and calls on a view in it.
class HostFixture : public testing::Test
{
protected:
    explicit HostFixture(int width = Pixels, int height = Pixels) : Host(width, height) {}

    int32_t Call(const Export& function, const Numbers& given) const
    {
        Numbers outputs;
        return function.Perform(Id, given, outputs);
    }
    int32_t Call(const Export& function, int32_t element, Numbers given) const
    {
        given.insert(given.begin(), element);
        return Call(function, given);
    }
    Numbers Read(const Export& function, int32_t element = TARVEX_NONE,
                 int32_t status = STATUS_OK) const
    {
        Numbers outputs;
        EXPECT_EQ(function.Perform(Id, {static_cast<double>(element)}, outputs), status);
        return outputs;
    }
    int32_t Add(const Export& function, const Numbers& given) const
    {
        Numbers id;
        EXPECT_EQ(function.Perform(Id, given, id), STATUS_OK);
        return static_cast<int32_t>(id.at(0));
    }

    static constexpr int Pixels = 200; // width and height of the view
    static constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    static constexpr double Infinity = std::numeric_limits<double>::infinity();
    static constexpr double Marker = std::numeric_limits<double>::max(); // stands for no value

    TestHost Host;
    int32_t Id = TARVEX_NONE;
};

// With a 3D view.
class ViewFixture : public HostFixture
{
protected:
    ViewFixture()
    {
        EXPECT_EQ(Tarvex_Window_Create(Host.Handle(), 1, 0, 0, Pixels, Pixels, &Id), STATUS_OK);
    }
    ~ViewFixture() override { Tarvex_Window_Delete(Id); }

    int32_t AddPoint(double x, double y, double z) const
    {
        return Add(Tarvex_Element_Add_Point, {x, y, z});
    }
    int32_t AddLine(double x, double y, double z, double dx, double dy, double dz) const
    {
        return Add(Tarvex_Element_Add_Line, {x, y, z, dx, dy, dz});
    }
    // The camera 100 units over the origin, whatever the scene holds, looking down: the picture is
    // about 53.6 units high there.
    void LookDown() const
    {
        EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_SetPosition(Id, 0, 0, 100), STATUS_OK);
    }
    int CountLit() const { return TakePicture(Id).Count(IsLit); }
    bool IsValid(int32_t element) const
    {
        return Read(Tarvex_Element_HasValidValues, element) == Numbers{1};
    }
};

// With a chart view.
class ChartFixture : public HostFixture
{
protected:
    explicit ChartFixture(int width = Pixels, int height = Pixels) : HostFixture(width, height)
    {
        EXPECT_EQ(Tarvex_Window2D_Create(Host.Handle(), 1, 0, 0, width, height, &Id), STATUS_OK);
    }
    ~ChartFixture() override { Tarvex_Window2D_Delete(Id); }

    bool IsValid(int32_t element) const
    {
        return Read(Tarvex_Element2D_HasValidValues, element) == Numbers{1};
    }
};
