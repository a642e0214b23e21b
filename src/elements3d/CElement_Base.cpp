#include "elements3d/CElement_Base.h"

#include "Tarvex.h"

CElement_Base::CElement_Base(int32_t elementType) : ElementType(elementType) {}

CElement_Base::~CElement_Base() = default;

bool CElement_Base::HasValidValues() const
{
    return Valid;
}

int32_t CElement_Base::SetBackgroundColor(double, double, double)
{
    return STATUS_NOT_SUPPORTED;
}

int32_t CElement_Base::SetTransparency(double)
{
    return STATUS_NOT_SUPPORTED;
}

int32_t CElement_Base::GetTransparency(double* transparency)
{
    *transparency = 0.0;
    return STATUS_NOT_SUPPORTED;
}

int32_t CElement_Base::GetBounds(bool, double* xmin, double* xmax, double* ymin, double* ymax,
                                 double* zmin, double* zmax)
{
    *xmin = *xmax = *ymin = *ymax = *zmin = *zmax = 0.0;
    return STATUS_NOT_SUPPORTED;
}

int32_t CElement_Base::SetColor(uint8_t, uint8_t, uint8_t)
{
    return STATUS_NOT_SUPPORTED;
}

int32_t CElement_Base::GetColor(uint8_t* red, uint8_t* green, uint8_t* blue)
{
    *red = *green = *blue = 0;
    return STATUS_NOT_SUPPORTED;
}

int32_t CElement_Base::SetSize(double)
{
    return STATUS_NOT_SUPPORTED;
}

int32_t CElement_Base::GetSize(double* size)
{
    *size = 0.0;
    return STATUS_NOT_SUPPORTED;
}

int32_t CElement_Base::SetLighting(double, double, double, double)
{
    return STATUS_NOT_SUPPORTED;
}

int32_t CElement_Base::GetLighting(double*, double*, double*, double*)
{
    return STATUS_NOT_SUPPORTED;
}
