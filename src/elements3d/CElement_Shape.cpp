#include "elements3d/CElement_Shape.h"

#include "Tarvex.h"
#include "elements3d/ShapeMapper.h"
#include "frame/ElementDefaults.h"
#include "frame/NumberTest.h"

#include <vtkProperty.h>

int32_t CElement_Shape::TakeSiteAndSize(const ElementSite& site)
{
    if (site.Defaults)
    {
        Size = site.Defaults->Size;
    }
    return TakeSite(site);
}

void CElement_Shape::BuildActor(vtkAlgorithmOutput* geometry)
{
    Mapper = vtkSmartPointer<ShapeMapper>::New();
    Mapper->SetInputConnection(geometry);
    Actor = vtkSmartPointer<vtkActor>::New();
    Actor->SetMapper(Mapper);
    vtkProperty* property = Actor->GetProperty();
    property->SetColor(Color[0] / 255.0, Color[1] / 255.0, Color[2] / 255.0);
    property->SetOpacity(1.0 - Transparency);
    property->SetLineWidth(NarrowToFloat(Size));
    ApplyLighting(Actor);
}

bool CElement_Shape::ApplyVisibility(bool drawable)
{
    const bool visible = Valid && drawable;
    Actor->SetVisibility(visible);
    Actor->SetUseBounds(visible);
    return visible;
}

int32_t CElement_Shape::SetTransparency(double transparency)
{
    if (IsOutside(transparency, 0.0, 1.0))
    {
        return STATUS_OUT_OF_RANGE;
    }
    Transparency = transparency;
    Actor->GetProperty()->SetOpacity(1.0 - transparency);
    return STATUS_OK;
}

int32_t CElement_Shape::SetColor(uint8_t red, uint8_t green, uint8_t blue)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    Color[0] = red;
    Color[1] = green;
    Color[2] = blue;
    Actor->GetProperty()->SetColor(red / 255.0, green / 255.0, blue / 255.0);
    return STATUS_OK;
}

int32_t CElement_Shape::SetSize(double size)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    if (size < leastSize)
    {
        return STATUS_TOO_SMALL;
    }
    Size = size;
    Actor->GetProperty()->SetLineWidth(NarrowToFloat(size));
    return STATUS_OK;
}

int32_t CElement_Shape::GetSize(double* size)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    *size = Size;
    return STATUS_OK;
}
