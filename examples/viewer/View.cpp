#include "View.h"

#include "Library.h"

#include <Tarvex.h>

#include <X11/keysym.h>

#include <algorithm>
#include <cstddef>

namespace
{
size_t ByteCount(int32_t width, int32_t height)
{
    return static_cast<size_t>(width) * static_cast<size_t>(height) * 3;
}
} // namespace

RgbPicture::RgbPicture(int32_t width, int32_t height)
    : Width(width), Height(height), Rgb(ByteCount(width, height))
{
}

void RgbPicture::Paste(const RgbPicture& part, int32_t left, int32_t top)
{
    const int32_t columns = std::min(part.Width, Width - left);
    const int32_t rows = std::min(part.Height, Height - top);
    for (int32_t row = 0; row < rows && columns > 0; ++row)
    {
        std::copy_n(part.Rgb.data() + ByteCount(part.Width, row), ByteCount(columns, 1),
                    Rgb.data() + ByteCount(Width, top + row) + ByteCount(left, 1));
    }
}

bool ReactToViewKey(View& view, unsigned long key)
{
    if (key >= XK_0 && key <= XK_7)
    {
        view.ChooseDrawMode(static_cast<uint32_t>(key - XK_0));
        return true;
    }
    switch (key)
    {
    case XK_r:
        view.Frame();
        return true;
    case XK_Tab:
        view.ActivateNextElement();
        return true;
    default:
        return false;
    }
}

RgbPicture CopyPicture(int32_t view,
                       int32_t (*copyImage)(int32_t view, uint8_t* rgb, int32_t capacity,
                                            int32_t* width, int32_t* height))
{
    RgbPicture picture;
    Check(copyImage(view, nullptr, 0, &picture.Width, &picture.Height), "CopyImage");
    picture.Rgb.resize(ByteCount(picture.Width, picture.Height));
    Check(copyImage(view, picture.Rgb.data(), static_cast<int32_t>(picture.Rgb.size()),
                    &picture.Width, &picture.Height),
          "CopyImage");
    return picture;
}

void ActivateNext(int32_t view, const ActiveElementCalls& calls)
{
    int32_t active = TARVEX_NONE;
    Check(calls.GetActive(view, &active), "GetActiveElement");
    int32_t count = 0;
    Check(calls.GetCount(view, &count), "GetCount");
    int32_t next = TARVEX_NONE;
    for (int32_t i = 0; i < count && next == TARVEX_NONE; ++i)
    {
        int32_t element = TARVEX_NONE;
        Check(calls.GetId(view, i, &element), "GetIDFromIndex");
        int32_t type = TARVEX_NONE;
        Check(calls.GetType(view, element, &type), "GetType");
        const bool canBeActive =
            std::find(calls.Types.begin(), calls.Types.end(), type) != calls.Types.end();
        // Ids rise in the order of the elements.
        if (element > active && canBeActive)
        {
            next = element;
        }
    }
    Check(calls.SetActive(view, next), "SetActiveElement");
}
