/**
 * @file Tarvex.h
 * The C interface of Tarvex, which shows industrial 3D measurement data in a window of the host:
 * 3D views of surfaces, profiles and geometric elements, and charts of profiles, images and shapes.
 *
 * A host opens a view in one of its windows, adds elements to it and changes them by their ids.
 * There is nothing to initialise and nothing to release but the views. Window messages reach a view
 * on the thread on which the host pumps them. Pure C99; booleans are one byte, 0 for false.
 *
 * Statuses. Every function returns one. STATUS_OK is the only success, all failures are negative.
 * These are common and not repeated at the functions:
 * - STATUS_NULL_ARGUMENT: the library is not loaded or is being unloaded.
 * - STATUS_WINDOW_NOT_FOUND: no view of the kind that the name says has this id. Tarvex_Window_...,
 *   Tarvex_Element_... and Tarvex_Element3D_... mean 3D views, Tarvex_Window2D_... and
 *   Tarvex_Element2D_... chart views.
 * - STATUS_NOT_READY: the view was not completely created.
 * - STATUS_NO_NATIVE_WINDOW: the view has no native window (any more), for example since the host
 *   destroyed the parent. Counting and listing views and elements, deleting views, registering
 *   callbacks, element types and element defaults work without one.
 * - STATUS_OUT_OF_MEMORY: memory ran out, or an array would be larger than can be held. A failed
 *   change leaves the element as it was. If only its picture failed, the change is made, and the
 *   next render shows it. A failed add leaves no element either way.
 * - STATUS_EXCEPTION: something below failed in an unforeseen way; the operation may be half done.
 *
 * Ids. 3D views and chart views count separately, elements count within their view, all from 0 up;
 * -1 means none. An id is never given again; a failed create or add uses none up.
 *
 * Outputs. Output pointers must be valid, also where the host wants only some of the results.
 * Unless a function says otherwise, each output is written before anything is tested: ids, types,
 * palettes and draw modes with -1, everything else with 0. That is what "on failure" means below.
 *
 * Pointers. Input arrays and names are copied during the call, and no function keeps a pointer to
 * memory of the host, callbacks aside. Output arrays are filled during the call.
 *
 * Coordinates. Host coordinates have Y mirrored against the world of VTK, in which the scene is
 * drawn: the host point (x, y, z) lies at (x, -y, z) in the world. All 3D coordinates are host
 * coordinates except for the camera and Tarvex_Element_Line_GetValue. Chart coordinates are those
 * of the axes.
 *
 * Numbers. A number is called unusable if it is a NaN or one of the markers that hosts use for "no
 * value": DBL_MIN (2.2250738585072014e-308), DBL_MAX, -DBL_MAX, and everything strictly between
 * -9223372036855 and -9223372036854. Infinities and 0 are usable. Limits are inclusive and tested
 * as "below the lower or above the upper one", so a NaN passes where only a limit is named.
 *
 * Invalid elements. Geometry that cannot be drawn is no error of an add or a change: the status is
 * STATUS_OK, the element becomes invalid and is hidden, and good values bring it back.
 * Tarvex_Element_HasValidValues and Tarvex_Element2D_HasValidValues tell. Elements of measured data
 * refuse bad arguments instead. A failed add leaves no element.
 *
 * Rendering. A call that says "Renders" draws the view before it returns, if it succeeds; "always
 * renders" means also when the element refuses the values. Nothing is drawn later or by a timer.
 *
 * Threads. Functions may be called from any thread; one global lock, which its owner may take
 * again, serialises them. Callbacks run on the thread that pumps the events, with that lock held,
 * and may call any function of the library.
 */
#ifndef TARVEX_H
#define TARVEX_H

#include <stdint.h>

#ifdef __cplusplus
#define TARVEX_EXTERN_C extern "C"
#else
#define TARVEX_EXTERN_C
#endif

#if defined(_WIN32) && defined(TARVEX_BUILDING)
#define TARVEX_API TARVEX_EXTERN_C __declspec(dllexport)
#elif defined(_WIN32)
#define TARVEX_API TARVEX_EXTERN_C __declspec(dllimport)
#elif defined(__GNUC__)
#define TARVEX_API TARVEX_EXTERN_C __attribute__((visibility("default")))
#else
#define TARVEX_API TARVEX_EXTERN_C
#endif

/** A 16-bit sample of this value is missing. */
#define TARVEX_INVALID_VALUE (-32768)

/** In place of the id of a view or element: none. */
#define TARVEX_NONE (-1)

/** What every function returns, as an int32_t. There is no -15. */
enum
{
    STATUS_OK = 1,                 /**< The operation was carried out. */
    STATUS_ALREADY_CREATED = 11,   /**< Internal; no function returns it. */
    STATUS_NULL_ARGUMENT = -1,     /**< The library is not loaded, or a required array is null. */
    STATUS_NOT_READY = -2,         /**< View, element or feature lacks what the call works on. */
    STATUS_OUT_OF_MEMORY = -3,     /**< Memory ran out, or a size is beyond what can be held. */
    STATUS_WINDOW_NOT_FOUND = -4,  /**< No view of the addressed kind has the id. */
    STATUS_BAD_INDEX = -5,         /**< An index outside its list, or an unknown element id. */
    STATUS_TOO_SMALL = -6,         /**< A size, extent or count is below its minimum. */
    STATUS_OUT_OF_RANGE = -7,      /**< A number or an enumeration value is outside its limits. */
    STATUS_BAD_COUNT = -8,         /**< Every sample is missing. */
    STATUS_ELEMENT_NOT_FOUND = -9, /**< Reserved; unknown element ids give STATUS_BAD_INDEX. */
    STATUS_NO_DATA = -10,          /**< An element has no values to build its picture from. */
    STATUS_NOT_SUPPORTED = -11,    /**< The element's class, or this build, lacks the operation. */
    STATUS_WRONG_TYPE = -12,       /**< The element is of another type than the call is for. */
    STATUS_BAD_POINT = -13,        /**< Bad handle, or a scaling that the display rules out. */
    STATUS_BAD_ELEMENT_TYPE = -14, /**< An element type that the call has no use for. */
    STATUS_ZERO_VECTOR = -16,      /**< A direction without length. */
    STATUS_PARALLEL_VECTORS = -17, /**< Two directions that must differ are parallel. */
    STATUS_NOT_FINITE = -18,       /**< A scale, offset or similar is an unusable number. */
    STATUS_NO_NATIVE_WINDOW = -19, /**< The view has no native window (any more). */
    STATUS_DRAW_MODE_ACTIVE = -20, /**< Not allowed while a draw mode is on. */
    STATUS_INVALID_VALUES = -21,   /**< The element holds no valid values. */
    STATUS_EXCEPTION = -9999       /**< An exception was caught inside. */
};

/** Element types. A chart element has the number of its 3D counterpart. */
enum
{
    TARVEX_ELEMENT_SURFACE_UNIFORM = 0,     /**< Height map on a regular grid; 3D only. */
    TARVEX_ELEMENT_SURFACE_NON_UNIFORM = 1, /**< Surface with free positions; 3D only. */
    TARVEX_ELEMENT_PROFILE_UNIFORM = 2,     /**< Measured line on a regular grid. */
    TARVEX_ELEMENT_PROFILE_NON_UNIFORM = 3, /**< Measured line with x of its own. */
    TARVEX_ELEMENT_POINT = 10,
    TARVEX_ELEMENT_LINE = 11,
    TARVEX_ELEMENT_CIRCLE = 12,
    TARVEX_ELEMENT_PLANE = 13, /**< 3D only. */
    TARVEX_ELEMENT_ELLIPSE = 14,
    TARVEX_ELEMENT_CYLINDER = 15, /**< 3D only. */
    TARVEX_ELEMENT_CUBE = 16,     /**< 3D only. */
    TARVEX_ELEMENT_RECTANGLE = 17,
    TARVEX_ELEMENT_POLYGON = 18,
    TARVEX_ELEMENT_POLYHEDRON = 19, /**< 3D only. */
    TARVEX_ELEMENT_IMAGE = 20       /**< Charts only. */
};

/** Draw modes. Charts know NONE, RECTANGLE, CIRCLE and POLYGON. */
enum
{
    TARVEX_DRAW_NONE = 0,
    TARVEX_DRAW_RECTANGLE = 1,
    TARVEX_DRAW_CUBE = 2,
    TARVEX_DRAW_CIRCLE = 3,
    TARVEX_DRAW_CYLINDER = 4,
    TARVEX_DRAW_POLYGON = 5,
    TARVEX_DRAW_POLYHEDRON = 6,
    TARVEX_DRAW_NO_SHAPE = 7 /**< The mouse of a draw mode without anything to draw. */
};

/** Palettes of surfaces and images, colours from low to high values. */
enum
{
    TARVEX_PALETTE_RAINBOW = 0,     /**< Blue, cyan, green, yellow, red, magenta, white. */
    TARVEX_PALETTE_SPECTRUM = 1,    /**< Dark blue, blue, green, red, yellow, towards white. */
    TARVEX_PALETTE_RED = 2,         /**< Black, red, white. */
    TARVEX_PALETTE_GREEN = 3,       /**< Black, green, white. */
    TARVEX_PALETTE_BLUE = 4,        /**< Black, blue, white. */
    TARVEX_PALETTE_GREY = 5,        /**< Black to white; intensities start with it. */
    TARVEX_PALETTE_SINGLE_COLOR = 6 /**< The colour of the element everywhere. */
};

/** How a surface draws samples that belong to no cell with four valid corners. */
enum
{
    TARVEX_MESH_CELLS_AND_POINTS = 0, /**< As small quads. */
    TARVEX_MESH_CELLS = 1             /**< Not at all. */
};

/** Predefined views: where the camera stands, on an axis of the world (host Y mirrored). */
enum
{
    TARVEX_VIEW_TOP = 0,    /**< On +Z, Y up. */
    TARVEX_VIEW_FRONT = 1,  /**< On -Y (host +Y), Z up. */
    TARVEX_VIEW_LEFT = 2,   /**< On -X, Z up. */
    TARVEX_VIEW_BOTTOM = 3, /**< On -Z, Y up. */
    TARVEX_VIEW_BACK = 4,   /**< On +Y (host -Y), Z up. */
    TARVEX_VIEW_RIGHT = 5   /**< On +X, Z up. */
};

/** Axes that a call on the scale frame acts on. */
enum
{
    TARVEX_AXIS_ALL = 0,
    TARVEX_AXIS_X = 1,
    TARVEX_AXIS_Y = 2,
    TARVEX_AXIS_Z = 3
};

/** Parts of the scale frame that have a colour. */
enum
{
    TARVEX_CUBE_COLOR_GRID_LINES = 0,
    TARVEX_CUBE_COLOR_GRID_POLYS = 1,
    TARVEX_CUBE_COLOR_INNER_GRID_LINES = 2,
    TARVEX_CUBE_COLOR_AXIS_LINES = 3,
    TARVEX_CUBE_COLOR_TITLE = 4,
    TARVEX_CUBE_COLOR_LABELS = 5
};

/** Parts of the scale frame that can be switched on and off. */
enum
{
    TARVEX_CUBE_PART_AXIS = 0,
    TARVEX_CUBE_PART_LABELS = 1,
    TARVEX_CUBE_PART_TICKS = 2,
    TARVEX_CUBE_PART_MINOR_TICKS = 3,
    TARVEX_CUBE_PART_GRID_LINES = 4,
    TARVEX_CUBE_PART_INNER_GRID_LINES = 5,
    TARVEX_CUBE_PART_GRID_POLYS = 6
};

/** Edges on which the scale frame draws its axes. */
enum
{
    TARVEX_FLY_OUTER_EDGES = 0,
    TARVEX_FLY_CLOSEST_TRIAD = 1,
    TARVEX_FLY_FURTHEST_TRIAD = 2,
    TARVEX_FLY_STATIC_TRIAD = 3,
    TARVEX_FLY_STATIC_EDGES = 4,
    TARVEX_FLY_UNCHANGED = 5 /**< Accepted; the mode stays. */
};

/** Faces on which the scale frame draws grid lines. */
enum
{
    TARVEX_GRID_FURTHEST = 0,
    TARVEX_GRID_CLOSEST = 1,
    TARVEX_GRID_ALL = 2
};

/** Colours of a chart. */
enum
{
    TARVEX_CHART_DARK = 0,
    TARVEX_CHART_LIGHT = 1
};

/** Called when a draw mode of a 3D view has added an element, after its look has been set. */
TARVEX_EXTERN_C typedef void (*Tarvex_ElementAddedCallback)(int32_t windowId, int32_t elementId);

/** Called once at the end of a drag of a handle in a 3D view, when the left button goes up. */
TARVEX_EXTERN_C typedef void (*Tarvex_ElementDraggedCallback)(int32_t windowId, int32_t elementId);

/** Called when a draw mode of a chart view has added an element, after its look has been set. */
TARVEX_EXTERN_C typedef void (*Tarvex_Element2DAddedCallback)(int32_t windowId, int32_t elementId);

/** Called once at the end of a drag of a handle in a chart view, when the left button goes up. */
TARVEX_EXTERN_C typedef void (*Tarvex_Element2DDraggedCallback)(int32_t windowId,
                                                                int32_t elementId);

/**
 * @name Views
 * @{
 */

/**
 * Opens a 3D view as a child of a native window of the host and gives it an id. The view starts
 * black, with an empty scene and a camera of its own; nothing is drawn until the first call that
 * renders. If the parent cannot be used, the view is created all the same and its other functions
 * answer STATUS_NO_NATIVE_WINDOW.
 *
 * @param parentWindow Native handle of the host's window, only referenced; null makes the view a
 *     top-level window.
 * @param noBorders Not 0: a window without decoration.
 * @param x, y Position in the parent in pixels; left alone if either is negative.
 * @param width, height Size in pixels; anything below 4 counts as 4.
 * @param[out] windowId The id of the view; -1 on failure.
 */
TARVEX_API int32_t Tarvex_Window_Create(void* parentWindow, uint8_t noBorders, int32_t x, int32_t y,
                                        int32_t width, int32_t height, int32_t* windowId);

