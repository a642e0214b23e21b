// What a call does when memory runs out under it, at each place where it asks for some.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "frame/FailingAllocations.h"
#include "support/Picture.h"
#include "support/TestHost.h"
#include "support/TestView.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace
{
// Fails the first allocation of the call, then the second, until the call gets through. Returns how
// many failed.
int FailEach(const std::function<int32_t()>& call, const std::function<void()>& checkFailed)
{
    for (int place = 1; place < 1000; ++place)
    {
        SCOPED_TRACE("allocation " + std::to_string(place));
        FailAllocation(place);
        const int32_t status = call();
        if (!StopFailing())
        {
            EXPECT_EQ(status, STATUS_OK);
            return place - 1;
        }
        EXPECT_TRUE(status == STATUS_OUT_OF_MEMORY || status == STATUS_EXCEPTION) << status;
        checkFailed();
        if (testing::Test::HasFailure())
        {
            break;
        }
    }
    return 0;
}

class AllocationFailure : public testing::Test
{
protected:
    AllocationFailure() { Tarvex_Element_GetCount(View.Id, &CountBefore); }

    int32_t CountElements() const
    {
        int32_t count = -1;
        Tarvex_Element_GetCount(View.Id, &count);
        return count;
    }
    // No element, and the view draws what it drew before.
    void CheckUnchanged() const
    {
        EXPECT_EQ(CountElements(), CountBefore);
        EXPECT_EQ(View.Render(), STATUS_OK);
        EXPECT_EQ(TakePicture(View.Id).CountDifferences(PictureBefore), 0);
    }
    TestHost Host;
    TestView View{Host.Handle()};
    int32_t CountBefore = -1;
    const Picture PictureBefore = TakePicture(View.Id);
    std::vector<int16_t> Heights = std::vector<int16_t>(40 * 30, 1);
    std::vector<uint8_t> Intensities = std::vector<uint8_t>(50 * 40, 9);
};
} // namespace

TEST_F(AllocationFailure, InCreateLeavesNoViewAndUsesNoId)
{
    int32_t id = -1;
    const int places =
        FailEach([&] { return Tarvex_Window_Create(Host.Handle(), 1, 0, 0, 100, 90, &id); },
                 [&]
                 {
                     EXPECT_EQ(id, -1);
                     int32_t count = 0;
                     EXPECT_EQ(Tarvex_Window_GetCount(&count), STATUS_OK);
                     EXPECT_EQ(count, 1);
                     EXPECT_EQ(Host.Children().size(), 1U);
                 });
    EXPECT_GT(places, 3);
    EXPECT_EQ(id, View.Id + 1);
    EXPECT_EQ(Tarvex_Window_Delete(id), STATUS_OK);
    CheckUnchanged();
}

TEST_F(AllocationFailure, InAnAddLeavesNoElementAndUsesNoId)
{
    const int32_t id = View.Id;
    const int16_t* raw = Heights.data();
    int32_t element = -1;
    const std::function<int32_t()> adds[] = {
        [&] { return Tarvex_Element_Add_Point(id, 1, 2, 3, &element); },
        [&] { return Tarvex_Element_Add_Line(id, 0, 0, 0, 0, 1, 0, &element); },
        [&]
        {
            return Tarvex_Element_Add_SurfaceUniform(id, raw, Intensities.data(), 40, 30, 1, 1, 1,
                                                     0, 0, 0, 0, &element);
        },
        [&]
        {
            return Tarvex_Element_Add_SurfaceNonUniform(id, raw, raw, raw, nullptr, 40, 30, 1, 1, 1,
                                                        0, 0, 0, 0, &element);
        },
        [&] {
            return Tarvex_Element_Add_ProfileNonUniform(id, raw, raw, 99, 1, 1, 0, 0, 0, &element);
        }};
    int32_t next = CountBefore;
    for (const auto& add : adds)
    {
        SCOPED_TRACE(&add - adds);
        element = -1;
        const auto checkFailed = [&]
        {
            EXPECT_EQ(element, -1);
            CheckUnchanged();
        };
        EXPECT_GT(FailEach(add, checkFailed), 1);
        EXPECT_EQ(element, next++) << "a failed call has used an id";
        EXPECT_EQ(Tarvex_Element_Remove(id, element), STATUS_OK);
        CheckUnchanged();
    }
}

TEST_F(AllocationFailure, InACallOnAnElementLeavesItUsable)
{
    int32_t surface = -1;
    ASSERT_EQ(Tarvex_Element_Add_SurfaceUniform(View.Id, Heights.data(), nullptr, 40, 30, 1.0, 1.0,
                                                1.0, 0.0, 0.0, 0.0, 0, &surface),
              STATUS_OK);
    const int32_t id = View.Id;
    const std::vector<int16_t> others(50 * 40, 3);
    const std::function<int32_t()> calls[] = {
        [&] { return Tarvex_Element_Point_SetValue(id, 0, 4.0, 3.0, 2.0, 1.0); },
        [&] { return Tarvex_Element_Line_SetValue(id, 1, 0.0, 1.0, 2.0, 5.0, 6.0, 7.0); },
        [&]
        {
            return Tarvex_Element_SurfaceUniform_SetValue(id, surface, others.data(), nullptr, 50,
                                                          40, 1.0, 1.0, 1.0, 0.0, 0.0, 0.0);
        },
        [&] {
            return Tarvex_Element_SurfaceUniform_AddIntensity(id, surface, Intensities.data(), 50,
                                                              40);
        },
        [&] { return Tarvex_Element_SetPalette_SurfaceUniform(id, surface, 3); },
        [&] { return Tarvex_Window_ScalarBar_Add(id, surface); },
        [&] { return Tarvex_Window_UpdateSize(id, 1, 1, 120, 110); },
        [&] { return Tarvex_Window_SetActiveElement(id, 0); },
        [&] { return TarvexExt_ProcessEvents(); },
        [&] { return Tarvex_Element_Remove(id, surface); }};
    for (size_t index = 0; index < std::size(calls); ++index)
    {
        SCOPED_TRACE("call " + std::to_string(index));
        FailEach(calls[index],
                 [&]
                 {
                     EXPECT_EQ(CountElements(), CountBefore + 1);
                     EXPECT_EQ(View.Render(), STATUS_OK);
                 });
    }
    EXPECT_EQ(CountElements(), CountBefore);
}
