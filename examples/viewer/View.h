#pragma once

#include <cstdint>
#include <vector>

// A finished picture: 8-bit RGB triples, top row first.
struct RgbPicture
{
    RgbPicture() = default;
    RgbPicture(int32_t width, int32_t height); // black

    // Lays another picture over this one; what does not fit is cut off.
    void Paste(const RgbPicture& part, int32_t left, int32_t top);

    int32_t Width = 0;
    int32_t Height = 0;
    std::vector<uint8_t> Rgb;
};

// A part of the host's window, in pixels from its upper left corner.
struct Box
{
    int32_t Left = 0;
    int32_t Top = 0;
    int32_t Width = 0;
    int32_t Height = 0;
};

// What 3D views and charts have in common for the host that shows them. Throws LibraryError.
class View
{
public:
    View() = default;
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    // Moves and resizes the view, and draws it again.
    virtual void Place(const Box& box) = 0;
    virtual Box Where() const = 0;
    // Brings everything into sight.
    virtual void Frame() = 0;
    // Gives the next element handles to drag it by; after the last one none has any.
    virtual void ActivateNextElement() = 0;
    // One of TARVEX_DRAW_...; what the user then draws is reported on standard output.
    virtual void ChooseDrawMode(uint32_t mode) = 0;
    virtual RgbPicture Picture() const = 0;
};

// Does what the key means for every kind of view; false if it means nothing.
bool ReactToViewKey(View& view, unsigned long key);

// The last picture of a view by one of the library's two calls for it.
RgbPicture CopyPicture(int32_t view,
                       int32_t (*copyImage)(int32_t view, uint8_t* rgb, int32_t capacity,
                                            int32_t* width, int32_t* height));

// The library has one set of these calls for 3D views and one for charts.
struct ActiveElementCalls
{
    int32_t (*GetCount)(int32_t view, int32_t* count);
    int32_t (*GetId)(int32_t view, int32_t index, int32_t* element);
    int32_t (*GetType)(int32_t view, int32_t element, int32_t* type);
    int32_t (*GetActive)(int32_t view, int32_t* element);
    int32_t (*SetActive)(int32_t view, int32_t element);
    std::vector<int32_t> Types; // of the elements that can be active
};

// Shows with the next render.
void ActivateNext(int32_t view, const ActiveElementCalls& calls);