/**
 * Destroys a 3D view with all its elements and takes its native window off the host's window. Ids
 * of other views stay as they are; the index of every later view drops by one. A chart view of the
 * same number is not touched.
 */
TARVEX_API int32_t Tarvex_Window_Delete(int32_t windowId);

/**
 * Destroys all views, 3D views and chart views. Ids are not used again: the next view continues the
 * count. Element defaults stay. Succeeds also when there is no view.
 */
TARVEX_API int32_t Tarvex_Window_DeleteAll(void);

/**
 * Tells how many 3D views exist.
 *
 * @param[out] count The number of 3D views; 0 on failure.
 */
TARVEX_API int32_t Tarvex_Window_GetCount(int32_t* count);

/**
 * Gives the id of the 3D view at a position in the order of creation.
 *
 * @param index 0 to count - 1. A position, which moves down when an earlier view is deleted.
 * @param[out] windowId The id; -1 on failure.
 * @retval STATUS_BAD_INDEX The index is negative or not below the count.
 */
TARVEX_API int32_t Tarvex_Window_GetIDFromIndex(int32_t index, int32_t* windowId);

/**
 * Moves and resizes a 3D view inside its parent. Does not render; the next render uses the new
 * size.
 *
 * @param x, y Position in pixels; left alone if either is negative.
 * @param width, height Size in pixels; anything below 4 counts as 4.
 */
TARVEX_API int32_t Tarvex_Window_UpdateSize(int32_t windowId, int32_t x, int32_t y, int32_t width,
                                            int32_t height);

/**
 * Sets the background of a 3D view. Surfaces of the view also take it as the colour of missing
 * samples. Elements added later get it too. Renders.
 */
TARVEX_API int32_t Tarvex_Window_SetBackgroundColor(int32_t windowId, uint8_t red, uint8_t green,
                                                    uint8_t blue);

/**
 * Switches the mouse of a 3D view on or off altogether. Switching off also takes away the
 * coordinates shown under the mouse, which stay off when the mouse comes back. Does not render.
 *
 * @retval STATUS_DRAW_MODE_ACTIVE A draw mode is on; leave it first.
 */
TARVEX_API int32_t Tarvex_Window_EnableInteraction(int32_t windowId, uint8_t enable);

/**
 * Chooses which mouse buttons move the camera of a 3D view: left turns, middle pans, right zooms,
 * and the wheel follows the right button. Handles can be dragged whatever is set here. Also
 * switches the mouse on again after Tarvex_Window_EnableInteraction. All three are on in a new
 * view. Does not render.
 *
 * @retval STATUS_DRAW_MODE_ACTIVE A draw mode is on; leave it first.
 */
TARVEX_API int32_t Tarvex_Window_EnableMouseInteraction(int32_t windowId, uint8_t left,
                                                        uint8_t middle, uint8_t right);

/**
 * Reads the box of the scene in which lines and planes without ends are drawn.
 *
 * @param[out] xmin, xmax, ymin, ymax, zmin, zmax The box in host coordinates; 0 on failure. A new
 *     view has -50 to 50 on each axis.
 */
TARVEX_API int32_t Tarvex_Window_GetDrawSpace(int32_t windowId, double* xmin, double* xmax,
                                              double* ymin, double* ymax, double* zmin,
                                              double* zmax);

/**
 * Sets the box of the scene, in host coordinates. Every line and plane of the view is fitted to it,
 * and draw modes started later draw in the middle of it. Does not render; changed lines and planes
 * show with the next render.
 *
 * @retval STATUS_TOO_SMALL An extent (maximum minus minimum) is below 1e-6; nothing changes.
 */
TARVEX_API int32_t Tarvex_Window_SetDrawSpace(int32_t windowId, double xmin, double xmax,
                                              double ymin, double ymax, double zmin, double zmax);

/** @} */

/**
 * @name Host callbacks, active element and draw modes of a 3D view
 * @{
 */

/**
 * Sets the function that is called when the user has drawn an element in a draw mode. It replaces
 * the former one; null switches it off. Works on any existing view, also on one without a native
 * window.
 */
TARVEX_API int32_t
Tarvex_Window_RegisterCallback_ElementAdded(int32_t windowId, Tarvex_ElementAddedCallback callback);

/**
 * Sets the function that is called when the user has finished dragging a handle of the active
 * element. It replaces the former one; null switches it off. Works on any existing view, also on
 * one without a native window.
 */
TARVEX_API int32_t Tarvex_Window_RegisterCallback_ElementDragged(
    int32_t windowId, Tarvex_ElementDraggedCallback callback);

/**
 * Tells which element of a 3D view shows handles.
 *
 * @param[out] elementId The id of the active element; -1 if there is none or on failure.
 */
TARVEX_API int32_t Tarvex_Window_GetActiveElement(int32_t windowId, int32_t* elementId);

/**
 * Makes a cylinder, cube or polyhedron the active element: it shows small spheres as handles, which
 * the user drags with the left button. Only one element of a view is active; the former one loses
 * its handles. A negative id leaves none active. So does, with STATUS_OK, an element of another
 * type or one without valid values. Does not render; handles come and go with the next render.
 *
 * @retval STATUS_BAD_INDEX No element has this id; the former element is no longer active.
 */
TARVEX_API int32_t Tarvex_Window_SetActiveElement(int32_t windowId, int32_t elementId);

/**
 * Reads the draw mode of a 3D view.
 *
 * @param[out] mode One of TARVEX_DRAW_...; -1 if the view is not found, 0 if it has no native
 *     window.
 */
TARVEX_API int32_t Tarvex_Window_GetDrawMode(int32_t windowId, int32_t* mode);

/**
 * Starts or leaves a draw mode, in which the user draws elements of one kind with the left button
 * on a plane in the middle of the draw space; the middle button still moves the camera. Rectangle,
 * cube, circle and cylinder are drawn by press, drag and release, polygon and polyhedron by one
 * click per vertex and a right click at the end. Each finished shape becomes an element of the view
 * and is reported to the callback; the mode stays on until it is changed. Renders, except for
 * TARVEX_DRAW_NO_SHAPE.
 *
 * @param mode One of TARVEX_DRAW_...; TARVEX_DRAW_NONE returns to the camera's mouse.
 * @retval STATUS_OUT_OF_RANGE The mode is above 7; nothing changes.
 */
TARVEX_API int32_t Tarvex_Window_SetDrawMode(int32_t windowId, uint32_t mode);

/** @} */

/**
 * @name Camera
 *
 * Camera positions and directions are in VTK's world, where Y has the opposite sign of host Y. To
 * look at the host point (x, y, z) from above, place the camera over (x, -y).
 * @{
 */

/**
 * Moves the camera along its direction of view until everything visible fits; looks from above if
 * an infinite position or direction has left it without one. Renders.
 */
TARVEX_API int32_t Tarvex_Window_Camera_AutoSize(int32_t windowId);

/** Switches between parallel projection (not 0) and perspective (0). Renders. */
TARVEX_API int32_t Tarvex_Window_Camera_EnableParallelProjection(int32_t windowId, uint8_t enable);

/**
 * Reads the position of the camera. Does not render.
 *
 * @param[out] x, y, z World coordinates; 0 on failure.
 */
TARVEX_API int32_t Tarvex_Window_Camera_GetPosition(int32_t windowId, double* x, double* y,
                                                    double* z);

/**
 * Reads the direction in which the camera looks and its up vector. Does not render.
 *
 * @param[out] dirX, dirY, dirZ Unit vector towards the point looked at, world frame; 0 on failure.
 * @param[out] upX, upY, upZ Up vector, world frame; 0 on failure.
 */
TARVEX_API int32_t Tarvex_Window_Camera_GetViewDirection(int32_t windowId, double* dirX,
                                                         double* dirY, double* dirZ, double* upX,
                                                         double* upY, double* upZ);

/**
 * Moves the camera without turning it: the point looked at moves along. World coordinates. Renders.
 */
TARVEX_API int32_t Tarvex_Window_Camera_SetPosition(int32_t windowId, double x, double y, double z);

/**
 * Looks at the scene along one axis and fits everything visible. Renders.
 *
 * @param view One of TARVEX_VIEW_...
 * @retval STATUS_OUT_OF_RANGE There is no such view; nothing changes.
 */
TARVEX_API int32_t Tarvex_Window_Camera_SetPredefinedView(int32_t windowId, int32_t view);

/**
 * Turns the camera around the point it looks at, at the same distance. World frame; the vectors
 * need not have unit length nor be exactly perpendicular. Renders. A refused call changes nothing.
 *
 * @retval STATUS_ZERO_VECTOR The squared length of the direction or of the up vector is below
 *     1e-10.
 * @retval STATUS_PARALLEL_VECTORS The two are parallel (squared cross product of the unit vectors
 *     below 1e-12).
 */
TARVEX_API int32_t Tarvex_Window_Camera_SetViewDirection(int32_t windowId, double dirX, double dirY,
                                                         double dirZ, double upX, double upY,
                                                         double upZ);

/**
 * Zooms by a factor: above 1 enlarges, below 1 shrinks; calls multiply. Perspective changes the
 * angle of view, parallel projection the scale. Renders.
 *
 * @retval STATUS_OUT_OF_RANGE The factor is below 1e-6, also 0 or negative; nothing changes.
 */
TARVEX_API int32_t Tarvex_Window_Camera_SetZoom(int32_t windowId, double factor);

/** @} */

/**
 * @name Axes and scale frame
 * @{
 */

/**
 * Shows or hides the coordinate axes: tubes of 100 units through the origin with cones and letters
 * at the positive host ends, X red, Y yellow, Z green. Off in a new view. Renders.
 */
TARVEX_API int32_t Tarvex_Window_CoordinateAxes_Show(int32_t windowId, uint8_t show);

/**
 * Shows or hides the small axes in the lower left corner that turn with the camera, coloured like
 * the coordinate axes. The user can move and resize them; showing them again puts them back.
 * Renders if that changes anything.
 */
TARVEX_API int32_t Tarvex_Window_Orientation_Show(int32_t windowId, uint8_t show);

/**
 * Shows the scale frame, a box with ticks, labels and grid lines, or gives the existing one a new
 * box; colours and switches stay, and a hidden frame stays hidden. The labels show host
 * coordinates. Renders.
 *
 * @param elementId A surface or profile whose bounds make the box, a flat Z range widened;
 *     negative: the six numbers are the box.
 * @param xmin, xmax, ymin, ymax, zmin, zmax The box in host coordinates. Also with an element, no
 *     minimum may lie above its maximum.
 * @retval STATUS_OUT_OF_RANGE A minimum lies above its maximum, or the box is not finite or beyond
 *     1e30.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is neither surface nor profile.
 */
TARVEX_API int32_t Tarvex_Window_Cube_Add_Resize(int32_t windowId, int32_t elementId, double xmin,
                                                 double xmax, double ymin, double ymax, double zmin,
                                                 double zmax);

/**
 * Colours one part of the scale frame on one or all axes. Renders.
 *
 * @param axis One of TARVEX_AXIS_...
 * @param part One of TARVEX_CUBE_COLOR_...; higher numbers are accepted and change nothing.
 * @retval STATUS_NOT_READY There is no scale frame.
 * @retval STATUS_OUT_OF_RANGE There is no such axis, or the part is negative.
 */
TARVEX_API int32_t Tarvex_Window_Cube_AxisColoring(int32_t windowId, int32_t axis, int32_t part,
                                                   uint8_t red, uint8_t green, uint8_t blue);

/**
 * Chooses on which edges of the box the scale frame draws its axes. Renders.
 *
 * @param mode One of TARVEX_FLY_...
 * @retval STATUS_NOT_READY There is no scale frame.
 * @retval STATUS_OUT_OF_RANGE The mode is not 0 to 5.
 */
TARVEX_API int32_t Tarvex_Window_Cube_FlyMode(int32_t windowId, int32_t mode);

/**
 * Chooses the faces of the box on which grid lines are drawn. Renders.
 *
 * @param location One of TARVEX_GRID_...
 * @retval STATUS_NOT_READY There is no scale frame.
 * @retval STATUS_OUT_OF_RANGE The location is not 0 to 2.
 */
TARVEX_API int32_t Tarvex_Window_Cube_GridLineLocation(int32_t windowId, int32_t location);

/**
 * Removes the scale frame with all its settings; a new one starts from the initial look. Succeeds
 * also without a frame, then without a render. Renders otherwise.
 */
TARVEX_API int32_t Tarvex_Window_Cube_Remove(int32_t windowId);

/**
 * Shows or hides the scale frame; its settings stay. Renders.
 *
 * @retval STATUS_NOT_READY There is no scale frame.
 */
TARVEX_API int32_t Tarvex_Window_Cube_ShowHide(int32_t windowId, uint8_t show);

/**
 * Switches one part of the scale frame on or off on one or all axes. Renders.
 *
 * @param axis One of TARVEX_AXIS_...
 * @param part One of TARVEX_CUBE_PART_...; higher numbers are accepted and change nothing.
 * @retval STATUS_NOT_READY There is no scale frame.
 * @retval STATUS_OUT_OF_RANGE There is no such axis, or the part is negative.
 */
TARVEX_API int32_t Tarvex_Window_Cube_Visibility(int32_t windowId, int32_t axis, int32_t part,
                                                 uint8_t visible);

/** @} */

/**
 * @name Scalar bar and coordinates under the mouse
 * @{
 */

/**
 * Shows the colour scale of a surface; a view has one bar, which moves over when another surface is
 * named. It follows the palette and range of its surface. Transparency, background and
 * representation mode show in it only after the next change of palette, range, colour or values. It
 * goes when its surface is removed. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface.
 */
TARVEX_API int32_t Tarvex_Window_ScalarBar_Add(int32_t windowId, int32_t elementId);

/**
 * Tells whether the scalar bar of a view is shown. Does not render.
 *
 * @param[out] shown 1 if the view has a bar and it is not hidden; 0 otherwise and on failure.
 * @retval STATUS_NOT_READY The view has no scalar bar.
 */
