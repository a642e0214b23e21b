/**
 * @file TarvexExt.h
 * What a host on this platform needs beyond the functions of Tarvex.h. Pure C99.
 *
 * The library has no event loop of its own: the host waits on the descriptor beside its own events
 * and lets the library handle what has arrived.
 */
#ifndef TARVEX_EXT_H
#define TARVEX_EXT_H

#include "Tarvex.h"

/**
 * Handles all window events that wait at this moment, of all views, without waiting for more:
 * mouse input moves cameras, exposed and resized views are drawn again. Each view renders at most
 * once. Host callbacks run on the calling thread, inside this function. Called out of a callback it
 * does nothing and returns STATUS_OK; the outer call goes on.
 *
 * @return STATUS_OK, also without views; STATUS_NULL_ARGUMENT when the library is not loaded;
 * STATUS_NO_NATIVE_WINDOW once the connection to the window system was lost; STATUS_EXCEPTION or
 * STATUS_OUT_OF_MEMORY when the handling of an event failed (the other events were handled).
 */
TARVEX_API int32_t TarvexExt_ProcessEvents(void);

/**
 * A file descriptor that polls readable exactly when TarvexExt_ProcessEvents has something to do.
 * It belongs to the library: poll it, but do not read or close it. It stays the same until the
 * connection to the window system is lost; a view created after that brings a new one.
 *
 * @param[out] descriptor The descriptor; -1 on failure.
 * @return STATUS_OK; STATUS_NULL_ARGUMENT when the library is not loaded; STATUS_NO_NATIVE_WINDOW
 * without a window system or without OpenGL.
 */
TARVEX_API int32_t TarvexExt_GetEventDescriptor(int32_t* descriptor);

/**
 * Copies the last rendered picture of a 3D view, also when the view is covered by other windows.
 * Does not render. Before the first picture it is black and has the size of the window.
 *
 * @param[in] windowId The view.
 * @param[out] rgb Three bytes a pixel, top row first, no padding; may be null to ask for the size.
 * @param[in] capacity Bytes that rgb has room for.
 * @param[out] width Pixels across; 0 on failure before the size is known.
 * @param[out] height Pixels down; 0 likewise.
 * @return STATUS_OK; STATUS_TOO_SMALL when capacity is below 3 * width * height (the size is
 * written, rgb is untouched); STATUS_NOT_READY when the picture could not be read; the common
 * statuses of Tarvex.h.
 */
TARVEX_API int32_t TarvexExt_Window_CopyImage(int32_t windowId, uint8_t* rgb, int32_t capacity,
                                              int32_t* width, int32_t* height);

/** As TarvexExt_Window_CopyImage, of a chart view. */
TARVEX_API int32_t TarvexExt_Window2D_CopyImage(int32_t windowId, uint8_t* rgb, int32_t capacity,
                                                int32_t* width, int32_t* height);

/**
 * Holds back the renders of a 3D view, so that a host can fill or change a scene without a picture
 * for each call. Until the matching TarvexExt_Window_EndUpdate nothing of the view renders, also
 * not for mouse or window events; every status and getter is as without it. Updates nest. Deleting
 * the view or unloading with an update open is fine. Does not render.
 *
 * @param[in] windowId The view.
 * @return STATUS_OK; the common statuses of Tarvex.h.
 */
TARVEX_API int32_t TarvexExt_Window_BeginUpdate(int32_t windowId);

/**
 * Ends what TarvexExt_Window_BeginUpdate began. The last end renders once if anything asked for a
 * picture in between.
 *
 * @param[in] windowId The view.
 * @return STATUS_OK; STATUS_NOT_READY when no update is open; the common statuses of Tarvex.h.
 */
TARVEX_API int32_t TarvexExt_Window_EndUpdate(int32_t windowId);

/** As TarvexExt_Window_BeginUpdate, of a chart view. */
TARVEX_API int32_t TarvexExt_Window2D_BeginUpdate(int32_t windowId);

/** As TarvexExt_Window_EndUpdate, of a chart view. */
TARVEX_API int32_t TarvexExt_Window2D_EndUpdate(int32_t windowId);

/**
 * The version of the library, for example "0.1.0". The text is static. Usable at any time.
 */
TARVEX_API const char* TarvexExt_GetVersion(void);

/**
 * What the library or VTK under it last complained of, in English; empty when nothing was. The
 * messages never reach the host's standard error. Usable from any thread, at any time.
 *
 * @param[out] text Receives the text with a closing zero, cut to capacity bytes.
 * @param[in] capacity Bytes that text has room for.
 * @return STATUS_OK; STATUS_NULL_ARGUMENT for a null text; STATUS_TOO_SMALL for a capacity below 1.
 */
TARVEX_API int32_t TarvexExt_GetLastError(char* text, int32_t capacity);

#endif
