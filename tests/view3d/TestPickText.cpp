// The text of the picked coordinates.
#include "frame/Forwarders.h"
#include "view3d/InsideScene.h"

#include <vtkTextActor.h>

using PickText = InsideScene;

TEST_F(PickText, ShowsAWorldPositionInHostCoordinates)
{
    const char* nothing = "X:\nY:\nZ:";
    const std::pair<Numbers, const char*> cases[] = {
        {{1.5, -2.25, 0.0}, "X:    1.500\nY:    2.250\nZ:    0.000"},
        {{-1234.5678, 0.0, 99999.9996}, "X: -1234.568\nY:    0.000\nZ: 100000.000"},
        {{0.0, 0.0, 0.0}, nothing},
        {{0.0, 0.0, 1e-9}, "X:    0.000\nY:    0.000\nZ:    0.000"},
        // Cut after 19 characters.
        {{1e15, -1e16, -1e300},
         "X: 1000000000000000.00\nY: 10000000000000000.0\nZ: -100000000000000005"}};
    Tarvex_Window_PickCoordinates_Show(Id, 1);
    for (const auto& [world, expected] : cases)
    {
        ForwardPick(Id, world[0], world[1], world[2]);
        EXPECT_STREQ(View().GetPickTextActor()->GetInput(), expected);
    }
    // Gone after hiding, fresh after showing.
    Tarvex_Window_PickCoordinates_Show(Id, 0);
    EXPECT_EQ(View().GetPickTextActor(), nullptr);
    Tarvex_Window_PickCoordinates_Show(Id, 1);
    EXPECT_STREQ(View().GetPickTextActor()->GetInput(), nothing);
}
