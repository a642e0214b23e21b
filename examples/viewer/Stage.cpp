#include "Stage.h"

#include <algorithm>

RgbPicture PictureOf(Stage& stage)
{
    const std::vector<View*> views = stage.Views();
    int32_t width = 0;
    int32_t height = 0;
    for (const View* view : views)
    {
        const Box box = view->Where();
        width = std::max(width, box.Left + box.Width);
        height = std::max(height, box.Top + box.Height);
    }
    RgbPicture picture(width, height);
    for (const View* view : views)
    {
        picture.Paste(view->Picture(), view->Where().Left, view->Where().Top);
    }
    return picture;
}
