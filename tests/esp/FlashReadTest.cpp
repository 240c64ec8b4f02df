#include <gtest/gtest.h>
#include <openssl/evp.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "esp/EspLoader.h"
#include "esp/FrameStream.h"
#include "esp/Packet.h"
#include "esp/Slip.h"
#include "serial/Clock.h"
#include "sim/Plotter.h"
#include "tests/support/TestImages.h"
#include "tests/support/VirtualTime.h"

namespace {

using Bytes = std::vector<uint8_t>;
using Lines = std::vector<std::string>;
using Words = std::vector<uint32_t>;

constexpr uint32_t kAddress = 0x9000;
constexpr size_t kSize = 10000;

std::string md5Hex(const uint8_t* data, size_t size, uint8_t firstByteFlip = 0) {
    uint8_t digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_Digest(data, size, digest, &length, EVP_md5(), nullptr);
    digest[0] ^= firstByteFlip;
    std::string text;
    for (unsigned int i = 0; i < length; ++i) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", digest[i]);
        text += digits;
    }
    return text;
}

/// A loader whose stub runs on a simulated plotter over a loopback, with the host's
/// READ_FLASH words and acknowledgements recorded, and a hook that may spoil what the
/// plotter answers the request with.
class ReadTest : public ::testing::Test {
  protected:
    void start(sim::Config config, std::function<Bytes(Bytes)> spoil = {}) {
        plotter = std::make_unique<sim::Plotter>(std::move(config));
        plotter->loadFlash(kAddress, testimg::pattern(kSize, 7));
        port.openLoopback(
            [this, spoil](const uint8_t* d, size_t n) {
                Bytes reply = plotter->onHostBytes(d, n);
                const auto payload = slip::decode(Bytes(d, d + n));
                if (payload && payload->size() == 4) {
                    acks.push_back(esp::readLE32(*payload, 0));
                } else if (payload && (*payload)[1] == esp::READ_FLASH) {
                    request = {esp::readLE32(*payload, 8), esp::readLE32(*payload, 12),
                               esp::readLE32(*payload, 16), esp::readLE32(*payload, 20)};
                    reply = spoil ? spoil(reply) : reply;
                }
                return reply;
            },
            [this](int ms) { return plotter->onIdle(ms); });
        const Bytes stub = testimg::stubImage(16, 0);
        ASSERT_TRUE(loader.sync(1) && loader.uploadStub(stub.data(), stub.size()));
        lines.clear();
    }

    /// Reads kSize bytes at kAddress; the sink stops once it holds `stopAt` bytes.
    esp::ReadEnd read(esp::ReadPacing pacing = {}, size_t stopAt = SIZE_MAX) {
        got.clear();
        acks.clear();
        const int64_t start = mono::nowNs();
        const auto end = loader.readFlashAcknowledged(
            kAddress, kSize,
            [&](const uint8_t* data, size_t n) {
                got.insert(got.end(), data, data + n);
                return got.size() < stopAt;
            },
            pacing);
        elapsedMs = virtualMsSince(start);
        return end;
    }

    std::unique_ptr<sim::Plotter> plotter;
    SerialPort port;
    Lines lines;
    esp::EspLoader loader{port, [this](const std::string& line) { lines.push_back(line); }};
    Words request;
    Words acks;
    Bytes got;
    int64_t elapsedMs = 0;
};

// Whether the stub waits for each packet's acknowledgement or sends ahead, each is
// acknowledged with the running total, and the stub takes commands afterwards.
TEST_F(ReadTest, AcknowledgesEveryPacketWithTheRunningTotal) {
    for (const bool ahead : {false, true}) {
        SCOPED_TRACE(ahead ? "sends ahead" : "waits");
        sim::Config config;
        config.readSendsAhead = ahead;
        start(config);
        ASSERT_EQ(read(), esp::ReadEnd::done);
        EXPECT_EQ(request, (Words{kAddress, kSize, 4096, 8}));
        EXPECT_EQ(acks, (Words{4096, 8192, kSize}));
        EXPECT_TRUE(std::equal(got.begin(), got.end(), plotter->flash().begin() + kAddress));
        EXPECT_EQ(got.size(), kSize);
        EXPECT_TRUE(loader.attachFlash());
        EXPECT_EQ(lines, (Lines{"SPI_ATTACH (default pins)", "SPI_ATTACH OK"}));
    }
}