TARVEX_API int32_t Tarvex_Window_ScalarBar_IsShown(int32_t windowId, uint8_t* shown);

/**
 * Removes the scalar bar. Succeeds also without one, then without a render. Renders otherwise.
 */
TARVEX_API int32_t Tarvex_Window_ScalarBar_Remove(int32_t windowId);

/**
 * Shows or hides the scalar bar; hidden it still follows its surface. Renders.
 *
 * @retval STATUS_NOT_READY The view has no scalar bar.
 */
TARVEX_API int32_t Tarvex_Window_ScalarBar_ShowHide(int32_t windowId, uint8_t show);

/**
 * Shows or hides a text at the top left with the host coordinates of what is under the mouse, three
 * decimals each; the values are empty where there is nothing. Renders if that changes anything.
 */
TARVEX_API int32_t Tarvex_Window_PickCoordinates_Show(int32_t windowId, uint8_t show);

/** @} */

/**
 * @name Look of new 3D elements
 *
 * One table for the whole process. It acts on elements added later, in every 3D view, and is not
 * saved. Both functions want the id of any 3D view.
 * @{
 */

/**
 * Reads the look that new elements of a type get. Every output is written on success; on failure
 * none is, nor is any cleared on entry. What the type does not use gets a fixed value: size and
 * clipPercent -1.0, palette -1, all others 0.
 *
 * @param type One of TARVEX_ELEMENT_..., 3D types only. The two surfaces share one look, as do the
 *     two profiles.
 * @param[out] size Line width in pixels, for a point its radius in scene units; not for surfaces.
 * @param[out] palette, autoScale, clipPercent, fixedMin, fixedMax Colouring of surfaces only.
 * @param[out] lineStart, lineEnd Lines only: the segment drawn where a line misses the draw space.
 * @param[out] xmin, xmax, ymin, ymax, zmin, zmax Planes only: the box that cuts them.
 * @retval STATUS_BAD_ELEMENT_TYPE There is no such 3D type.
 */
TARVEX_API int32_t Tarvex_Element_GetDefault(
    int32_t windowId, int32_t type, double* transparency, uint8_t* red, uint8_t* green,
    uint8_t* blue, double* size, double* ambient, double* diffuse, double* specular,
    double* specularPower, int32_t* palette, uint8_t* autoScale, double* clipPercent,
    double* fixedMin, double* fixedMax, double* lineStart, double* lineEnd, double* xmin,
    double* xmax, double* ymin, double* ymax, double* zmin, double* zmax);

/**
 * Sets the look that new elements of a type get. All arguments are passed; those that the type does
 * not use are neither tested nor stored. All are tested before any is stored. New surfaces do not
 * take fixedMin and fixedMax over: they start with -10 to 10.
 *
 * @param type One of TARVEX_ELEMENT_..., 3D types only; see Tarvex_Element_GetDefault.
 * @param transparency, ambient, diffuse, specular 0 to 1; specularPower 0 to 100.
 * @param size At least 0.001.
 * @param palette 0 to 6; clipPercent 0 to 45; fixedMax - fixedMin at least 0.001.
 * @param lineStart, lineEnd At least 1e-9 apart.
 * @param xmin, xmax, ymin, ymax, zmin, zmax Each extent at least 0.001.
 * @retval STATUS_BAD_ELEMENT_TYPE There is no such 3D type.
 * @retval STATUS_OUT_OF_RANGE A value breaks its limit; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_SetDefault(int32_t windowId, int32_t type, double transparency,
                                             uint8_t red, uint8_t green, uint8_t blue, double size,
                                             double ambient, double diffuse, double specular,
                                             double specularPower, int32_t palette,
                                             uint8_t autoScale, double clipPercent, double fixedMin,
                                             double fixedMax, double lineStart, double lineEnd,
                                             double xmin, double xmax, double ymin, double ymax,
                                             double zmin, double zmax);

/** @} */

/**
 * @name Calls on any 3D element
 * @{
 */

/**
 * Tells how many elements a 3D view has, hidden and invalid ones included.
 *
 * @param[out] count The number of elements; 0 on failure.
 */
TARVEX_API int32_t Tarvex_Element_GetCount(int32_t windowId, int32_t* count);

/**
 * Gives the id of the element at a position in the order of adding.
 *
 * @param index 0 to count - 1. A position, which moves down when an earlier element is removed.
 * @param[out] elementId The id; -1 on failure.
 * @retval STATUS_BAD_INDEX The index is negative or not below the count.
 */
TARVEX_API int32_t Tarvex_Element_GetIDFromIndex(int32_t windowId, int32_t index,
                                                 int32_t* elementId);

/**
 * Tells the type of an element.
 *
 * @param[out] type One of TARVEX_ELEMENT_...; -1 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 */
TARVEX_API int32_t Tarvex_Element_GetType(int32_t windowId, int32_t elementId, int32_t* type);

/**
 * Tells whether an element holds values that can be drawn. Surfaces and profiles always do. Does
 * not render.
 *
 * @param[out] valid 1 or 0; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 */
TARVEX_API int32_t Tarvex_Element_HasValidValues(int32_t windowId, int32_t elementId,
                                                 uint8_t* valid);

/**
 * Shows or hides an element. A hidden element keeps its values and answers all calls; an invalid
 * one stays unseen even when shown. New values show a hidden surface or polyhedron again. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_NOT_READY A surface has nothing to show, since its last change of values failed.
 */
TARVEX_API int32_t Tarvex_Element_Show(int32_t windowId, int32_t elementId, uint8_t show);

/**
 * Removes an element for good, and with it its handles and its scalar bar. Its id is not given
 * again. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 */
TARVEX_API int32_t Tarvex_Element_Remove(int32_t windowId, int32_t elementId);

/**
 * Removes all elements of a 3D view and the scalar bar. Ids continue where they stood. Succeeds
 * also on an empty view. Renders.
 */
TARVEX_API int32_t Tarvex_Element_RemoveAll(int32_t windowId);

/**
 * Reads the colour of an element. A surface uses it only with TARVEX_PALETTE_SINGLE_COLOR. Renders,
 * and brings the scalar bar up to date if it shows this element.
 *
 * @param[out] red, green, blue 0 to 255; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_INVALID_VALUES The element is a circle without valid values.
 */
TARVEX_API int32_t Tarvex_Element_GetColor(int32_t windowId, int32_t elementId, uint8_t* red,
                                           uint8_t* green, uint8_t* blue);

/**
 * Sets the colour of an element and of its handles. A surface uses it only with
 * TARVEX_PALETTE_SINGLE_COLOR. Brings the scalar bar up to date if it shows this element. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 */
TARVEX_API int32_t Tarvex_Element_SetColor(int32_t windowId, int32_t elementId, uint8_t red,
                                           uint8_t green, uint8_t blue);

/**
 * Reads the line width of an element in pixels, or the radius of a point in scene units. Renders.
 *
 * @param[out] size The size; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_NOT_SUPPORTED The element is a surface.
 */
TARVEX_API int32_t Tarvex_Element_GetSize(int32_t windowId, int32_t elementId, double* size);

/**
 * Sets the line width of an element in pixels, or the radius of a point in scene units. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_NOT_SUPPORTED The element is a surface.
 * @retval STATUS_TOO_SMALL The size is below 0.001; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_SetSize(int32_t windowId, int32_t elementId, double size);

/**
 * Reads the transparency of an element. Renders.
 *
 * @param[out] transparency 0 opaque to 1 invisible; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 */
TARVEX_API int32_t Tarvex_Element_GetTransparency(int32_t windowId, int32_t elementId,
                                                  double* transparency);

/**
 * Sets the transparency of an element, 0 opaque to 1 invisible. A cylinder keeps solid rims.
 * Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_OUT_OF_RANGE The value is outside 0 to 1; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_SetTransparency(int32_t windowId, int32_t elementId,
                                                  double transparency);

/**
 * Reads the lighting with which an element is drawn now. Renders.
 *
 * @param[out] ambient, diffuse, specular 0 to 1; 0 on failure.
 * @param[out] specularPower 0 to 100; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 */
TARVEX_API int32_t Tarvex_Element_GetLighting(int32_t windowId, int32_t elementId, double* ambient,
                                              double* diffuse, double* specular,
                                              double* specularPower);

/**
 * Sets the lighting with which an element is drawn. A surface, cube, cylinder or polyhedron goes
 * back to the lighting it was added with when its values change. Renders.
 *
 * @param ambient, diffuse, specular 0 to 1 each.
 * @param specularPower 0 to 100.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_OUT_OF_RANGE A value is outside its limits; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_SetLighting(int32_t windowId, int32_t elementId, double ambient,
                                              double diffuse, double specular,
                                              double specularPower);

/** @} */

/**
 * @name Points
 * @{
 */

/**
 * Adds a point, drawn as a sphere. Renders.
 *
 * @param x, y, z Position in host coordinates; an unusable number gives an invalid element.
 * @param[out] elementId The id of the new element; -1 on failure.
 */
TARVEX_API int32_t Tarvex_Element_Add_Point(int32_t windowId, double x, double y, double z,
                                            int32_t* elementId);

/**
 * Reads position and radius of a point, as they were given, also if invalid. Does not render.
 *
 * @param[out] x, y, z Host coordinates; 0 on failure.
 * @param[out] size Radius in scene units; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a point.
 */
TARVEX_API int32_t Tarvex_Element_Point_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                 double* y, double* z, double* size);

/**
 * Moves a point and sets its radius. Unusable numbers make it invalid; a radius below 0.001 is
 * ignored without an error and the former one stays. Always renders.
 *
 * @param x, y, z Host coordinates.
 * @param size Radius in scene units.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a point.
 */
TARVEX_API int32_t Tarvex_Element_Point_SetValue(int32_t windowId, int32_t elementId, double x,
                                                 double y, double z, double size);

/** @} */

/**
 * @name Lines
 *
 * A line has no ends: it is drawn from wall to wall of a box, the draw limit, which a new line
 * takes from the draw space of its view. A position on it is point + t * direction; a line that
 * misses the box is drawn between two values of t.
 * @{
 */

/**
 * Adds a line through a point along a direction. Renders. Unusable numbers, or a direction whose
 * squared length is below 1e-12, give an invalid element.
 *
 * @param x, y, z A point of the line, host coordinates.
 * @param dx, dy, dz Direction, of any length.
 * @param[out] elementId The id of the new element; -1 on failure.
 */
TARVEX_API int32_t Tarvex_Element_Add_Line(int32_t windowId, double x, double y, double z,
                                           double dx, double dy, double dz, int32_t* elementId);

/**
 * Reads the end points of the line as drawn, after clipping. Beware of the frame: y has the sign of
 * VTK's world, opposite to the y that Tarvex_Element_Line_SetValue takes. An invalid line answers
 * with what was drawn last. Does not render.
 *
 * @param[out] x1, y1, z1, x2, y2, z2 World coordinates; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a line.
 */
TARVEX_API int32_t Tarvex_Element_Line_GetValue(int32_t windowId, int32_t elementId, double* x1,
                                                double* y1, double* z1, double* x2, double* y2,
                                                double* z2);

/**
 * Lays a line through two points, host coordinates. It is still drawn across the whole draw limit,
 * and between the two points only if it misses that box. Unusable numbers, or points whose squared
 * distance is below 1e-18, make it invalid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a line.
 */
TARVEX_API int32_t Tarvex_Element_Line_SetValue(int32_t windowId, int32_t elementId, double x1,
                                                double y1, double z1, double x2, double y2,
                                                double z2);

/**
 * Reads the two values of t that bound the line: those of the defaults for a new line, 0 and the
 * distance after Tarvex_Element_Line_SetValue, else those of the last change of length or limit.
 * Always renders.
 *
 * @param[out] start, end In scene units from the line's point, start below end; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a line.
 * @retval STATUS_INVALID_VALUES The line has no valid values.
 */
TARVEX_API int32_t Tarvex_Element_GetLength_Line(int32_t windowId, int32_t elementId, double* start,
                                                 double* end);

/**
 * Draws the line between two values of t, in either order, shorter or longer than the draw limit;
 * no clipping takes place. Always renders.
 *
 * @param start, end In scene units from the line's point along its direction.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a line.
 * @retval STATUS_INVALID_VALUES The line has no valid values.
 * @retval STATUS_TOO_SMALL The two are less than 1e-9 apart; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_SetLength_Line(int32_t windowId, int32_t elementId, double start,
                                                 double end);

/**
 * Gives one line its own box and draws it from wall to wall of it, until the draw space of the view
 * changes. A line that misses the box stays as drawn; an invalid one keeps the box for later. Host
 * coordinates. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a line.
 * @retval STATUS_OUT_OF_RANGE An extent (maximum minus minimum) is below 0.1; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_SetDrawLimit_Line(int32_t windowId, int32_t elementId,
                                                    double xmin, double xmax, double ymin,
                                                    double ymax, double zmin, double zmax);

/** @} */

/**
 * @name Circles
 * @{
 */

/**
 * Adds a circle, drawn as an outline. Renders. Unusable numbers, a radius below 1e-9 or a normal
 * whose squared length is below 1e-12 give an invalid element.
 *
 * @param x, y, z Centre in host coordinates.
 * @param radius In scene units.
 * @param nx, ny, nz Normal of the circle's plane, of any length.
 * @param[out] elementId The id of the new element; left as it was on failure.
 */
TARVEX_API int32_t Tarvex_Element_Add_Circle(int32_t windowId, double x, double y, double z,
                                             double radius, double nx, double ny, double nz,
                                             int32_t* elementId);

/**
 * Reads a circle, also if invalid. Does not render.
 *
 * @param[out] x, y, z Centre in host coordinates; 0 on failure.
 * @param[out] radius In scene units; 0 on failure.
 * @param[out] nx, ny, nz Unit normal, or as given if invalid; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a circle.
 */
TARVEX_API int32_t Tarvex_Element_Circle_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                  double* y, double* z, double* radius, double* nx,
                                                  double* ny, double* nz);

/**
 * Gives a circle a new centre, radius and normal, as in Tarvex_Element_Add_Circle. Unusable
 * numbers, a radius below 1e-9 or a normal whose squared length is below 1e-12 make it invalid.
 * Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a circle.
 */
