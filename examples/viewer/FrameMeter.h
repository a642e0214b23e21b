#pragma once

#include "StopWatch.h"

#include <cstdint>

// Tells on standard output how many frames a second are shown.
class FrameMeter
{
public:
    // Another frame is shown. Prints once a second.
    void Count();
    // About all frames, at the end.
    void PrintTotal() const;

    double Seconds() const { return Whole.Seconds(); }

private:
    StopWatch Whole;
    StopWatch Part; // since the last line
    int64_t Frames = 0;
    int64_t FramesOfPart = 0;
};
