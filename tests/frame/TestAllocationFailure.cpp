// What a call does when memory runs out under it, at each place where it asks for some.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "frame/FailingAllocations.h"
#include "support/ViewFixture.h"

#include <functional>

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

class AllocationFailure : public ViewFixture
{
protected:
    AllocationFailure()
    {
        AddPoint(0, 0, 0);
        AddLine(0, 0, 0, 1, 1, 1);
        Tarvex_Window_Camera_AutoSize(Id);
        PictureBefore = TakePicture(Id);
    }
    void ExpectElements(int count) const
    {
        EXPECT_EQ(Read(Tarvex_Element_GetCount), Numbers{static_cast<double>(count)});
        EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 0, 0, 0), STATUS_OK);
    }
    // The view draws what it drew before.
    void ExpectUnchanged() const
    {
        ExpectElements(2);
        EXPECT_EQ(TakePicture(Id).CountDifferences(PictureBefore), 0);
    }
    Picture PictureBefore;
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
                     EXPECT_EQ(Host.Children().size(), 1U);
                 });
    EXPECT_GT(places, 3);
    EXPECT_EQ(id, Id + 1);
    EXPECT_EQ(Tarvex_Window_Delete(id), STATUS_OK);
    ExpectUnchanged();
}

TEST_F(AllocationFailure, InAnAddLeavesNoElementAndUsesNoId)
{
    const int32_t id = Id;
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
    int32_t next = 2;
    for (const auto& add : adds)
    {
        SCOPED_TRACE(&add - adds);
        element = -1;
        const auto checkFailed = [&]
        {
            EXPECT_EQ(element, -1);
            ExpectUnchanged();
        };
        EXPECT_GT(FailEach(add, checkFailed), 1);
        EXPECT_EQ(element, next++) << "a failed call has used an id";
        EXPECT_EQ(Tarvex_Element_Remove(id, element), STATUS_OK);
        ExpectUnchanged();
    }
}

TEST_F(AllocationFailure, InACallOnAnElementLeavesItUsable)
{
    int32_t surface = -1;
    const int32_t id = Id;
    ASSERT_EQ(Tarvex_Element_Add_SurfaceUniform(id, Heights.data(), nullptr, 40, 30, 1.0, 1.0, 1.0,
                                                0.0, 0.0, 0.0, 0, &surface),
              STATUS_OK);
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
    for (const auto& call : calls)
    {
        SCOPED_TRACE(&call - calls);
        FailEach(call, [&] { ExpectElements(3); });
    }
    ExpectElements(2);
}
