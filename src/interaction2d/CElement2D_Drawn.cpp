#include "interaction2d/CElement2D_Drawn.h"

#include "elements2d/ChartPlots.h"

#include <vtkChartHistogram2D.h>

#include <cmath>
#include <utility>

CElement2D_Drawn::CElement2D_Drawn(vtkChartHistogram2D* chart, DrawGesture gesture,
                                   const char* name)
    : Chart(chart), Gesture(gesture), Table(name)
{
}

CElement2D_Drawn::~CElement2D_Drawn()
{
    HideBand();
}

void CElement2D_Drawn::Down(double x, double y)
{
    // The press of a click says nothing yet: its release fixes the vertex.
    if (!IsMultiClick())
    {
        Points.assign(2, {x, y});
        Finished = false;
    }
}

void CElement2D_Drawn::Move(double x, double y)
{
    if (!IsUnderWay())
    {
        return;
    }
    if (std::exchange(GrowOnMove, false))
    {
        Points.emplace_back();
    }
    Points.back() = {x, y};
    ShowBand();
}

void CElement2D_Drawn::Up(double x, double y)
{
    constexpr double leastRadius = 1e-10;
    if (IsMultiClick())
    {
        if (Points.empty())
        {
            Points.push_back({x, y});
        }
        // Every other vertex stays where the mouse was seen last.
        GrowOnMove = true;
    }
    else if (IsUnderWay())
    {
        Points.back() = {x, y};
        Finished = Gesture == DrawGesture::Box || GetRadius() >= leastRadius;
    }
}

void CElement2D_Drawn::End()
{
    constexpr size_t leastCount = 4; // the moving vertex and three others
    if (IsMultiClick() && Points.size() >= leastCount)
    {
        Points.pop_back();
        Finished = true;
    }
    else
    {
        Clear();
    }
}

void CElement2D_Drawn::Clear()
{
    HideBand();
    Points.clear();
    GrowOnMove = false;
    Finished = false;
}

ChartPoint CElement2D_Drawn::GetCenter() const
{
    if (Gesture == DrawGesture::Disc)
    {
        return Points[0];
    }
    return {(Points[0].X + Points[1].X) * 0.5, (Points[0].Y + Points[1].Y) * 0.5};
}

ChartPoint CElement2D_Drawn::GetExtent() const
{
    return {std::abs(Points[1].X - Points[0].X), std::abs(Points[1].Y - Points[0].Y)};
}

double CElement2D_Drawn::GetRadius() const
{
    return std::hypot(Points[1].X - Points[0].X, Points[1].Y - Points[0].Y);
}

int32_t CElement2D_Drawn::CountRows() const
{
    constexpr int32_t boxRows = 5;
    switch (Gesture)
    {
    case DrawGesture::Box:
        return boxRows;
    case DrawGesture::Disc:
        return static_cast<int32_t>(GetUnitCircle().size());
    default:
        return static_cast<int32_t>(Points.size());
    }
}

void CElement2D_Drawn::Fill(const CPlotTable::Columns& columns) const
{
    int32_t row = 0;
    const auto write = [&](double x, double y) { columns.Write(row++, x, y); };
    if (Gesture == DrawGesture::Box)
    {
        const auto& [first, last] = std::pair(Points[0], Points[1]);
        write(first.X, first.Y);
        write(last.X, first.Y);
        write(last.X, last.Y);
        write(first.X, last.Y);
        write(first.X, first.Y);
    }
    else if (Gesture == DrawGesture::Disc)
    {
        const double radius = GetRadius();
        for (const ChartPoint& point : GetUnitCircle())
        {
            write(point.X * radius + Points[0].X, point.Y * radius + Points[0].Y);
        }
    }
    else
    {
        for (const ChartPoint& vertex : Points)
        {
            write(vertex.X, vertex.Y);
        }
    }
}

void CElement2D_Drawn::ShowBand()
{
    constexpr uint8_t opaque = 255;
    Fill(Table.Resize(CountRows()));
    Table.Filled();
    if (!Band)
    {
        const vtkNew<CLinePlot> plot;
        plot->SetInputData(Table.GetTable(), 0, 1);
        plot->SetColor(DrawnLook::Color[0], DrawnLook::Color[1], DrawnLook::Color[2], opaque);
        plot->SetWidth(static_cast<float>(DrawnLook::Size));
        plot->SetSelectable(true);
        plot->SetMarkerStyle(vtkPlotPoints::NONE);
        Band = plot;
        Chart->AddPlot(Band);
    }
}

void CElement2D_Drawn::HideBand()
{
    Chart->RemovePlotInstance(Band);
    Band = nullptr;
}

void CElement2D_Drawn::Raise()
{
    if (Band && Chart->GetPlot(Chart->GetNumberOfPlots() - 1) != Band)
    {
        // Anew: a plot that comes back into a chart is observed twice.
        HideBand();
        ShowBand();
    }
}
