// How long a test may go on: briefly with each build, thoroughly where TARVEX_STRESS is set.
#pragma once

#include <cstdlib>
#include <iostream>
#include <string>

template <class T>
T Effort(T brief, T thorough)
{
    return std::getenv("TARVEX_STRESS") ? thorough : brief;
}

// What a promise of docs/reliability.md came out at; the stress run puts it into its table.
inline void ReportFigure(const std::string& promise, const std::string& figure)
{
    std::cout << "figure: " << promise << ": " << figure << std::endl;
}
