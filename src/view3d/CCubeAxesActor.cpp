#include "view3d/CCubeAxesActor.h"

#include <vtkAlgorithm.h>
#include <vtkAxisFollower.h>
#include <vtkMapper.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkSmartPointer.h>
#include <vtkStringArray.h>
#include <vtkVectorText.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

vtkStandardNewMacro(CInvertedAxisActor);
vtkStandardNewMacro(CCubeAxesActor);

namespace
{
// "-12.5" from "12.5" and back; padding and "-0" do not survive.
std::string TurnSign(const std::string& text)
{
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos)
    {
        return text;
    }
    return text[first] == '-' ? text.substr(first + 1) : '-' + text.substr(first);
}
} // namespace

std::string CInvertedAxisActor::GetLabelText(int label)
{
    auto* text =
        vtkVectorText::SafeDownCast(GetLabelActors()[label]->GetMapper()->GetInputAlgorithm());
    return text && text->GetText() ? text->GetText() : "";
}

int CInvertedAxisActor::RenderOpaqueGeometry(vtkViewport* viewport)
{
    // VTK makes the labels anew only after changes, so one may have been turned by an earlier
    // picture: what counts is how its sign compares with that of its position.
    bool turned = false;
    vtkNew<vtkStringArray> labels;
    labels->SetNumberOfValues(GetNumberOfLabelsBuilt());
    for (int label = 0; label < GetNumberOfLabelsBuilt(); ++label)
    {
        std::string text = GetLabelText(label);
        const double shown = std::strtod(text.c_str(), nullptr);
        const double position = GetMajorRangeStart() + label * GetDeltaRangeMajor();
        const bool sameSign = shown * position > 0.0;
        const bool minusZero = shown == 0.0 && text.find('-') != std::string::npos;
        if (minusZero || (shown != 0.0 && sameSign == Inverted))
        {
            text = TurnSign(text);
            turned = true;
        }
        labels->SetValue(label, text);
    }
    if (turned)
    {
        SetLabels(labels);
    }
    Drawn = true;
    return Superclass::RenderOpaqueGeometry(viewport);
}

CCubeAxesActor::CCubeAxesActor()
{
    // The base class has made plain axes and calls them through this array; each is replaced by one
    // of ours with the same settings.
    for (int position = 0; position < NUMBER_OF_ALIGNED_AXIS; ++position)
    {
        vtkAxisActor* plain = YAxes[position];
        vtkNew<CInvertedAxisActor> axis;
        axis->SetTickVisibility(plain->GetTickVisibility());
        axis->SetMinorTicksVisible(plain->GetMinorTicksVisible());
        axis->SetLabelVisibility(plain->GetLabelVisibility());
        axis->SetTitleVisibility(plain->GetTitleVisibility());
        axis->SetAxisTypeToY();
        axis->SetAxisPosition(position);
        axis->SetAxisLinesProperty(plain->GetAxisLinesProperty());
        axis->SetGridlinesProperty(plain->GetGridlinesProperty());
        axis->SetInnerGridlinesProperty(plain->GetInnerGridlinesProperty());
        axis->SetGridpolysProperty(plain->GetGridpolysProperty());
        axis->SetLabelOffset(plain->GetLabelOffset());
        axis->SetTitleOffset(plain->GetTitleOffset());
        axis->SetScreenSize(plain->GetScreenSize());
        axis->SetCalculateTitleOffset(0);
        axis->SetCalculateLabelOffset(0);
        // The base class drops the one reference that the array holds.
        axis->Register(nullptr);
        YAxes[position] = axis;
        plain->UnRegister(nullptr);
    }
}

void CCubeAxesActor::Set_InvertAxisLabellingY(bool invert)
{
    for (int position = 0; position < NUMBER_OF_ALIGNED_AXIS; ++position)
    {
        GetYAxis(position)->SetInverted(invert);
    }
    Modified();
}

void CCubeAxesActor::SetText(char*& text, const char* value)
{
    if (text && std::strcmp(text, value) == 0)
    {
        return;
    }
    const size_t size = std::strlen(value) + 1;
    auto copy = std::make_unique<char[]>(size);
    std::copy_n(value, size, copy.get());
    // The base class frees what it then holds.
    const std::unique_ptr<char[]> old(std::exchange(text, copy.release()));
    Modified();
}

CInvertedAxisActor* CCubeAxesActor::GetYAxis(int position)
{
    return static_cast<CInvertedAxisActor*>(YAxes[position]);
}

std::vector<CInvertedAxisActor*> CCubeAxesActor::GetDrawnYAxes()
{
    std::vector<CInvertedAxisActor*> axes;
    for (int position = 0; position < NUMBER_OF_ALIGNED_AXIS; ++position)
    {
        if (GetYAxis(position)->IsDrawn())
        {
            axes.push_back(GetYAxis(position));
        }
    }
    return axes;
}

int CCubeAxesActor::RenderOpaqueGeometry(vtkViewport* viewport)
{
    for (int position = 0; position < NUMBER_OF_ALIGNED_AXIS; ++position)
    {
        GetYAxis(position)->ClearDrawn();
    }
    return Superclass::RenderOpaqueGeometry(viewport);
}
