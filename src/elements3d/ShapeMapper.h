// The mapper of shapes: small geometry that changes seldom, and very many of them.
#pragma once

#include <vtkNew.h>
#include <vtkOpenGLPolyDataMapper.h>

class vtkOpenGLVertexBufferObjectCache;

// As stock, but what an element costs does not depend on how many others there are:
// - its vertex buffers are entered in a cache of its own; VTK walks the whole cache of a window for
//   each buffer that leaves, which makes the removal of thousands of elements take minutes;
// - its input is brought up to date when it has changed (UpdateGeometry), not for each picture and
//   each question for its bounds.
class ShapeMapper : public vtkOpenGLPolyDataMapper
{
public:
    static ShapeMapper* New();
    vtkTypeMacro(ShapeMapper, vtkOpenGLPolyDataMapper);

    void UpdateGeometry();

protected:
    ShapeMapper();
    ~ShapeMapper() override;
    void BuildBufferObjects(vtkRenderer* renderer, vtkActor* actor) override;

private:
    vtkNew<vtkOpenGLVertexBufferObjectCache> Buffers;
};
