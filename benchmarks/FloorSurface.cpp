#define GL_GLEXT_PROTOTYPES
#include "FloorSurface.h"

#include "measurement/Palettes.h"

#include <cmath>
#include <stdexcept>

#include <GL/gl.h>

#include <GL/glext.h>
#include <GL/glx.h>

namespace
{
constexpr uint32_t restartIndex = 0xffffffffU;

const char* const vertexSource = R"(#version 150
in vec4 point;
in float height;
uniform mat4 toDevice;
uniform mat4 toView;
uniform vec2 range; // lowest value, 1 / width
uniform float zScale;
out vec2 coordinate;
out vec3 viewPoint;
void main()
{
    coordinate = vec2((height * zScale - range.x) * range.y, 0.5);
    viewPoint = (toView * point).xyz;
    gl_Position = toDevice * point;
}
)";

// A lamp at the camera, as in VTK, and flat shading by the slope of the triangle.
const char* const fragmentSource = R"(#version 150
in vec2 coordinate;
in vec3 viewPoint;
uniform sampler2D colors;
out vec4 color;
void main()
{
    vec3 normal = normalize(cross(dFdx(viewPoint), dFdy(viewPoint)));
    color = vec4(texture(colors, coordinate).rgb * (0.3 + 0.8 * abs(normal.z)), 1.0);
}
)";

GLuint Compile(GLenum kind, const char* source)
{
    const GLuint shader = glCreateShader(kind);
    glShaderSource(shader, 1, &source, nullptr);
    glCompileShader(shader);
    GLint isCompiled = 0;
    glGetShaderiv(shader, GL_COMPILE_STATUS, &isCompiled);
    if (!isCompiled)
    {
        throw std::runtime_error("shader does not compile");
    }
    return shader;
}

using Vector = std::array<double, 3>;

