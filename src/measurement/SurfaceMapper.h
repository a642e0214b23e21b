// Draws the mesh of a surface with OpenGL.
#pragma once

#include "measurement/SurfaceMesh.h"

#include <array>
#include <memory>
#include <vector>

#include <vtkNew.h>
#include <vtkOpenGLBufferObject.h>
#include <vtkOpenGLPolyDataMapper.h>
#include <vtkTextureObject.h>
#include <vtkTimeStamp.h>

// What colours a surface: a whole number for each point of its mesh, and the line that leads from
// these levels to the values of the scalar range.
struct SurfaceLevels
{
    // One of the two is set.
    std::shared_ptr<const int16_t[]> Heights;
    std::shared_ptr<const uint8_t[]> Intensities;
    // The levels that are drawn.
    int32_t Lowest = 0;
    int32_t Highest = 0;
    double Scale = 1.0;
    double Offset = 0.0;
};

// Gives the same picture, picks and bounds as vtkPolyDataMapper would with the mesh, a double
// scalar for each point, InterpolateScalarsBeforeMapping and the same lookup table, but
// - the bounds are known and not searched for;
// - a point carries its level, and the vertex shader looks the texture coordinate of the level up
//   in a small table: changing the palette or the range uploads nothing that grows with the
//   surface, and the coordinates, computed in double precision, are the same to the last bit;
// - points and strips are uploaded as they are, without shift and scale, which would cost a missing
//   sample's neighbours their precision;
// - strips outside the view, or away from the pixels that a selector asks for, are not drawn.
// It draws surfaces only: no wireframe, edges or vertices, and a selector learns the actor that it
// hit, but not the cell or point.
class SurfaceMapper : public vtkOpenGLPolyDataMapper
{
public:
    static SurfaceMapper* New();
    vtkTypeMacro(SurfaceMapper, vtkOpenGLPolyDataMapper);

    void SetMesh(SurfaceMesh mesh);
    const SurfaceMesh& GetMesh() const { return Mesh; }
    // The lookup table takes the range, which a scalar bar shows: other mappers tell it only when
    // they are drawn, and a surface may be out of sight.
    void TellRange();
    void SetLevels(SurfaceLevels levels);

    bool HasTranslucentPolygonalGeometry() override;
    void RenderPieceStart(vtkRenderer* renderer, vtkActor* actor) override;
    void RenderPieceDraw(vtkRenderer* renderer, vtkActor* actor) override;
    void RenderPieceFinish(vtkRenderer* renderer, vtkActor* actor) override;
    void ReleaseGraphicsResources(vtkWindow* window) override;

    // How many strips the last picture or selection drew.
    size_t GetDrawnStripCount() const { return StripLengths.size(); }

protected:
    SurfaceMapper();
    ~SurfaceMapper() override;

    void ComputeBounds() override;
    void BuildBufferObjects(vtkRenderer* renderer, vtkActor* actor) override;
    void ReplaceShaderTCoord(std::map<vtkShader::Type, vtkShader*> shaders, vtkRenderer* renderer,
                             vtkActor* actor) override;
    void SetMapperShaderParameters(vtkOpenGLHelper& helper, vtkRenderer* renderer,
                                   vtkActor* actor) override;

private:
    void BuildColors();
    void UploadMesh(vtkRenderer* renderer);
    void UploadLevels();
    void UploadLevelTable(vtkRenderer* renderer);
    void ChooseStrips(vtkRenderer* renderer, vtkActor* actor);

    SurfaceMesh Mesh;
    SurfaceLevels Levels;
    vtkTimeStamp MeshTime;
    vtkTimeStamp LevelsTime;

    const vtkWindow* ResourceWindow = nullptr; // has the buffers; only compared
    vtkTimeStamp MeshUploadTime;
    vtkTimeStamp LevelsUploadTime;
    vtkTimeStamp LevelsBindTime;
    vtkNew<vtkOpenGLBufferObject> LevelBuffer; // a level for each point
    vtkNew<vtkOpenGLBufferObject> LevelTable;  // a texture coordinate for each level
    vtkNew<vtkTextureObject> LevelTableTexture;

    // The strips to draw now, in the form that OpenGL takes.
    std::vector<int> StripLengths;
    std::vector<const void*> StripOffsets;
};
