#include "elements3d/CElement_Rectangle.h"

#include "Tarvex.h"
#include "elements3d/Angles.h"
#include "frame/NumberTest.h"

CElement_Rectangle::CElement_Rectangle() : CElement_Shape(Type) {}

void CElement_Rectangle::Store(double x, double y, double z, double width, double height,
                               double angle)
{
    constexpr double leastExtent = 1e-6;
    X = x;
    Y = y;
    Z = z;
    Width = width;
    Height = height;
    Angle = angle;
    // One extent alone may be nothing: that is a line.
    Valid = AreValidNumbers({x, y, z, width, height, angle}) &&
            !(std::abs(width) < leastExtent && std::abs(height) < leastExtent);
}

int32_t CElement_Rectangle::Initialize(const ElementSite& site, bool centered, double x, double y,
                                       double z, double width, double height, double angle)
{
    Store(x, y, z, width, height, angle);
    if (!centered)
    {
        // Without corners there is no middle between them.
        X = Valid ? x + width / 2.0 : 0.0;
        Z = Valid ? z + height / 2.0 : 0.0;
    }
    if (Valid)
    {
        Angle = FoldIntoHalfTurns(angle);
    }
    return TakeSiteAndSize(site);
}

int32_t CElement_Rectangle::BuildPipeline()
{
    BuildActor(Outline.GetOutputPort());
    MirrorByUserMatrix(Actor);
    Draw();
    return STATUS_OK;
}

void CElement_Rectangle::Draw()
{
    if (!ApplyVisibility(AreDrawable({X, Y, Z, Width, Height, Angle})))
    {
        return;
    }
    constexpr double sides[4][2] = {{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}};
    const PlaneRotation rotation(Angle);
    std::array<double, 12> corners = {};
    for (size_t corner = 0; corner < 4; ++corner)
    {
        const auto [dx, dz] = rotation.Turn(sides[corner][0] * Width, sides[corner][1] * Height);
        corners[3 * corner] = X + dx;
        corners[3 * corner + 1] = Y;
        corners[3 * corner + 2] = Z + dz;
    }
    Outline.Set(corners, true);
}

int32_t CElement_Rectangle::GetValue(double* x, double* y, double* z, double* width, double* height,
                                     double* angle)
{
    *x = X;
    *y = Y;
    *z = Z;
    *width = Width;
    *height = Height;
    *angle = Angle;
    return STATUS_OK;
}

int32_t CElement_Rectangle::SetValue(double x, double y, double z, double width, double height,
                                     double angle)
{
    Store(x, y, z, width, height, angle);
    Draw();
    return STATUS_OK;
}
