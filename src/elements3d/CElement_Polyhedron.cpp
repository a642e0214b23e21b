#include "elements3d/CElement_Polyhedron.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"

#include <vtkRenderer.h>

#include <algorithm>
#include <utility>

namespace
{
constexpr double leastHeight = 1e-9;

constexpr int32_t HandleCount(int32_t pointCount)
{
    return 2 * pointCount + 2;
}

// All edges of a prism in one line: the lower ring, the upper ring, then up and down its sides.
std::vector<int32_t> WalkEdges(int32_t count)
{
    std::vector<int32_t> path;
    path.reserve(4 * static_cast<size_t>(count));
    for (const int32_t first : {0, count})
    {
        for (int32_t point = 0; point < count; ++point)
        {
            path.push_back(first + point);
        }
        path.push_back(first);
    }
    // Down at the second point, along, up at the third, along, ...
    int32_t corner = count;
    for (int32_t step = 0; step < 2 * count - 2; ++step)
    {
        const int32_t moves[] = {1, -count, 1, count};
        corner += moves[step % 4];
        path.push_back(corner);
    }
    return path;
}
} // namespace

CElement_Polyhedron::CElement_Polyhedron() : CElement_Draggable(Type, HandleCount(MostCount)) {}

Vector3 CElement_Polyhedron::Prism::Corner(int32_t corner) const
{
    const bool upper = corner >= Count();
    const Vector3& point = Points[static_cast<size_t>(upper ? corner - Count() : corner)];
    const double offset = upper ? Height / 2.0 : -Height / 2.0;
    return {point[0] + offset * Axis[0], point[1] + offset * Axis[1], point[2] + offset * Axis[2]};
}

int32_t CElement_Polyhedron::Read(int32_t count, const double* x, const double* y, const double* z,
                                  std::vector<Vector3>& points)
{
    if (!x || !y || !z)
    {
        return STATUS_NULL_ARGUMENT;
    }
    if (count < LeastCount)
    {
        return STATUS_TOO_SMALL;
    }
    if (count > MostCount)
    {
        return STATUS_OUT_OF_RANGE;
    }
    points.reserve(static_cast<size_t>(count));
    for (int32_t point = 0; point < count; ++point)
    {
        points.push_back({x[point], y[point], z[point]});
    }
    return STATUS_OK;
}

int32_t CElement_Polyhedron::Judge(Prism& prism, bool takesAnyHeight, bool& valid)
{
    valid = AreValidNumbers(prism.Axis) && IsValidNumber(prism.Height) &&
            std::all_of(prism.Points.begin(), prism.Points.end(),
                        [](const Vector3& point) { return AreValidNumbers(point); });
    if (valid && prism.Height < leastHeight)
    {
        if (!takesAnyHeight)
        {
            return STATUS_TOO_SMALL;
        }
        valid = false;
    }
    if (valid)
    {
        if (!GivesDirection(prism.Axis))
        {
            return STATUS_TOO_SMALL;
        }
        MakeUnit(prism.Axis);
    }
    return STATUS_OK;
}

int32_t CElement_Polyhedron::Store(Prism prism, bool valid)
{
    if (valid)
    {
        // What needs memory comes first: without it everything stays as it was.
        Handles.Reserve(HandleCount(prism.Count()));
        std::vector<double> corners;
        corners.reserve(6 * prism.Points.size());
        for (int32_t corner = 0; corner < 2 * prism.Count(); ++corner)
        {
            const Vector3 position = prism.Corner(corner);
            corners.insert(corners.end(), position.begin(), position.end());
        }
        if (AreDrawable(corners))
        {
            Wire.Set(corners, WalkEdges(prism.Count()));
        }
    }
    std::swap(Shape, prism);
    Valid = valid;
    Refresh();
    // A polyhedron that was taken out of the scene comes back with any change of its geometry.
    Renderer->AddActor(Actor);
    return STATUS_OK;
}

int32_t CElement_Polyhedron::Initialize(const ElementSite& site, int32_t count, const double* x,
                                        const double* y, const double* z, double axisX,
                                        double axisY, double axisZ, double height)
{
    Shape.Axis = {axisX, axisY, axisZ};
    Shape.Height = height;
    int32_t status = Read(count, x, y, z, Shape.Points);
    if (status == STATUS_OK)
    {
        status = Judge(Shape, true, Valid);
    }
    return status == STATUS_OK ? TakeSiteAndSize(site) : status;
}

int32_t CElement_Polyhedron::BuildPipeline()
{
    BuildActor(Wire.GetOutputPort());
    MirrorByUserMatrix(Actor);
    return Store(Shape, Valid);
}

