// An upright box, turned about z, as faces or as a wire model.
#pragma once

#include "elements3d/CElement_Draggable.h"

#include <optional>

class vtkPoints;

class CElement_Cube : public CElement_Draggable
{
public:
    static constexpr int32_t Type = 16;

    CElement_Cube();

    // The angle is folded into -180 .. 180 here; SetValue keeps it as given.
    int32_t Initialize(const ElementSite& site, double x, double y, double z, double lengthX,
                       double lengthY, double lengthZ, double angle, bool wireframe);
    int32_t BuildPipeline();
    int32_t GetValue(double* x, double* y, double* z, double* lengthX, double* lengthY,
                     double* lengthZ, double* angle);
    // STATUS_INVALID_VALUES, with the values stored, when handles are on that cannot be shown.
    int32_t SetValue(double x, double y, double z, double lengthX, double lengthY, double lengthZ,
                     double angle);

    // Unlike its likes, an invalid cube lets its handles be switched off.
    int32_t ShowHandles(bool on, double radius) override;
    void EndDrag() override;

protected:
    // Handles 0 and 1 are the centres of bottom and top, 2 to 5 the corners of the bottom, 6 to 9
    // those of the top above them.
    void PlaceHandles() override;
    void Draw(bool visible) override;
    // Only x and y count: height and length in z do not change by dragging.
    void DragHandle(int32_t handle, const Vector3& position) override;

private:
    // The corner that stays in place during a drag: the one opposite to the handle when the drag
    // began. Taken anew at each step, it would be the dragged one once the mouse has passed it.
    struct Anchor
    {
        int32_t Handle;
        Vector3 Position;
    };

    void Store(double x, double y, double z, double lengthX, double lengthY, double lengthZ,
               double angle);

    bool Wireframe = false;
    // The centre.
    double X = 0.0;
    double Y = 0.0;
    double Z = 0.0;
    double LengthX = 0.0; // any may be negative, and two of them 0
    double LengthY = 0.0;
    double LengthZ = 1.0;
    double Angle = 5.0; // degrees, from x towards y
    std::optional<Anchor> DragAnchor;
    vtkSmartPointer<vtkPoints> Points;
};
