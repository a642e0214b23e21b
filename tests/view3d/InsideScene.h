// A 3D view from the inside: its renderer and actors.
#pragma once

#include "platform/Inside.h"
#include "support/ViewFixture.h"

#include <vtkActor.h>
#include <vtkActorCollection.h>
#include <vtkRenderer.h>

class InsideScene : public ViewFixture
{
protected:
    using ViewFixture::ViewFixture;

    CWindow& View() const { return ViewOf(Id); }
    vtkRenderer* Renderer() const { return View().GetRenderer(); }
    vtkActor* LastActor() const { return Renderer()->GetActors()->GetLastActor(); }
    int CountActors() const { return Renderer()->GetActors()->GetNumberOfItems(); }
    void Render() const { View().GetRenderWindow()->Render(); }
};
