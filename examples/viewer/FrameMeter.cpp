#include "FrameMeter.h"

#include <cstdio>

void FrameMeter::Count()
{
    ++Frames;
    ++FramesOfPart;
    const double seconds = Part.Seconds();
    if (seconds >= 1.0)
    {
        std::printf("%.1f frames per second\n", static_cast<double>(FramesOfPart) / seconds);
        std::fflush(stdout);
        Part = {};
        FramesOfPart = 0;
    }
}

void FrameMeter::PrintTotal() const
{
    const double seconds = Whole.Seconds();
    std::printf("%lld frames in %.1f s: %.1f frames per second\n", static_cast<long long>(Frames),
                seconds, static_cast<double>(Frames) / seconds);
    std::fflush(stdout);
}