TARVEX_API int32_t Tarvex_Element_Circle_SetValue(int32_t windowId, int32_t elementId, double x,
                                                  double y, double z, double radius, double nx,
                                                  double ny, double nz);

/** @} */

/**
 * @name Ellipses
 *
 * An ellipse is an outline in a plane of constant z.
 * @{
 */

/**
 * Adds an ellipse. Renders. Unusable numbers, or a half axis below 1e-9, give an invalid element.
 *
 * @param x, y, z Centre in host coordinates.
 * @param a, b Half axes along x and y before the rotation, in scene units.
 * @param angle Rotation about z in degrees, brought into 0 to 360.
 * @param[out] elementId The id of the new element; -1 on failure.
 */
TARVEX_API int32_t Tarvex_Element_Add_Ellipse(int32_t windowId, double x, double y, double z,
                                              double a, double b, double angle, int32_t* elementId);

/**
 * Reads an ellipse, also if invalid. Does not render.
 *
 * @param[out] x, y, z Centre in host coordinates; 0 on failure.
 * @param[out] a, b, angle Half axes in scene units and rotation in degrees; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an ellipse.
 */
TARVEX_API int32_t Tarvex_Element_Ellipse_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                   double* y, double* z, double* a, double* b,
                                                   double* angle);

/**
 * Gives an ellipse new values, as in Tarvex_Element_Add_Ellipse, but keeps the angle as given.
 * Unusable numbers, or a half axis below 1e-9, make it invalid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an ellipse.
 */
TARVEX_API int32_t Tarvex_Element_Ellipse_SetValue(int32_t windowId, int32_t elementId, double x,
                                                   double y, double z, double a, double b,
                                                   double angle);

/** @} */

/**
 * @name Planes
 *
 * A plane is drawn as a quad cut out by a box, the draw size, which a new plane takes from the draw
 * space of its view. Two coordinates of each corner lie on the box; the third follows from the
 * plane and may lie outside.
 * @{
 */

/**
 * Adds the plane of all points p with n . p = distance, n being the unit normal. Renders. Unusable
 * numbers, or a normal whose squared length is below 1e-12, give an invalid element.
 *
 * @param distance From the origin along the normal, in scene units.
 * @param nx, ny, nz Normal in host coordinates, of any length.
 * @param[out] elementId The id of the new element; -1 on failure.
 */
TARVEX_API int32_t Tarvex_Element_Add_Plane(int32_t windowId, double distance, double nx, double ny,
                                            double nz, int32_t* elementId);

/**
 * Reads a plane as point and normal, also if invalid. Does not render.
 *
 * @param[out] x, y, z A point of the plane, host coordinates; 0 on failure.
 * @param[out] nx, ny, nz Unit normal, or as given if invalid; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a plane.
 */
TARVEX_API int32_t Tarvex_Element_Plane_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                 double* y, double* z, double* nx, double* ny,
                                                 double* nz);

/**
 * Reads a plane as distance and normal, also if invalid. Does not render.
 *
 * @param[out] distance n . p as given to Tarvex_Element_Add_Plane or
 *     Tarvex_Element_Plane_SetValue2, but -(n . p) after Tarvex_Element_Plane_SetValue; 0 on
 *     failure.
 * @param[out] nx, ny, nz Unit normal, or as given if invalid; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a plane.
 */
TARVEX_API int32_t Tarvex_Element_Plane_GetValue2(int32_t windowId, int32_t elementId,
                                                  double* distance, double* nx, double* ny,
                                                  double* nz);

/**
 * Lays a plane through a point, host coordinates, across a normal of any length. Unusable numbers,
 * or a normal whose squared length is below 1e-12, make it invalid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a plane.
 */
TARVEX_API int32_t Tarvex_Element_Plane_SetValue(int32_t windowId, int32_t elementId, double x,
                                                 double y, double z, double nx, double ny,
                                                 double nz);

/**
 * Sets a plane by distance and normal, as in Tarvex_Element_Add_Plane. Unusable numbers, or a
 * normal whose squared length is below 1e-12, make it invalid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a plane.
 */
TARVEX_API int32_t Tarvex_Element_Plane_SetValue2(int32_t windowId, int32_t elementId,
                                                  double distance, double nx, double ny, double nz);

/**
 * Reads the box that cuts a plane. Does not render.
 *
 * @param[out] xmin, xmax, ymin, ymax, zmin, zmax Host coordinates; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a plane.
 */
TARVEX_API int32_t Tarvex_Element_GetDrawSize_Plane(int32_t windowId, int32_t elementId,
                                                    double* xmin, double* xmax, double* ymin,
                                                    double* ymax, double* zmin, double* zmax);

/**
 * Gives one plane its own box, host coordinates, until the draw space of the view changes. An
 * invalid plane keeps the box for later. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a plane.
 * @retval STATUS_TOO_SMALL An extent (maximum minus minimum) is below 0.001; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_SetDrawSize_Plane(int32_t windowId, int32_t elementId,
                                                    double xmin, double xmax, double ymin,
                                                    double ymax, double zmin, double zmax);

/** @} */

/**
 * @name Rectangles
 *
 * A rectangle is an outline in a plane of constant y, with its width along x and its height along
 * z.
 * @{
 */

/**
 * Adds a rectangle. Renders. Unusable numbers, or width and height both below 1e-6 in magnitude,
 * give an invalid element.
 *
 * @param centered Not 0: the point is the centre. 0: the corner of smallest x and z before the
 *     rotation; the rectangle turns about its centre in both cases.
 * @param x, y, z The point in host coordinates.
 * @param width, height In scene units; may be negative, and one of them 0.
 * @param angle Degrees, from x towards z, brought into -180 to 180.
 * @param[out] elementId The id of the new element; left as it was on failure.
 */
TARVEX_API int32_t Tarvex_Element_Add_Rectangle(int32_t windowId, uint8_t centered, double x,
                                                double y, double z, double width, double height,
                                                double angle, int32_t* elementId);

/**
 * Reads a rectangle, also if invalid. Does not render.
 *
 * @param[out] x, y, z The centre, however the rectangle was given, in host coordinates; x and z are
 *     0 for one that was added by its corner and is invalid. All 0 on failure.
 * @param[out] width, height, angle Scene units and degrees; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a rectangle.
 */
TARVEX_API int32_t Tarvex_Element_Rectangle_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                     double* y, double* z, double* width,
                                                     double* height, double* angle);

/**
 * Gives a rectangle new values. The point is always the centre here, and the angle is kept as
 * given. Unusable numbers, or width and height both below 1e-6 in magnitude, make it invalid.
 * Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a rectangle.
 */
TARVEX_API int32_t Tarvex_Element_Rectangle_SetValue(int32_t windowId, int32_t elementId, double x,
                                                     double y, double z, double width,
                                                     double height, double angle);

/** @} */

/**
 * @name Polygons
 *
 * A polygon is a line through points in space, open or closed. A closed one needs 3 points, an open
 * one 2. Point arrays have one entry per point and are copied during the call.
 * @{
 */

/**
 * Adds a polygon. Renders. An unusable number in any point gives an invalid element.
 *
 * @param count Number of points.
 * @param x, y, z Host coordinates, count entries each.
 * @param closed Not 0: a last segment joins the last point to the first.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 * @retval STATUS_TOO_SMALL Fewer than 3 points (closed) or 2 (open).
 */
TARVEX_API int32_t Tarvex_Element_Add_Polygon(int32_t windowId, int32_t count, const double* x,
                                              const double* y, const double* z, uint8_t closed,
                                              int32_t* elementId);

/**
 * Tells how many points a polygon has. Does not render.
 *
 * @param[out] count The number of points; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 */
TARVEX_API int32_t Tarvex_Element_Polygon_GetPointCount(int32_t windowId, int32_t elementId,
                                                        int32_t* count);

/**
 * Copies the points of a polygon into arrays of the host, also if it is invalid. Nothing is cleared
 * on entry or written on failure. Does not render.
 *
 * @param[out] x, y, z Host coordinates; room for Tarvex_Element_Polygon_GetPointCount entries each.
 * @param[out] closed 1 or 0.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 */
TARVEX_API int32_t Tarvex_Element_Polygon_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                   double* y, double* z, uint8_t* closed);

/**
 * Replaces all points of a polygon, as in Tarvex_Element_Add_Polygon. An unusable number makes it
 * invalid; good ones make it valid again. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 * @retval STATUS_NULL_ARGUMENT An array is null; nothing changes.
 * @retval STATUS_TOO_SMALL Fewer than 3 points (closed) or 2 (open); nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_Polygon_SetValue(int32_t windowId, int32_t elementId,
                                                   int32_t count, const double* x, const double* y,
                                                   const double* z, uint8_t closed);

/**
 * Moves one point of a polygon, host coordinates. Validity is decided anew over all points, so one
 * good change can make an invalid polygon valid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id, or the index is not 0 to count - 1.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 */
TARVEX_API int32_t Tarvex_Element_Polygon_ChangePoint(int32_t windowId, int32_t elementId,
                                                      int32_t index, double x, double y, double z);

/**
 * Inserts a point before the one at an index; an index equal to the count appends. Host
 * coordinates. An unusable number makes the polygon invalid; a good one does not make it valid.
 * Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id, or the index is not 0 to count.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 */
TARVEX_API int32_t Tarvex_Element_Polygon_InsertPoint(int32_t windowId, int32_t elementId,
                                                      int32_t index, double x, double y, double z);

/**
 * Removes one point of a polygon. Validity is decided anew over the others. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id, or the index is not 0 to count - 1.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 * @retval STATUS_TOO_SMALL The polygon would fall below its minimum; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_Polygon_RemovePoint(int32_t windowId, int32_t elementId,
                                                      int32_t index);

/** @} */

/**
 * @name Cubes
 *
 * A cube is an upright box, turned about z, drawn as faces or as a wire model. It can be active.
 * @{
 */

/**
 * Adds a cube. Renders. Unusable numbers, or three lengths all below 1e-6 in magnitude, give an
 * invalid element.
 *
 * @param x, y, z Centre in host coordinates.
 * @param lengthX, lengthY, lengthZ Full lengths in scene units before the rotation.
 * @param angle Rotation about z in degrees, brought into -180 to 180.
 * @param wireframe Not 0: edges. 0: faces. Fixed for the life of the cube.
 * @param[out] elementId The id of the new element; -1 on failure.
 */
TARVEX_API int32_t Tarvex_Element_Add_Cube(int32_t windowId, double x, double y, double z,
                                           double lengthX, double lengthY, double lengthZ,
                                           double angle, uint8_t wireframe, int32_t* elementId);

/**
 * Reads a cube, also if invalid. Does not render.
 *
 * @param[out] x, y, z Centre in host coordinates; 0 on failure.
 * @param[out] lengthX, lengthY, lengthZ, angle Scene units and degrees; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a cube.
 */
TARVEX_API int32_t Tarvex_Element_Cube_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                double* y, double* z, double* lengthX,
                                                double* lengthY, double* lengthZ, double* angle);

/**
 * Gives a cube new values, as in Tarvex_Element_Add_Cube, but keeps the angle as given. Unusable
 * numbers, or three lengths all below 1e-6 in magnitude, make it invalid. Handles follow. Always
 * renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a cube.
 * @retval STATUS_INVALID_VALUES The new values are invalid and the cube is the active element; they
 *     are stored and the box is hidden.
 */
TARVEX_API int32_t Tarvex_Element_Cube_SetValue(int32_t windowId, int32_t elementId, double x,
                                                double y, double z, double lengthX, double lengthY,
                                                double lengthZ, double angle);

/** @} */

/**
 * @name Cylinders
 *
 * A cylinder is an open tube with a circle at each end. It can be active.
 * @{
 */

/**
 * Adds a cylinder between two points. Renders. Unusable numbers, a radius below 1e-9 or end points
 * whose squared distance is below 1e-12 give an invalid element.
 *
 * @param x1, y1, z1, x2, y2, z2 Centres of the two ends, host coordinates.
 * @param radius In scene units.
 * @param[out] elementId The id of the new element; left as it was on failure.
 */
TARVEX_API int32_t Tarvex_Element_Add_Cylinder(int32_t windowId, double x1, double y1, double z1,
                                               double x2, double y2, double z2, double radius,
                                               int32_t* elementId);

/**
 * Reads a cylinder as two end points and radius, also if invalid. Does not render.
 *
 * @param[out] x1, y1, z1, x2, y2, z2 Host coordinates; 0 on failure.
 * @param[out] radius In scene units; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a cylinder.
 */
TARVEX_API int32_t Tarvex_Element_Cylinder_GetValue(int32_t windowId, int32_t elementId, double* x1,
                                                    double* y1, double* z1, double* x2, double* y2,
                                                    double* z2, double* radius);

/**
 * Reads a cylinder as centre, axis, radius and height, also if invalid. Does not render.
 *
 * @param[out] cx, cy, cz Midpoint of the ends, host coordinates; 0 on failure.
 * @param[out] ax, ay, az Unit vector from the first to the second end, or the other way round if
 *     the height is negative; may be as given if the cylinder is invalid. 0 on failure.
 * @param[out] radius, height In scene units; the height as it was set, so it may be negative. 0 on
 *     failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a cylinder.
 */
TARVEX_API int32_t Tarvex_Element_Cylinder_GetValue2(int32_t windowId, int32_t elementId,
                                                     double* cx, double* cy, double* cz, double* ax,
                                                     double* ay, double* az, double* radius,
                                                     double* height);

/**
 * Gives a cylinder new end points and radius, as in Tarvex_Element_Add_Cylinder. Unusable numbers,
 * a radius below 1e-9 or end points whose squared distance is below 1e-12 make it invalid. Handles
 * follow. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a cylinder.
 */
TARVEX_API int32_t Tarvex_Element_Cylinder_SetValue(int32_t windowId, int32_t elementId, double x1,
                                                    double y1, double z1, double x2, double y2,
                                                    double z2, double radius);

