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

// Holds the pictures of a view back while it lives, so that many changes cost one picture.
class SceneUpdate
{
public:
    explicit SceneUpdate(int32_t view);
    ~SceneUpdate();
    SceneUpdate(const SceneUpdate&) = delete;
    SceneUpdate& operator=(const SceneUpdate&) = delete;

private:
    int32_t View;
};
