// What the library is expected to hold and to answer: plain records that follow each call.
#pragma once

#include "Tarvex.h"
#include "support/Functions.h"

#include <array>
#include <map>

// Where a model says nothing.
constexpr double anyNumber = -7.75e77;
constexpr int32_t anyStatus = 0;

struct ModelElement
{
    int32_t Id = 0;
    int32_t Type = 0;
    bool Valid = true;
    Numbers Values;              // as the getter of its type hands them out
    std::vector<Numbers> Points; // x, y, z or x, y, valid, or bytes
    Numbers Colour = Numbers(3, anyNumber);
    Numbers Lighting = Numbers(4, anyNumber);
    Numbers FirstLighting;
    double Size = anyNumber;
    double Transparency = anyNumber;
    bool Empty = false;   // no valid sample
    bool Unbuilt = false; // a surface whose last values could not be shown
    bool HasIntensity = false;
    bool ShowsIntensity = false;
    double Palettes[2] = {0, TARVEX_PALETTE_GREY}; // of heights, of intensities
    double Mode = 0;
    Numbers Scaling; // automatic, percent, minimum, maximum
    size_t Columns = 0;
    size_t Rows = 0;

    bool IsSurface() const { return Type <= TARVEX_ELEMENT_SURFACE_NON_UNIFORM; }
    double& Palette() { return Palettes[ShowsIntensity]; } // that is in force
    size_t CountPoints() const { return Points.empty() ? 0 : Points[0].size(); }
};

struct ModelView
{
    ModelElement* Find(double id);
    // It is no longer active, nor has it the scalar bar.
    void Forget(int32_t id);

    int32_t Id = 0;
    bool OnChart = false;
    bool Usable = true; // has a native window
    int32_t NextElement = 0;
    std::vector<ModelElement> Elements;
    int32_t Active = -1;
    int32_t DrawMode = 0;
    Numbers DrawSpace = {-50, 50, -50, 50, -50, 50};
    bool HasFrame = false;
    int32_t BarElement = -1;
    bool BarShown = false;
    int Holds = 0;
    unsigned long Window = 0; // 0: no child of the host's
    int Width = 4;
    int Height = 4;
};

// What a call should have handed out: arrays first, then single numbers. Empty: not known.
struct Expectation
{
    std::vector<Numbers> Arrays;
    Numbers Values;
};

class Model
{
public:
    // Takes over what new elements look like, from the library.
    void ReadDefaults();

    // The status that the call should have had, or anyStatus. Afterwards the model holds what the
    // call has changed.
    int32_t Follow(const Call& call, Expectation& expected);

    ModelView* Find(bool onChart, double id);
    // The view and the element that a call names; null for none.
    ModelView* ViewOf(const Call& call);
    ModelElement* ElementOf(const Call& call);

    std::vector<ModelView> Views[2]; // 3D views, charts
    int32_t NextView[2] = {0, 0};
    std::map<int32_t, Numbers> Defaults; // by type, as handed out
};

// What a rule has in hand. The native window is there, and the element of the type in question.
struct Situation
{
    Model& All;
    const Call& Made;
    ModelView* View;
    ModelElement* Element;
    Numbers Given; // the numbers after the ids
    std::vector<Numbers>& Arrays;
    Numbers& Expected;
};

using Rule = std::function<int32_t(Situation& now)>;
// By the functions' names without Tarvex_. One of both kinds of view, or of surface or profile, is
// found without 2D, 3D and Non as well.
using Rules = std::map<std::string, Rule>;

void TellViewRules(Rules& rules);
void TellCommonRules(Rules& rules);
void TellShapeRules(Rules& rules);
void TellMeasurementRules(Rules& rules);

// Shared by them.
bool IsUsable(double value);
bool AreUsable(const Numbers& values, ptrdiff_t from = 0, ptrdiff_t count = INT32_MAX);
// Below the lower or above the upper limit; a NaN is neither.
bool IsOutside(double value, double lowest, double highest);
// Whether one of three extents of a box is too small.
bool IsFlat(const Numbers& values, size_t from, double least);
double FoldAngle(double degrees, bool halfTurns);
// An array of more than two gigabytes.
bool IsTooMuch(double count, size_t bytes);
// An array that is needed is null.
bool LacksArray(const Call& call);
// Which is the situation's from then on.
int32_t AddElement(Situation& now, ModelElement element = {});

// One number, or more.
struct Answer : Numbers
{
    Answer(double number) : Numbers{number} {}
    Answer(Numbers numbers) : Numbers(std::move(numbers)) {}
    Answer(std::initializer_list<double> numbers) : Numbers(numbers) {}
};

// Rules that are a line: what is handed out, what is done, and what is refused with a status.
Rule Gives(std::function<Answer(Situation& now)> values);
Rule Does(std::function<void(Situation& now)> deed);
Rule Unless(int32_t status, std::function<bool(const Situation& now)> isRefused,
            std::function<void(Situation& now)> deed = {});

// Of views and of elements.
template <class Entry>
int32_t GetIdAt(const std::vector<Entry>& entries, Situation& now)
{
    const double index = now.Given[0];
    if (IsOutside(index, 0, static_cast<double>(entries.size()) - 1))
    {
        return STATUS_BAD_INDEX;
    }
    now.Expected = {static_cast<double>(entries[static_cast<size_t>(index)].Id)};
    return STATUS_OK;
}
