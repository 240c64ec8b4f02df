#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "serial/SerialPort.h"

namespace {

using Bytes = std::vector<uint8_t>;

std::string readSome(SerialPort& port, size_t len, int timeoutMs = 0) {
    uint8_t buf[64];
    return std::string(buf, buf + port.read(buf, len, timeoutMs));
}

// Replies queue in order and come out in pieces; the idle source is asked only by a
// read of an open port whose queue is empty and that has time to wait. A closed
// port calls nothing, and the handle a port was moved out of fails every call.
TEST(Loopback, QueuesRepliesAndAsksTheIdleSourceOnlyWhenEmpty) {
    SerialPort port;
    int calls = 0;
    std::vector<int> asked;
    port.openLoopback(
        [&](const uint8_t* data, size_t len) {
            ++calls;
            return Bytes(data, data + len);
        },
        [&](int timeoutMs) {
            asked.push_back(timeoutMs);
            return Bytes{'i', 'j'};
        });
    EXPECT_EQ(readSome(port, 8, 0), "");
    EXPECT_TRUE(port.write(Bytes{'a', 'b', 'c'}));
    EXPECT_TRUE(port.write(Bytes{'d', 'e'}));
    EXPECT_EQ(readSome(port, 2, 40), "ab");
    EXPECT_EQ(readSome(port, 64, 40), "cde");
    EXPECT_EQ(readSome(port, 1, 40), "i");
    EXPECT_EQ(readSome(port, 8, 40), "j");
    port.write(Bytes{'f'});
    port.flush();
    EXPECT_EQ(readSome(port, 64), "");

    SerialPort moved;
    moved = std::move(port);
    EXPECT_TRUE(moved.setDTR(true));
    moved.close();
    EXPECT_FALSE(moved.isOpen() || moved.write(Bytes{'g'}));
    EXPECT_EQ(readSome(moved, 8, 40), "");
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(asked, std::vector<int>{40});
    EXPECT_TRUE(moved.setRTS(false));

    uint8_t byte = 0;
    EXPECT_FALSE(port.isOpen() || port.write(&byte, 1) || port.setDTR(true) || port.setRTS(true));
    EXPECT_EQ(port.read(&byte, 1, 10), 0u);
    port.flush();
    port.close();
}

}  // namespace
