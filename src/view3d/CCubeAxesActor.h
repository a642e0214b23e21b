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
    void SetXLabelFormat(const char* format) override { SetText(XLabelFormat, format); }
    void SetYLabelFormat(const char* format) override { SetText(YLabelFormat, format); }
    void SetZLabelFormat(const char* format) override { SetText(ZLabelFormat, format); }

protected:
    CCubeAxesActor();
    ~CCubeAxesActor() override = default;

private:
    void SetActualXLabel(const char* label) override { SetText(ActualXLabel, label); }
    void SetActualYLabel(const char* label) override { SetText(ActualYLabel, label); }
    void SetActualZLabel(const char* label) override { SetText(ActualZLabel, label); }
    // The base class frees the old text before it asks for memory, and would free it once more.
    void SetText(char*& text, const char* value);
    CInvertedAxisActor* GetYAxis(int position);
};
