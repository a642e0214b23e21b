#pragma once

#include <cstdint>
#include <stdexcept>

// A call into the library that did not succeed; the text names the call and the status.
class LibraryError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Throws LibraryError unless the status says success.
void Check(int32_t status, const char* call);

struct Color
{
    uint8_t Red = 0;
    uint8_t Green = 0;
    uint8_t Blue = 0;
};

void SetColor(int32_t view, int32_t element, const Color& color);
void SetSize(int32_t view, int32_t element, double size);

// Exactly the given colour, whatever the light: many new elements add ambient and diffuse light up,
// which bleaches bright colours.
void SetFlatColor(int32_t view, int32_t element, const Color& color);

// Of an element in a chart; the size in pixels.
void PaintInChart(int32_t chart, int32_t element, const Color& color, double size);

// Holds the pictures of a view back while it lives, so that many changes cost one picture.
class ViewUpdate
{
public:
    ViewUpdate(const ViewUpdate&) = delete;
    ViewUpdate& operator=(const ViewUpdate&) = delete;

protected:
    using Call = int32_t (*)(int32_t view);
    ViewUpdate(int32_t view, Call begin, Call end);
    ~ViewUpdate();

private:
    int32_t View;
    Call End;
};

class SceneUpdate : private ViewUpdate
{
public:
    explicit SceneUpdate(int32_t view);
};

class ChartUpdate : private ViewUpdate
{
public:
    explicit ChartUpdate(int32_t chart);
};