Bytes firstFrameThen(const Bytes& reply, const Bytes& then) {
    const auto first = slip::readFrame(reply.data(), reply.size());
    Bytes out(reply.begin(), reply.begin() + static_cast<ptrdiff_t>(first->second));
    out.insert(out.end(), then.begin(), then.end());
    return out;
}

// Every wait ends with one line; after a read the stub may still be inside, the next
// command is not sent (the real stub asked for packets above 4096 bytes answers status
// 0, sends nothing, and takes the next request for read data) until a reset.
TEST_F(ReadTest, AFailedReadSaysWhyOnceAndSendsNothingMoreUntilAReset) {
    const auto& flash = [&] { return plotter->flash().data() + kAddress; };
    const std::string noData = "READ_FLASH: no data for 5000 ms after ";
    const Bytes tooLong = slip::encode(Bytes(4097, 0x11));
    const struct {
        const char* what;
        std::function<void(sim::Config&)> change;
        std::function<Bytes(Bytes)> spoil;
        esp::ReadEnd end;
        std::string line;
        int64_t ms;
        esp::ReadPacing pacing = {};
        size_t stopAt = SIZE_MAX;
    } rows[] = {
        {"packets of 8192",
         [](auto& c) { c.readPacketLimit = true; },
         {},
         esp::ReadEnd::noData,
         noData + "0 of 10000 bytes",
         5000,
         {8192, 1}},
        {"a stall",
         [](auto& c) { c.readStallAfterPackets = 2; },
         {},
         esp::ReadEnd::noData,
         noData + "8192 of 10000 bytes",
         5000},
        {"a packet too long", [](auto&) {}, [&](Bytes r) { return firstFrameThen(r, tooLong); },
         esp::ReadEnd::broken, "READ_FLASH: unreadable packet after 0 of 10000 bytes", 0},
        {"a corrupt frame", [](auto&) {},
         [](Bytes r) {
             return firstFrameThen(r, {0xC0, 0xDB, 0x07, 0xC0});
         },
         esp::ReadEnd::broken, "READ_FLASH: unreadable packet after 0 of 10000 bytes", 0},
        {"refused",
         [](auto& c) {
             c.responseFaults = {{esp::READ_FLASH, 0, sim::FaultKind::ErrorStatus, 5}};
         },
         {},
         esp::ReadEnd::refused,
         "ERROR: READ_FLASH status=1 error=5",
         0},
        {"the sink stops",
         [](auto&) {},
         {},
         esp::ReadEnd::stopped,
         "READ_FLASH: stopped after 4096 of 10000 bytes",
         0,
         {},
         4096},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        sim::Config config;
        row.change(config);
        start(config, row.spoil);
        EXPECT_EQ(read(row.pacing, row.stopAt), row.end);
        EXPECT_NEAR(static_cast<double>(elapsedMs), static_cast<double>(row.ms), 1.0);
        EXPECT_EQ(lines, Lines{row.line});
        lines.clear();
        const size_t heard = plotter->transcript().size();
        EXPECT_FALSE(loader.attachFlash());
        EXPECT_EQ(plotter->transcript().size(), heard) << "a command reached the stub";
        EXPECT_EQ(lines, (Lines{"SPI_ATTACH (default pins)",
                                "NOT SENT: SPI_ATTACH (a flash read was left unfinished)",
                                "SPI_ATTACH FAILED"}));
        // A stub that a reset started again takes commands.
        const Bytes stub = testimg::stubImage(16, 0);
        loader.enterBootloader();
        ASSERT_TRUE(loader.sync(1) && loader.uploadStub(stub.data(), stub.size()));
        EXPECT_TRUE(loader.attachFlash());
    }

    // A wrong digest ends a read the stub has finished: it takes commands.
    sim::Config wrong;
    wrong.wrongReadDigestAt = 0;
    start(wrong);
    EXPECT_EQ(read(), esp::ReadEnd::digestMismatch);
    EXPECT_EQ(lines, Lines{"READ_FLASH: MD5 mismatch (local " + md5Hex(flash(), kSize) +
                           ", flash " + md5Hex(flash(), kSize, 0xFF) + ")"});
    EXPECT_TRUE(loader.attachFlash());
}

