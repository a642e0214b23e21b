#include "LibrarySurface.h"

#include "Tarvex.h"
#include "frame/CWindowManager.h"
#include "measurement/CElement_SurfaceUniform.h"

#include <stdexcept>
#include <string>

#include <vtkActorCollection.h>
#include <vtkMapper.h>

namespace
{
void Require(int32_t status)
{
    if (status != STATUS_OK)
    {
        throw std::runtime_error("status " + std::to_string(status));
    }
}
} // namespace

LibrarySurface::LibrarySurface() : Host(Width, Height)
{
    Require(
        Tarvex_Window_Create(reinterpret_cast<void*>(Host.Native), 1, 0, 0, Width, Height, &View));
}

LibrarySurface::~LibrarySurface()
{
    Tarvex_Window_Delete(View);
}

void LibrarySurface::Add(const HeightMap& map)
{
    Require(Tarvex_Element_Add_SurfaceUniform(View, map.Heights.data(), nullptr, map.Columns,
                                              map.Rows, map.Pitch, map.Pitch, map.ZScale, 0.0, 0.0,
                                              0.0, TARVEX_MESH_CELLS, &Element));
}

void LibrarySurface::Remove()
{
    Require(Tarvex_Element_Remove(View, Element));
}

void LibrarySurface::Replace(const HeightMap& map)
{
    Require(Tarvex_Element_SurfaceUniform_SetValue(View, Element, map.Heights.data(), nullptr,
                                                   map.Columns, map.Rows, map.Pitch, map.Pitch,
                                                   map.ZScale, 0.0, 0.0, 0.0));
}

// Palette and range have no exports yet. This is what they will do.
void LibrarySurface::SetPalette(int palette)
{
    Require(CWindowManager::Instance->Call<CWindow>(
        View,
        [&](CWindow& view)
        {
            auto* surface = static_cast<CElement_SurfaceUniform*>(view.FindElement(Element));
            const int32_t status = surface->ApplyPalette(palette);
            view.GetRenderWindow()->Render();
            return status;
        }));
}

void LibrarySurface::SetRange(double lowest, double highest)
{
    Require(CWindowManager::Instance->Call<CWindow>(
        View,
        [&](CWindow& view) -> int32_t
        {
            vtkActor* actor = view.GetRenderer()->GetActors()->GetLastActor();
            actor->GetMapper()->SetScalarRange(lowest, highest);
            view.GetRenderWindow()->Render();
            return STATUS_OK;
        }));
}

void LibrarySurface::FrameAll()
{
    Require(Tarvex_Window_Camera_SetPredefinedView(View, 0));
}

void LibrarySurface::Look(const std::array<double, 3>& direction)
{
    Require(Tarvex_Window_Camera_SetViewDirection(View, direction[0], direction[1], direction[2],
                                                  0.0, 1.0, 0.0));
}
