// Bytes into calls. Every call takes the same number of bytes whatever the model holds, so that
// calls can be cut out of a sequence; only which ids exist is taken from the model.
#pragma once

#include "fuzz/Model.h"

#include <span>

// Zeros after the end.
class ByteStream
{
public:
    explicit ByteStream(std::span<const uint8_t> bytes) : All(bytes) {}
    uint8_t Next() { return At < All.size() ? All[At++] : 0; }
    bool IsAtEnd() const { return At >= All.size(); }
    size_t GetPosition() const { return At; }

private:
    std::span<const uint8_t> All;
    size_t At = 0;
};

// What the mouse does in a view.
struct MouseMove
{
    bool OnChart = false;
    size_t View = 0; // position among the views of its kind
    int X = 0;       // 0 to 255, from edge to edge
    int Y = 0;
    unsigned Button = 0; // 1 to 5; 0: it only moves
    bool Press = false;
    bool Drags = false; // press, move and release at once
};

// False: `move` is what comes next, and not `call`.
bool DecodeStep(ByteStream& bytes, Model& model, Call& call, MouseMove& move);