/**
 * Sets a cylinder by centre, axis of any length, radius and height. A negative height down to -8
 * exchanges the ends. Unusable numbers, a radius below 1e-9 or a height below -8 make it invalid.
 * Handles follow. Always renders.
 *
 * @param cx, cy, cz Host coordinates.
 * @param ax, ay, az From the first to the second end.
 * @param radius, height In scene units.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a cylinder.
 * @retval STATUS_TOO_SMALL The squared length of the axis is below 1e-12 while all other values are
 *     good; nothing is stored, but an invalid cylinder counts as valid from here on, still unseen.
 */
TARVEX_API int32_t Tarvex_Element_Cylinder_SetValue2(int32_t windowId, int32_t elementId, double cx,
                                                     double cy, double cz, double ax, double ay,
                                                     double az, double radius, double height);

/** @} */

/**
 * @name Polyhedra
 *
 * A polyhedron is a prism drawn as a wire model: a ring of 3 to 250 points in the middle of the
 * body, swept half the height to each side along an axis. It can be active. Point arrays have one
 * entry per point and are copied during the call. Only Tarvex_Element_Polyhedron_SetValue makes an
 * invalid polyhedron valid again.
 * @{
 */

/**
 * Adds a polyhedron. Renders. Unusable numbers, or a height below 1e-9, give an invalid element.
 *
 * @param count Number of points, 3 to 250.
 * @param x, y, z Host coordinates, count entries each.
 * @param axisX, axisY, axisZ Axis of any length.
 * @param height Full height along the axis, in scene units.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 * @retval STATUS_TOO_SMALL Fewer than 3 points, or the squared length of the axis is below 1e-12.
 * @retval STATUS_OUT_OF_RANGE More than 250 points.
 */
TARVEX_API int32_t Tarvex_Element_Add_Polyhedron(int32_t windowId, int32_t count, const double* x,
                                                 const double* y, const double* z, double axisX,
                                                 double axisY, double axisZ, double height,
                                                 int32_t* elementId);

/**
 * Tells how many points the ring of a polyhedron has. Does not render.
 *
 * @param[out] count The number of points; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polyhedron.
 */
TARVEX_API int32_t Tarvex_Element_Polyhedron_GetPointCount(int32_t windowId, int32_t elementId,
                                                           int32_t* count);

/**
 * Copies the points of a polyhedron into arrays of the host and reads axis and height, also if it
 * is invalid. Does not render.
 *
 * @param[out] x, y, z Host coordinates; room for Tarvex_Element_Polyhedron_GetPointCount entries
 *     each; left as they were on failure.
 * @param[out] axisX, axisY, axisZ Unit axis, or as given if invalid; 0 on failure.
 * @param[out] height In scene units; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polyhedron.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 */
TARVEX_API int32_t Tarvex_Element_Polyhedron_GetValue(int32_t windowId, int32_t elementId,
                                                      double* x, double* y, double* z,
                                                      double* axisX, double* axisY, double* axisZ,
                                                      double* height);

/**
 * Replaces all values of a polyhedron, as in Tarvex_Element_Add_Polyhedron. Unusable numbers make
 * it invalid. Handles follow. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polyhedron.
 * @retval STATUS_NULL_ARGUMENT An array is null; nothing changes.
 * @retval STATUS_TOO_SMALL Fewer than 3 points, a height below 1e-9, or the squared length of the
 *     axis is below 1e-12; nothing is stored, but for the last two an invalid polyhedron counts as
 *     valid from here on, still unseen.
 * @retval STATUS_OUT_OF_RANGE More than 250 points; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_Polyhedron_SetValue(int32_t windowId, int32_t elementId,
                                                      int32_t count, const double* x,
                                                      const double* y, const double* z,
                                                      double axisX, double axisY, double axisZ,
                                                      double height);

/**
 * Moves one point of the ring, host coordinates. An unusable number makes the polyhedron invalid.
 * Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id, or the index is not 0 to count - 1.
 * @retval STATUS_WRONG_TYPE The element is not a polyhedron.
 */
TARVEX_API int32_t Tarvex_Element_Polyhedron_ChangePoint(int32_t windowId, int32_t elementId,
                                                         int32_t index, double x, double y,
                                                         double z);

/**
 * Inserts a point before the one at an index; an index equal to the count appends. Host
 * coordinates. An unusable number makes the polyhedron invalid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id, or the index is not 0 to count.
 * @retval STATUS_WRONG_TYPE The element is not a polyhedron.
 * @retval STATUS_OUT_OF_RANGE There are 250 points already; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_Polyhedron_InsertPoint(int32_t windowId, int32_t elementId,
                                                         int32_t index, double x, double y,
                                                         double z);

/**
 * Removes one point of the ring. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id, or the index is not 0 to count - 1.
 * @retval STATUS_WRONG_TYPE The element is not a polyhedron.
 * @retval STATUS_TOO_SMALL Only 3 points are left; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_Polyhedron_RemovePoint(int32_t windowId, int32_t elementId,
                                                         int32_t index);

/**
 * Turns the axis of a polyhedron; the vector may have any length. An unusable number makes the
 * polyhedron invalid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polyhedron.
 * @retval STATUS_TOO_SMALL The squared length is below 1e-12; nothing is stored.
 */
TARVEX_API int32_t Tarvex_Element_Polyhedron_SetAxisDirection(int32_t windowId, int32_t elementId,
                                                              double x, double y, double z);

/**
 * Sets the full height of a polyhedron along its axis, in scene units. An unusable number makes the
 * polyhedron invalid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polyhedron.
 * @retval STATUS_TOO_SMALL The height is below 1e-9; nothing is stored.
 */
TARVEX_API int32_t Tarvex_Element_Polyhedron_SetHeight(int32_t windowId, int32_t elementId,
                                                       double height);

/** @} */

/**
 * @name Surfaces on a regular grid
 *
 * Samples are 16-bit numbers, row by row, sample (column, row) at index row * columns + column. A
 * sample of TARVEX_INVALID_VALUE is missing: it is not drawn and does not count for the colour
 * range. The arrays are copied. A new surface shows heights, with the palette and scaling of the
 * element defaults.
 * @{
 */

/**
 * Adds a height map. Sample (column, row) lies at x = column * xScale + xOffset, y = row * yScale +
 * yOffset, z = height * zScale + zOffset, in host coordinates. Renders. Bad arguments fail the
 * call.
 *
 * @param heights columns * rows samples, row by row; copied.
 * @param intensities One byte per sample in the same order, or null for none.
 * @param columns, rows Size of the grid, at least 2 each.
 * @param xScale, yScale, zScale Pitch in x and y, and units per height step in z; at least 1e-12.
 * @param xOffset, yOffset, zOffset Position of sample (0, 0), and of height 0.
 * @param mode Not 0 (TARVEX_MESH_CELLS): only cells with four valid samples. 0
 *     (TARVEX_MESH_CELLS_AND_POINTS): also a small quad for each sample in no such cell.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT A required array is null; tested before the view is looked up.
 * @retval STATUS_NOT_FINITE A scale or offset is unusable.
 * @retval STATUS_TOO_SMALL Fewer than 2 columns or rows.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-12.
 * @retval STATUS_BAD_COUNT Every sample is missing.
 */
TARVEX_API int32_t Tarvex_Element_Add_SurfaceUniform(int32_t windowId, const int16_t* heights,
                                                     const uint8_t* intensities, int32_t columns,
                                                     int32_t rows, double xScale, double yScale,
                                                     double zScale, double xOffset, double yOffset,
                                                     double zOffset, uint8_t mode,
                                                     int32_t* elementId);

/**
 * Replaces all samples of the surface, as in Tarvex_Element_Add_SurfaceUniform; the size of the
 * grid may change. Without intensities, those held before are dropped and colouring returns to
 * heights. Shows the surface if it was hidden, returns it to the lighting it was added with, and
 * brings the scalar bar up to date if it shows this surface. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface on a regular grid.
 * @retval STATUS_NULL_ARGUMENT A required array is null; nothing changes.
 * @retval STATUS_NOT_FINITE A scale or offset is unusable; nothing changes.
 * @retval STATUS_TOO_SMALL Fewer than 2 columns or rows; nothing changes.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-12; nothing changes.
 * @retval STATUS_BAD_COUNT Every sample is missing; the new values are kept, the old picture stays.
 */
TARVEX_API int32_t Tarvex_Element_SurfaceUniform_SetValue(
    int32_t windowId, int32_t elementId, const int16_t* heights, const uint8_t* intensities,
    int32_t columns, int32_t rows, double xScale, double yScale, double zScale, double xOffset,
    double yOffset, double zOffset);

/**
 * Gives the surface intensities, or new ones, without touching heights and picture, except that
 * intensities shown now are recoloured. Does not render.
 *
 * @param values One byte per sample, row by row; copied. Rows beyond those of the surface are not
 *     read.
 * @param columns, rows Size of the array: as many columns as the surface and at least as many rows.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface on a regular grid.
 * @retval STATUS_NULL_ARGUMENT The array is null.
 * @retval STATUS_TOO_SMALL The number of columns differs, or there are too few rows.
 */
TARVEX_API int32_t Tarvex_Element_SurfaceUniform_AddIntensity(int32_t windowId, int32_t elementId,
                                                              const uint8_t* values,
                                                              int32_t columns, int32_t rows);

/**
 * Colours the surface by intensity (not 0) or by height (0); each has a palette and a range of its
 * own. Brings the scalar bar up to date if it shows this surface. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface on a regular grid.
 * @retval STATUS_NOT_READY The surface holds no intensities.
 */
TARVEX_API int32_t Tarvex_Element_ShowIntensity_SurfaceUniform(int32_t windowId, int32_t elementId,
                                                               uint8_t show);

/**
 * Tells how the surface draws samples that belong to no full cell. Does not render.
 *
 * @param[out] mode 1 (TARVEX_MESH_CELLS) or 0 (TARVEX_MESH_CELLS_AND_POINTS); 1 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface on a regular grid.
 */
TARVEX_API int32_t Tarvex_Element3D_SurfaceUniform_GetRepresentationMode(int32_t windowId,
                                                                         int32_t elementId,
                                                                         uint8_t* mode);

/**
 * Chooses how the surface draws samples that belong to no full cell, and builds it anew. Shows the
 * surface if it was hidden and returns it to the lighting it was added with. Renders.
 *
 * @param mode Not 0 (TARVEX_MESH_CELLS): only cells with four valid samples. 0
 *     (TARVEX_MESH_CELLS_AND_POINTS): also a small quad for each sample in no such cell.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface on a regular grid.
 */
TARVEX_API int32_t Tarvex_Element3D_SurfaceUniform_SetRepresentationMode(int32_t windowId,
                                                                         int32_t elementId,
                                                                         uint8_t mode);

/**
 * Reads the palette of what the surface shows now: that of the intensities while they are shown,
 * else that of the heights. Does not render.
 *
 * @param[out] palette One of TARVEX_PALETTE_...; all bits set (-1) on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface on a regular grid.
 */
TARVEX_API int32_t Tarvex_Element_GetPalette_SurfaceUniform(int32_t windowId, int32_t elementId,
                                                            uint32_t* palette);

/**
 * Sets the palette of what the surface shows now, intensities or heights. Brings the scalar bar up
 * to date if it shows this surface. Always renders.
 *
 * @param palette One of TARVEX_PALETTE_...
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface on a regular grid.
 * @retval STATUS_OUT_OF_RANGE There is no such palette; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_SetPalette_SurfaceUniform(int32_t windowId, int32_t elementId,
                                                            uint32_t palette);

/**
 * Reads how the heights of the surface are spread over its palette. The range of intensities cannot
 * be read. Does not render.
 *
 * @param[out] autoScale 1: the range follows the data; 0: it is fixed, also on failure.
 * @param[out] percent Percentage of samples cut off at each end in automatic scaling; -1.0 on
 *     failure.
 * @param[out] min, max The fixed range in height units, kept also in automatic scaling; 0 on
 *     failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface on a regular grid.
 */
TARVEX_API int32_t Tarvex_Element_GetZScalingPalette_SurfaceUniform(int32_t windowId,
                                                                    int32_t elementId,
                                                                    uint8_t* autoScale,
                                                                    double* percent, double* min,
                                                                    double* max);

/**
 * Chooses which values take the first and the last colour of the palette. Automatic scaling takes
 * the range of the heights and is for heights only; a fixed range applies to what is shown now,
 * heights or intensities. Brings the scalar bar up to date if it shows this surface. Always
 * renders.
 *
 * @param autoScale Not 0: automatic, min and max are not looked at. 0: fixed, percent is not looked
 *     at.
 * @param percent Percentage of samples cut off at each end, 0 to 45.
 * @param min, max Height units, more than 0.001 apart; for intensities 0 to 255 and at least 1
 *     apart, rounded to whole numbers.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface on a regular grid.
 * @retval STATUS_OUT_OF_RANGE A value breaks its limit. If the limits of intensities are broken,
 *     scaling is fixed from then on; otherwise nothing changes.
 * @retval STATUS_BAD_POINT Automatic scaling while intensities are shown; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_ZScalingPalette_SurfaceUniform(int32_t windowId,
                                                                 int32_t elementId,
                                                                 uint8_t autoScale, double percent,
                                                                 double min, double max);

/** @} */

/**
 * @name Surfaces with free positions
 *
 * As surfaces on a regular grid, but every grid position carries x, y and z of its own as 16-bit
 * numbers; neighbours on the grid are neighbours in the mesh. Only z decides whether a position is
 * missing.
 * @{
 */

/**
 * Adds a point cloud with the neighbourhood of a grid. Each position lies at value * scale + offset
 * on each axis, in host coordinates. Renders. Bad arguments fail the call.
 *
 * @param x, y, z columns * rows numbers each, row by row; copied.
 * @param intensities One byte per sample in the same order, or null for none.
 * @param columns, rows Size of the grid, at least 2 each.
 * @param xScale, yScale, zScale Units per step; at least 1e-12.
 * @param xOffset, yOffset, zOffset Position of the value 0.
 * @param mode Not 0 (TARVEX_MESH_CELLS): only cells with four valid samples. 0
 *     (TARVEX_MESH_CELLS_AND_POINTS): also a small quad for each sample in no such cell.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT A required array is null; tested before the view is looked up.
 * @retval STATUS_NOT_FINITE A scale or offset is unusable.
 * @retval STATUS_TOO_SMALL Fewer than 2 columns or rows.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-12.
 * @retval STATUS_BAD_COUNT Every sample is missing.
 */
