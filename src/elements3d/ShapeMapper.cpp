#include "elements3d/ShapeMapper.h"

#include <vtkAlgorithm.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkOpenGLState.h>
#include <vtkOpenGLVertexBufferObjectCache.h>
#include <vtkRenderer.h>
#include <vtkSmartPointer.h>

vtkStandardNewMacro(ShapeMapper);

ShapeMapper::ShapeMapper()
{
    this->StaticOn();
}

ShapeMapper::~ShapeMapper()
{
    // Buffers leave the cache before it goes.
    this->ReleaseGraphicsResources(nullptr);
}

void ShapeMapper::UpdateSource()
{
    vtkAlgorithm* source = this->GetInputAlgorithm();
    if (source->GetMTime() > SourceTime)
    {
        source->Update();
        SourceTime.Modified();
    }
}

double* ShapeMapper::GetBounds()
{
    UpdateSource();
    return this->Superclass::GetBounds();
}

void ShapeMapper::RenderPiece(vtkRenderer* renderer, vtkActor* actor)
{
    UpdateSource();
    this->Superclass::RenderPiece(renderer, actor);
}

void ShapeMapper::BuildBufferObjects(vtkRenderer* renderer, vtkActor* actor)
{
    vtkOpenGLState* state =
        static_cast<vtkOpenGLRenderWindow*>(renderer->GetRenderWindow())->GetState();
    const vtkSmartPointer<vtkOpenGLVertexBufferObjectCache> shared = state->GetVBOCache();
    state->SetVBOCache(Buffers);
    this->Superclass::BuildBufferObjects(renderer, actor);
    state->SetVBOCache(shared);
}
