#include "ElementReports.h"

#include "Library.h"

#include <Tarvex.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <iostream>
#include <tuple>
#include <vector>

namespace
{
using Coordinates = std::vector<double>;

void PrintPoint(const std::vector<double>& coordinates)
{
    for (size_t i = 0; i < coordinates.size(); ++i)
    {
        std::printf("%s%g", i == 0 ? "(" : ", ", coordinates[i]);
    }
    std::printf(")");
}

// First the point that the shape stands on, of as many coordinates as the view has dimensions, then
// its measures.
template <class... Numbers>
void PrintValues(const char* name, int32_t dimensions, int32_t view, int32_t element,
                 int32_t (*getValue)(int32_t, int32_t, Numbers*...))
{
    std::tuple<Numbers...> values;
    Check(std::apply([&](auto&... value) { return getValue(view, element, &value...); }, values),
          name);
    const auto numbers = std::apply(
        [](auto... value) { return std::vector<double>{static_cast<double>(value)...}; }, values);
    const auto measures = numbers.begin() + dimensions;
    std::printf("%s at ", name);
    PrintPoint({numbers.begin(), measures});
    std::printf(":");
    std::for_each(measures, numbers.end(), [](double measure) { std::printf(" %g", measure); });
    std::printf("\n");
}

void PrintVertices(const std::vector<Coordinates>& axes)
{
    for (size_t i = 0; i < axes.front().size(); ++i)
    {
        std::vector<double> point;
        for (const Coordinates& axis : axes)
        {
            point.push_back(axis[i]);
        }
        std::printf("  ");
        PrintPoint(point);
        std::printf("\n");
    }
}

template <class GetValue>
void PrintPolygon(int32_t dimensions, int32_t count, const GetValue& getValue)
{
    std::vector<Coordinates> axes(static_cast<size_t>(dimensions),
                                  Coordinates(static_cast<size_t>(count)));
    uint8_t closed = 0;
    Check(getValue(axes, closed), "Polygon_GetValue");
    std::printf("%s polygon of %d points\n", closed ? "closed" : "open", count);
    PrintVertices(axes);
}

void PrintPolygonOfView(int32_t view, int32_t element)
{
    int32_t count = 0;
    Check(Tarvex_Element_Polygon_GetPointCount(view, element, &count),
          "Tarvex_Element_Polygon_GetPointCount");
    PrintPolygon(3, count,
                 [&](std::vector<Coordinates>& axes, uint8_t& closed)
                 {
                     return Tarvex_Element_Polygon_GetValue(
                         view, element, axes[0].data(), axes[1].data(), axes[2].data(), &closed);
                 });
}

void PrintPolygonOfChart(int32_t chart, int32_t element)
{
    int32_t count = 0;
    Check(Tarvex_Element2D_Polygon_GetPointCount(chart, element, &count),
          "Tarvex_Element2D_Polygon_GetPointCount");
    PrintPolygon(2, count,
                 [&](std::vector<Coordinates>& axes, uint8_t& closed)
                 {
                     return Tarvex_Element2D_Polygon_GetValue(chart, element, axes[0].data(),
                                                              axes[1].data(), &closed);
                 });
}

void PrintPolyhedron(int32_t view, int32_t element)
{
    int32_t count = 0;
    Check(Tarvex_Element_Polyhedron_GetPointCount(view, element, &count),
          "Tarvex_Element_Polyhedron_GetPointCount");
    std::vector<Coordinates> points(3, Coordinates(static_cast<size_t>(count)));
    double axis[3] = {};
    double height = 0.0;
    Check(Tarvex_Element_Polyhedron_GetValue(view, element, points[0].data(), points[1].data(),
                                             points[2].data(), &axis[0], &axis[1], &axis[2],
                                             &height),
          "Tarvex_Element_Polyhedron_GetValue");
    std::printf("polyhedron of %d points, height %g along (%g, %g, %g)\n", count, height, axis[0],
                axis[1], axis[2]);
    PrintVertices(points);
}

void PrintElement(int32_t view, int32_t element)
{
    int32_t type = TARVEX_NONE;
    Check(Tarvex_Element_GetType(view, element, &type), "Tarvex_Element_GetType");
    switch (type)
    {
    case TARVEX_ELEMENT_RECTANGLE:
        PrintValues("rectangle (width, height, angle)", 3, view, element,
                    Tarvex_Element_Rectangle_GetValue);
        break;
    case TARVEX_ELEMENT_CUBE:
        PrintValues("cube (lengths, angle)", 3, view, element, Tarvex_Element_Cube_GetValue);
        break;
    case TARVEX_ELEMENT_CIRCLE:
        PrintValues("circle (radius, normal)", 3, view, element, Tarvex_Element_Circle_GetValue);
        break;
    case TARVEX_ELEMENT_CYLINDER:
        PrintValues("cylinder (axis, radius, height)", 3, view, element,
                    Tarvex_Element_Cylinder_GetValue2);
        break;
    case TARVEX_ELEMENT_POLYGON:
        PrintPolygonOfView(view, element);
        break;
    case TARVEX_ELEMENT_POLYHEDRON:
        PrintPolyhedron(view, element);
        break;
    default:
        std::printf("type %d\n", type);
        break;
    }
}

void PrintChartElement(int32_t chart, int32_t element)
{
    int32_t type = TARVEX_NONE;
    Check(Tarvex_Element2D_GetType(chart, element, &type), "Tarvex_Element2D_GetType");
    switch (type)
    {
    case TARVEX_ELEMENT_RECTANGLE:
        PrintValues("rectangle (width, height, angle)", 2, chart, element,
                    Tarvex_Element2D_Rectangle_GetValue);
        break;
    case TARVEX_ELEMENT_CIRCLE:
        PrintValues("circle (radius)", 2, chart, element, Tarvex_Element2D_Circle_GetValue);
        break;
    case TARVEX_ELEMENT_POLYGON:
        PrintPolygonOfChart(chart, element);
        break;
    default:
        std::printf("type %d\n", type);
        break;
    }
}

// The library calls from within its handling of events: nothing may be thrown through it.
template <void (*Print)(int32_t view, int32_t element)>
void Report(const char* what, int32_t view, int32_t element)
{
    try
    {
        std::printf("%s element %d: ", what, element);
        Print(view, element);
        std::fflush(stdout);
    }
    catch (const std::exception& error)
    {
        std::cerr << "tarvex_viewer: " << error.what() << "\n";
    }
}

template <void (*Print)(int32_t view, int32_t element)>
void OnAdded(int32_t view, int32_t element)
{
    Report<Print>("drawn", view, element);
}

template <void (*Print)(int32_t view, int32_t element)>
void OnDragged(int32_t view, int32_t element)
{
    Report<Print>("dragged", view, element);
}
} // namespace

void ReportElements(int32_t view)
{
    Check(Tarvex_Window_RegisterCallback_ElementAdded(view, OnAdded<PrintElement>),
          "Tarvex_Window_RegisterCallback_ElementAdded");
    Check(Tarvex_Window_RegisterCallback_ElementDragged(view, OnDragged<PrintElement>),
          "Tarvex_Window_RegisterCallback_ElementDragged");
}

void ReportChartElements(int32_t chart)
{
    Check(Tarvex_Window2D_RegisterCallback_ElementAdded(chart, OnAdded<PrintChartElement>),
          "Tarvex_Window2D_RegisterCallback_ElementAdded");
    Check(Tarvex_Window2D_RegisterCallback_ElementDragged(chart, OnDragged<PrintChartElement>),
          "Tarvex_Window2D_RegisterCallback_ElementDragged");
}
