#include <gtest/gtest.h>
#include <openssl/evp.h>

#include <cstdint>
#include <cstdio>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "esp/EspLoader.h"
#include "esp/FrameStream.h"
#include "esp/Packet.h"
#include "esp/Slip.h"
#include "serial/Clock.h"
#include "tests/support/TestImages.h"
#include "tests/support/VirtualTime.h"

namespace {

using Bytes = std::vector<uint8_t>;
using Lines = std::vector<std::string>;
using Words = std::vector<uint32_t>;

constexpr uint32_t kAddress = 0x9000;

// A response with the stub's two status bytes, or the ROM's four.
Bytes answer(uint8_t op, uint8_t status = 0, size_t statusBytes = 2) {
    Bytes packet{0x01, op, static_cast<uint8_t>(statusBytes), 0, 0, 0, 0, 0};
    packet.resize(8 + statusBytes, 0);
    packet[8] = status;
    packet[9] = status != 0 ? 5 : 0;
    return slip::encode(packet);
}

Bytes md5Of(const Bytes& bytes, size_t at, size_t size) {
    Bytes digest(EVP_MAX_MD_SIZE);
    unsigned int length = 0;
    EVP_Digest(bytes.data() + at, size, digest.data(), &length, EVP_md5(), nullptr);
    digest.resize(length);
    return digest;
}

std::string hex(const Bytes& bytes) {
    std::string text;
    for (const uint8_t b : bytes) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", b);
        text += digits;
    }
    return text;
}

Bytes slice(const Bytes& bytes, size_t at, size_t size) {
    return Bytes(bytes.begin() + static_cast<long>(at),
                 bytes.begin() + static_cast<long>(at + size));
}

/// How the scripted stub reads.
struct Stub {
    size_t ahead = 1;                  ///< packets it sends beyond the last acknowledgement
    std::optional<size_t> stallAfter;  ///< packets sent, after which nothing more comes
    bool silentAfterAnswer = false;    ///< status 0, then no data at all
    bool sendsDigest = true;
    bool wrongDigest = false;
    uint8_t answerStatus = 0;
    size_t extraBytes = 0;  ///< each packet carries this many bytes more than asked
    Bytes between;          ///< bytes it puts in front of each packet
};

/// A loader whose stub runs, over a loopback whose stub reads as the measured one
/// does: READ_FLASH answered with status 0 and the first packet right behind it,
/// the next packet only for an acknowledgement of the running total (or `Stub::ahead`
/// packets beyond the last acknowledgement), and the region's MD5 once an
/// acknowledgement reaches its size. Each knob spoils one part of that.
class ReadTest : public ::testing::Test {
  protected:
    void SetUp() override {
        port.openLoopback([this](const uint8_t* d, size_t n) { return onWrite(Bytes(d, d + n)); },
                          [this](int ms) { return onIdle(ms); });
        ASSERT_TRUE(loader.uploadStub(stubImage.data(), stubImage.size()));
        commands.clear();
        lines.clear();
    }

    /// Reads `size` bytes at kAddress into `got`; the sink stops once it holds `stopAt`.
    esp::ReadEnd read(size_t size, esp::ReadPacing pacing = {}, size_t stopAt = SIZE_MAX) {
        const int64_t start = mono::nowNs();
        const auto end = loader.readFlashAcknowledged(
            kAddress, size,
            [&](const uint8_t* data, size_t n) {
                got.insert(got.end(), data, data + n);
                return got.size() < stopAt;
            },
            pacing);
        elapsedMs = virtualMsSince(start);
        return end;
    }

    const Bytes flash = testimg::pattern(kAddress + 64 * 1024, 7);
    const Bytes stubImage = testimg::stubImage(16, 0);
    Stub stub;

