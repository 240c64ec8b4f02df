#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "esp/EspLoader.h"
#include "esp/Packet.h"
#include "esp/Slip.h"
#include "fluidnc/XModem.h"
#include "sim/Plotter.h"
#include "tests/support/TestImages.h"

namespace {

using Bytes = std::vector<uint8_t>;
using testimg::words;

constexpr uint8_t kAck = 0x06;
constexpr uint8_t kNak = 0x15;

Bytes request(uint8_t op, const Bytes& payload, uint32_t checksum = 0) {
    return slip::encode(esp::buildCommandPacket(op, payload, checksum));
}

Bytes dataRequest(uint8_t op, const Bytes& data, uint32_t seq) {
    return request(op, esp::EspLoader::buildDataPacket(data.data(), data.size(), seq),
                   esp::calculateChecksum(data));
}

// The response that `bytes` must consist of: exactly one frame.
std::optional<esp::ResponsePacket> response(const Bytes& bytes, bool stub) {
    const auto packet = slip::decode(bytes);
    return packet ? esp::parseResponsePacket(*packet, stub) : std::nullopt;
}

// The plotter behind a loopback port, read as a host reads it.
class SimLoopback : public ::testing::Test {
  protected:
    void SetUp() override { plotter.connectLoopback(port); }

    Bytes nextRead(int timeoutMs = 100) {
        Bytes buf(20000);
        buf.resize(port.read(buf.data(), buf.size(), timeoutMs));
        return buf;
    }
    Bytes exchange(const Bytes& bytes) {
        EXPECT_TRUE(port.write(bytes));
        return nextRead();
    }

    // Syncs and loads a small stub; returns every read until the line went quiet.
    std::vector<Bytes> startStub() {
        std::vector<Bytes> reads{exchange(request(esp::SYNC, esp::buildSyncPayload()))};
        const Bytes text{1, 2, 3, 4};
        for (const Bytes& r :
             {request(esp::MEM_BEGIN, words({4, 1, 6144, 0x40380000})),
              dataRequest(esp::MEM_DATA, text, 0), request(esp::MEM_END, words({0, 0x40380000}))}) {
            for (Bytes read = nextRead(); !read.empty(); read = nextRead()) {
                reads.push_back(read);
            }
            reads.push_back(exchange(r));
        }
        for (Bytes read = nextRead(); !read.empty(); read = nextRead()) {
            reads.push_back(read);
        }
        return reads;
    }

    sim::Plotter plotter;
    SerialPort port;
};

// A host drops whatever follows a frame in the same read, so each scheduled frame
// must come out of a read of its own.
TEST_F(SimLoopback, SyncRepliesAndTheGreetingArriveInReadsOfTheirOwn) {
    const auto reads = startStub();
    std::vector<uint8_t> ops(8, esp::SYNC);
    ops.insert(ops.end(), {esp::MEM_BEGIN, esp::MEM_DATA, esp::MEM_END});
    ASSERT_EQ(reads.size(), ops.size() + 1);
    for (size_t i = 0; i < ops.size(); ++i) {
        const auto r = response(reads[i], false);
        ASSERT_TRUE(r) << "read " << i << " holds exactly one ROM response";
        EXPECT_EQ(r->op, ops[i]);
        EXPECT_EQ(r->status, 0);
    }
    EXPECT_EQ(slip::decode(reads.back()), (Bytes{'O', 'H', 'A', 'I'}));
    EXPECT_EQ(plotter.mode(), sim::Mode::Stub);
    EXPECT_EQ(plotter.ram().at(0x40380000), (Bytes{1, 2, 3, 4}));
}

struct Rejection {
    const char* name;
    uint32_t seq;
    uint8_t lengthSkew;
    uint32_t checksumFlip;
    bool begin;
    uint8_t error;
};

class SimFlashDataRejection : public SimLoopback,
                              public ::testing::WithParamInterface<Rejection> {};

TEST_P(SimFlashDataRejection, AnswersStatusOneWithItsCodeAndWritesNothing) {
    const auto& c = GetParam();
    startStub();
    if (c.begin) {
        exchange(request(esp::FLASH_BEGIN, words({1024, 1, 1024, 0x20000, 0})));
    }
    const Bytes block = testimg::pattern(1024, 5);
    Bytes payload = esp::EspLoader::buildDataPacket(block.data(), block.size(), c.seq);
    payload[0] = static_cast<uint8_t>(payload[0] + c.lengthSkew);
    const auto r = response(
        exchange(request(esp::FLASH_DATA, payload, esp::calculateChecksum(block) ^ c.checksumFlip)),
        true);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->status, 1);
    EXPECT_EQ(r->error, c.error);
    EXPECT_EQ(plotter.flash()[0x20000], 0xFF);
}

