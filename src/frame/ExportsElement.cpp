// Exports that work on any 3D element, and the look of new elements.
#include "Tarvex.h"

#include "elements3d/CElement_Base.h"
#include "frame/CallFrame.h"
#include "view3d/CWindow.h"

int32_t Tarvex_Element_GetDefault(int32_t windowId, int32_t type, double* transparency,
                                  uint8_t* red, uint8_t* green, uint8_t* blue, double* size,
                                  double* ambient, double* diffuse, double* specular,
                                  double* specularPower, int32_t* palette, uint8_t* autoScale,
                                  double* clipPercent, double* fixedMin, double* fixedMax,
                                  double* lineStart, double* lineEnd, double* xmin, double* xmax,
                                  double* ymin, double* ymax, double* zmin, double* zmax)
{
    return OnManager(&CWindowManager::GetDefault, windowId, type, transparency, red, green, blue,
                     size, ambient, diffuse, specular, specularPower, palette, autoScale,
                     clipPercent, fixedMin, fixedMax, lineStart, lineEnd, xmin, xmax, ymin, ymax,
                     zmin, zmax);
}

int32_t Tarvex_Element_SetDefault(int32_t windowId, int32_t type, double transparency, uint8_t red,
                                  uint8_t green, uint8_t blue, double size, double ambient,
                                  double diffuse, double specular, double specularPower,
                                  int32_t palette, uint8_t autoScale, double clipPercent,
                                  double fixedMin, double fixedMax, double lineStart,
                                  double lineEnd, double xmin, double xmax, double ymin,
                                  double ymax, double zmin, double zmax)
{
    return OnManager(&CWindowManager::SetDefault, windowId, type, transparency, red, green, blue,
                     size, ambient, diffuse, specular, specularPower, palette, autoScale != 0,
                     clipPercent, fixedMin, fixedMax, lineStart, lineEnd, xmin, xmax, ymin, ymax,
                     zmin, zmax);
}

int32_t Tarvex_Element_GetCount(int32_t windowId, int32_t* count)
{
    ClearToZero(count);
    return OnView<CWindow>(windowId, &CWindow::GetElementCount, count);
}

int32_t Tarvex_Element_GetIDFromIndex(int32_t windowId, int32_t index, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnView<CWindow>(windowId, &CWindow::GetElementIDFromIndex, index, elementId);
}

int32_t Tarvex_Element_GetType(int32_t windowId, int32_t elementId, int32_t* type)
{
    ClearToNone(type);
    return OnView<CWindow>(windowId, &CWindow::GetElementType, elementId, type);
}

int32_t Tarvex_Element_HasValidValues(int32_t windowId, int32_t elementId, uint8_t* valid)
{
    ClearToZero(valid);
    return OnView<CWindow>(windowId, &CWindow::HasValidValues, elementId, valid);
}

int32_t Tarvex_Element_Show(int32_t windowId, int32_t elementId, uint8_t show)
{
    return OnView<CWindow>(windowId, &CWindow::ShowElement, elementId, show != 0);
}

int32_t Tarvex_Element_Remove(int32_t windowId, int32_t elementId)
{
    return OnView<CWindow>(windowId, &CWindow::Remove, elementId);
}

int32_t Tarvex_Element_RemoveAll(int32_t windowId)
{
    return OnView<CWindow>(windowId, &CWindow::RemoveAll);
}

int32_t Tarvex_Element_GetColor(int32_t windowId, int32_t elementId, uint8_t* red, uint8_t* green,
                                uint8_t* blue)
{
    ClearToZero(red, green, blue);
    return OnView<CWindow>(windowId, &CWindow::GetColor, elementId, red, green, blue);
}

int32_t Tarvex_Element_SetColor(int32_t windowId, int32_t elementId, uint8_t red, uint8_t green,
                                uint8_t blue)
{
    return OnView<CWindow>(windowId, &CWindow::SetColor, elementId, red, green, blue);
}

int32_t Tarvex_Element_GetSize(int32_t windowId, int32_t elementId, double* size)
{
    ClearToZero(size);
    return OnElement(windowId, elementId, Render::AfterSuccess, &CElement_Base::GetSize, size);
}

int32_t Tarvex_Element_SetSize(int32_t windowId, int32_t elementId, double size)
{
    return OnElement(windowId, elementId, Render::AfterSuccess, &CElement_Base::SetSize, size);
}

int32_t Tarvex_Element_GetTransparency(int32_t windowId, int32_t elementId, double* transparency)
{
    ClearToZero(transparency);
    return OnElement(windowId, elementId, Render::AfterSuccess, &CElement_Base::GetTransparency,
                     transparency);
}

int32_t Tarvex_Element_SetTransparency(int32_t windowId, int32_t elementId, double transparency)
{
    return OnElement(windowId, elementId, Render::AfterSuccess, &CElement_Base::SetTransparency,
                     transparency);
}

int32_t Tarvex_Element_GetLighting(int32_t windowId, int32_t elementId, double* ambient,
                                   double* diffuse, double* specular, double* specularPower)
{
    ClearToZero(ambient, diffuse, specular, specularPower);
    return OnElement(windowId, elementId, Render::AfterSuccess, &CElement_Base::GetLighting,
                     ambient, diffuse, specular, specularPower);
}

int32_t Tarvex_Element_SetLighting(int32_t windowId, int32_t elementId, double ambient,
                                   double diffuse, double specular, double specularPower)
{
    return OnElement(windowId, elementId, Render::AfterSuccess, &CElement_Base::SetLighting,
                     ambient, diffuse, specular, specularPower);
}