    SerialPort port;
    Lines lines;
    esp::EspLoader loader{port, [this](const std::string& line) { lines.push_back(line); }};
    Words request;                  ///< the words of the last READ_FLASH
    Words acks;                     ///< the acknowledgements of the last READ_FLASH
    std::vector<uint8_t> commands;  ///< opcodes received once the stub ran
    Bytes got;
    int64_t elapsedMs = 0;

  private:
    Bytes onWrite(const Bytes& frame) {
        const auto payload = slip::decode(frame);
        if (!payload || (payload->size() != 4 && payload->size() < 8)) {
            ADD_FAILURE() << "the host wrote neither a request nor an acknowledgement";
            return {};
        }
        if (payload->size() == 4) {
            acks.push_back(esp::readLE32(*payload, 0));
            return acks.back() == request[1] ? digest() : packets();
        }
        const uint8_t op = (*payload)[1];
        if (!loader.stubRunning()) {
            if (op == esp::MEM_END) {
                unprompted.push_back(slip::encode({'O', 'H', 'A', 'I'}));
            }
            return answer(op, 0, 4);
        }
        commands.push_back(op);
        if (op != esp::READ_FLASH) {
            return answer(op);
        }
        request.clear();
        acks.clear();
        for (size_t at = 8; at + 4 <= payload->size(); at += 4) {
            request.push_back(esp::readLE32(*payload, at));
        }
        sent = 0;
        Bytes reply = answer(op, stub.answerStatus);
        if (stub.answerStatus == 0 && !stub.silentAfterAnswer) {
            const Bytes first = request[1] == 0 ? digest() : packets();
            reply.insert(reply.end(), first.begin(), first.end());
        }
        return reply;
    }

    Bytes onIdle(int ms) {
        if (unprompted.empty()) {
            mono::sleepMs(ms);
            return {};
        }
        Bytes bytes = std::move(unprompted.front());
        unprompted.pop_front();
        return bytes;
    }

    Bytes packets() {
        Bytes out;
        const uint32_t acked = acks.empty() ? 0 : acks.back();
        while (sent < request[1] && sent - acked < stub.ahead * request[2] &&
               !(stub.stallAfter && packetsSent >= *stub.stallAfter)) {
            const size_t length = std::min<size_t>(request[2], request[1] - sent);
            const Bytes frame =
                slip::encode(slice(flash, request[0] + sent, length + stub.extraBytes));
            out.insert(out.end(), stub.between.begin(), stub.between.end());
            out.insert(out.end(), frame.begin(), frame.end());
            sent += static_cast<uint32_t>(length);
            ++packetsSent;
        }
        return out;
    }

    Bytes digest() const {
        Bytes md5 = md5Of(flash, request[0], request[1]);
        md5[15] ^= stub.wrongDigest ? 1 : 0;
        return stub.sendsDigest ? slip::encode(md5) : Bytes{};
    }

    std::deque<Bytes> unprompted;
    uint32_t sent = 0;
    size_t packetsSent = 0;
};

Words runningTotals(size_t size, size_t packet) {
    Words totals;
    for (size_t done = packet; done < size + packet; done += packet) {
        totals.push_back(static_cast<uint32_t>(std::min(done, size)));
    }
    return totals;
}

// Whatever the stub sends ahead, each packet is acknowledged with the running total,
// and a stub that may take commands again gets them.
TEST_F(ReadTest, AcknowledgesEveryPacketWithTheRunningTotal) {
    const std::tuple<size_t, size_t, Bytes> rows[] = {
        {10000, 1, {}},
        {10000, 3, {}},
        {4096, 8, {}},
        {3 * 4096, 1, {'n', 'o', 0xC0, 0xC0}},  // noise and an empty frame between packets
        {0, 1, {}},
    };
    for (const auto& [size, sendsAhead, noise] : rows) {
        SCOPED_TRACE(testing::Message() << size << " bytes, " << sendsAhead << " ahead");
        stub.ahead = sendsAhead;
        stub.between = noise;
        got.clear();
        ASSERT_EQ(read(size), esp::ReadEnd::done);
        EXPECT_EQ(request, (Words{kAddress, static_cast<uint32_t>(size), 4096, 8}));
        EXPECT_EQ(acks, runningTotals(size, 4096));
        EXPECT_EQ(got, slice(flash, kAddress, size));
        EXPECT_EQ(loader.readReg(0x60000000), 0u);
        EXPECT_EQ(commands.back(), esp::READ_REG);
    }
    EXPECT_EQ(lines, Lines{});
}

