#include "measurement/SurfaceMapper.h"

#include "elements3d/ViewArea.h"

#include <vtkActor.h>
#include <vtkCellArray.h>
#include <vtkDoubleArray.h>
#include <vtkImageData.h>
#include <vtkMath.h>
#include <vtkMatrix4x4.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLHelper.h>
#include <vtkOpenGLIndexBufferObject.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkOpenGLTexture.h>
#include <vtkOpenGLVertexArrayObject.h>
#include <vtkOpenGLVertexBufferObject.h>
#include <vtkOpenGLVertexBufferObjectGroup.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkRenderer.h>
#include <vtkScalarsToColors.h>
#include <vtkShader.h>
#include <vtkShaderProgram.h>
#include <vtk_glew.h>

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

vtkStandardNewMacro(SurfaceMapper);

namespace
{
// Pixels that a strip may reach beyond its box by rounding.
constexpr double margin = 2.0;
} // namespace

SurfaceMapper::SurfaceMapper()
{
    LevelTable->SetType(vtkOpenGLBufferObject::TextureBuffer);
    this->SetScalarModeToUsePointData();
    this->SetColorModeToMapScalars();
    this->ScalarVisibilityOn();
    this->InterpolateScalarsBeforeMappingOn();
    this->SetVBOShiftScaleMethod(vtkOpenGLVertexBufferObject::DISABLE_SHIFT_SCALE);
}

SurfaceMapper::~SurfaceMapper()
{
    // While the buffers of this class are still there: the base class would come too late for them.
    SurfaceMapper::ReleaseGraphicsResources(nullptr);
}

void SurfaceMapper::SetMesh(SurfaceMesh mesh)
{
    Mesh = std::move(mesh);
    MeshTime.Modified();
    this->SetInputData(Mesh.PolyData);
    StripLengths.reserve(Mesh.StripBoxes.size());
    StripOffsets.reserve(Mesh.StripBoxes.size());
    this->Modified();
}

void SurfaceMapper::SetLevels(SurfaceLevels levels)
{
    Levels = std::move(levels);
    // A table of one entry if nothing is drawn.
    Levels.Highest = std::max(Levels.Highest, Levels.Lowest);
    LevelsTime.Modified();
    this->Modified();
}

void SurfaceMapper::ComputeBounds()
{
    if (Mesh.Bounds.IsEmpty())
    {
        vtkMath::UninitializeBounds(this->Bounds);
        return;
    }
    std::copy(Mesh.Bounds.Bounds.begin(), Mesh.Bounds.Bounds.end(), this->Bounds);
}

// The base class asks the scalars of the poly data, which has none here.
bool SurfaceMapper::HasTranslucentPolygonalGeometry()
{
    vtkScalarsToColors* table = this->GetLookupTable();
    table->Build();
    return !table->IsOpaque();
}

void SurfaceMapper::ReleaseGraphicsResources(vtkWindow* window)
{
    // The base class answers by making the context current that the resources belong to and calling
    // this function once more. Buffers can be freed only then.
    auto* current = vtkOpenGLRenderWindow::SafeDownCast(window);
    if (current && current == ResourceWindow && current->IsCurrent())
    {
        LevelBuffer->ReleaseGraphicsResources();
        LevelTable->ReleaseGraphicsResources();
        LevelTableTexture->ReleaseGraphicsResources(window);
    }
    this->Superclass::ReleaseGraphicsResources(window);
}

// Called after any change of mesh, levels, range, lookup table or property.
void SurfaceMapper::BuildBufferObjects(vtkRenderer* renderer, vtkActor*)
{
    ResourceWindow = renderer->GetRenderWindow();
    this->HaveCellScalars = false;
    this->HaveCellNormals = false;
    BuildColors();
    UploadMesh(renderer);
    UploadLevels();
    UploadLevelTable(renderer);
    this->VBOBuildTime.Modified();
}

void SurfaceMapper::TellRange()
{
    const double* range = this->ScalarRange;
    if (std::isfinite(range[0]) && std::isfinite(range[1]) && range[0] <= range[1])
    {
        this->GetLookupTable()->SetRange(this->ScalarRange);
    }
}

