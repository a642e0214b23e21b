#pragma once

#include <cstdint>

// Has every element that the user draws or drags in the view reported on standard output, with its
// numbers as the library tells them. Throws LibraryError.
void ReportElements(int32_t view);
void ReportChartElements(int32_t chart);
