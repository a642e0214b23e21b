// What a chart view shows of its elements, and in which colours.
#include "elements2d/CChartAxis.h"
#include "view2d/CWindow2D.h"

#include <vtkChartHistogram2D.h>
#include <vtkPen.h>
#include <vtkTextProperty.h>

#include <algorithm>
#include <cmath>

int32_t CWindow2D::ChartAutoScale(bool keepAspect)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (Elements.GetCount() == 0)
            {
                return STATUS_OK;
            }
            double bounds[4];
            if (CollectBounds(bounds))
            {
                FitAxes(bounds, keepAspect);
            }
            Refresh();
            return STATUS_OK;
        });
}

bool CWindow2D::CollectBounds(double bounds[4]) const
{
    bool any = false;
    for (const std::unique_ptr<CElement_2D>& element : Elements)
    {
        double own[4];
        const bool counts = element->GetBounds(&own[0], &own[1], &own[2], &own[3]) == STATUS_OK &&
                            element->Valid &&
                            std::all_of(std::begin(own), std::end(own),
                                        [](double side) { return std::isfinite(side); });
        if (!counts)
        {
            continue;
        }
        for (size_t side = 0; side < 4; ++side)
        {
            const bool lower = side % 2 == 0;
            bounds[side] = !any    ? own[side]
                           : lower ? std::min(bounds[side], own[side])
                                   : std::max(bounds[side], own[side]);
        }
        any = true;
    }
    return any;
}

void CWindow2D::FitAxes(const double bounds[4], bool keepAspect)
{
    struct Range
    {
        Range(double minimum, double maximum) : Center((minimum + maximum) * 0.5)
        {
            const double span = maximum - minimum;
            const double margin = span == 0.0 ? 1.0 : span * 0.05;
            Low = minimum - margin;
            High = maximum + margin;
        }
        double GetSpan() const { return High - Low; }
        // About the middle of the values; their margins do not move it.
        void Widen(double half)
        {
            Low = Center - half;
            High = Center + half;
        }
        bool IsUsable() const { return CChartAxis::CanShow(Low, High); }
        void GiveTo(vtkAxis* axis) const
        {
            if (IsUsable())
            {
                axis->SetUnscaledMinimum(Low);
                axis->SetUnscaledMaximum(High);
            }
        }
        double Center;
        double Low;
        double High;
    };
    Range x(bounds[0], bounds[1]);
    Range y(bounds[2], bounds[3]);
    // The plot area as it was drawn last.
    const int width = Chart->GetPoint2()[0] - Chart->GetPoint1()[0];
    const int height = Chart->GetPoint2()[1] - Chart->GetPoint1()[1];
    if (height <= 0)
    {
        return;
    }
    if (keepAspect && width > 0 && x.IsUsable() && y.IsUsable())
    {
        const double dataAspect = x.GetSpan() / y.GetSpan();
        const double pixelAspect = static_cast<double>(width) / height;
        if (dataAspect >= pixelAspect)
        {
            y.Widen(x.GetSpan() * 0.5 / pixelAspect);
        }
        else
        {
            x.Widen(y.GetSpan() * 0.5 * pixelAspect);
        }
    }
    x.GiveTo(Chart->GetAxis(vtkAxis::BOTTOM));
    y.GiveTo(Chart->GetAxis(vtkAxis::LEFT));
}

int32_t CWindow2D::SetChartLayout(uint32_t layout)
{
    struct Look
    {
        double Background;
        uint8_t Grid;
        uint8_t Axis;
        double Text;
    };
    static constexpr Look looks[] = {{0.0, 50, 255, 1.0}, {1.0, 210, 0, 0.0}};
    return WhenReady(
        [&]() -> int32_t
        {
            if (layout > TARVEX_CHART_LIGHT)
            {
                return STATUS_OUT_OF_RANGE;
            }
            ChartLayout = static_cast<int32_t>(layout);
            const Look& look = looks[layout];
            const auto paint = [](vtkPen* pen, uint8_t grey)
            { pen->SetColor(grey, grey, grey, 255); };
            const auto write = [&look](vtkTextProperty* text)
            { text->SetColor(look.Text, look.Text, look.Text); };
            Renderer->SetBackground(look.Background, look.Background, look.Background);
            for (const int side : {vtkAxis::LEFT, vtkAxis::BOTTOM})
            {
                vtkAxis* axis = Chart->GetAxis(side);
                paint(axis->GetGridPen(), look.Grid);
                paint(axis->GetPen(), look.Axis);
                write(axis->GetLabelProperties());
                write(axis->GetTitleProperties());
            }
            write(Chart->GetTitleProperties());
            return STATUS_OK;
        });
}

int32_t CWindow2D::SetBackgroundColor(uint8_t red, uint8_t green, uint8_t blue)
{
    return WhenReady(
        [&]() -> int32_t
        {
            Renderer->SetBackground(red / 255.0, green / 255.0, blue / 255.0);
            Refresh();
            return STATUS_OK;
        });
}

int32_t CWindow2D::GetDrawSpace(double* xmin, double* xmax, double* ymin, double* ymax)
{
    return WhenReady(
        [&]() -> int32_t
        {
            *xmin = DrawSpace[0];
            *xmax = DrawSpace[1];
            *ymin = DrawSpace[2];
            *ymax = DrawSpace[3];
            return STATUS_OK;
        });
}

int32_t CWindow2D::SetDrawSpace(double xmin, double xmax, double ymin, double ymax)
{
    return WhenReady(
        [&]() -> int32_t
        {
            // Y is the lines' own matter: they refuse a box that they cannot be cut to.
            constexpr double leastExtent = 0.1;
            if (leastExtent >= xmax - xmin)
            {
                return STATUS_TOO_SMALL;
            }
            const double box[] = {xmin, xmax, ymin, ymax};
            std::copy(std::begin(box), std::end(box), std::begin(DrawSpace));
            for (const std::unique_ptr<CElement_2D>& element : Elements)
            {
                // Seen with the next render.
                element->FitToDrawSpace(DrawSpace);
            }
            return STATUS_OK;
        });
}
