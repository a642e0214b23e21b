// A host that draws with OpenGL itself.
#pragma once

#include "support/TestHost.h"

#include <GL/glx.h>

// Current on this thread, with a texture in it.
class HostContext
{
public:
    explicit HostContext(const TestHost& host) : Connection(host.Connection)
    {
        int attributes[] = {GLX_RGBA, GLX_DOUBLEBUFFER, None};
        XVisualInfo* visual = glXChooseVisual(Connection, 0, attributes);
        Context = glXCreateContext(Connection, visual, nullptr, True);
        XFree(visual);
        glXMakeCurrent(Connection, host.Native, Context);
        glGenTextures(1, &Texture);
        glBindTexture(GL_TEXTURE_2D, Texture);
        glBindTexture(GL_TEXTURE_2D, 0);
    }
    ~HostContext()
    {
        glXMakeCurrent(Connection, None, nullptr);
        glXDestroyContext(Connection, Context);
    }
    HostContext(const HostContext&) = delete;
    HostContext& operator=(const HostContext&) = delete;

    bool IsUntouched() const
    {
        return glXGetCurrentContext() == Context && glIsTexture(Texture) == GL_TRUE;
    }

private:
    Display* Connection;
    GLXContext Context = nullptr;
    GLuint Texture = 0;
};
