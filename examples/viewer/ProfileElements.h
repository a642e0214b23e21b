#pragma once

#include "HeightMap.h"

#include <cstdint>
#include <optional>

// Lays rows of a map into a 3D view as profiles. Throws LibraryError.

// The only row of a measured profile.
void AddProfile(int32_t view, const HeightMap& profile, double exaggeration);

// Evenly spaced rows of a surface, lifted a little above it: on its cells they would be half
// hidden. Rows without two valid samples are left out.
void AddProfiles(int32_t view, const HeightMap& surface, double exaggeration, int32_t count);

// One row in the colour of marked rows, lifted likewise; nothing without two valid samples.
std::optional<int32_t> AddMarkedProfile(int32_t view, const HeightMap& surface, double exaggeration,
                                        int32_t row);
