#include "frame/CWindowManager.h"

#include "frame/NumberTest.h"

#include <algorithm>
#include <cmath>

CWindowManager* CWindowManager::Instance = nullptr;
CriticalSection CWindowManager::GlobalLock;

CWindowManager::~CWindowManager()
{
    // Unload: nobody else is here any more, so no lock; views of both kinds may still live.
    MessageCapture messages;
    Platform::CallScope scope;
    Windows.Views.Clear();
    Windows2D.Views.Clear();
}

int32_t CWindowManager::DeleteAll()
{
    return Locked(
        [&]() -> int32_t
        {
            Windows.Views.Clear();
            Windows2D.Views.Clear();
            return STATUS_OK;
        });
}

int32_t CWindowManager::ProcessEvents()
{
    // All events in one turn of the lock. With a turn for each, busy threads that create views make
    // more events in the meantime than are handled, and the pump falls ever further behind.
    return Locked(
        [&]() -> int32_t
        {
            int32_t status = STATUS_OK;
            const auto guard = [&](const std::function<void()>& action)
            {
                const int32_t result = Guarded(LastError,
                                               [&]() -> int32_t
                                               {
                                                   action();
                                                   return STATUS_OK;
                                               });
                status = result == STATUS_OK ? status : result;
            };
            return Platform::PumpEvents(guard) ? status : int32_t{STATUS_NO_NATIVE_WINDOW};
        });
}

int32_t CWindowManager::GetEventDescriptor(int32_t* descriptor)
{
    return Locked(
        [&]() -> int32_t
        {
            *descriptor = Platform::GetEventDescriptor();
            return *descriptor < 0 ? STATUS_NO_NATIVE_WINDOW : STATUS_OK;
        });
}

namespace
{
bool IsSurface(int32_t type)
{
    return type == TARVEX_ELEMENT_SURFACE_UNIFORM || type == TARVEX_ELEMENT_SURFACE_NON_UNIFORM;
}

bool IsLookAcceptable(double transparency, double ambient, double diffuse, double specular,
                      double specularPower)
{
    return !IsOutside(transparency, 0.0, 1.0) && !IsOutside(ambient, 0.0, 1.0) &&
           !IsOutside(diffuse, 0.0, 1.0) && !IsOutside(specular, 0.0, 1.0) &&
           !IsOutside(specularPower, 0.0, 100.0);
}

// True unless the difference is below the minimum; a NaN passes.
bool IsAtLeast(double difference, double minimum)
{
    return !(difference < minimum);
}
} // namespace

int32_t CWindowManager::GetDefault(int32_t windowId, int32_t type, double* transparency,
                                   uint8_t* red, uint8_t* green, uint8_t* blue, double* size,
                                   double* ambient, double* diffuse, double* specular,
                                   double* specularPower, int32_t* palette, uint8_t* autoScale,
                                   double* clipPercent, double* fixedMin, double* fixedMax,
                                   double* lineStart, double* lineEnd, double* xmin, double* xmax,
                                   double* ymin, double* ymax, double* zmin, double* zmax)
{
    return Call<CWindow>(windowId,
                         [&](CWindow&) -> int32_t
                         {
                             const ElementDefaults* record = Defaults.Find(type);
                             if (!record)
                             {
                                 return STATUS_BAD_ELEMENT_TYPE;
                             }
                             const bool surface = IsSurface(type);
                             const bool line = type == TARVEX_ELEMENT_LINE;
                             const bool plane = type == TARVEX_ELEMENT_PLANE;
                             *transparency = record->Transparency;
                             *red = record->Color[0];
                             *green = record->Color[1];
                             *blue = record->Color[2];
                             *size = surface ? -1.0 : record->Size;
                             *ambient = record->Ambient;
                             *diffuse = record->Diffuse;
                             *specular = record->Specular;
                             *specularPower = record->SpecularPower;
                             *palette = surface ? record->Palette : -1;
                             *autoScale = surface && record->AutoScale ? 1 : 0;
                             *clipPercent = surface ? record->ClipPercent : -1.0;
                             *fixedMin = surface ? record->FixedMin : 0.0;
                             *fixedMax = surface ? record->FixedMax : 0.0;
                             *lineStart = line ? record->LineStart : 0.0;
                             *lineEnd = line ? record->LineEnd : 0.0;
                             double* const box[] = {xmin, xmax, ymin, ymax, zmin, zmax};
                             for (size_t side = 0; side < 6; ++side)
                             {
                                 *box[side] = plane ? record->DrawSize[side] : 0.0;
                             }
                             return STATUS_OK;
                         });
}

int32_t CWindowManager::SetDefault(int32_t windowId, int32_t type, double transparency, uint8_t red,
                                   uint8_t green, uint8_t blue, double size, double ambient,
                                   double diffuse, double specular, double specularPower,
                                   int32_t palette, uint8_t autoScale, double clipPercent,
                                   double fixedMin, double fixedMax, double lineStart,
                                   double lineEnd, double xmin, double xmax, double ymin,
                                   double ymax, double zmin, double zmax)
{
    return Call<CWindow>(
        windowId,
        [&](CWindow&) -> int32_t
        {
            ElementDefaults* record = Defaults.Find(type);
            if (!record)
            {
                return STATUS_BAD_ELEMENT_TYPE;
            }
            const bool surface = IsSurface(type);
            const bool line = type == TARVEX_ELEMENT_LINE;
            const bool plane = type == TARVEX_ELEMENT_PLANE;
            // All tests before the first store: a refused call changes nothing.
            bool good = IsLookAcceptable(transparency, ambient, diffuse, specular, specularPower);
            if (surface)
            {
                good = good && palette >= 0 && palette <= 6 && !IsOutside(clipPercent, 0.0, 45.0) &&
                       IsAtLeast(fixedMax - fixedMin, 0.001);
            }
            else
            {
                good = good && IsAtLeast(size, 0.001);
            }
            if (line)
            {
                good = good && IsAtLeast(std::abs(lineEnd - lineStart), 1e-9);
            }
            if (plane)
            {
                good = good && IsAtLeast(xmax - xmin, 0.001) && IsAtLeast(ymax - ymin, 0.001) &&
                       IsAtLeast(zmax - zmin, 0.001);
            }
            if (!good)
            {
                return STATUS_OUT_OF_RANGE;
            }
            record->Transparency = transparency;
            record->Color[0] = red;
            record->Color[1] = green;
            record->Color[2] = blue;
            record->Ambient = ambient;
            record->Diffuse = diffuse;
            record->Specular = specular;
            record->SpecularPower = specularPower;
            if (surface)
            {
                record->Palette = palette;
                record->AutoScale = autoScale != 0;
                record->ClipPercent = clipPercent;
                record->FixedMin = fixedMin;
                record->FixedMax = fixedMax;
            }
            else
            {
                record->Size = size;
            }
            if (line)
            {
                record->LineStart = lineStart;
                record->LineEnd = lineEnd;
            }
            if (plane)
            {
                const double box[] = {xmin, xmax, ymin, ymax, zmin, zmax};
                std::copy(std::begin(box), std::end(box), std::begin(record->DrawSize));
            }
            return STATUS_OK;
        });
}
