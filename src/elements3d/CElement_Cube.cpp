#include "elements3d/CElement_Cube.h"

#include "Tarvex.h"
#include "elements3d/Angles.h"
#include "frame/NumberTest.h"

#include <vtkCellArray.h>
#include <vtkDataArray.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkTrivialProducer.h>

#include <numeric>

namespace
{
constexpr int32_t cornerCount = 8;
constexpr int32_t firstCorner = 2; // handles 0 and 1 are no corners
constexpr int32_t handleCount = firstCorner + cornerCount;
} // namespace

CElement_Cube::CElement_Cube() : CElement_Draggable(Type, handleCount)
{
    Handles.SetCount(handleCount);
}

void CElement_Cube::Store(double x, double y, double z, double lengthX, double lengthY,
                          double lengthZ, double angle)
{
    constexpr double leastLength = 1e-6;
    X = x;
    Y = y;
    Z = z;
    LengthX = lengthX;
    LengthY = lengthY;
    LengthZ = lengthZ;
    Angle = angle;
    const bool isPoint = std::abs(lengthX) < leastLength && std::abs(lengthY) < leastLength &&
                         std::abs(lengthZ) < leastLength;
    Valid = AreValidNumbers({x, y, z, lengthX, lengthY, lengthZ, angle}) && !isPoint;
}

int32_t CElement_Cube::Initialize(const ElementSite& site, double x, double y, double z,
                                  double lengthX, double lengthY, double lengthZ, double angle,
                                  bool wireframe)
{
    Store(x, y, z, lengthX, lengthY, lengthZ, angle);
    if (Valid)
    {
        Angle = FoldIntoHalfTurns(angle);
    }
    Wireframe = wireframe;
    return TakeSiteAndSize(site);
}

int32_t CElement_Cube::BuildPipeline()
{
    Points = vtkSmartPointer<vtkPoints>::New();
    Points->SetNumberOfPoints(cornerCount);
    Points->GetData()->Fill(0.0);
    const vtkNew<vtkPolyData> polyData;
    polyData->SetPoints(Points);
    const vtkNew<vtkCellArray> cells;
    if (Wireframe)
    {
        // All twelve edges in one line; four of them are walked twice.
        constexpr vtkIdType path[] = {0, 1, 2, 3, 0, 4, 5, 6, 7, 4, 5, 1, 2, 6, 7, 3};
        cells->InsertNextCell(std::size(path), path);
        polyData->SetLines(cells);
    }
    else
    {
        constexpr vtkIdType faces[][4] = {{0, 1, 2, 3}, {4, 5, 6, 7}, {0, 1, 5, 4},
                                          {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}};
        for (const auto& face : faces)
        {
            cells->InsertNextCell(static_cast<vtkIdType>(std::size(face)), face);
        }
        polyData->SetPolys(cells);
    }
    const vtkNew<vtkTrivialProducer> source;
    source->SetOutput(polyData);
    BuildActor(source->GetOutputPort());
    MirrorByUserMatrix(Actor);
    Refresh();
    return STATUS_OK;
}

void CElement_Cube::PlaceHandles()
{
    constexpr double sides[4][2] = {{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}};
    const double levels[2] = {Z - LengthZ / 2.0, Z + LengthZ / 2.0};
    const PlaneRotation rotation(Angle);
    for (int32_t level = 0; level < 2; ++level)
    {
        Handles.SetPosition(level, {X, Y, levels[level]});
        for (int32_t side = 0; side < 4; ++side)
        {
            const auto [dx, dy] = rotation.Turn(sides[side][0] * LengthX, sides[side][1] * LengthY);
            Handles.SetPosition(firstCorner + 4 * level + side, {X + dx, Y + dy, levels[level]});
        }
    }
}

void CElement_Cube::Draw(bool visible)
{
    if (!visible)
    {
        return;
    }
    for (int32_t corner = 0; corner < cornerCount; ++corner)
    {
        Points->SetPoint(corner, Handles.GetPosition(firstCorner + corner).data());
    }
    // VTK does not notice changes in place.
    Points->Modified();
}

int32_t CElement_Cube::GetValue(double* x, double* y, double* z, double* lengthX, double* lengthY,
                                double* lengthZ, double* angle)
{
    *x = X;
    *y = Y;
    *z = Z;
    *lengthX = LengthX;
    *lengthY = LengthY;
    *lengthZ = LengthZ;
    *angle = Angle;
    return STATUS_OK;
}

int32_t CElement_Cube::SetValue(double x, double y, double z, double lengthX, double lengthY,
                                double lengthZ, double angle)
{
    Store(x, y, z, lengthX, lengthY, lengthZ, angle);
    EndDrag();
    Refresh();
    return HandlesOn && !Valid ? STATUS_INVALID_VALUES : STATUS_OK;
}

int32_t CElement_Cube::ShowHandles(bool on, double radius)
{
    return SwitchHandles(on, radius);
}

void CElement_Cube::EndDrag()
{
    DragAnchor.reset();
}

void CElement_Cube::DragHandle(int32_t handle, const Vector3& position)
{
    if (handle < firstCorner)
    {
        EndDrag();
        X = position[0];
        Y = position[1];
    }
    else
    {
        if (!DragAnchor || DragAnchor->Handle != handle)
        {
            const int32_t corner = handle - firstCorner;
            const int32_t opposite = corner / 4 * 4 + (corner + 2) % 4;
            DragAnchor = {handle, Handles.GetPosition(firstCorner + opposite)};
        }
        const Vector3& fixed = DragAnchor->Position;
        X = std::midpoint(position[0], fixed[0]);
        Y = std::midpoint(position[1], fixed[1]);
        const auto [alongX, alongY] =
            PlaneRotation(-Angle).Turn(fixed[0] - position[0], fixed[1] - position[1]);
        LengthX = std::abs(alongX);
        LengthY = std::abs(alongY);
    }
    Refresh();
}