void CElement_Polyhedron::PlaceHandles()
{
    const int32_t count = Shape.Count();
    Handles.SetCount(HandleCount(count));
    for (int32_t ring = 0; ring < 2; ++ring)
    {
        Vector3 mean = {};
        for (int32_t corner = ring * count; corner < (ring + 1) * count; ++corner)
        {
            const Vector3 position = Shape.Corner(corner);
            Handles.SetPosition(corner, position);
            for (size_t axis = 0; axis < 3; ++axis)
            {
                mean[axis] += position[axis];
            }
        }
        Handles.SetPosition(2 * count + ring, {mean[0] / count, mean[1] / count, mean[2] / count});
    }
}

// Nothing: Store has drawn already.
void CElement_Polyhedron::Draw(bool) {}

int32_t CElement_Polyhedron::GetPointCount(int32_t* count)
{
    *count = Shape.Count();
    return STATUS_OK;
}

int32_t CElement_Polyhedron::GetValue(double* x, double* y, double* z, double* axisX, double* axisY,
                                      double* axisZ, double* height)
{
    if (!x || !y || !z)
    {
        return STATUS_NULL_ARGUMENT;
    }
    for (const Vector3& point : Shape.Points)
    {
        *x++ = point[0];
        *y++ = point[1];
        *z++ = point[2];
    }
    *axisX = Shape.Axis[0];
    *axisY = Shape.Axis[1];
    *axisZ = Shape.Axis[2];
    *height = Shape.Height;
    return STATUS_OK;
}

int32_t CElement_Polyhedron::SetValue(int32_t count, const double* x, const double* y,
                                      const double* z, double axisX, double axisY, double axisZ,
                                      double height)
{
    Prism prism;
    prism.Axis = {axisX, axisY, axisZ};
    prism.Height = height;
    bool valid = true;
    int32_t status = Read(count, x, y, z, prism.Points);
    if (status == STATUS_OK)
    {
        status = Judge(prism, false, valid);
        // Refused for its height or axis alone: an invalid one counts as valid again, still unseen.
        Valid |= status != STATUS_OK;
    }
    return status == STATUS_OK ? Store(std::move(prism), valid) : status;
}

int32_t CElement_Polyhedron::ChangePoint(int32_t index, double x, double y, double z)
{
    if (!HasPoint(index))
    {
        return STATUS_BAD_INDEX;
    }
    Prism prism = Shape;
    prism.Points[static_cast<size_t>(index)] = {x, y, z};
    return Store(std::move(prism), Valid && AreValidNumbers({x, y, z}));
}

int32_t CElement_Polyhedron::InsertPoint(int32_t index, double x, double y, double z)
{
    const bool appends = index == Shape.Count();
    if (!HasPoint(index) && !appends)
    {
        return STATUS_BAD_INDEX;
    }
    if (Shape.Count() >= MostCount)
    {
        return STATUS_OUT_OF_RANGE;
    }
    Prism prism = Shape;
    prism.Points.insert(prism.Points.begin() + index, {x, y, z});
    return Store(std::move(prism), Valid && AreValidNumbers({x, y, z}));
}

int32_t CElement_Polyhedron::RemovePoint(int32_t index)
{
    if (!HasPoint(index))
    {
        return STATUS_BAD_INDEX;
    }
    if (Shape.Count() <= LeastCount)
    {
        return STATUS_TOO_SMALL;
    }
    Prism prism = Shape;
    prism.Points.erase(prism.Points.begin() + index);
    return Store(std::move(prism), Valid);
}

int32_t CElement_Polyhedron::SetAxisDirection(double x, double y, double z)
{
    Prism prism = Shape;
    prism.Axis = {x, y, z};
    const bool valid = Valid && AreValidNumbers(prism.Axis);
    if (valid)
    {
        if (!GivesDirection(prism.Axis))
        {
            return STATUS_TOO_SMALL;
        }
        MakeUnit(prism.Axis);
    }
    return Store(std::move(prism), valid);
}

int32_t CElement_Polyhedron::SetHeight(double height)
{
    const bool valid = Valid && IsValidNumber(height);
    if (valid && height < leastHeight)
    {
        return STATUS_TOO_SMALL;
    }
    Prism prism = Shape;
    prism.Height = height;
    return Store(std::move(prism), valid);
}

void CElement_Polyhedron::DragHandle(int32_t handle, const Vector3& position)
{
    const Vector3 from = Handles.GetPosition(handle);
    const int32_t count = Shape.Count();
    const bool all = handle >= 2 * count;
    Prism prism = Shape;
    for (int32_t point = 0; point < count; ++point)
    {
        if (all || point == handle % count)
        {
            Vector3& moved = prism.Points[static_cast<size_t>(point)];
            for (size_t axis = 0; axis < 3; ++axis)
            {
                moved[axis] += position[axis] - from[axis];
            }
        }
    }
    Store(std::move(prism), true);
}
