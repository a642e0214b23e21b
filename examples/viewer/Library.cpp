#include "Library.h"

#include <Tarvex.h>
#include <TarvexExt.h>

#include <array>
#include <string>

void Check(int32_t status, const char* call)
{
    if (status == STATUS_OK)
    {
        return;
    }
    std::array<char, 256> text{};
    TarvexExt_GetLastError(text.data(), static_cast<int32_t>(text.size()));
    std::string message = std::string(call) + " failed with status " + std::to_string(status);
    if (text[0] != '\0')
    {
        message += std::string(" (") + text.data() + ")";
    }
    throw LibraryError(message);
}

void SetColor(int32_t view, int32_t element, const Color& color)
{
    Check(Tarvex_Element_SetColor(view, element, color.Red, color.Green, color.Blue),
          "Tarvex_Element_SetColor");
}

void SetSize(int32_t view, int32_t element, double size)
{
    Check(Tarvex_Element_SetSize(view, element, size), "Tarvex_Element_SetSize");
}

void SetFlatColor(int32_t view, int32_t element, const Color& color)
{
    SetColor(view, element, color);
    Check(Tarvex_Element_SetLighting(view, element, 1.0, 0.0, 0.0, 1.0),
          "Tarvex_Element_SetLighting");
}

void PaintInChart(int32_t chart, int32_t element, const Color& color, double size)
{
    Check(Tarvex_Element2D_SetColor(chart, element, color.Red, color.Green, color.Blue),
          "Tarvex_Element2D_SetColor");
    Check(Tarvex_Element2D_SetSize(chart, element, size), "Tarvex_Element2D_SetSize");
}

ViewUpdate::ViewUpdate(int32_t view, Call begin, Call end) : View(view), End(end)
{
    Check(begin(View), "BeginUpdate");
}

ViewUpdate::~ViewUpdate()
{
    End(View);
}

SceneUpdate::SceneUpdate(int32_t view)
    : ViewUpdate(view, TarvexExt_Window_BeginUpdate, TarvexExt_Window_EndUpdate)
{
}

ChartUpdate::ChartUpdate(int32_t chart)
    : ViewUpdate(chart, TarvexExt_Window2D_BeginUpdate, TarvexExt_Window2D_EndUpdate)
{
}
