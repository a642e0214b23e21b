#include "elements2d/CElement_Ellipse2D.h"

#include "Tarvex.h"
#include "elements3d/Angles.h"
#include "frame/NumberTest.h"

CElement_Ellipse2D::CElement_Ellipse2D() : CElement_Plotted2D(Type, 1.0, STATUS_INVALID_VALUES) {}

void CElement_Ellipse2D::Store(double x, double y, double radiusA, double radiusB, double angle)
{
    constexpr double leastRadius = 1e-9;
    X = x;
    Y = y;
    RadiusA = radiusA;
    RadiusB = radiusB;
    Valid = AreValidNumbers({x, y, radiusA, radiusB, angle}) && !(radiusA < leastRadius) &&
            !(radiusB < leastRadius);
    Angle = Valid ? FoldIntoFullTurn(angle) : angle;
}

int32_t CElement_Ellipse2D::Initialize(const ChartSite& site, double x, double y, double radiusA,
                                       double radiusB, double angle)
{
    Store(x, y, radiusA, radiusB, angle);
    TakeSite(site);
    return STATUS_OK;
}

int32_t CElement_Ellipse2D::GetValue(double* x, double* y, double* radiusA, double* radiusB,
                                     double* angle)
{
    *x = X;
    *y = Y;
    *radiusA = RadiusA;
    *radiusB = RadiusB;
    *angle = Angle;
    return STATUS_OK;
}

int32_t CElement_Ellipse2D::SetValue(double x, double y, double radiusA, double radiusB,
                                     double angle)
{
    Store(x, y, radiusA, radiusB, angle);
    Redraw();
    return STATUS_OK;
}

int32_t CElement_Ellipse2D::CountRows() const
{
    return static_cast<int32_t>(GetUnitCircle().size());
}

void CElement_Ellipse2D::Fill(const CPlotTable::Columns& columns)
{
    const PlaneRotation rotation(Angle);
    auto points = GetUnitCircle();
    int32_t row = 0;
    for (ChartPoint& point : points)
    {
        const auto [dx, dy] = rotation.Turn(point.X * RadiusA, point.Y * RadiusB);
        point = {dx + X, dy + Y};
        columns.Write(row++, point.X, point.Y);
    }
    FitBounds(points);
}

std::string CElement_Ellipse2D::MakeName() const
{
    return MakeColumnName(nullptr, "Ellipse", Id);
}
