// What the mouse draws on in a draw mode, and with: an almost invisible plane in the middle of the
// draw space that the picker hits, and the gesture whose rubber band shows the coming element.
// It is no element of the view itself.
#pragma once

#include "interaction3d/CCatcherPlane.h"
#include "interaction3d/CDrawnBox.h"
#include "interaction3d/CDrawnDisc.h"
#include "interaction3d/CDrawnVertices.h"

class CElement_Drawn
{
public:
    // Both borrowed; the renderer outlives this object.
    CElement_Drawn(vtkRenderer* renderer, vtkTransform* sceneTransform);
    ~CElement_Drawn();
    CElement_Drawn(const CElement_Drawn&) = delete;
    CElement_Drawn& operator=(const CElement_Drawn&) = delete;

    // Drops what was drawn and lays the plane into that box (xmin, xmax, ymin, ymax, zmin, zmax),
    // where it stays until the next start. STATUS_OUT_OF_RANGE if the box is too thin.
    int32_t Start(DrawGesture gesture, DrawPlane plane, const double drawSpace[6]);

    // What the mouse does, at a picked position in VTK's world.
    void Down(double x, double y, double z);
    void Move(double x, double y, double z);
    void Up(double x, double y, double z);
    void End();
    void Clear();
    bool IsUnderWay() const { return Current->IsUnderWay(); }
    bool IsFinished() const { return Current->IsFinished(); }

    // The result is that of the gesture that was started.
    const CDrawnBox& GetBox() const { return Box; }
    const CDrawnDisc& GetDisc() const { return Disc; }
    const CDrawnVertices& GetVertices() const { return Vertices; }
    // Of the box of the last start, in host coordinates.
    Vector3 GetMiddle() const;
    double GetHeight() const { return DrawSpace[5] - DrawSpace[4]; }

private:
    void PlacePlane();
    DrawPoint ToPlane(double x, double y, double z) const;

    vtkRenderer* Renderer;
    std::array<double, 6> DrawSpace = {-50.0, 50.0, -50.0, 50.0, -50.0, 50.0};
    DrawPlane Plane = DrawPlane::Vertical;
    CCatcherPlane DrawingPlane;
    CDrawnBox Box;
    CDrawnDisc Disc;
    CDrawnVertices Vertices;
    CDrawGesture* Current = &Box;
};
