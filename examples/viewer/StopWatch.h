#pragma once

#include <chrono>

// Counts from its making.
class StopWatch
{
public:
    double Seconds() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
    }

private:
    std::chrono::steady_clock::time_point Start = std::chrono::steady_clock::now();
};
