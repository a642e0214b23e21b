// The contract of all elements: common fields and the operations that a view calls on any element
// without knowing its class. What a class does not support answers STATUS_NOT_SUPPORTED.
#pragma once

#include <cstdint>

class CElement_Base
{
public:
    explicit CElement_Base(int32_t elementType);
    CElement_Base(const CElement_Base&) = delete;
    CElement_Base& operator=(const CElement_Base&) = delete;
    virtual ~CElement_Base();

    virtual bool HasValidValues() const;
    virtual int32_t SetBackgroundColor(double red, double green, double blue);
    virtual int32_t SetTransparency(double transparency);
    virtual int32_t GetTransparency(double* transparency);
    // With `widen`, measured elements pad a flat Z range so that a scale frame around it is usable.
    virtual int32_t GetBounds(bool widen, double* xmin, double* xmax, double* ymin, double* ymax,
                              double* zmin, double* zmax);
    virtual int32_t SetColor(uint8_t red, uint8_t green, uint8_t blue);
    virtual int32_t GetColor(uint8_t* red, uint8_t* green, uint8_t* blue);
    virtual int32_t SetSize(double size);
    virtual int32_t GetSize(double* size);
    virtual int32_t SetLighting(double ambient, double diffuse, double specular,
                                double specularPower);
    virtual int32_t GetLighting(double* ambient, double* diffuse, double* specular,
                                double* specularPower);

    const int32_t ElementType;
    int32_t Id = -1;
    bool Valid = true; // the values can be drawn; an invalid element stays listed but hidden

protected:
    double BackgroundColor[3] = {0.0, 0.0, 0.0};
    double Transparency = 0.0; // 0 opaque .. 1 invisible
    // What the pipeline is built with; SetLighting acts on the built actor only.
    double Ambient = 1.0;
    double Diffuse = 1.0;
    double Specular = 1.0;
    double SpecularPower = 1.0;
};
