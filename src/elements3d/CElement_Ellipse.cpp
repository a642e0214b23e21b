#include "elements3d/CElement_Ellipse.h"

#include "Tarvex.h"
#include "elements3d/Angles.h"
#include "frame/NumberTest.h"

CElement_Ellipse::CElement_Ellipse() : CElement_Shape(Type) {}

void CElement_Ellipse::Store(double x, double y, double z, double a, double b, double angle)
{
    constexpr double leastAxis = 1e-9;
    X = x;
    Y = y;
    Z = z;
    SemiAxisA = a;
    SemiAxisB = b;
    Angle = angle;
    Valid = AreValidNumbers({x, y, z, a, b, angle}) && !(a < leastAxis || b < leastAxis);
}

int32_t CElement_Ellipse::Initialize(const ElementSite& site, double x, double y, double z,
                                     double a, double b, double angle)
{
    Store(x, y, z, a, b, angle);
    if (Valid)
    {
        Angle = FoldIntoFullTurn(angle);
    }
    return TakeSiteAndSize(site);
}

int32_t CElement_Ellipse::BuildPipeline()
{
    BuildActor(Outline.GetOutputPort());
    MirrorByUserMatrix(Actor);
    Draw();
    return STATUS_OK;
}

void CElement_Ellipse::Draw()
{
    if (!ApplyVisibility(AreDrawable({X, Y, Z, SemiAxisA, SemiAxisB, Angle})))
    {
        return;
    }
    constexpr size_t count = 361; // one a degree; the last lies on the first
    const PlaneRotation rotation(Angle);
    std::array<double, 3 * count> outline = {};
    for (size_t degree = 0; degree < count; ++degree)
    {
        const double parameter = vtkMath::RadiansFromDegrees(static_cast<double>(degree));
        const auto [dx, dy] =
            rotation.Turn(SemiAxisA * std::cos(parameter), SemiAxisB * std::sin(parameter));
        outline[3 * degree] = X + dx;
        outline[3 * degree + 1] = Y + dy;
        outline[3 * degree + 2] = Z;
    }
    Outline.Set(outline, false);
}

int32_t CElement_Ellipse::GetValue(double* x, double* y, double* z, double* a, double* b,
                                   double* angle)
{
    *x = X;
    *y = Y;
    *z = Z;
    *a = SemiAxisA;
    *b = SemiAxisB;
    *angle = Angle;
    return STATUS_OK;
}

int32_t CElement_Ellipse::SetValue(double x, double y, double z, double a, double b, double angle)
{
    Store(x, y, z, a, b, angle);
    Draw();
    return STATUS_OK;
}
