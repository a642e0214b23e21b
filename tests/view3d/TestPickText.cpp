// The text of the picked coordinates.
#include "frame/Forwarders.h"
#include "view3d/InsideScene.h"

#include <vtkTextActor.h>

namespace
{
class PickText : public InsideScene
{
protected:
    PickText() { EXPECT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 1), STATUS_OK); }

    std::string Text() const
    {
        return View().GetPickTextActor() ? View().GetPickTextActor()->GetInput() : "none";
    }
};
} // namespace

TEST_F(PickText, ShowsAWorldPositionInHostCoordinates)
{
    const char* nothing = "X:\nY:\nZ:";
    EXPECT_EQ(Text(), nothing);
    const std::pair<Numbers, const char*> cases[] = {
        {{1.5, -2.25, 0.0}, "X:    1.500\nY:    2.250\nZ:    0.000"},
        {{-1234.5678, 0.0, 99999.9996}, "X: -1234.568\nY:    0.000\nZ: 100000.000"},
        {{0.0, 0.0, 0.0}, nothing},
        {{0.0, 0.0, 1e-9}, "X:    0.000\nY:    0.000\nZ:    0.000"},
        // Cut after 19 characters.
        {{1e15, -1e16, -1e300},
         "X: 1000000000000000.00\nY: 10000000000000000.0\nZ: -100000000000000005"}};
    for (const auto& [world, expected] : cases)
    {
        ForwardPick(Id, world[0], world[1], world[2]);
        EXPECT_EQ(Text(), expected);
    }
    // Gone after hiding, fresh after showing.
    ASSERT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(Text(), "none");
    ASSERT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 1), STATUS_OK);
    EXPECT_EQ(Text(), nothing);
}