TARVEX_API int32_t Tarvex_Element_Add_SurfaceNonUniform(int32_t windowId, const int16_t* x,
                                                        const int16_t* y, const int16_t* z,
                                                        const uint8_t* intensities, int32_t columns,
                                                        int32_t rows, double xScale, double yScale,
                                                        double zScale, double xOffset,
                                                        double yOffset, double zOffset,
                                                        uint8_t mode, int32_t* elementId);

/**
 * Replaces all samples of the surface, as in Tarvex_Element_Add_SurfaceNonUniform; the size of the
 * grid may change. Without intensities, those held before are dropped and colouring returns to
 * heights. Shows the surface if it was hidden, returns it to the lighting it was added with, and
 * brings the scalar bar up to date if it shows this surface. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface with free positions.
 * @retval STATUS_NULL_ARGUMENT A required array is null; nothing changes.
 * @retval STATUS_NOT_FINITE A scale or offset is unusable; nothing changes.
 * @retval STATUS_TOO_SMALL Fewer than 2 columns or rows; nothing changes.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-12; nothing changes.
 * @retval STATUS_BAD_COUNT Every sample is missing; the new values are kept, the old picture stays.
 */
TARVEX_API int32_t Tarvex_Element_SurfaceNonUniform_SetValue(
    int32_t windowId, int32_t elementId, const int16_t* x, const int16_t* y, const int16_t* z,
    const uint8_t* intensities, int32_t columns, int32_t rows, double xScale, double yScale,
    double zScale, double xOffset, double yOffset, double zOffset);

/**
 * Gives the surface intensities, or new ones, without touching heights and picture, except that
 * intensities shown now are recoloured. Does not render.
 *
 * @param values One byte per sample, row by row; copied. Rows beyond those of the surface are not
 *     read.
 * @param columns, rows Size of the array: as many columns as the surface and at least as many rows.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface with free positions.
 * @retval STATUS_NULL_ARGUMENT The array is null.
 * @retval STATUS_TOO_SMALL The number of columns differs, or there are too few rows.
 */
TARVEX_API int32_t Tarvex_Element_SurfaceNonUniform_AddIntensity(int32_t windowId,
                                                                 int32_t elementId,
                                                                 const uint8_t* values,
                                                                 int32_t columns, int32_t rows);

/**
 * Colours the surface by intensity (not 0) or by height (0); each has a palette and a range of its
 * own. Brings the scalar bar up to date if it shows this surface. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface with free positions.
 * @retval STATUS_NOT_READY The surface holds no intensities.
 */
TARVEX_API int32_t Tarvex_Element_ShowIntensity_SurfaceNonUniform(int32_t windowId,
                                                                  int32_t elementId, uint8_t show);

/**
 * Tells how the surface draws samples that belong to no full cell. Does not render.
 *
 * @param[out] mode 1 (TARVEX_MESH_CELLS) or 0 (TARVEX_MESH_CELLS_AND_POINTS); 1 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface with free positions.
 */
TARVEX_API int32_t Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode(int32_t windowId,
                                                                            int32_t elementId,
                                                                            uint8_t* mode);

/**
 * Chooses how the surface draws samples that belong to no full cell, and builds it anew. Shows the
 * surface if it was hidden and returns it to the lighting it was added with. Renders.
 *
 * @param mode Not 0 (TARVEX_MESH_CELLS): only cells with four valid samples. 0
 *     (TARVEX_MESH_CELLS_AND_POINTS): also a small quad for each sample in no such cell.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface with free positions.
 */
TARVEX_API int32_t Tarvex_Element3D_SurfaceNonUniform_SetRepresentationMode(int32_t windowId,
                                                                            int32_t elementId,
                                                                            uint8_t mode);

/**
 * Reads the palette of what the surface shows now: that of the intensities while they are shown,
 * else that of the heights. Also brings the scalar bar up to date if it shows this surface, and
 * always renders.
 *
 * @param[out] palette One of TARVEX_PALETTE_...; all bits set (-1) on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface with free positions.
 */
TARVEX_API int32_t Tarvex_Element_GetPalette_SurfaceNonUniform(int32_t windowId, int32_t elementId,
                                                               uint32_t* palette);

/**
 * Sets the palette of what the surface shows now, intensities or heights. Brings the scalar bar up
 * to date if it shows this surface. Always renders.
 *
 * @param palette One of TARVEX_PALETTE_...
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface with free positions.
 * @retval STATUS_OUT_OF_RANGE There is no such palette; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_SetPalette_SurfaceNonUniform(int32_t windowId, int32_t elementId,
                                                               uint32_t palette);

/**
 * Reads how the heights of the surface are spread over its palette. The range of intensities cannot
 * be read. Does not render.
 *
 * @param[out] autoScale 1: the range follows the data; 0: it is fixed, also on failure.
 * @param[out] percent Percentage of samples cut off at each end in automatic scaling; -1.0 on
 *     failure.
 * @param[out] min, max The fixed range in height units, kept also in automatic scaling; 0 on
 *     failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface with free positions.
 */
TARVEX_API int32_t Tarvex_Element_GetZScalingPalette_SurfaceNonUniform(int32_t windowId,
                                                                       int32_t elementId,
                                                                       uint8_t* autoScale,
                                                                       double* percent, double* min,
                                                                       double* max);

/**
 * Chooses which values take the first and the last colour of the palette. Automatic scaling takes
 * the range of the heights and is for heights only; a fixed range applies to what is shown now,
 * heights or intensities. Brings the scalar bar up to date if it shows this surface. Always
 * renders.
 *
 * @param autoScale Not 0: automatic, min and max are not looked at. 0: fixed, percent is not looked
 *     at.
 * @param percent Percentage of samples cut off at each end, 0 to 45.
 * @param min, max Height units, more than 0.001 apart; for intensities 0 to 255 and at least 1
 *     apart, rounded to whole numbers.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a surface with free positions.
 * @retval STATUS_OUT_OF_RANGE A value breaks its limit. If the limits of intensities are broken,
 *     scaling is fixed from then on; otherwise nothing changes.
 * @retval STATUS_BAD_POINT Automatic scaling while intensities are shown; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element_ZScalingPalette_SurfaceNonUniform(
    int32_t windowId, int32_t elementId, uint8_t autoScale, double percent, double min, double max);

/** @} */

/**
 * @name Profiles
 *
 * A profile is a measured line in a plane of constant y, drawn in one colour and broken where a z
 * sample is TARVEX_INVALID_VALUE. Its values are fixed; new ones need a new profile. Arrays are
 * copied. Bad arguments fail the call.
 * @{
 */

/**
 * Adds a profile with samples at a fixed pitch: sample i lies at x = i * xScale + xOffset, z = z[i]
 * * zScale + zOffset, in host coordinates. Renders.
 *
 * @param z count samples.
 * @param count At least 2.
 * @param xScale, zScale Pitch in x and units per step in z; at least 1e-12.
 * @param xOffset, zOffset Position of the first sample in x, and of the value 0 in z.
 * @param y The plane of the profile.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 * @retval STATUS_NOT_FINITE A scale, an offset or y is unusable.
 * @retval STATUS_TOO_SMALL Fewer than 2 samples.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-12.
 * @retval STATUS_BAD_COUNT Every sample is missing.
 */
TARVEX_API int32_t Tarvex_Element_Add_ProfileUniform(int32_t windowId, const int16_t* z,
                                                     int32_t count, double xScale, double zScale,
                                                     double xOffset, double zOffset, double y,
                                                     int32_t* elementId);

/**
 * Adds a profile whose samples have an x of their own: sample i lies at x[i] * xScale + xOffset and
 * z[i] * zScale + zOffset, in host coordinates. Renders.
 *
 * @param x, z count samples each; only z marks a missing sample.
 * @param count At least 2.
 * @param xScale, zScale Units per step; at least 1e-12.
 * @param xOffset, zOffset Position of the value 0.
 * @param y The plane of the profile.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 * @retval STATUS_NOT_FINITE A scale, an offset or y is unusable.
 * @retval STATUS_TOO_SMALL Fewer than 2 samples.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-12.
 * @retval STATUS_BAD_COUNT Every sample is missing.
 */
TARVEX_API int32_t Tarvex_Element_Add_ProfileNonUniform(int32_t windowId, const int16_t* x,
                                                        const int16_t* z, int32_t count,
                                                        double xScale, double zScale,
                                                        double xOffset, double zOffset, double y,
                                                        int32_t* elementId);

/** @} */

/**
 * @name Chart views
 * @{
 */

/**
 * Opens a chart view as a child of a native window of the host and gives it an id, counted apart
 * from those of 3D views. It starts dark, empty, with both axes from -50 to 50. The left button
 * pans, the middle button and the wheel zoom, the right button zooms one axis. If the parent cannot
 * be used, the view is created all the same and its other functions answer STATUS_NO_NATIVE_WINDOW.
 *
 * @param parentWindow Native handle of the host's window, only referenced; null makes the view a
 *     top-level window.
 * @param noBorders Not 0: a window without decoration.
 * @param x, y Position in the parent in pixels; left alone if either is negative.
 * @param width, height Size in pixels; anything below 4 counts as 4.
 * @param[out] windowId The id of the view; -1 on failure.
 */
TARVEX_API int32_t Tarvex_Window2D_Create(void* parentWindow, uint8_t noBorders, int32_t x,
                                          int32_t y, int32_t width, int32_t height,
                                          int32_t* windowId);

/**
 * Destroys a chart view with all its elements and takes its native window off the host's window. A
 * 3D view of the same number is not touched; Tarvex_Window_DeleteAll deletes both kinds.
 */
TARVEX_API int32_t Tarvex_Window2D_Delete(int32_t windowId);

/**
 * Tells how many chart views exist.
 *
 * @param[out] count The number of chart views; 0 on failure.
 */
TARVEX_API int32_t Tarvex_Window2D_GetCount(int32_t* count);

/**
 * Gives the id of the chart view at a position in the order of creation.
 *
 * @param index 0 to count - 1. A position, which moves down when an earlier view is deleted.
 * @param[out] windowId The id; -1 on failure.
 * @retval STATUS_BAD_INDEX The index is negative or not below the count.
 */
TARVEX_API int32_t Tarvex_Window2D_GetIDFromIndex(int32_t index, int32_t* windowId);

/**
 * Moves and resizes a chart view inside its parent. Does not render; the next render uses the new
 * size.
 *
 * @param x, y Position in pixels; left alone if either is negative.
 * @param width, height Size in pixels; anything below 4 counts as 4.
 */
TARVEX_API int32_t Tarvex_Window2D_UpdateSize(int32_t windowId, int32_t x, int32_t y, int32_t width,
                                              int32_t height);

/**
 * Sets the axes so that all valid elements fit, hidden ones included, with a margin of 5 percent,
 * or of 1 around a span of 0. Renders; on a view without elements nothing happens.
 *
 * @param keepAspect Not 0: one unit has the same length on both axes; the other axis is widened.
 */
TARVEX_API int32_t Tarvex_Window2D_ChartAutoScale(int32_t windowId, uint8_t keepAspect);

/**
 * Chooses the colours of background, grid, axes and text. Does not render.
 *
 * @param layout TARVEX_CHART_DARK or TARVEX_CHART_LIGHT.
 * @retval STATUS_OUT_OF_RANGE There is no such layout; nothing changes.
 */
TARVEX_API int32_t Tarvex_Window2D_SetChartLayout(int32_t windowId, uint32_t layout);

/** Sets the background alone; grid, axes and text keep the colours of the layout. Renders. */
TARVEX_API int32_t Tarvex_Window2D_SetBackgroundColor(int32_t windowId, uint8_t red, uint8_t green,
                                                      uint8_t blue);

/**
 * Reads the box in which lines without ends are drawn. Does not render.
 *
 * @param[out] xmin, xmax, ymin, ymax The box in chart coordinates; 0 on failure. A new view has -50
 *     to 50 on both axes.
 */
TARVEX_API int32_t Tarvex_Window2D_GetDrawSpace(int32_t windowId, double* xmin, double* xmax,
                                                double* ymin, double* ymax);

/**
 * Sets the box in which lines without ends are drawn; it is not the visible range. Every such line
 * is cut anew, unless the y extent is 0.1 or less: then the box is stored and the lines stay. Does
 * not render.
 *
 * @retval STATUS_TOO_SMALL xmax - xmin is 0.1 or less; nothing changes.
 */
TARVEX_API int32_t Tarvex_Window2D_SetDrawSpace(int32_t windowId, double xmin, double xmax,
                                                double ymin, double ymax);

/** @} */

/**
 * @name Host callbacks, active element and draw modes of a chart view
 * @{
 */

/**
 * Sets the function that is called when the user has drawn an element in a draw mode. It replaces
 * the former one; null switches it off.
 */
TARVEX_API int32_t Tarvex_Window2D_RegisterCallback_ElementAdded(
    int32_t windowId, Tarvex_Element2DAddedCallback callback);

/**
 * Sets the function that is called when the user has finished dragging a handle of the active
 * element. It replaces the former one; null switches it off.
 */
TARVEX_API int32_t Tarvex_Window2D_RegisterCallback_ElementDragged(
    int32_t windowId, Tarvex_Element2DDraggedCallback callback);

/**
 * Tells which element of a chart view shows handles.
 *
 * @param[out] elementId The id of the active element; -1 if there is none or on failure.
 */
TARVEX_API int32_t Tarvex_Window2D_GetActiveElement(int32_t windowId, int32_t* elementId);

/**
 * Makes a circle, rectangle or polygon the active element: it shows handles that the user drags
 * with the left button. The former one loses its handles; after a failure no element is active. A
 * negative id leaves none active. Naming the active element again changes nothing. Does not render.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is a point, line, ellipse or image.
 * @retval STATUS_BAD_ELEMENT_TYPE The element is a profile.
 * @retval STATUS_INVALID_VALUES The element is a circle or polygon without valid values.
 * @retval STATUS_NOT_FINITE The element is a rectangle without valid values.
 */