// The texture that the table is drawn with.
void SurfaceMapper::BuildColors()
{
    vtkScalarsToColors* table = this->GetLookupTable();
    table->Build();
    const double* range = this->ScalarRange;
    TellRange();
    // The base class makes the texture together with coordinates for the scalars. Coordinates are
    // to it the sign that the surface is coloured by a texture, so it is given one scalar.
    vtkNew<vtkDoubleArray> scalar;
    scalar->InsertNextValue(range[0]);
    try
    {
        this->MapScalarsToTexture(scalar, 1.0);
    }
    catch (const std::bad_alloc&)
    {
        // It would take an image without colours for one that is up to date.
        vtkSmartPointer<vtkImageData>::Take(std::exchange(this->ColorTextureMap, nullptr));
        throw;
    }
    if (!this->InternalColorTexture)
    {
        vtkNew<vtkOpenGLTexture> texture;
        texture->RepeatOff();
        // The base class drops the one reference that its member holds.
        texture->Register(nullptr);
        this->InternalColorTexture = texture;
    }
    this->InternalColorTexture->SetInputData(this->ColorTextureMap);
}

void SurfaceMapper::UploadMesh(vtkRenderer* renderer)
{
    // Does nothing if this array is on the graphics side already.
    this->VBOs->CacheDataArray("vertexMC", Mesh.PolyData->GetPoints()->GetData(), renderer,
                               VTK_FLOAT);
    this->VBOs->BuildAllVBOs(renderer);

    vtkOpenGLIndexBufferObject* indices = this->Primitives[PrimitiveTriStrips].IBO;
    if (indices->GetHandle() == 0 || MeshUploadTime < MeshTime)
    {
        vtkTypeInt32Array* strips = Mesh.PolyData->GetStrips()->GetConnectivityArray32();
        const auto count = static_cast<size_t>(strips->GetNumberOfValues());
        indices->Upload(strips->GetPointer(0), count, vtkOpenGLBufferObject::ElementArrayBuffer);
        indices->IndexCount = count;
        MeshUploadTime.Modified();
    }
}

void SurfaceMapper::UploadLevels()
{
    if (LevelBuffer->GetHandle() != 0 && LevelsUploadTime > LevelsTime)
    {
        return;
    }
    const auto count = static_cast<size_t>(Mesh.PolyData->GetNumberOfPoints());
    if (Levels.Intensities)
    {
        LevelBuffer->Upload(Levels.Intensities.get(), count, vtkOpenGLBufferObject::ArrayBuffer);
    }
    else
    {
        LevelBuffer->Upload(Levels.Heights.get(), count, vtkOpenGLBufferObject::ArrayBuffer);
    }
    LevelsUploadTime.Modified();
}

// The coordinates of vtkMapper: the first and the last texel are the colours below and above the
// range. At most 65536 levels, which every OpenGL can hold in a buffer texture.
void SurfaceMapper::UploadLevelTable(vtkRenderer* renderer)
{
    const double texel = (this->ScalarRange[1] - this->ScalarRange[0]) /
                         static_cast<double>(this->GetLookupTable()->GetNumberOfAvailableColors());
    const double begin = this->ScalarRange[0] - texel;
    const double width = this->ScalarRange[1] + texel - begin;
    std::vector<float> coordinates(static_cast<size_t>(Levels.Highest - Levels.Lowest + 1));
    // Over a range without width, or one that is no range, everything has the first colour.
    if (width > 0.0 && std::isfinite(width))
    {
        const double inverseWidth = 1.0 / width;
        int32_t level = Levels.Lowest;
        for (float& coordinate : coordinates)
        {
            const double value = level++ * Levels.Scale + Levels.Offset;
            coordinate =
                static_cast<float>(std::clamp((value - begin) * inverseWidth, -1000.0, 1000.0));
        }
    }
    LevelTable->Upload(coordinates, vtkOpenGLBufferObject::TextureBuffer);
    LevelTableTexture->SetContext(vtkOpenGLRenderWindow::SafeDownCast(renderer->GetRenderWindow()));
    LevelTableTexture->CreateTextureBuffer(static_cast<unsigned int>(coordinates.size()), 1,
                                           VTK_FLOAT, LevelTable);
}

