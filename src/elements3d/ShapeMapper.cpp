#include "elements3d/ShapeMapper.h"

#include <vtkAlgorithm.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkOpenGLState.h>
#include <vtkOpenGLVertexBufferObjectCache.h>
#include <vtkRenderer.h>
#include <vtkSmartPointer.h>

vtkStandardNewMacro(ShapeMapper);

ShapeMapper::ShapeMapper() = default;

ShapeMapper::~ShapeMapper()
{
    // Buffers leave the cache before it goes.
    this->ReleaseGraphicsResources(nullptr);
}

void ShapeMapper::UpdateGeometry()
{
    this->GetInputAlgorithm()->Update();
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
