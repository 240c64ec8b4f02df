#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "serial/SerialPort.h"

namespace {

using Bytes = std::vector<uint8_t>;

std::string readSome(SerialPort& port, size_t len) {
    uint8_t buf[64];
    return std::string(buf, buf + port.read(buf, len, 0));
}

// What the simulated device's runs do not pin: a short read leaves the rest
// queued, a flush drops queued replies, and a closed port calls no handler.
TEST(Loopback, ShortReadsLeaveTheRestAndFlushOrCloseDropIt) {
    SerialPort port;
    int calls = 0;
    port.openLoopback([&](const uint8_t* data, size_t len) {
        ++calls;
        return Bytes(data, data + len);
    });
    EXPECT_TRUE(port.write(Bytes{'a', 'b', 'c'}));
    EXPECT_TRUE(port.write(Bytes{'d', 'e'}));
    EXPECT_EQ(readSome(port, 2), "ab");
    EXPECT_EQ(readSome(port, 64), "cde");
    port.write(Bytes{'f'});
    port.flush();
    EXPECT_EQ(readSome(port, 64), "");
    port.close();
    EXPECT_FALSE(port.isOpen() || port.write(Bytes{'g'}));
    EXPECT_EQ(calls, 3);
}

}  // namespace
