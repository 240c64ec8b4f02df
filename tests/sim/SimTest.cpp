#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "esp/Packet.h"
#include "esp/Slip.h"
#include "sim/Plotter.h"
#include "tests/support/TestImages.h"

// The simulator is the oracle of the job tests: it must refuse what a real stub
// refuses, or a host that sends a wrong block would pass them.
namespace {

using Bytes = std::vector<uint8_t>;
using testimg::words;

struct Rejection {
    const char* name;
    uint32_t seq;
    uint8_t lengthSkew;
    uint8_t checksum;
    bool begin;
    uint8_t error;
};

class SimFlashDataRejection : public ::testing::TestWithParam<Rejection> {
  protected:
    // The response to `request`, which must come as exactly one frame.
    std::optional<esp::ResponsePacket> exchange(uint8_t op, const Bytes& payload,
                                                uint32_t checksum = 0, bool stub = true) {
        EXPECT_TRUE(port.write(slip::encode(esp::buildCommandPacket(op, payload, checksum))));
        Bytes reply(256);
        reply.resize(port.read(reply.data(), reply.size(), 100));
        const auto packet = slip::decode(reply);
        return packet ? esp::parseResponsePacket(*packet, stub) : std::nullopt;
    }

    sim::Plotter plotter;
    SerialPort port;
};

// A block of 1024 bytes of 0x01 has the checksum 0xEF (an even count of equal bytes).
TEST_P(SimFlashDataRejection, AnswersStatusOneWithItsCodeAndWritesNothing) {
    const auto& c = GetParam();
    plotter.connectLoopback(port);
    Bytes sync{0x07, 0x07, 0x12, 0x20};
    sync.resize(36, 0x55);
    ASSERT_TRUE(exchange(esp::SYNC, sync, 0, false));
    for (int extra = 0; extra < 7; ++extra) {
        uint8_t drained[64];
        port.read(drained, sizeof drained, 50);
    }
    ASSERT_TRUE(exchange(esp::MEM_BEGIN, words({0, 0, 6144, 0x40380000}), 0, false));
    ASSERT_TRUE(exchange(esp::MEM_END, words({0, 0x40380000}), 0, false));
    uint8_t greeting[16];
    ASSERT_GT(port.read(greeting, sizeof greeting, 100), 0u);
    if (c.begin) {
        exchange(esp::FLASH_BEGIN, words({1024, 1, 1024, 0x20000, 0}));
    }
    Bytes payload = words({1024u + c.lengthSkew, c.seq, 0, 0});
    payload.resize(16 + 1024, 0x01);
    const auto r = exchange(esp::FLASH_DATA, payload, c.checksum);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->status, 1);
    EXPECT_EQ(r->error, c.error);
    EXPECT_EQ(plotter.flash()[0x20000], 0xFF);
}

INSTANTIATE_TEST_SUITE_P(Cases, SimFlashDataRejection,
                         ::testing::Values(Rejection{"BadChecksum", 0, 0, 0xEE, true, 0x07},
                                           Rejection{"WrongSequence", 1, 0, 0xEF, true, 0x05},
                                           Rejection{"LengthMismatch", 0, 1, 0xEF, true, 0x05},
                                           Rejection{"NoFlashBegin", 0, 0, 0xEF, false, 0x06}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
