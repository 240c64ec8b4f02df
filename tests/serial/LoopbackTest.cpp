#include <gtest/gtest.h>

#include <string>

#include "serial/SerialPort.h"

namespace {

using Bytes = std::vector<uint8_t>;

std::string readSome(SerialPort& port, size_t len, int timeoutMs = 0) {
    uint8_t buf[64];
    const size_t n = port.read(buf, len, timeoutMs);
    return std::string(buf, buf + n);
}

TEST(SerialPortHandle, EmptyOrMovedFromHandleFailsEveryCall) {
    SerialPort port;
    port.openLoopback([](const uint8_t*, size_t) { return Bytes{'x'}; });
    SerialPort moved(std::move(port));
    SerialPort assigned;
    assigned = std::move(moved);
    for (SerialPort* empty : {&port, &moved}) {
        uint8_t byte = 0;
        EXPECT_FALSE(empty->isOpen());
        EXPECT_FALSE(empty->write(&byte, 1));
        EXPECT_EQ(empty->read(&byte, 1, 10), 0u);
        EXPECT_FALSE(empty->setDTR(true));
        EXPECT_FALSE(empty->setRTS(true));
        empty->flush();
        empty->close();
    }
    EXPECT_TRUE(assigned.write(Bytes{1}));
    EXPECT_EQ(readSome(assigned, 8), "x");
}

TEST(Loopback, QueuesRepliesInOrderAndHandsThemOutInPieces) {
    SerialPort port;
    int calls = 0;
    port.openLoopback([&](const uint8_t* data, size_t len) {
        ++calls;
        return Bytes(data, data + len);
    });
    EXPECT_TRUE(port.write(Bytes{'a', 'b', 'c'}));
    EXPECT_TRUE(port.write(Bytes{'d', 'e'}));
    EXPECT_EQ(readSome(port, 2), "ab");
    EXPECT_EQ(readSome(port, 64, 100), "cde");
    EXPECT_EQ(readSome(port, 64, 100), "");
    port.write(Bytes{'f'});
    port.flush();
    EXPECT_EQ(readSome(port, 64), "");

    EXPECT_TRUE(port.setDTR(true));
    EXPECT_TRUE(port.setRTS(false));
    port.close();
    EXPECT_FALSE(port.isOpen());
    EXPECT_FALSE(port.write(Bytes{'g'}));
    EXPECT_EQ(calls, 3);
    EXPECT_TRUE(port.setDTR(false));
}

TEST(Loopback, IdleSourceFillsOnlyAnEmptyQueueOfAnOpenPortWithTime) {
    SerialPort port;
    std::vector<int> asked;
    port.openLoopback([](const uint8_t*, size_t) { return Bytes{'r'}; },
                      [&](int timeoutMs) {
                          asked.push_back(timeoutMs);
                          return Bytes{'i', 'j'};
                      });
    EXPECT_EQ(readSome(port, 8, 0), "");
    port.write(Bytes{0});
    EXPECT_EQ(readSome(port, 8, 40), "r");
    EXPECT_EQ(readSome(port, 1, 40), "i");
    EXPECT_EQ(readSome(port, 8, 40), "j");
    port.close();
    EXPECT_EQ(readSome(port, 8, 40), "");
    EXPECT_EQ(asked, std::vector<int>{40});
}

}  // namespace
