// A prism as a wire model: a ring of points, swept half the height to each side along an axis, and
// edited point by point.
#pragma once

#include "elements3d/CElement_Draggable.h"
#include "elements3d/CPolyLine.h"

#include <vector>

class CElement_Polyhedron : public CElement_Draggable
{
public:
    static constexpr int32_t Type = 19;
    static constexpr int32_t LeastCount = 3;
    static constexpr int32_t MostCount = 250; // of points

    CElement_Polyhedron();

    // Refuses null arrays, a count outside the limits and an axis without a direction.
    int32_t Initialize(const ElementSite& site, int32_t count, const double* x, const double* y,
                       const double* z, double axisX, double axisY, double axisZ, double height);
    int32_t BuildPipeline();
    int32_t GetPointCount(int32_t* count);
    int32_t GetValue(double* x, double* y, double* z, double* axisX, double* axisY, double* axisZ,
                     double* height);
    // Stricter than Initialize, which takes a height that is too small and hides.
    int32_t SetValue(int32_t count, const double* x, const double* y, const double* z, double axisX,
                     double axisY, double axisZ, double height);
    // Each can make the polyhedron invalid; only SetValue makes it valid again.
    int32_t ChangePoint(int32_t index, double x, double y, double z);
    int32_t InsertPoint(int32_t index, double x, double y, double z);
    int32_t RemovePoint(int32_t index);
    int32_t SetAxisDirection(double x, double y, double z);
    int32_t SetHeight(double height);

protected:
    // The lower ring, the upper ring, and the mean of each.
    void PlaceHandles() override;
    void Draw(bool visible) override;
    // A handle of a ring moves its point, a mean the whole body.
    void DragHandle(int32_t handle, const Vector3& position) override;

private:
    struct Prism
    {
        std::vector<Vector3> Points;    // the ring, in the middle of the body
        Vector3 Axis = {0.0, 0.0, 1.0}; // a unit vector while valid
        double Height = 1.0;

        int32_t Count() const { return static_cast<int32_t>(Points.size()); }
        // Lower ring, then upper ring.
        Vector3 Corner(int32_t corner) const;
    };

    // Copies the host's arrays.
    static int32_t Read(int32_t count, const double* x, const double* y, const double* z,
                        std::vector<Vector3>& points);
    // Judges a whole prism and makes its axis a unit vector. STATUS_TOO_SMALL: to be refused.
    static int32_t Judge(Prism& prism, bool takesAnyHeight, bool& valid);
    // Puts new values in place of the old ones and into the picture.
    int32_t Store(Prism prism, bool valid);
    bool HasPoint(int32_t index) const { return index >= 0 && index < Shape.Count(); }

    Prism Shape;
    CPolyLine Wire;
};