TARVEX_API int32_t Tarvex_Window2D_SetActiveElement(int32_t windowId, int32_t elementId);

/**
 * Reads the draw mode of a chart view.
 *
 * @param[out] mode One of TARVEX_DRAW_...; -1 if the view is not found, 0 if it has no native
 *     window.
 */
TARVEX_API int32_t Tarvex_Window2D_GetDrawMode(int32_t windowId, int32_t* mode);

/**
 * Starts or leaves a draw mode, in which the user draws rectangles and circles by press, drag and
 * release of the left button, or polygons by one click per vertex and a right click at the end; the
 * middle button pans. Each finished shape becomes an element of the view and is reported to the
 * callback; the mode stays on until it is changed. What was being drawn is dropped. Does not
 * render.
 *
 * @param mode TARVEX_DRAW_NONE, _RECTANGLE, _CIRCLE or _POLYGON.
 * @retval STATUS_OUT_OF_RANGE The mode is above 7; nothing changes.
 * @retval STATUS_WRONG_TYPE The mode is one of 3D views (2, 4, 6, 7); the view is left in mode 0.
 */
TARVEX_API int32_t Tarvex_Window2D_SetDrawMode(int32_t windowId, uint32_t mode);

/** @} */

/**
 * @name Calls on any chart element
 * @{
 */

/**
 * Tells how many elements a chart view has, hidden and invalid ones included.
 *
 * @param[out] count The number of elements; 0 on failure.
 */
TARVEX_API int32_t Tarvex_Element2D_GetCount(int32_t windowId, int32_t* count);

/**
 * Gives the id of the element at a position in the order of adding.
 *
 * @param index 0 to count - 1. A position, which moves down when an earlier element is removed.
 * @param[out] elementId The id; -1 on failure.
 * @retval STATUS_BAD_INDEX The index is negative or not below the count.
 */
TARVEX_API int32_t Tarvex_Element2D_GetIDFromIndex(int32_t windowId, int32_t index,
                                                   int32_t* elementId);

/**
 * Tells the type of a chart element.
 *
 * @param[out] type One of TARVEX_ELEMENT_...; -1 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 */
TARVEX_API int32_t Tarvex_Element2D_GetType(int32_t windowId, int32_t elementId, int32_t* type);

/**
 * Tells whether a chart element holds values that can be drawn. Profiles and images always do. Does
 * not render.
 *
 * @param[out] valid 1 or 0; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 */
TARVEX_API int32_t Tarvex_Element2D_HasValidValues(int32_t windowId, int32_t elementId,
                                                   uint8_t* valid);

/**
 * Reads the colour of a chart element. Does not render.
 *
 * @param[out] red, green, blue 0 to 255; 0 on failure, except that an image hands out its colour.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is an image; the colour is read all the same.
 * @retval STATUS_NOT_READY The element is a profile on a regular grid without a valid sample.
 */
TARVEX_API int32_t Tarvex_Element2D_GetColor(int32_t windowId, int32_t elementId, uint8_t* red,
                                             uint8_t* green, uint8_t* blue);

/**
 * Sets the colour of a chart element and of its handles. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is an image; the colour is stored for
 *     TARVEX_PALETTE_SINGLE_COLOR and used when that palette is next set.
 * @retval STATUS_NOT_READY The element is a profile on a regular grid without a valid sample.
 */
TARVEX_API int32_t Tarvex_Element2D_SetColor(int32_t windowId, int32_t elementId, uint8_t red,
                                             uint8_t green, uint8_t blue);

/**
 * Reads the line width of a chart element, or the size of a point's marker. Does not render.
 *
 * @param[out] size In pixels; 0 on failure, except that an image hands out its size.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is an image; the size is read all the same.
 * @retval STATUS_NOT_READY The element is a profile on a regular grid without a valid sample.
 */
TARVEX_API int32_t Tarvex_Element2D_GetSize(int32_t windowId, int32_t elementId, double* size);

/**
 * Sets the line width of a chart element and of its handles, or the size of a point's marker, in
 * pixels. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is an image; the size is stored and not used.
 * @retval STATUS_TOO_SMALL The size is below 0.001; nothing changes.
 * @retval STATUS_NOT_READY The element is a profile on a regular grid without a valid sample.
 */
TARVEX_API int32_t Tarvex_Element2D_SetSize(int32_t windowId, int32_t elementId, double size);

/**
 * Shows or hides a chart element with its handles. It keeps its values, answers all calls and stays
 * hidden through changes. Does not render.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_INVALID_VALUES The element is a circle without valid values.
 * @retval STATUS_NOT_READY The element is a profile on a regular grid without a valid sample, or an
 *     image without pixels.
 */
TARVEX_API int32_t Tarvex_Element2D_Show(int32_t windowId, int32_t elementId, uint8_t show);

/**
 * Removes a chart element for good, with its handles. Its id is not given again; the axes stay.
 * What is being drawn in a draw mode is dropped. Renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 */
TARVEX_API int32_t Tarvex_Element2D_Remove(int32_t windowId, int32_t elementId);

/**
 * Removes all elements of a chart view. Ids continue where they stood; the axes stay. Succeeds also
 * on an empty view. Renders.
 */
TARVEX_API int32_t Tarvex_Element2D_RemoveAll(int32_t windowId);

/** @} */

/**
 * @name Profiles in charts
 *
 * A profile is a curve through samples, broken at missing ones; a valid sample between two gaps
 * shows as a cross if the samples have their own x, and not at all on a regular grid. All arrays
 * are copied. 16-bit z samples (Kor form, regular grid) of TARVEX_INVALID_VALUE are missing; in the
 * General form a byte per sample tells. Adding sets the axes to fit all elements; changes do not.
 * Changes drop what is being drawn in a draw mode.
 * @{
 */

/**
 * Adds a profile from positions in chart coordinates, drawn with a cross at each sample. Scales the
 * axes independently of each other and renders.
 *
 * @param x, y count positions each.
 * @param valid One byte per sample, not 0 for a valid one; null: all are valid.
 * @param count At least 1.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @param name Label of the curve, copied, or null for a label with the id. Empty names and names of
 *     256 characters or more are ignored.
 * @retval STATUS_NULL_ARGUMENT A required array is null.
 * @retval STATUS_TOO_SMALL No sample.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_ProfileNonUniform_GeneralData(
    int32_t windowId, const double* x, const double* y, const uint8_t* valid, int32_t count,
    int32_t* elementId, const char* name);

/**
 * Adds a profile from 16-bit samples: sample i lies at x[i] * xScale + xOffset, z[i] * zScale +
 * zOffset. Scales both axes alike and renders.
 *
 * @param x, z count samples each; only z marks a missing one.
 * @param count At least 2.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @param name Label of the curve, copied, or null for a label with the id. Empty names and names of
 *     256 characters or more are ignored.
 * @retval STATUS_NULL_ARGUMENT A required array is null.
 * @retval STATUS_TOO_SMALL Fewer than 2 samples.
 * @retval STATUS_NOT_FINITE A scale or offset is unusable.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_ProfileNonUniform_KorData(
    int32_t windowId, const int16_t* x, const int16_t* z, int32_t count, double xScale,
    double zScale, double xOffset, double zOffset, int32_t* elementId, const char* name);

/**
 * Adds a profile on a regular grid: sample i lies at i * xSpacing + xStart, z[i] * zScale +
 * zOffset. Scales both axes alike and renders.
 *
 * @param z count samples.
 * @param count At least 2.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT A required array is null.
 * @retval STATUS_TOO_SMALL Fewer than 2 samples.
 * @retval STATUS_NOT_FINITE A scale or offset is unusable.
 * @retval STATUS_NOT_READY Every sample is missing.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_ProfileUniform(int32_t windowId, const int16_t* z,
                                                       int32_t count, double xSpacing,
                                                       double zScale, double xStart, double zOffset,
                                                       int32_t* elementId);

/**
 * Replaces all samples by positions in chart coordinates. Always renders.
 *
 * @param count At least 2.
 * @param x, y count positions each.
 * @param valid One byte per sample, not 0 for a valid one; null: all are valid.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile with x of its own.
 * @retval STATUS_NULL_ARGUMENT A required array is null; nothing changes.
 * @retval STATUS_TOO_SMALL Fewer than 2 samples; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileNonUniform_SetValue_GeneralData(
    int32_t windowId, int32_t elementId, int32_t count, const double* x, const double* y,
    const uint8_t* valid);

/**
 * Replaces all samples by 16-bit samples, as in Tarvex_Element2D_Add_ProfileNonUniform_KorData.
 * Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile with x of its own.
 * @retval STATUS_NULL_ARGUMENT A required array is null; nothing changes.
 * @retval STATUS_TOO_SMALL Fewer than 2 samples; nothing changes.
 * @retval STATUS_NOT_FINITE A scale or offset is unusable; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileNonUniform_SetValue_KorData(
    int32_t windowId, int32_t elementId, int32_t count, const int16_t* x, const int16_t* z,
    double xScale, double zScale, double xOffset, double zOffset);

/**
 * Appends samples at positions in chart coordinates; the curve goes on from a valid last sample.
 * Always renders.
 *
 * @param count At least 1.
 * @param x, y count positions each.
 * @param valid One byte per sample, not 0 for a valid one; null: all are valid.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile with x of its own.
 * @retval STATUS_NULL_ARGUMENT A required array is null; nothing changes.
 * @retval STATUS_TOO_SMALL No sample; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileNonUniform_AttachValues_GeneralData(
    int32_t windowId, int32_t elementId, int32_t count, const double* x, const double* y,
    const uint8_t* valid);

/**
 * Appends 16-bit samples, placed as in Tarvex_Element2D_Add_ProfileNonUniform_KorData; the curve
 * goes on from a valid last sample. Always renders.
 *
 * @param count At least 1.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile with x of its own.
 * @retval STATUS_NULL_ARGUMENT A required array is null; nothing changes.
 * @retval STATUS_TOO_SMALL No sample; nothing changes.
 * @retval STATUS_NOT_FINITE A scale or offset is unusable; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileNonUniform_AttachValues_KorData(
    int32_t windowId, int32_t elementId, int32_t count, const int16_t* x, const int16_t* z,
    double xScale, double zScale, double xOffset, double zOffset);

/**
 * Tells how many samples a profile has, missing ones included. Does not render.
 *
 * @param[out] count The number of samples; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile with x of its own.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileNonUniform_GetPointCount(int32_t windowId,
                                                                    int32_t elementId,
                                                                    int32_t* count);

/**
 * Copies all samples into arrays of the host, in chart coordinates. Nothing is cleared on entry or
 * written on failure. Does not render.
 *
 * @param[out] x, y, valid Room for Tarvex_Element2D_ProfileNonUniform_GetPointCount entries each; a
 *     missing sample has y 0 and valid 0.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile with x of its own.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileNonUniform_GetValue(int32_t windowId, int32_t elementId,
                                                               double* x, double* y,
                                                               uint8_t* valid);

/**
 * Sets the size of the markers at the samples, in pixels. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile with x of its own.
 * @retval STATUS_TOO_SMALL The size is below 0.001; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileNonUniform_SetMarkerSize(int32_t windowId,
                                                                    int32_t elementId, double size);

/**
 * Replaces all samples, as in Tarvex_Element2D_Add_ProfileUniform. A profile that has come to hold
 * no valid sample cannot be changed any more. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile on a regular grid.
 * @retval STATUS_NOT_READY The profile holds no valid sample.
 * @retval STATUS_NULL_ARGUMENT A required array is null; nothing changes.
 * @retval STATUS_TOO_SMALL Fewer than 2 samples; nothing changes.
 * @retval STATUS_NOT_FINITE A scale or offset is unusable; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileUniform_SetValue(int32_t windowId, int32_t elementId,
                                                            int32_t count, const int16_t* z,
                                                            double xSpacing, double zScale,
                                                            double xStart, double zOffset);

/**
 * Tells how many samples a profile has, missing ones included. Does not render.
 *
 * @param[out] count The number of samples; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile on a regular grid.
 * @retval STATUS_NOT_READY No sample is valid.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileUniform_GetPointCount(int32_t windowId,
                                                                 int32_t elementId, int32_t* count);

/**
 * Copies all samples into arrays of the host, in chart coordinates. Nothing is cleared on entry or
 * written on failure. Does not render.
 *
 * @param[out] x, y, valid Room for Tarvex_Element2D_ProfileUniform_GetPointCount entries each; a
 *     missing sample has y 0 and valid 0.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a profile on a regular grid.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 * @retval STATUS_NOT_READY No sample is valid.
 */
TARVEX_API int32_t Tarvex_Element2D_ProfileUniform_GetValue(int32_t windowId, int32_t elementId,
                                                            double* x, double* y, uint8_t* valid);

/** @} */

/**
 * @name Images in charts
 *
 * A chart view has at most one image, below all curves. Pixels are kept as bytes, row by row; the
 * first row lies at the largest y. Pixels are copied. Changes of an image show with the next
 * render.
 * @{
 */

