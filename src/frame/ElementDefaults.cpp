#include "frame/ElementDefaults.h"

namespace
{
enum Record : std::size_t
{
    SURFACES,
    PROFILES,
    POINT,
    LINE,
    CIRCLE,
    PLANE,
    ELLIPSE,
    CYLINDER,
    CUBE,
    RECTANGLE,
    POLYGON,
    POLYHEDRON
};

void SetLighting(ElementDefaults& record, double ambient, double diffuse, double specular,
                 double specularPower)
{
    record.Ambient = ambient;
    record.Diffuse = diffuse;
    record.Specular = specular;
    record.SpecularPower = specularPower;
}
} // namespace

ElementDefaultsTable::ElementDefaultsTable()
{
    // Flat, fully lit lines of half a pixel are what a new record holds; these families differ.
    SetLighting(Records[SURFACES], 0.3, 0.8, 0.0, 1.0);
    Records[POINT].Size = 0.3;
    SetLighting(Records[POINT], 1.0, 0.0, 0.0, 1.0);
    Records[LINE].Size = 2.0;
    Records[PLANE].Transparency = 0.8;
    SetLighting(Records[CYLINDER], 0.3, 0.7, 0.5, 10.0);
    Records[CUBE].Transparency = 0.5;
    SetLighting(Records[CUBE], 0.3, 0.7, 0.5, 10.0);
}

ElementDefaults* ElementDefaultsTable::Find(int32_t elementType)
{
    switch (elementType)
    {
    case 0:
    case 1:
        return &Records[SURFACES];
    case 2:
    case 3:
        return &Records[PROFILES];
    default:
        break;
    }
    constexpr int32_t firstShape = 10;
    constexpr int32_t lastShape = 19;
    if (elementType < firstShape || elementType > lastShape)
    {
        return nullptr;
    }
    // The shapes' records stand in the order of their type numbers.
    return &Records[POINT + static_cast<std::size_t>(elementType - firstShape)];
}
