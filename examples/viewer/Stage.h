#pragma once

#include "Scene.h"
#include "View.h"

#include <cstdint>
#include <vector>

// What fills the host's window: one view, or several side by side. Throws LibraryError.
class Stage
{
public:
    Stage() = default;
    virtual ~Stage() = default;
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    // Shows another scene, which stays in use until the next one is shown.
    virtual void Show(const Scene& scene) = 0;
    // The samples of the shown scene have changed.
    virtual void Refresh() = 0;
    // The host's window has this size.
    virtual void Arrange(int32_t width, int32_t height) = 0;
    // A key that means nothing to all kinds of views.
    virtual void ReactToKey(unsigned long key) = 0;
    virtual std::vector<View*> Views() = 0;
};

// All views of a stage as they stand in the window.
RgbPicture PictureOf(Stage& stage);