void SurfaceMapper::ReplaceShaderTCoord(std::map<vtkShader::Type, vtkShader*> shaders, vtkRenderer*,
                                        vtkActor*)
{
    std::string vertex = shaders[vtkShader::Vertex]->GetSource();
    vtkShaderProgram::Substitute(vertex, "//VTK::TCoord::Dec",
                                 "in float surfaceLevel;\n"
                                 "uniform samplerBuffer levelTable;\n"
                                 "uniform int lowestLevel;\n"
                                 "uniform int lastTableEntry;\n"
                                 "out vec2 tcoordVCVSOutput;\n");
    // Missing samples are outside the table. 0.49: row 0 of the texture, row 1 is for NaN.
    vtkShaderProgram::Substitute(
        vertex, "//VTK::TCoord::Impl",
        "int tableEntry = clamp(int(surfaceLevel) - lowestLevel, 0, lastTableEntry);\n"
        "  tcoordVCVSOutput = vec2(texelFetch(levelTable, tableEntry).r, 0.49);\n");
    shaders[vtkShader::Vertex]->SetSource(vertex);

    std::string fragment = shaders[vtkShader::Fragment]->GetSource();
    vtkShaderProgram::Substitute(fragment, "//VTK::TMap::Dec", "uniform sampler2D colortexture;\n");
    vtkShaderProgram::Substitute(fragment, "//VTK::TCoord::Dec", "in vec2 tcoordVCVSOutput;\n");
    shaders[vtkShader::Fragment]->SetSource(fragment);
}

void SurfaceMapper::SetMapperShaderParameters(vtkOpenGLHelper& helper, vtkRenderer* renderer,
                                              vtkActor* actor)
{
    const vtkMTimeType boundBefore = helper.AttributeUpdateTime;
    this->Superclass::SetMapperShaderParameters(helper, renderer, actor);

    // The programs of a selector have no colours.
    vtkShaderProgram* program = helper.Program;
    if (program->IsAttributeUsed("surfaceLevel") &&
        (helper.AttributeUpdateTime != boundBefore || LevelsBindTime < LevelsUploadTime))
    {
        const bool isByte = Levels.Intensities != nullptr;
        helper.VAO->Bind();
        helper.VAO->AddAttributeArray(program, LevelBuffer, "surfaceLevel", 0,
                                      isByte ? sizeof(uint8_t) : sizeof(int16_t),
                                      isByte ? VTK_UNSIGNED_CHAR : VTK_SHORT, 1, false);
        LevelsBindTime.Modified();
    }
    if (program->IsUniformUsed("levelTable"))
    {
        program->SetUniformi("levelTable", LevelTableTexture->GetTextureUnit());
        program->SetUniformi("lowestLevel", Levels.Lowest);
        program->SetUniformi("lastTableEntry", Levels.Highest - Levels.Lowest);
    }
}

void SurfaceMapper::RenderPieceStart(vtkRenderer* renderer, vtkActor* actor)
{
    this->Superclass::RenderPieceStart(renderer, actor);
    LevelTableTexture->Activate();
}

void SurfaceMapper::RenderPieceFinish(vtkRenderer* renderer, vtkActor* actor)
{
    LevelTableTexture->Deactivate();
    this->Superclass::RenderPieceFinish(renderer, actor);
}

void SurfaceMapper::ChooseStrips(vtkRenderer* renderer, vtkActor* actor)
{
    StripLengths.clear();
    StripOffsets.clear();
    const ViewArea area(renderer, margin);
    actor->ComputeMatrix();
    double worldToDevice[16];
    double toDevice[16];
    GetWorldToDevice(renderer, worldToDevice);
    vtkMatrix4x4::Multiply4x4(worldToDevice, actor->GetMatrix()->GetData(), toDevice);

    const int32_t* begins = Mesh.PolyData->GetStrips()->GetOffsetsArray32()->GetPointer(0);
    for (size_t strip = 0; strip < Mesh.StripBoxes.size(); ++strip)
    {
        if (!area.IsOutside(Mesh.StripBoxes[strip].Bounds.data(), toDevice))
        {
            StripLengths.push_back(begins[strip + 1] - begins[strip]);
            StripOffsets.push_back(reinterpret_cast<const void*>(
                sizeof(int32_t) * static_cast<size_t>(begins[strip])));
        }
    }
}

void SurfaceMapper::RenderPieceDraw(vtkRenderer* renderer, vtkActor* actor)
{
    this->DrawingVertices = false;
    this->DrawingSelection = false;
    ChooseStrips(renderer, actor);
    if (StripLengths.empty())
    {
        return;
    }
    vtkOpenGLHelper& strips = this->Primitives[PrimitiveTriStrips];
    this->UpdateShaders(strips, renderer, actor);
    strips.IBO->Bind();
    glMultiDrawElements(GL_TRIANGLE_STRIP, StripLengths.data(), GL_UNSIGNED_INT,
                        StripOffsets.data(), static_cast<GLsizei>(StripLengths.size()));
    strips.IBO->Release();
}
