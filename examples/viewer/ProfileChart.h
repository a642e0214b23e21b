#pragma once

#include "ChartView.h"
#include "HeightMap.h"

#include <cstdint>

// A chart with the heights along one row of a map. Throws LibraryError.
class ProfileChart : public ChartView
{
public:
    ProfileChart(void* parentWindow, uint32_t layout);

    // Shows another map. The axes hold all of its heights, so that they stay from row to row.
    void Show(const HeightMap& map, int32_t row);
    // Another row of the map, or the row with other samples.
    void Replace(const HeightMap& map, int32_t row);

private:
    // The form in which the profile is handed over follows from the samples.
    enum class Form
    {
        Uniform, // regular grid, every sample there
        Kor,     // free positions in 16 bits
        General  // regular grid with samples missing
    };

    void AddProfile(const HeightMap& map, int32_t row);

    Form ShownForm = Form::General;
    int32_t Profile = -1;
};
