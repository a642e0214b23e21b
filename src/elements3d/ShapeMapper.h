// The mapper of shapes: small geometry that changes seldom, and very many of them.
#pragma once

#include <vtkNew.h>
#include <vtkOpenGLPolyDataMapper.h>
#include <vtkTimeStamp.h>

class vtkOpenGLVertexBufferObjectCache;

// As stock, but what an element costs does not depend on how many others there are:
// - its vertex buffers are entered in a cache of its own; VTK walks the whole cache of a window for
//   each buffer that leaves, which makes the removal of thousands of elements take minutes;
// - its source runs when it has changed, and is not asked through VTK's pipeline for each picture
//   and each question for the bounds.
class ShapeMapper : public vtkOpenGLPolyDataMapper
{
public:
    static ShapeMapper* New();
    vtkTypeMacro(ShapeMapper, vtkOpenGLPolyDataMapper);

    void Update() override { UpdateSource(); }
    using vtkOpenGLPolyDataMapper::Update;
    double* GetBounds() override;
    using vtkOpenGLPolyDataMapper::GetBounds;
    void RenderPiece(vtkRenderer* renderer, vtkActor* actor) override;

protected:
    ShapeMapper();
    ~ShapeMapper() override;
    void BuildBufferObjects(vtkRenderer* renderer, vtkActor* actor) override;

private:
    void UpdateSource();

    vtkTimeStamp SourceTime;
    vtkNew<vtkOpenGLVertexBufferObjectCache> Buffers;
};
