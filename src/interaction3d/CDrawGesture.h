// One way of drawing with the mouse, and the yellow rubber band that shows how far it has come.
#pragma once

#include "elements3d/Directions.h"
#include "interaction3d/DrawnLook.h"

#include <optional>

#include <vtkActor.h>
#include <vtkNew.h>

class vtkAlgorithmOutput;
class vtkRenderer;
class vtkTransform;

// The coordinate that is the same all over the plane on which something is drawn: an index into
// (x, y, z).
enum class DrawPlane : size_t
{
    Vertical = 1,
    Horizontal = 2
};

// Where the mouse is, in host coordinates on the plane of the rubber band. None: the picker missed.
using DrawPoint = std::optional<Vector3>;

// As it stands here, a shape that is drawn by press, drag and release; the right button drops it.
class CDrawGesture
{
public:
    virtual ~CDrawGesture();
    CDrawGesture(const CDrawGesture&) = delete;
    CDrawGesture& operator=(const CDrawGesture&) = delete;

    // Drops what was drawn; what follows is drawn on that plane.
    virtual void Start(DrawPlane plane);
    virtual void Down(const DrawPoint& point);
    void Move(const DrawPoint& point);
    virtual void Up(const DrawPoint& point);
    // The right button.
    virtual void End();
    virtual void Clear();

    bool IsUnderWay() const { return Started && !Finished; }
    // There is a result, until Clear.
    bool IsFinished() const { return Finished; }

protected:
    // Both borrowed; the renderer outlives the gesture.
    CDrawGesture(vtkRenderer* renderer, vtkTransform* sceneTransform);

    // The rubber band's geometry, in host coordinates; once, by the constructor of each class.
    void SetBand(vtkAlgorithmOutput* geometry);
    void ShowBand(bool show);

    virtual void Begin(const Vector3& point) = 0;
    // Takes the point as the moving end and makes the rubber band fit. False for a shape without
    // extent, which is none.
    virtual bool Stretch(const Vector3& point) = 0;

    // The coordinate of the plane that runs along it, beside x.
    size_t Along() const { return Plane == DrawPlane::Vertical ? 2 : 1; }

    DrawPlane Plane = DrawPlane::Vertical;
    bool Started = false;
    bool Finished = false;

private:
    // False where there is no shape that ends there.
    bool Follow(const DrawPoint& point);

    bool Drawable = true; // no point of this gesture lies where VTK would lose its numbers
    vtkRenderer* Renderer;
    vtkNew<vtkActor> Actor;
};
