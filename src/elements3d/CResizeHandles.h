// The resize handles of one element: small spheres at numbered positions. The number of a handle is
// its place in the collection of actors and in the three arrays.
#pragma once

#include "elements3d/Directions.h"

#include <vtkActorCollection.h>
#include <vtkSmartPointer.h>

#include <cstddef>
#include <cstdint>
#include <vector>

class vtkActor;
class vtkPolyDataMapper;
class vtkProperty;
class vtkRenderer;

class CResizeHandles
{
public:
    // `capacity`: the most handles that the element can have.
    explicit CResizeHandles(int32_t capacity);
    ~CResizeHandles();
    CResizeHandles(const CResizeHandles&) = delete;
    CResizeHandles& operator=(const CResizeHandles&) = delete;

    // All memory for so many handles: SetCount and SetPosition then cannot fail.
    void Reserve(int32_t count);
    void SetCount(int32_t count);
    int32_t GetCount() const { return static_cast<int32_t>(X.size()); }
    // Host coordinates.
    void SetPosition(int32_t handle, const Vector3& position);
    Vector3 GetPosition(int32_t handle) const;
    bool AreDrawable() const;

    // Makes the spheres. From here on collection and arrays keep their addresses, whatever the
    // count does: the mouse styles hold them.
    void Build();
    // These need Build.
    void SetColor(const uint8_t color[3]);
    void SetOpacity(double opacity);
    // All spheres to their positions and into the renderer.
    void Place(vtkRenderer* renderer, double radius, bool visible);
    void TakeOut(vtkRenderer* renderer);

    vtkActorCollection* GetActors() const { return Actors; }
    const double* GetX() const { return X.data(); }
    const double* GetY() const { return Y.data(); }
    const double* GetZ() const { return Z.data(); }

private:
    const int32_t Capacity;
    std::vector<double> X;
    std::vector<double> Y;
    std::vector<double> Z;
    // One mesh, one mapper and one property serve all spheres of the element. The property has to
    // be one: the mapper fills its buffers again for each property that differs from the last.
    vtkSmartPointer<vtkPolyDataMapper> Mapper;
    vtkSmartPointer<vtkProperty> Look;
    std::vector<vtkSmartPointer<vtkActor>> Spheres; // maybe more than there are handles
    vtkSmartPointer<vtkActorCollection> Actors;     // the handles, for picking
    int32_t InScene = 0;                            // so many spheres are in the renderer
};