INSTANTIATE_TEST_SUITE_P(Cases, SimFlashDataRejection,
                         ::testing::Values(Rejection{"BadChecksum", 0, 0, 1, true, 0x07},
                                           Rejection{"WrongSequence", 1, 0, 0, true, 0x05},
                                           Rejection{"LengthMismatch", 0, 1, 0, true, 0x05},
                                           Rejection{"NoFlashBegin", 0, 0, 0, false, 0x06}),
                         [](const auto& info) { return std::string(info.param.name); });

// One 1024-byte block of `file` from `offset`, padded with 0x1A.
Bytes xmodemBlock(const Bytes& file, size_t offset, uint8_t number, bool crc) {
    Bytes data(1024, 0x1A);
    std::copy(file.begin() + offset, file.begin() + std::min(file.size(), offset + 1024),
              data.begin());
    Bytes out(3 + data.size());
    out[0] = 0x02;
    out[1] = number;
    out[2] = static_cast<uint8_t>(0xFF - number);
    std::copy(data.begin(), data.end(), out.begin() + 3);
    if (crc) {
        const uint16_t c = fluidnc::crc16(data.data(), data.size());
        out.insert(out.end(), {static_cast<uint8_t>(c >> 8), static_cast<uint8_t>(c)});
    } else {
        uint8_t sum = 0;
        for (uint8_t b : data) {
            sum = static_cast<uint8_t>(sum + b);
        }
        out.push_back(sum);
    }
    return out;
}

class SimXModem : public SimLoopback, public ::testing::WithParamInterface<bool> {};

TEST_P(SimXModem, RefusesABadBlockTakesRepeatsAndStoresTheExactFile) {
    const bool crc = GetParam();
    plotter.config().xmodemCrc = crc;
    const std::string command = "$Xmodem/Receive=config.yaml\n";
    exchange(Bytes(command.begin(), command.end()));
    EXPECT_EQ(nextRead(2000), Bytes{static_cast<uint8_t>(crc ? 'C' : kNak)});

    const std::string line = "name: plotter\n";
    Bytes file(1030);
    for (size_t i = 0; i < file.size(); ++i) {
        file[i] = static_cast<uint8_t>(line[i % line.size()]);
    }
    Bytes bad = xmodemBlock(file, 0, 1, crc);
    bad.back() ^= 1;
    EXPECT_EQ(exchange(bad), Bytes{kNak});
    EXPECT_EQ(exchange(xmodemBlock(file, 0, 1, crc)), Bytes{kAck});
    EXPECT_EQ(exchange(xmodemBlock(file, 0, 1, crc)), Bytes{kAck}) << "a repeat after a lost ACK";
    EXPECT_EQ(exchange(xmodemBlock(file, 1024, 2, crc)), Bytes{kAck});
    EXPECT_EQ(exchange(Bytes{0x04}), Bytes{kAck});
    EXPECT_EQ(plotter.storedConfig(), file);
    EXPECT_EQ(plotter.mode(), sim::Mode::Console);
}

INSTANTIATE_TEST_SUITE_P(Modes, SimXModem, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "Crc" : "Checksum"; });

}  // namespace
