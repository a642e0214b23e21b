#include "ElementReports.h"

#include "Library.h"

#include <Tarvex.h>

#include <cstddef>
#include <cstdio>
#include <exception>
#include <iostream>
#include <tuple>
#include <vector>

namespace
{
// First the point that the shape stands on, then its measures.
template <class... Numbers>
void PrintValues(const char* name, int32_t view, int32_t element,
                 int32_t (*getValue)(int32_t, int32_t, Numbers*...))
{
    std::tuple<Numbers...> values;
    Check(std::apply([&](auto&... value) { return getValue(view, element, &value...); }, values),
          name);
    const auto print = [&](double x, double y, double z, auto... measures)
    {
        std::printf("%s at (%g, %g, %g):", name, x, y, z);
        (std::printf(" %g", measures), ...);
        std::printf("\n");
    };
    std::apply(print, values);
}

struct Vertices
{
    explicit Vertices(int32_t count)
        : X(static_cast<size_t>(count)), Y(static_cast<size_t>(count)),
          Z(static_cast<size_t>(count))
    {
    }
    void Print() const
    {
        for (size_t i = 0; i < X.size(); ++i)
        {
            std::printf("  (%g, %g, %g)\n", X[i], Y[i], Z[i]);
        }
    }

    std::vector<double> X;
    std::vector<double> Y;
    std::vector<double> Z;
};

void PrintPolygon(int32_t view, int32_t element)
{
    int32_t count = 0;
    Check(Tarvex_Element_Polygon_GetPointCount(view, element, &count),
          "Tarvex_Element_Polygon_GetPointCount");
    Vertices points(count);
    uint8_t closed = 0;
    Check(Tarvex_Element_Polygon_GetValue(view, element, points.X.data(), points.Y.data(),
                                          points.Z.data(), &closed),
          "Tarvex_Element_Polygon_GetValue");
    std::printf("%s polygon of %d points\n", closed ? "closed" : "open", count);
    points.Print();
}

void PrintPolyhedron(int32_t view, int32_t element)
{
    int32_t count = 0;
    Check(Tarvex_Element_Polyhedron_GetPointCount(view, element, &count),
          "Tarvex_Element_Polyhedron_GetPointCount");
    Vertices points(count);
    double axis[3] = {};
    double height = 0.0;
    Check(Tarvex_Element_Polyhedron_GetValue(view, element, points.X.data(), points.Y.data(),
                                             points.Z.data(), &axis[0], &axis[1], &axis[2],
                                             &height),
          "Tarvex_Element_Polyhedron_GetValue");
    std::printf("polyhedron of %d points, height %g along (%g, %g, %g)\n", count, height, axis[0],
                axis[1], axis[2]);
    points.Print();
}

void PrintElement(int32_t view, int32_t element)
{
    int32_t type = TARVEX_NONE;
    Check(Tarvex_Element_GetType(view, element, &type), "Tarvex_Element_GetType");
    switch (type)
    {
    case TARVEX_ELEMENT_RECTANGLE:
        PrintValues("rectangle (width, height, angle)", view, element,
                    Tarvex_Element_Rectangle_GetValue);
        break;
    case TARVEX_ELEMENT_CUBE:
        PrintValues("cube (lengths, angle)", view, element, Tarvex_Element_Cube_GetValue);
        break;
    case TARVEX_ELEMENT_CIRCLE:
        PrintValues("circle (radius, normal)", view, element, Tarvex_Element_Circle_GetValue);
        break;
    case TARVEX_ELEMENT_CYLINDER:
        PrintValues("cylinder (axis, radius, height)", view, element,
                    Tarvex_Element_Cylinder_GetValue2);
        break;
    case TARVEX_ELEMENT_POLYGON:
        PrintPolygon(view, element);
        break;
    case TARVEX_ELEMENT_POLYHEDRON:
        PrintPolyhedron(view, element);
        break;
    default:
        std::printf("type %d\n", type);
        break;
    }
}

// The library calls from within its handling of events: nothing may be thrown through it.
void Report(const char* what, int32_t view, int32_t element)
{
    try
    {
        std::printf("%s element %d: ", what, element);
        PrintElement(view, element);
        std::fflush(stdout);
    }
    catch (const std::exception& error)
    {
        std::cerr << "tarvex_viewer: " << error.what() << "\n";
    }
}

void OnElementAdded(int32_t view, int32_t element)
{
    Report("drawn", view, element);
}

void OnElementDragged(int32_t view, int32_t element)
{
    Report("dragged", view, element);
}
} // namespace

void ReportElements(int32_t view)
{
    Check(Tarvex_Window_RegisterCallback_ElementAdded(view, OnElementAdded),
          "Tarvex_Window_RegisterCallback_ElementAdded");
    Check(Tarvex_Window_RegisterCallback_ElementDragged(view, OnElementDragged),
          "Tarvex_Window_RegisterCallback_ElementDragged");
}
