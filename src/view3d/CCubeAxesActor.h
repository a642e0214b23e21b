// The scale frame of a mirrored scene: VTK's cube axes, with Y labels that read host coordinates.
#pragma once

#include <vtkAxisActor.h>
#include <vtkCubeAxesActor.h>

#include <string>
#include <vector>

// One Y axis. VTK labels it with world coordinates; with the inversion on, each label shows its
// value with the sign turned.
class CInvertedAxisActor : public vtkAxisActor
{
public:
    static CInvertedAxisActor* New();
    vtkTypeMacro(CInvertedAxisActor, vtkAxisActor);

    void SetInverted(bool inverted) { Inverted = inverted; }
    // Whether the last picture showed this axis; which do depends on camera and fly mode.
    bool IsDrawn() const { return Drawn; }
    void ClearDrawn() { Drawn = false; }
    // The text of a label as it is drawn.
    std::string GetLabelText(int label);

    // The first call of every picture, after VTK has made its labels anew where it had to.
    int RenderOpaqueGeometry(vtkViewport* viewport) override;

protected:
    CInvertedAxisActor() = default;
    ~CInvertedAxisActor() override = default;

private:
    bool Inverted = false;
    bool Drawn = false;
};

class CCubeAxesActor : public vtkCubeAxesActor
{
public:
    static CCubeAxesActor* New();
    vtkTypeMacro(CCubeAxesActor, vtkCubeAxesActor);

    void Set_InvertAxisLabellingY(bool invert);
    // The Y axes that the last picture showed.
    std::vector<CInvertedAxisActor*> GetDrawnYAxes();
    int RenderOpaqueGeometry(vtkViewport* viewport) override;

protected:
    CCubeAxesActor();
    ~CCubeAxesActor() override = default;

private:
    CInvertedAxisActor* GetYAxis(int position);
};
