#include "interaction3d/CDrawnVertices.h"

#include <algorithm>

CDrawnVertices::CDrawnVertices(vtkRenderer* renderer, vtkTransform* sceneTransform)
    : CDrawGesture(renderer, sceneTransform)
{
    SetBand(VertexLine.GetOutputPort());
}

void CDrawnVertices::Append(const Vector3& point)
{
    Vertices.insert(Vertices.end(), point.begin(), point.end());
}

void CDrawnVertices::Down(const DrawPoint&) {}

void CDrawnVertices::Begin(const Vector3& point)
{
    Vertices.assign(point.begin(), point.end());
    VertexCount = 0;
}

bool CDrawnVertices::Stretch(const Vector3& point)
{
    std::copy(point.begin(), point.end(), Vertices.end() - 3);
    VertexLine.Set(Vertices, false);
    return true;
}

void CDrawnVertices::Up(const DrawPoint& point)
{
    if (!point || Finished)
    {
        return;
    }
    if (!Started)
    {
        CDrawGesture::Down(point);
    }
    // Over the moving vertex, which begins anew at the same place.
    Vertices.resize(3 * VertexCount);
    Append(*point);
    Append(*point);
    ++VertexCount;
    Move(point);
}

void CDrawnVertices::End()
{
    constexpr size_t leastCount = 3;
    if (VertexCount < leastCount)
    {
        Clear();
        return;
    }
    Vertices.resize(3 * VertexCount);
    VertexLine.Set(Vertices, true);
    Finished = true;
    ShowBand(true);
}

void CDrawnVertices::Clear()
{
    CDrawGesture::Clear();
    VertexCount = 0;
    Vertices.clear();
}

std::vector<double> CDrawnVertices::GetCoordinates(size_t axis) const
{
    std::vector<double> coordinates;
    coordinates.reserve(VertexCount);
    for (size_t at = axis; at < 3 * VertexCount; at += 3)
    {
        coordinates.push_back(Vertices[at]);
    }
    return coordinates;
}
