/* The smallest host: one window, one view, a computed height map with holes and a point on it. */
#define _POSIX_C_SOURCE 200809L

#include <Tarvex.h>
#include <TarvexExt.h>

#include <X11/Xlib.h>
#include <math.h>
#include <poll.h>
#include <stdio.h>
#include <string.h>

enum
{
    COLUMNS = 120,
    ROWS = 80
};

static int16_t heights[ROWS * COLUMNS];

/* Rings that fade out from the middle, 0.01 a count, with two holes and a missing row. */
static void compute_heights(void)
{
    for (int i = 0; i < ROWS * COLUMNS; ++i)
    {
        const double x = i % COLUMNS - COLUMNS / 2, y = i / COLUMNS - ROWS / 2;
        const int hole = hypot(x - 30, y) < 8 || hypot(x + 30, y) < 5 || i / COLUMNS == 70;
        const double height = 1000 * cos(hypot(x, y) / 6) * exp(-hypot(x, y) / 40);
        heights[i] = hole ? TARVEX_INVALID_VALUE : (int16_t)height;
    }
}

static int fill_view(int32_t view)
{
    int32_t surface, point;
    compute_heights();
    return Tarvex_Window_SetDrawSpace(view, 0, COLUMNS, 0, ROWS, -10, 10) == STATUS_OK &&
           Tarvex_Element_Add_SurfaceUniform(view, heights, NULL, COLUMNS, ROWS, 1, 1, 0.01, 0, 0,
                                             0, TARVEX_MESH_CELLS, &surface) == STATUS_OK &&
           Tarvex_Element_Add_Point(view, COLUMNS / 2, ROWS / 2, 11, &point) == STATUS_OK &&
           Tarvex_Element_SetSize(view, point, 1.0) == STATUS_OK &&
           Tarvex_Window_Camera_SetViewDirection(view, 0, 1, -1, 0, 0, 1) == STATUS_OK &&
           Tarvex_Window_Camera_AutoSize(view) == STATUS_OK;
}

int main(int argc, char** argv)
{
    Display* display = XOpenDisplay(NULL);
    int32_t view = TARVEX_NONE, descriptor = -1;
    if (!display)
    {
        fprintf(stderr, "minimal: no X server can be reached\n");
        return 2;
    }
    Window window =
        XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 640, 480, 0, 0, 0);
    Atom delete_message = XInternAtom(display, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(display, window, &delete_message, 1);
    XSelectInput(display, window, KeyPressMask | StructureNotifyMask);
    XStoreName(display, window, "minimal");
    XMapWindow(display, window);
    XSync(display, False); /* the library has a connection of its own and has to find the window */

    int going = Tarvex_Window_Create((void*)window, 1, 0, 0, 640, 480, &view) == STATUS_OK &&
                fill_view(view) && TarvexExt_GetEventDescriptor(&descriptor) == STATUS_OK;
    const int result = going ? 0 : 1;
    if (!going)
    {
        fprintf(stderr, "minimal: the view can't be shown\n");
    }
    going = going && !(argc > 1 && strcmp(argv[1], "--once") == 0);
    while (going)
    {
        struct pollfd descriptors[2] = {{ConnectionNumber(display), POLLIN, 0},
                                        {descriptor, POLLIN, 0}};
        going = TarvexExt_ProcessEvents() != STATUS_NO_NATIVE_WINDOW;
        while (going && XPending(display) > 0)
        {
            XEvent event;
            XNextEvent(display, &event);
            going = event.type != KeyPress && event.type != ClientMessage;
            if (event.type == ConfigureNotify)
            {
                Tarvex_Window_UpdateSize(view, 0, 0, event.xconfigure.width,
                                         event.xconfigure.height);
                Tarvex_Window_SetBackgroundColor(view, 0, 0, 0); /* renders in the new size */
            }
        }
        if (going && poll(descriptors, 2, -1) < 0)
        {
            going = 0;
        }
    }
    Tarvex_Window_DeleteAll();
    XDestroyWindow(display, window);
    XCloseDisplay(display);
    return result;
}