double Dot(const Vector& a, const Vector& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector Cross(const Vector& a, const Vector& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector Normalised(const Vector& a)
{
    const double length = std::sqrt(Dot(a, a));
    return {a[0] / length, a[1] / length, a[2] / length};
}
} // namespace

FloorSurface::FloorSurface() : Connection(XOpenDisplay(nullptr))
{
    if (!Connection)
    {
        throw std::runtime_error("no X server: set DISPLAY");
    }
    const int attributes[] = {
        GLX_RENDER_TYPE, GLX_RGBA_BIT, GLX_DOUBLEBUFFER, True, GLX_RED_SIZE, 8,
        GLX_DEPTH_SIZE,  24,           GLX_SAMPLES,      0,    None};
    int count = 0;
    GLXFBConfig* configs =
        glXChooseFBConfig(Connection, DefaultScreen(Connection), attributes, &count);
    if (!configs)
    {
        throw std::runtime_error("no GLX");
    }
    XVisualInfo* visual = glXGetVisualFromFBConfig(Connection, configs[0]);
    XSetWindowAttributes look = {};
    look.colormap =
        XCreateColormap(Connection, DefaultRootWindow(Connection), visual->visual, AllocNone);
    look.event_mask = StructureNotifyMask;
    Window =
        XCreateWindow(Connection, DefaultRootWindow(Connection), 0, 0, Width, Height, 0,
                      visual->depth, InputOutput, visual->visual, CWColormap | CWEventMask, &look);
    XFree(visual);
    XMapWindow(Connection, Window);
    XEvent event;
    do
    {
        XNextEvent(Connection, &event);
    } while (event.type != MapNotify);

    const auto create = reinterpret_cast<PFNGLXCREATECONTEXTATTRIBSARBPROC>(
        glXGetProcAddress(reinterpret_cast<const GLubyte*>("glXCreateContextAttribsARB")));
    const int version[] = {GLX_CONTEXT_MAJOR_VERSION_ARB,
                           3,
                           GLX_CONTEXT_MINOR_VERSION_ARB,
                           2,
                           GLX_CONTEXT_PROFILE_MASK_ARB,
                           GLX_CONTEXT_CORE_PROFILE_BIT_ARB,
                           None};
    Context = create(Connection, configs[0], nullptr, True, version);
    XFree(configs);
    glXMakeCurrent(Connection, Window, Context);
    MakeProgram();
    glXMakeCurrent(Connection, None, nullptr);
}

FloorSurface::~FloorSurface()
{
    glXDestroyContext(Connection, Context);
    XCloseDisplay(Connection);
}

void FloorSurface::MakeProgram()
{
    Program = glCreateProgram();
    glAttachShader(Program, Compile(GL_VERTEX_SHADER, vertexSource));
    glAttachShader(Program, Compile(GL_FRAGMENT_SHADER, fragmentSource));
    glBindAttribLocation(Program, 0, "point");
    glBindAttribLocation(Program, 1, "height");
    glLinkProgram(Program);
    glUseProgram(Program);
    glGenVertexArrays(1, &VertexArray);
    glBindVertexArray(VertexArray);
    glGenBuffers(3, Buffers);
    glGenTextures(1, &Texture);
    glBindTexture(GL_TEXTURE_2D, Texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    const PaletteTable colors = GetPaletteTable(0, {255, 255, 255});
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, PaletteEntries, 1, 0, GL_RGB, GL_UNSIGNED_BYTE,
                 colors.data());
    glUniform2f(glGetUniformLocation(Program, "range"), -4.0F, 1.0F / 8.0F);
    glEnable(GL_DEPTH_TEST);
    glPrimitiveRestartIndex(restartIndex);
    glEnable(GL_PRIMITIVE_RESTART);
    glViewport(0, 0, Width, Height);
}

void FloorSurface::Prepare(const HeightMap& map)
{
    const int32_t columns = map.Columns;
    Points.resize(3 * map.GetCount());
    Indices.clear();
    for (int32_t row = 0; row < map.Rows; ++row)
    {
        for (int32_t column = 0; column < columns; ++column)
        {
            const size_t i = static_cast<size_t>(row) * static_cast<size_t>(columns) +
                             static_cast<size_t>(column);
            Points[3 * i] = static_cast<float>(column * map.Pitch);
            Points[3 * i + 1] = static_cast<float>(row * map.Pitch);
            Points[3 * i + 2] = static_cast<float>(map.Heights[i] * map.ZScale);
        }
    }
    const auto isValid = [&](int32_t row, int32_t column)
    {
        return map.Heights[static_cast<size_t>(row) * static_cast<size_t>(columns) +
                           static_cast<size_t>(column)] != -32768;
    };
    for (int32_t row = 0; row < map.Rows - 1; ++row)
    {
        for (int32_t column = 0; column < columns;)
        {
            const int32_t first = column;
            while (column < columns && isValid(row, column) && isValid(row + 1, column))
            {
                ++column;
            }
            for (int32_t i = first; column - first > 1 && i < column; ++i)
            {
                Indices.push_back(static_cast<uint32_t>(row * columns + i));
                Indices.push_back(static_cast<uint32_t>((row + 1) * columns + i));
            }
            if (column - first > 1)
            {
                Indices.push_back(restartIndex);
            }
            ++column;
        }
    }
}

void FloorSurface::Add(const HeightMap& map)
{
    glXMakeCurrent(Connection, Window, Context);
    glBindBuffer(GL_ARRAY_BUFFER, Buffers[0]);
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(Points.size() * sizeof(float)),
                 Points.data(), GL_STATIC_DRAW);
    glVertexAttribPointer(0, 3, GL_FLOAT, GL_FALSE, 0, nullptr);
    glEnableVertexAttribArray(0);
    glBindBuffer(GL_ARRAY_BUFFER, Buffers[1]);
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(map.GetCount() * sizeof(int16_t)),
                 map.Heights.data(), GL_STATIC_DRAW);
    glVertexAttribPointer(1, 1, GL_SHORT, GL_FALSE, 0, nullptr);
    glEnableVertexAttribArray(1);
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, Buffers[2]);
    glBufferData(GL_ELEMENT_ARRAY_BUFFER,
                 static_cast<GLsizeiptr>(Indices.size() * sizeof(uint32_t)), Indices.data(),
                 GL_STATIC_DRAW);
    DrawCount = static_cast<int>(Indices.size());
    ZScale = static_cast<float>(map.ZScale);
    Size[0] = map.Pitch * map.Columns;
    Size[1] = map.GetHeight();
    Draw();
}

