#include "view3d/CCoordinateAxes.h"

#include <vtkAxes.h>
#include <vtkConeSource.h>
#include <vtkNew.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkTextActor.h>
#include <vtkTextProperty.h>
#include <vtkTubeFilter.h>

namespace
{
// In VTK's world: the cone of Y stands at negative Y, where positive host Y is.
struct Axis
{
    double ConeCentre[3];
    double ConeDirection[3];
    const double* Color;
    double CaptionPosition[3];
    const char* Caption;
};

constexpr Axis axes[] = {
    {{52.5, 0.0, 0.0}, {1.0, 0.0, 0.0}, AxisColors::X, {50.0, 5.0, 0.0}, "X"},
    {{0.0, -52.5, 0.0}, {0.0, -1.0, 0.0}, AxisColors::Y, {5.0, -52.0, 0.0}, "Y"},
    {{0.0, 0.0, 52.5}, {0.0, 0.0, 1.0}, AxisColors::Z, {5.0, 0.0, 50.0}, "Z"}};

vtkSmartPointer<vtkActor> MakeActor(vtkAlgorithmOutput* geometry)
{
    vtkNew<vtkPolyDataMapper> mapper;
    mapper->SetInputConnection(geometry);
    vtkNew<vtkActor> actor;
    actor->SetMapper(mapper);
    return actor;
}

vtkSmartPointer<vtkActor> MakeTubes()
{
    vtkNew<vtkAxes> source;
    source->SetOrigin(0.0, 0.0, 0.0);
    source->SetSymmetric(1);
    source->SetScaleFactor(50.0);
    vtkNew<vtkTubeFilter> tube;
    tube->SetInputConnection(source->GetOutputPort());
    tube->SetRadius(0.5);
    tube->SetNumberOfSides(6);
    // Coloured by the scalars of the source.
    return MakeActor(tube->GetOutputPort());
}

vtkSmartPointer<vtkActor> MakeCone(const Axis& axis)
{
    vtkNew<vtkConeSource> source;
    source->SetCenter(axis.ConeCentre[0], axis.ConeCentre[1], axis.ConeCentre[2]);
    source->SetDirection(axis.ConeDirection[0], axis.ConeDirection[1], axis.ConeDirection[2]);
    source->SetRadius(1.0);
    source->SetHeight(5.0);
    source->SetResolution(20);
    vtkSmartPointer<vtkActor> actor = MakeActor(source->GetOutputPort());
    actor->GetProperty()->SetColor(axis.Color[0], axis.Color[1], axis.Color[2]);
    return actor;
}

vtkSmartPointer<vtkCaptionActor2D> MakeCaption(const Axis& axis)
{
    vtkNew<vtkCaptionActor2D> caption;
    caption->SetAttachmentPoint(axis.CaptionPosition[0], axis.CaptionPosition[1],
                                axis.CaptionPosition[2]);
    caption->SetCaption(axis.Caption);
    caption->SetBorder(0);
    caption->SetLeader(0);
    caption->SetThreeDimensionalLeader(0);
    caption->SetPadding(0);
    vtkTextProperty* text = caption->GetCaptionTextProperty();
    text->SetColor(axis.Color[0], axis.Color[1], axis.Color[2]);
    text->SetFontSize(16);
    text->ShadowOff();
    text->ItalicOff();
    caption->GetTextActor()->SetTextScaleModeToNone();
    return caption;
}
} // namespace

CCoordinateAxes::CCoordinateAxes() : Tubes(MakeTubes())
{
    for (size_t axis = 0; axis < Cones.size(); ++axis)
    {
        Cones[axis] = MakeCone(axes[axis]);
        Captions[axis] = MakeCaption(axes[axis]);
    }
}

void CCoordinateAxes::SetInScene(vtkRenderer* renderer, bool inScene)
{
    const auto place = [renderer, inScene](vtkProp* prop)
    {
        if (inScene)
        {
            renderer->AddActor(prop);
        }
        else
        {
            renderer->RemoveActor(prop);
        }
    };
    place(Tubes);
    for (const vtkSmartPointer<vtkActor>& cone : Cones)
    {
        place(cone);
    }
    for (const vtkSmartPointer<vtkCaptionActor2D>& caption : Captions)
    {
        place(caption);
    }
}
