// A closed line that is drawn vertex by vertex, a click each; the right button closes it: polygon
// and the base of a polyhedron.
#pragma once

#include "elements3d/CPolyLine.h"
#include "interaction3d/CDrawGesture.h"

#include <vector>

class CDrawnVertices : public CDrawGesture
{
public:
    CDrawnVertices(vtkRenderer* renderer, vtkTransform* sceneTransform);

    // The press of a click says nothing yet: its release fixes the vertex.
    void Down(const DrawPoint& point) override;
    void Up(const DrawPoint& point) override;
    // Closes the line; fewer than three vertices are dropped.
    void End() override;
    void Clear() override;

    // Of the finished line, in host coordinates.
    size_t GetCount() const { return VertexCount; }
    std::vector<double> GetCoordinates(size_t axis) const;

protected:
    void Begin(const Vector3& point) override;
    bool Stretch(const Vector3& point) override;

private:
    void Append(const Vector3& point);

    size_t VertexCount = 0; // fixed ones
    // Three numbers a vertex; the moving one comes after the fixed ones.
    std::vector<double> Vertices;
    CPolyLine VertexLine;
};