void FloorSurface::Remove()
{
    glXMakeCurrent(Connection, Window, Context);
    // New buffers: the driver has to find the memory again.
    glDeleteBuffers(3, Buffers);
    glGenBuffers(3, Buffers);
    DrawCount = 0;
    Draw();
}

void FloorSurface::Replace(const HeightMap& map)
{
    Add(map);
}

void FloorSurface::SetPalette(int palette)
{
    glXMakeCurrent(Connection, Window, Context);
    const PaletteTable colors = GetPaletteTable(palette, {255, 255, 255});
    glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, PaletteEntries, 1, GL_RGB, GL_UNSIGNED_BYTE,
                    colors.data());
    Draw();
}

void FloorSurface::SetRange(double lowest, double highest)
{
    glXMakeCurrent(Connection, Window, Context);
    glUniform2f(glGetUniformLocation(Program, "range"), static_cast<float>(lowest),
                static_cast<float>(1.0 / (highest - lowest)));
    Draw();
}

void FloorSurface::FrameAll()
{
    Look({0.0, 0.0, -1.0});
}

void FloorSurface::Look(const std::array<double, 3>& direction)
{
    glXMakeCurrent(Connection, Window, Context);
    const Vector back = Normalised({-direction[0], -direction[1], -direction[2]});
    const Vector right = Normalised(Cross({0.0, 1.0, 0.0}, back));
    const Vector up = Cross(back, right);
    // VTK's framing: a sphere around the box (8 units high) in a view angle of 30 degrees.
    const Vector focus = {Size[0] / 2, -Size[1] / 2, 0.0};
    const double radius = std::sqrt(Size[0] * Size[0] + Size[1] * Size[1] + 64.0) / 2;
    const double distance = radius / std::sin(15.0 * M_PI / 180.0);
    const Vector rows[3] = {right, up, back};
    double view[4][4] = {};
    for (size_t row = 0; row < 3; ++row)
    {
        for (size_t column = 0; column < 3; ++column)
        {
            view[row][column] = rows[row][column] * (column == 1 ? -1.0 : 1.0); // mirrored in Y
        }
        view[row][3] = -Dot(rows[row], focus);
    }
    view[2][3] -= distance;
    view[3][3] = 1.0;

    const double nearest = distance - radius;
    const double farthest = distance + radius;
    const double scale = 1.0 / std::tan(15.0 * M_PI / 180.0);
    const double projection[4][4] = {{scale * Height / Width, 0, 0, 0},
                                     {0, scale, 0, 0},
                                     {0, 0, -(farthest + nearest) / (farthest - nearest),
                                      -2.0 * farthest * nearest / (farthest - nearest)},
                                     {0, 0, -1.0, 0}};
    float toView[16];
    float toDevice[16];
    for (int row = 0; row < 4; ++row)
    {
        for (int column = 0; column < 4; ++column)
        {
            double sum = 0.0;
            for (int k = 0; k < 4; ++k)
            {
                sum += projection[row][k] * view[k][column];
            }
            toView[4 * column + row] = static_cast<float>(view[row][column]);
            toDevice[4 * column + row] = static_cast<float>(sum);
        }
    }
    glUniformMatrix4fv(glGetUniformLocation(Program, "toView"), 1, GL_FALSE, toView);
    glUniformMatrix4fv(glGetUniformLocation(Program, "toDevice"), 1, GL_FALSE, toDevice);
    Draw();
}

// The context is left at the end: there are others in the process.
void FloorSurface::Draw()
{
    glUniform1f(glGetUniformLocation(Program, "zScale"), ZScale);
    glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    if (DrawCount > 0)
    {
        glDrawElements(GL_TRIANGLE_STRIP, DrawCount, GL_UNSIGNED_INT, nullptr);
    }
    glXSwapBuffers(Connection, Window);
    glFinish();
    glXMakeCurrent(Connection, None, nullptr);
}
