// Load and unload of the library.
#include "frame/CWindowManager.h"
#include "frame/LastErrorText.h"
#include "platform/XState.h"

#include <vtkAutoInit.h>
#include <vtkInteractorStyleTrackballCamera.h>
#include <vtkNew.h>

#include <dlfcn.h>

#include <memory>
#include <new>

// Registers the factories of the classes that VTK chooses by platform. Their counters keep VTK's
// own module state alive until this file's statics are destroyed.
VTK_MODULE_INIT(vtkRenderingOpenGL2);
VTK_MODULE_INIT(vtkRenderingUI);
VTK_MODULE_INIT(vtkInteractionStyle);
VTK_MODULE_INIT(vtkRenderingFreeType);
VTK_MODULE_INIT(vtkRenderingContextOpenGL2);

namespace
{
// VTK's interaction library leaves its object factory in a registry that stays mapped. If it were
// unmapped with us, the process would crash at its end.
void PinInteractionLibrary()
{
    const vtkNew<vtkInteractorStyleTrackballCamera> probe;
    void* const* virtualTable = *reinterpret_cast<void* const* const*>(probe.GetPointer());
    Dl_info info = {};
    if (dladdr(*virtualTable, &info) && info.dli_fname)
    {
        dlopen(info.dli_fname, RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
    }
}

// The one static object with a destructor: it runs at unload and at the end of the process, while
// VTK's own statics still live. An ELF destructor function would run after them.
class Module
{
public:
    Module()
    {
        PinInteractionLibrary();
        X11 = &X;
        Messages = MessageCapture::CreateWindow();
        try
        {
            Manager = std::make_unique<CWindowManager>();
        }
        catch (const std::bad_alloc&)
        {
            // Every export then answers STATUS_NULL_ARGUMENT.
            return;
        }
        CWindowManager::Instance = Manager.get();
    }

    ~Module()
    {
        CWindowManager::Instance = nullptr;
        Manager.reset();
        X.Connection.reset();
        X11 = nullptr;
    }

    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

private:
    XState X;
    vtkSmartPointer<vtkOutputWindow> Messages;
    std::unique_ptr<CWindowManager> Manager;
};

Module module;
} // namespace
