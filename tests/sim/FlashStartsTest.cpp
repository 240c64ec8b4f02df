#include <gtest/gtest.h>

#include <vector>

#include "sim/FlashStarts.h"

// How the simulated chip's start follows its flash: the road of an update that is
// undone, as the host's resets and the firmware's own restarts come.
namespace {

using sim::Startup;
using sim::detail::FlashStarts;

TEST(FlashStarts, AReadOnlyResetKeepsTheStartAndAnEarlierFlashBringsBackItsOwn) {
    const std::vector<uint8_t> before(64, 0xFF);
    const std::vector<uint8_t> updated(64, 0x11);
    Startup knob = Startup::Healthy;
    FlashStarts starts(knob);
    knob = Startup::BootLoop;  // chosen for the next write

    // The snapshot's reset wrote nothing: the chip runs as it did, the choice waits.
    EXPECT_EQ(starts.onRestart(before, knob, std::nullopt, true).startup, Startup::Healthy);
    EXPECT_EQ(knob, Startup::BootLoop);

    starts.beforeWrite(before, std::nullopt);
    EXPECT_EQ(starts.onRestart(updated, knob, std::nullopt, true).startup, Startup::BootLoop);

    // Writing the earlier flash back brings back the start it had.
    starts.beforeWrite(updated, std::nullopt);
    EXPECT_EQ(starts.onRestart(before, knob, std::nullopt, true).startup, Startup::Healthy);
    EXPECT_EQ(knob, Startup::Healthy);

    // The firmware's own restart (after a configuration upload) takes a new choice.
    knob = Startup::Panic;
    EXPECT_EQ(starts.onRestart(before, knob, std::nullopt, false).startup, Startup::Panic);
}

}  // namespace