// Every wait ends with one line; a read the stub may still be inside keeps the next
// command from being sent (a stub asked for packets above 4096 bytes answers status
// 0, sends nothing, and takes the next request for read data) until a reset.
TEST_F(ReadTest, AFailedReadSaysWhyOnceAndSendsNothingMoreUntilAReset) {
    struct Row {
        const char* what;
        std::function<void(Stub&)> spoil;
        esp::ReadEnd end;
        std::string line;
        int64_t ms;
        bool takesCommands;
        esp::ReadPacing pacing = {};
        size_t stopAt = SIZE_MAX;
    };
    const Bytes local = md5Of(flash, kAddress, 10000);
    Bytes remote = local;
    remote[15] ^= 1;
    const Row rows[] = {
        {"packets of 8192",
         [](Stub& t) { t.silentAfterAnswer = true; },
         esp::ReadEnd::noData,
         "READ_FLASH: no data for 5000 ms after 0 of 10000 bytes",
         5000,
         false,
         {8192, 1}},
        {"a stall", [](Stub& t) { t.stallAfter = 2; }, esp::ReadEnd::noData,
         "READ_FLASH: no data for 5000 ms after 8192 of 10000 bytes", 5000, false},
        {"no digest", [](Stub& t) { t.sendsDigest = false; }, esp::ReadEnd::noData,
         "READ_FLASH: no digest for 5000 ms after 10000 of 10000 bytes", 5000, false},
        {"a packet too long", [](Stub& t) { t.extraBytes = 1; }, esp::ReadEnd::broken,
         "READ_FLASH: unreadable packet after 0 of 10000 bytes", 0, false},
        {"a corrupt frame",
         [](Stub& t) {
             t.between = {0xC0, 0xDB, 0x07};
         },
         esp::ReadEnd::broken, "READ_FLASH: unreadable packet after 0 of 10000 bytes", 0, false},
        {"refused", [](Stub& t) { t.answerStatus = 1; }, esp::ReadEnd::refused,
         "ERROR: READ_FLASH status=1 error=5", 0, false},
        {"the sink stops",
         [](Stub&) {},
         esp::ReadEnd::stopped,
         "READ_FLASH: stopped after 4096 of 10000 bytes",
         0,
         false,
         {},
         4096},
        {"a wrong digest", [](Stub& t) { t.wrongDigest = true; }, esp::ReadEnd::digestMismatch,
         "READ_FLASH: MD5 mismatch (local " + hex(local) + ", flash " + hex(remote) + ")", 0, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        stub = {};
        row.spoil(stub);
        lines.clear();
        EXPECT_EQ(read(10000, row.pacing, row.stopAt), row.end);
        EXPECT_NEAR(static_cast<double>(elapsedMs), static_cast<double>(row.ms), 1.0);
        EXPECT_EQ(lines, Lines{row.line});
        commands.clear();
        lines.clear();
        EXPECT_EQ(loader.attachFlash(), row.takesCommands);
        EXPECT_EQ(commands.size(), row.takesCommands ? 1u : 0u);
        if (!row.takesCommands) {
            EXPECT_EQ(lines, (Lines{"SPI_ATTACH (default pins)",
                                    "NOT SENT: SPI_ATTACH (a flash read was left unfinished)",
                                    "SPI_ATTACH FAILED"}));
        }
        // The stub that a reset restarts takes commands again.
        loader.hardReset();
        port.flush();
        ASSERT_TRUE(loader.uploadStub(stubImage.data(), stubImage.size()));
    }
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