/**
 * Shows an image of bytes. If the view has an image already, that one gets the new pixels, its id
 * is given and nothing is rendered; otherwise renders.
 *
 * @param pixels width * height bytes.
 * @param width, height In pixels, at least 2 each.
 * @param scaleX, scaleY Size of a pixel in chart units, at least 1e-10.
 * @param scaleZ Units of z per step of a pixel's value, at least 1e-10.
 * @param offsetX, offsetY, offsetZ Origin of the image, and z of the value 0.
 * @param palette One of TARVEX_PALETTE_...
 * @param[out] elementId The id of the image; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT The array is null.
 * @retval STATUS_TOO_SMALL Width or height is below 2.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-10, or there is no such palette.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_ImageByte(int32_t windowId, const uint8_t* pixels,
                                                  int32_t width, int32_t height, double scaleX,
                                                  double scaleY, double scaleZ, double offsetX,
                                                  double offsetY, double offsetZ, uint32_t palette,
                                                  int32_t* elementId);

/**
 * Shows an image of 16-bit values, reduced to bytes. Values that all lie in 0 to 255 stay as they
 * are; others are spread over 1 to 255, with the z scale and offset adjusted, and 0 stands for
 * TARVEX_INVALID_VALUE. If the view has an image already, that one gets the new pixels, its id is
 * given and nothing is rendered; otherwise renders.
 *
 * @param pixels width * height values.
 * @param width, height In pixels, at least 2 each.
 * @param scaleX, scaleY Size of a pixel in chart units, at least 1e-10.
 * @param scaleZ Units of z per step of a pixel's value, at least 1e-10.
 * @param offsetX, offsetY, offsetZ Origin of the image, and z of the value 0.
 * @param palette One of TARVEX_PALETTE_...
 * @param[out] elementId The id of the image; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT The array is null.
 * @retval STATUS_TOO_SMALL Width or height is below 2.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-10, or there is no such palette.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_ImageShort(int32_t windowId, const int16_t* pixels,
                                                   int32_t width, int32_t height, double scaleX,
                                                   double scaleY, double scaleZ, double offsetX,
                                                   double offsetY, double offsetZ, uint32_t palette,
                                                   int32_t* elementId);

/**
 * Replaces an image by one of bytes, as in Tarvex_Element2D_Add_ImageByte; the size may change.
 * Does not render.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an image.
 * @retval STATUS_NULL_ARGUMENT The array is null; nothing changes.
 * @retval STATUS_TOO_SMALL Width or height is below 2; nothing changes.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-10, or there is no such palette; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_Image_SetValueByte(int32_t windowId, int32_t elementId,
                                                       const uint8_t* pixels, int32_t width,
                                                       int32_t height, double scaleX, double scaleY,
                                                       double scaleZ, double offsetX,
                                                       double offsetY, double offsetZ,
                                                       uint32_t palette);

/**
 * Replaces an image by one of 16-bit values, as in Tarvex_Element2D_Add_ImageShort; the size may
 * change. Does not render.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an image.
 * @retval STATUS_NULL_ARGUMENT The array is null; nothing changes.
 * @retval STATUS_TOO_SMALL Width or height is below 2; nothing changes.
 * @retval STATUS_OUT_OF_RANGE A scale is below 1e-10, or there is no such palette; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_Image_SetValueShort(int32_t windowId, int32_t elementId,
                                                        const int16_t* pixels, int32_t width,
                                                        int32_t height, double scaleX,
                                                        double scaleY, double scaleZ,
                                                        double offsetX, double offsetY,
                                                        double offsetZ, uint32_t palette);

/**
 * Reads the size of an image. Does not render.
 *
 * @param[out] width, height In pixels; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an image.
 */
TARVEX_API int32_t Tarvex_Element2D_Image_GetImageSize(int32_t windowId, int32_t elementId,
                                                       int32_t* width, int32_t* height);

/**
 * Copies the bytes of an image into an array of the host and reads its scales and offsets, those of
 * z as adjusted to the bytes. Does not render.
 *
 * @param[out] pixels Room for width * height bytes; left as it was on failure.
 * @param[out] scaleX, scaleY, scaleZ, offsetX, offsetY, offsetZ Chart units; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an image.
 * @retval STATUS_NULL_ARGUMENT pixels is null.
 */
TARVEX_API int32_t Tarvex_Element2D_Image_GetValue(int32_t windowId, int32_t elementId,
                                                   uint8_t* pixels, double* scaleX, double* scaleY,
                                                   double* scaleZ, double* offsetX, double* offsetY,
                                                   double* offsetZ);

/**
 * Reads the palette of an image. Does not render.
 *
 * @param[out] palette One of TARVEX_PALETTE_...; -1 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an image.
 */
TARVEX_API int32_t Tarvex_Element2D_GetPalette_Image(int32_t windowId, int32_t elementId,
                                                     int32_t* palette);

/**
 * Sets the palette of an image. Does not render.
 *
 * @param palette One of TARVEX_PALETTE_...
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an image.
 * @retval STATUS_OUT_OF_RANGE There is no such palette; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_SetPalette_Image(int32_t windowId, int32_t elementId,
                                                     uint32_t palette);

/** @} */

/**
 * @name Points and lines in charts
 *
 * All coordinates are chart coordinates.
 * @{
 */

/**
 * Adds a point, drawn as a circle marker. Renders. An unusable number gives an invalid element.
 *
 * @param x, y Position.
 * @param[out] elementId The id of the new element; -1 on failure.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_Point(int32_t windowId, double x, double y,
                                              int32_t* elementId);

/**
 * Reads a point, also if invalid. Does not render.
 *
 * @param[out] x, y Position; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a point.
 */
TARVEX_API int32_t Tarvex_Element2D_Point_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                   double* y);

/**
 * Moves a point. An unusable number makes it invalid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a point.
 */
TARVEX_API int32_t Tarvex_Element2D_Point_SetValue(int32_t windowId, int32_t elementId, double x,
                                                   double y);

/**
 * Adds a line without ends through a point along a direction, drawn across the draw space of the
 * view. Renders. Unusable numbers, or a direction whose squared length is below 1e-12, give an
 * invalid element.
 *
 * @param x, y A point of the line.
 * @param dirX, dirY Direction, of any length.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @param name Label of the line, copied, or null for a label with the id. Empty names and names of
 *     256 characters or more are ignored.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_Line(int32_t windowId, double x, double y, double dirX,
                                             double dirY, int32_t* elementId, const char* name);

/**
 * Adds a line through two points. Renders. Unusable numbers, or points whose squared distance is
 * below 1e-12, give an invalid element.
 *
 * @param x1, y1, x2, y2 The two points.
 * @param isSegment Not 0: drawn between the points. 0: drawn across the draw space of the view.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @param name Label of the line, copied, or null for a label with the id. Empty names and names of
 *     256 characters or more are ignored.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_Line_2Points(int32_t windowId, double x1, double y1,
                                                     double x2, double y2, uint8_t isSegment,
                                                     int32_t* elementId, const char* name);

/**
 * Reads two points of a line: the ends of a segment; otherwise the points of the last
 * Tarvex_Element2D_Line_SetValue or, before that, those 10 units to either side of the first point.
 * They are not the ends as drawn. Does not render.
 *
 * @param[out] x1, y1, x2, y2 The two points; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a line.
 */
TARVEX_API int32_t Tarvex_Element2D_Line_GetValue(int32_t windowId, int32_t elementId, double* x1,
                                                  double* y1, double* x2, double* y2);

/**
 * Lays a line through two points, as in Tarvex_Element2D_Add_Line_2Points. Unusable numbers make it
 * invalid; a segment between two equal points is a dot. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a line.
 * @retval STATUS_TOO_SMALL The squared distance of the points is below 1e-18 and isSegment is 0;
 *     the values stay.
 */
TARVEX_API int32_t Tarvex_Element2D_Line_SetValue(int32_t windowId, int32_t elementId, double x1,
                                                  double y1, double x2, double y2,
                                                  uint8_t isSegment);

/** @} */

/**
 * @name Circles and ellipses in charts
 *
 * All coordinates are chart coordinates. A circle can be active.
 * @{
 */

/**
 * Adds a circle. Renders. Unlike other shapes it is refused, not hidden, if it cannot be drawn.
 *
 * @param x, y Centre.
 * @param radius At least 1e-9.
 * @param[out] elementId The id of the new element; left as it was on failure.
 * @retval STATUS_INVALID_VALUES A number is unusable, or the radius is below 1e-9.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_Circle(int32_t windowId, double x, double y, double radius,
                                               int32_t* elementId);

/**
 * Reads a circle, also if invalid. Does not render.
 *
 * @param[out] x, y, radius Centre and radius; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a circle.
 */
TARVEX_API int32_t Tarvex_Element2D_Circle_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                    double* y, double* radius);

/**
 * Gives a circle a new centre and radius. Unusable numbers, or a radius below 1e-9, make it
 * invalid. Handles follow. Drops what is being drawn in a draw mode. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a circle.
 */
TARVEX_API int32_t Tarvex_Element2D_Circle_SetValue(int32_t windowId, int32_t elementId, double x,
                                                    double y, double radius);

/**
 * Adds an ellipse. Renders. Unusable numbers, or a half axis below 1e-9, give an invalid element.
 *
 * @param x, y Centre.
 * @param radiusA, radiusB Half axes along x and y before the rotation.
 * @param angle Degrees, from x towards y, brought into 0 to 360.
 * @param[out] elementId The id of the new element; -1 on failure.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_Ellipse(int32_t windowId, double x, double y,
                                                double radiusA, double radiusB, double angle,
                                                int32_t* elementId);

/**
 * Reads an ellipse, also if invalid. Does not render.
 *
 * @param[out] x, y, radiusA, radiusB Centre and half axes; 0 on failure.
 * @param[out] angle Degrees; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an ellipse.
 */
TARVEX_API int32_t Tarvex_Element2D_Ellipse_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                     double* y, double* radiusA, double* radiusB,
                                                     double* angle);

/**
 * Gives an ellipse new values, as in Tarvex_Element2D_Add_Ellipse. Unusable numbers, or a half axis
 * below 1e-9, make it invalid. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not an ellipse.
 */
TARVEX_API int32_t Tarvex_Element2D_Ellipse_SetValue(int32_t windowId, int32_t elementId, double x,
                                                     double y, double radiusA, double radiusB,
                                                     double angle);

/** @} */

/**
 * @name Rectangles and polygons in charts
 *
 * All coordinates are chart coordinates. Both can be active. Their changes drop what is being drawn
 * in a draw mode. Point arrays have one entry per point and are copied.
 * @{
 */

/**
 * Adds a rectangle. Renders. It is refused, not hidden, if it cannot be drawn.
 *
 * @param x, y Centre.
 * @param width, height Sides, each at least 1e-6 in magnitude.
 * @param angle Degrees, from x towards y, brought into -180 to 180.
 * @param[out] elementId The id of the new element; left as it was on failure.
 * @retval STATUS_NOT_FINITE A number is unusable, or both sides are below 1e-6 in magnitude.
 * @retval STATUS_TOO_SMALL One side is below 1e-6 in magnitude.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_Rectangle(int32_t windowId, double x, double y,
                                                  double width, double height, double angle,
                                                  int32_t* elementId);

/**
 * Reads a rectangle, also if invalid. Does not render.
 *
 * @param[out] x, y, width, height Centre and sides; 0 on failure.
 * @param[out] angle Degrees; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a rectangle.
 */
TARVEX_API int32_t Tarvex_Element2D_Rectangle_GetValue(int32_t windowId, int32_t elementId,
                                                       double* x, double* y, double* width,
                                                       double* height, double* angle);

/**
 * Gives a rectangle new values; the angle is kept as given. Unusable numbers, or a side below 1e-6
 * in magnitude, make it invalid. Handles follow. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a rectangle.
 */
TARVEX_API int32_t Tarvex_Element2D_Rectangle_SetValue(int32_t windowId, int32_t elementId,
                                                       double x, double y, double width,
                                                       double height, double angle);

/**
 * Adds a polygon. Renders. An unusable number in any point gives an invalid element.
 *
 * @param count Number of points: at least 3 if closed, 2 if open.
 * @param x, y count entries each.
 * @param closed Not 0: a last segment joins the last point to the first.
 * @param[out] elementId The id of the new element; -1 on failure.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 * @retval STATUS_TOO_SMALL Too few points.
 */
TARVEX_API int32_t Tarvex_Element2D_Add_Polygon(int32_t windowId, int32_t count, const double* x,
                                                const double* y, uint8_t closed,
                                                int32_t* elementId);

/**
 * Tells how many points a polygon has. Does not render.
 *
 * @param[out] count The number of points; 0 on failure.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 */
TARVEX_API int32_t Tarvex_Element2D_Polygon_GetPointCount(int32_t windowId, int32_t elementId,
                                                          int32_t* count);

/**
 * Copies the points of a polygon into arrays of the host, also if it is invalid. Nothing is cleared
 * on entry or written on failure. Does not render.
 *
 * @param[out] x, y Room for Tarvex_Element2D_Polygon_GetPointCount entries each.
 * @param[out] closed 1 or 0.
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 * @retval STATUS_NULL_ARGUMENT An array is null.
 */
TARVEX_API int32_t Tarvex_Element2D_Polygon_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                     double* y, uint8_t* closed);

/**
 * Replaces all points of a polygon, as in Tarvex_Element2D_Add_Polygon. An unusable number makes it
 * invalid; only this function makes it valid again. Handles follow. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 * @retval STATUS_NULL_ARGUMENT An array is null; nothing changes.
 * @retval STATUS_TOO_SMALL Too few points; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_Polygon_SetValue(int32_t windowId, int32_t elementId,
                                                     int32_t count, const double* x,
                                                     const double* y, uint8_t closed);

/**
 * Moves one point of a polygon. An unusable number makes the polygon invalid. Handles follow.
 * Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id, or the index is not 0 to count - 1.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 */
TARVEX_API int32_t Tarvex_Element2D_Polygon_ChangePoint(int32_t windowId, int32_t elementId,
                                                        int32_t index, double x, double y);

/**
 * Inserts a point before the one at an index; an index equal to the count appends. An unusable
 * number makes the polygon invalid. Handles follow. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id, or the index is not 0 to count.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 */
TARVEX_API int32_t Tarvex_Element2D_Polygon_InsertPoint(int32_t windowId, int32_t elementId,
                                                        int32_t index, double x, double y);

/**
 * Removes one point of a polygon. Handles follow. Always renders.
 *
 * @retval STATUS_BAD_INDEX No element has this id, or the index is not 0 to count - 1.
 * @retval STATUS_WRONG_TYPE The element is not a polygon.
 * @retval STATUS_TOO_SMALL The polygon would fall below its minimum; nothing changes.
 */
TARVEX_API int32_t Tarvex_Element2D_Polygon_RemovePoint(int32_t windowId, int32_t elementId,
                                                        int32_t index);

/** @} */

#endif
