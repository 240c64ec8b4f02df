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

TEST(SerialPortHandle, EmptyOrMovedFromHandleFailsEveryCall) {
    SerialPort port;
    port.openLoopback([](const uint8_t*, size_t) { return Bytes{'x'}; });
    SerialPort moved(std::move(port));
    SerialPort assigned;
    assigned = std::move(moved);
    for (SerialPort* empty : {&port, &moved}) {
        uint8_t byte = 0;
        EXPECT_FALSE(empty->isOpen() || empty->write(&byte, 1) || empty->setDTR(true) ||
                     empty->setRTS(true));
        EXPECT_EQ(empty->read(&byte, 1, 10), 0u);
        empty->flush();
        empty->close();
    }
    EXPECT_TRUE(assigned.write(Bytes{1}));
    EXPECT_EQ(readSome(assigned, 8), "x");
}

// Replies queue in order and come out in pieces; the idle source is asked only by a
// read of an open port whose queue is empty and that has time to wait.
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

    EXPECT_TRUE(port.setDTR(true));
    port.close();
    EXPECT_FALSE(port.isOpen() || port.write(Bytes{'g'}));
    EXPECT_EQ(readSome(port, 8, 40), "");
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(asked, std::vector<int>{40});
    EXPECT_TRUE(port.setRTS(false));
}

}  // namespace
