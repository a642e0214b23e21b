#include "interaction3d/CScenePicker.h"

#include "elements3d/ViewArea.h"

#include <vtkCamera.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLActor.h>
#include <vtkOpenGLHardwareSelector.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkOpenGLState.h>
#include <vtkPropCollection.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtk_glew.h>

#include <algorithm>
#include <typeinfo>
#include <vector>

namespace
{
// Draws props into the bound frame buffer of one pixel, each in the colour of its number.
class PixelSelector : public vtkOpenGLHardwareSelector
{
public:
    static PixelSelector* New();
    vtkTypeMacro(PixelSelector, vtkOpenGLHardwareSelector);

    // Null: none of them covers the pixel.
    vtkProp* Select(vtkRenderer* renderer, std::vector<vtkProp*>& props)
    {
        this->CurrentPass = ACTOR_PASS;
        this->Iteration = 0;
        this->SetActorPassOnly(true);
        this->Render(renderer, props.data(), static_cast<int>(props.size()));
        return Hit < 0 ? nullptr : props[static_cast<size_t>(Hit)];
    }
    double GetDepth() const { return Depth; }

    // Past the OpenGL class, which would make the frame buffers of the view anew.
    // NOLINTBEGIN(bugprone-parent-virtual-call)
    void Begin() { vtkHardwareSelector::BeginSelection(); }
    void End() { vtkHardwareSelector::EndSelection(); }
    // NOLINTEND(bugprone-parent-virtual-call)

protected:
    // What Render calls when all are drawn. The base class finds no buffer then, and is content.
    void SavePixelBuffer(int) override
    {
        unsigned char color[3] = {};
        glReadPixels(0, 0, 1, 1, GL_RGB, GL_UNSIGNED_BYTE, color);
        glReadPixels(0, 0, 1, 1, GL_DEPTH_COMPONENT, GL_FLOAT, &Depth);
        Hit = (color[0] | color[1] << 8 | color[2] << 16) - 1; // 0: the background
    }

private:
    int Hit = -1;
    float Depth = 1.0F;
};
vtkStandardNewMacro(PixelSelector);

// Puts everything back that a selection touches, whatever happens in it.
class SelectionScope
{
public:
    SelectionScope(vtkOpenGLState* state, PixelSelector* selector)
        : State(state), Selector(selector)
    {
        State->Reset();
        State->Push();
        State->PushFramebufferBindings();
        Selector->Begin();
    }
    ~SelectionScope()
    {
        Selector->End();
        State->PopFramebufferBindings();
        State->Pop();
    }
    SelectionScope(const SelectionScope&) = delete;
    SelectionScope& operator=(const SelectionScope&) = delete;

private:
    vtkOpenGLState* State;
    PixelSelector* Selector;
};

// The line width and the point size go beyond the bounds, and so does rounding.
double GetMargin(vtkActor* actor)
{
    vtkProperty* look = actor->GetProperty();
    return 2.0 + std::max(look->GetLineWidth(), look->GetPointSize());
}

// Whom the pixel can belong to, in the order of the scene.
std::vector<vtkProp*> FindCandidates(vtkRenderer* renderer)
{
    double toDevice[16];
    GetWorldToDevice(renderer, toDevice);
    std::vector<vtkProp*> candidates;
    vtkPropCollection* props = renderer->GetViewProps();
    vtkCollectionSimpleIterator at;
    props->InitTraversal(at);
    while (vtkProp* prop = props->GetNextProp(at))
    {
        if (!prop->GetVisibility() || !prop->GetPickable())
        {
            continue;
        }
        // Subclasses, such as a scale frame, draw beyond their bounds.
        if (typeid(*prop) == typeid(vtkOpenGLActor))
        {
            auto* actor = static_cast<vtkActor*>(prop);
            const double* box = actor->GetBounds();
            if (!box || ViewArea(renderer, GetMargin(actor)).IsOutside(box, toDevice))
            {
                continue;
            }
        }
        candidates.push_back(prop);
    }
    return candidates;
}

// A depth at the far end stands for what has none, such as a text over the scene: it lies as far
// away as the camera's focal point.
double ToUsableDepth(vtkRenderer* renderer, double depth)
{
    constexpr double farEnd = 0.999999;
    if (depth < farEnd)
    {
        return depth;
    }
    double focus[4] = {0.0, 0.0, 0.0, 1.0};
    renderer->GetActiveCamera()->GetFocalPoint(focus);
    renderer->SetWorldPoint(focus);
    renderer->WorldToDisplay();
    return renderer->GetDisplayPoint()[2];
}
} // namespace

