// A 3D view with a big point and a line in it, for tests that need any view.
#pragma once

#include "Tarvex.h"
#include "support/Functions.h"
#include "support/Picture.h"

// The point's colour, in light and shade.
inline bool IsRed(const Picture::Color& color)
{
    return color[0] > 60 && color[1] < 40;
}

struct TestView
{
    explicit TestView(void* parent, int x = 0, int y = 0, int width = 200, int height = 150)
    {
        Created = Tarvex_Window_Create(parent, 1, x, y, width, height, &Id);
        int32_t element = -1;
        Tarvex_Element_Add_Point(Id, 0.0, 0.0, 0.0, &element);
        Tarvex_Element_SetSize(Id, element, 15.0);
        Tarvex_Element_SetColor(Id, element, 255, 0, 0);
        Tarvex_Element_Add_Line(Id, 0.0, 0.0, 0.0, 0.9, 0.4, 0.2, &element);
        Tarvex_Window_Camera_AutoSize(Id);
    }
    ~TestView() { Delete(); }
    TestView(const TestView&) = delete;
    TestView& operator=(const TestView&) = delete;

    // What has the most of its own in OpenGL.
    void AddSurface() const
    {
        MakeGood(FindFunction("Tarvex_Element_Add_SurfaceUniform"), {double(Id)}, 30).Perform();
    }

    int32_t Delete()
    {
        const int32_t status = Tarvex_Window_Delete(Id);
        Id = -1;
        return status;
    }

    // Leaves the view alone, for tests of what happens to it then.
    void Forget() { Id = -1; }

    // What any guarded call answers that does not draw.
    int32_t Guard() const
    {
        double box[6];
        return Tarvex_Window_GetDrawSpace(Id, box, box + 1, box + 2, box + 3, box + 4, box + 5);
    }
    int32_t Render() const { return Tarvex_Window_SetBackgroundColor(Id, 0, 0, 0); }

    int32_t Created = 0; // the status
    int32_t Id = -1;
};