// What follows a frame stays for the next call, whatever the reads cut it into.
TEST(FrameStream, KeepsWhatFollowsAFrameAndSkipsNoise) {
    std::deque<Bytes> pieces;
    SerialPort port;
    port.openLoopback([](const uint8_t*, size_t) { return Bytes{}; },
                      [&](int ms) {
                          if (pieces.empty()) {
                              mono::sleepMs(ms);
                              return Bytes{};
                          }
                          Bytes piece = std::move(pieces.front());
                          pieces.pop_front();
                          return piece;
                      });
    using Status = esp::FrameStream::Status;
    const auto frames = [&](std::deque<Bytes> given, size_t maxFrame = 8) {
        pieces = std::move(given);
        esp::FrameStream stream(port, maxFrame);
        std::vector<std::pair<Status, Bytes>> out;
        for (;;) {
            Bytes payload;
            const Status status = stream.next(payload, 300);
            if (status == Status::timedOut) {
                return out;
            }
            out.emplace_back(status, status == Status::frame ? payload : Bytes{});
        }
    };
    using Seen = std::vector<std::pair<Status, Bytes>>;
    EXPECT_EQ(frames({{'b', 'o', 'o', 't', 0xC0, 1, 0xC0, 0xC0, 2, 0xDB, 0xDC, 0xC0}}),
              (Seen{{Status::frame, {1}}, {Status::frame, {2, 0xC0}}}));
    EXPECT_EQ(frames({{0xC0, 1}, {2, 0xC0, 0xC0}, {3, 0xC0}}),
              (Seen{{Status::frame, {1, 2}}, {Status::frame, {3}}}));
    EXPECT_EQ(frames({{0xC0, 0xC0, 0xC0, 4, 0xC0}}), (Seen{{Status::frame, {4}}}));
    EXPECT_EQ(frames({{0xC0, 0xDB, 0x07, 0xC0, 0xC0, 5, 0xC0}}),
              (Seen{{Status::corrupt, {}}, {Status::frame, {5}}}));
    // Eight bytes, every one escaped, fit; a ninth without the closing END does not.
    const Bytes escaped = {0xDB, 0xDD, 0xDB, 0xDD, 0xDB, 0xDD, 0xDB, 0xDD,
                           0xDB, 0xDD, 0xDB, 0xDD, 0xDB, 0xDD, 0xDB, 0xDD};
    Bytes full{0xC0};
    full.insert(full.end(), escaped.begin(), escaped.end());
    full.push_back(0xC0);
    EXPECT_EQ(frames({full}), (Seen{{Status::frame, Bytes(8, 0xDB)}}));
    Bytes overlong(full.begin(), full.end() - 1);
    overlong.insert(overlong.end(), {0xDB, 0xDD});
    EXPECT_EQ(frames({overlong}), (Seen{{Status::corrupt, {}}}));
    pieces.clear();
    const int64_t start = mono::nowNs();
    EXPECT_EQ(frames({}), Seen{});
    EXPECT_NEAR(static_cast<double>(virtualMsSince(start)), 300.0, 1.0);
}

}  // namespace
