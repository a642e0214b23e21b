#include "measurement/CElementProfile.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"
#include "measurement/SurfaceGrid.h"

#include <vtkCellArray.h>
#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkTrivialProducer.h>
#include <vtkTypeInt32Array.h>

#include <algorithm>

int32_t CElementProfile::Store(const ElementSite& site, const int16_t* z, int32_t count,
                               const Scaling& xScaling, const Scaling& zScaling, double y)
{
    if (!z)
    {
        return STATUS_NULL_ARGUMENT;
    }
    if (!AreValidNumbers({xScaling.Scale, zScaling.Scale, xScaling.Offset, zScaling.Offset, y}))
    {
        return STATUS_NOT_FINITE;
    }
    if (count < 2)
    {
        return STATUS_TOO_SMALL;
    }
    constexpr double leastScale = 1e-12;
    if (xScaling.Scale < leastScale || zScaling.Scale < leastScale)
    {
        return STATUS_OUT_OF_RANGE;
    }
    if (count > MaxSurfacePoints)
    {
        return STATUS_OUT_OF_MEMORY;
    }
    PointCount = count;
    X = xScaling;
    Z = zScaling;
    YPosition = y;
    ZValues = std::make_unique_for_overwrite<int16_t[]>(static_cast<size_t>(count));
    std::copy_n(z, count, ZValues.get());
    constexpr double nothingClipped = 0.0;
    const int32_t status =
        FindHeightRange(ZValues.get(), static_cast<size_t>(count), nothingClipped, Raw);
    return status == STATUS_OK ? TakeSiteAndSize(site) : status;
}

vtkSmartPointer<vtkPoints> CElementProfile::MakePoints() const
{
    const vtkNew<vtkFloatArray> coordinates;
    coordinates->SetNumberOfComponents(3);
    coordinates->SetNumberOfTuples(PointCount);
    float* point = coordinates->GetPointer(0);
    WriteX(point);
    const float y = NarrowToFloat(YPosition);
    for (int32_t sample = 0; sample < PointCount; ++sample, point += 3)
    {
        point[1] = y;
        point[2] = static_cast<float>(Z.Place(ZValues[sample]));
    }
    auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetData(coordinates);
    return points;
}

int32_t CElementProfile::BuildPipeline()
{
    // One cell of two points for each pair of valid neighbours.
    const vtkNew<vtkTypeInt32Array> indices;
    indices->SetNumberOfValues(2 * (vtkIdType{PointCount} - 1));
    int32_t* end = indices->GetPointer(0);
    for (int32_t sample = 1; sample < PointCount; ++sample)
    {
        if (ZValues[sample - 1] != InvalidHeight && ZValues[sample] != InvalidHeight)
        {
            *end++ = sample - 1;
            *end++ = sample;
        }
    }
    indices->SetNumberOfValues(end - indices->GetPointer(0));
    const vtkNew<vtkCellArray> lines;
    lines->SetData(2, indices);

    PolyData = vtkSmartPointer<vtkPolyData>::New();
    PolyData->SetPoints(MakePoints());
    PolyData->SetLines(lines);
    const vtkNew<vtkTrivialProducer> source;
    source->SetOutput(PolyData);
    BuildActor(source->GetOutputPort());
    MirrorByUserMatrix(Actor);

    double box[6] = {};
    GetBounds(false, &box[0], &box[1], &box[2], &box[3], &box[4], &box[5]);
    ApplyVisibility(AreDrawable({box[0], box[1], box[2], box[3], box[4], box[5]}));
    return STATUS_OK;
}

int32_t CElementProfile::GetBounds(bool widen, double* xmin, double* xmax, double* ymin,
                                   double* ymax, double* zmin, double* zmax)
{
    GetXRange(xmin, xmax);
    *ymin = *ymax = YPosition;
    *zmin = Z.Place(Raw.Minimum);
    *zmax = Z.Place(Raw.Maximum);
    if (widen)
    {
        WidenFlatRange(*xmax - *xmin, zmin, zmax);
        // A margin that surfaces do not have.
        const double margin = (*zmax - *zmin) * 0.1;
        *zmin -= margin;
        *zmax += margin;
    }
    return STATUS_OK;
}