bool IsInView(vtkRenderer* renderer, int x, int y)
{
    int width = 0;
    int height = 0;
    int left = 0;
    int bottom = 0;
    renderer->GetTiledSizeAndOrigin(&width, &height, &left, &bottom);
    return x >= left && x < left + width && y >= bottom && y < bottom + height;
}

Vector3 ToWorld(vtkRenderer* renderer, int x, int y, double depth)
{
    renderer->SetDisplayPoint(x, y, depth);
    renderer->DisplayToWorld();
    const double* point = renderer->GetWorldPoint();
    return {point[0] / point[3], point[1] / point[3], point[2] / point[3]};
}

void CScenePicker::BindPixel(vtkOpenGLRenderWindow* window)
{
    if (!Pixel)
    {
        Pixel = vtkSmartPointer<vtkOpenGLFramebufferObject>::New();
    }
    Pixel->SetContext(window);
    if (Pixel->GetFBOIndex() == 0)
    {
        // The same depths as the picture of the view.
        Pixel->PopulateFramebuffer(1, 1, true, 1, VTK_UNSIGNED_CHAR, true, 32, 0, false);
    }
    Pixel->Bind();
    Pixel->ActivateDrawBuffer(0);
    Pixel->ActivateReadBuffer(0);
}

const Vector3& CScenePicker::Pick(vtkRenderer* renderer, int x, int y)
{
    if (Fresh)
    {
        return Position;
    }
    Fresh = true;
    Prop = nullptr;
    Position = Nothing;
    auto* window = static_cast<vtkOpenGLRenderWindow*>(renderer->GetRenderWindow());
    if (!IsInView(renderer, x, y) || !window->GetGenericWindowId() || window->GetNeverRendered())
    {
        return Position;
    }
    const vtkNew<PixelSelector> selector;
    const auto pixelX = static_cast<unsigned int>(x);
    const auto pixelY = static_cast<unsigned int>(y);
    selector->SetRenderer(renderer);
    selector->SetArea(pixelX, pixelY, pixelX, pixelY);
    window->MakeCurrent();
    vtkOpenGLState* state = window->GetState();
    const SelectionScope scope(state, selector);
    std::vector<vtkProp*> candidates = FindCandidates(renderer);
    if (candidates.empty())
    {
        return Position;
    }

    BindPixel(window);
    int width = 0;
    int height = 0;
    int left = 0;
    int bottom = 0;
    renderer->GetTiledSizeAndOrigin(&width, &height, &left, &bottom);
    // The drawing surface of the view, moved so that the picked pixel is the one that is there.
    state->vtkglViewport(left - x, bottom - y, width, height);
    state->vtkglScissor(0, 0, 1, 1);
    state->vtkglDisable(GL_BLEND);
    state->vtkglEnable(GL_DEPTH_TEST);
    state->vtkglDepthFunc(GL_LEQUAL);
    state->vtkglDepthMask(GL_TRUE);
    state->vtkglColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    state->vtkglClearColor(0.0F, 0.0F, 0.0F, 0.0F);
    state->vtkglClearDepth(1.0);
    state->vtkglClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    Prop = selector->Select(renderer, candidates);
    if (Prop)
    {
        Position = ToWorld(renderer, x, y, ToUsableDepth(renderer, selector->GetDepth()));
    }
    return Position;
}
