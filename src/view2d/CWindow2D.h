// A chart view. Not built yet: no object of it comes to exist, and every call that names a chart
// view finds none.
#pragma once

#include "Tarvex.h"

class CWindow2D
{
public:
    int32_t Guard() const { return STATUS_NOT_READY; }

    const int32_t Id = -1;
};
