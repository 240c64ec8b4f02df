#include <gtest/gtest.h>

#include "Chip.h"
#include "serial/SerialPort.h"

namespace {

// Over the loopback each scheduled frame must come out of a read of its own, since
// a host drops whatever follows a frame in the same read.
TEST(SimLoopback, ScheduledFramesArriveInReadsOfTheirOwn) {
    sim::Plotter plotter;
    SerialPort port;
    plotter.connectLoopback(port);
    ASSERT_TRUE(port.write(wire::request(kSync, syncPayload())));
    uint8_t buf[256];
    int frames = 0;
    for (size_t n = port.read(buf, sizeof buf, 50); n > 0; n = port.read(buf, sizeof buf, 50)) {
        EXPECT_EQ(wire::frames(wire::Bytes(buf, buf + n)).size(), 1u);
        ++frames;
    }
    EXPECT_EQ(frames, 8);
}

}  // namespace
