#include <gtest/gtest.h>
#include <openssl/evp.h>

#include <memory>
#include <string>
#include <vector>

#include "esp/EspLoader.h"
#include "esp/Packet.h"
#include "esp/Slip.h"
#include "serial/Clock.h"
#include "sim/Plotter.h"
#include "sim/PlotterLoopback.h"
#include "tests/support/TestImages.h"

// How the simulated stub reads, frame by frame, in virtual time.
namespace {

using testimg::words;
using Bytes = std::vector<uint8_t>;
using Frames = std::vector<Bytes>;

constexpr uint32_t kAddress = 0x1000;
constexpr size_t kSize = 10000;

Bytes md5Of(const uint8_t* data, size_t size) {
    Bytes digest(EVP_MAX_MD_SIZE);
    unsigned int length = 0;
    EVP_Digest(data, size, digest.data(), &length, EVP_md5(), nullptr);
    digest.resize(length);
    return digest;
}

/// A plotter whose stub runs, talked to frame by frame.
class ReadPacing : public ::testing::Test {
  protected:
    void start(sim::Config config) {
        plotter = std::make_unique<sim::Plotter>(std::move(config));
        plotter->loadFlash(kAddress, testimg::pattern(kSize, 3));
        sim::connectLoopback(*plotter, port);
        esp::EspLoader loader(port, {});
        const Bytes stub = testimg::stubImage();
        ASSERT_TRUE(loader.sync(1) && loader.uploadStub(stub.data(), stub.size()));
        port.flush();
    }

    /// The frames `plotter` answers `payload` with at once (a request or an
    /// acknowledgement), without waiting for scheduled output.
    Frames exchange(const Bytes& payload) {
        const Bytes frame = slip::encode(payload);
        return framesIn(plotter->onHostBytes(frame.data(), frame.size()));
    }

    Frames request(uint32_t packetSize, uint32_t inFlight = 8) {
        return exchange(esp::buildCommandPacket(
            esp::READ_FLASH, words({kAddress, static_cast<uint32_t>(kSize), packetSize, inFlight}),
            0));
    }

    Frames acknowledge(uint32_t total) { return exchange(words({total})); }

    /// Everything scheduled, in order, however long it waits.
    Frames scheduled() {
        Bytes all;
        while (plotter->nextOutputNs()) {
            const Bytes due = plotter->onIdle(60000);
            all.insert(all.end(), due.begin(), due.end());
        }
        return framesIn(all);
    }

    static Frames framesIn(const Bytes& bytes) {
        Frames frames;
        for (size_t at = 0; at < bytes.size();) {
            const auto frame = slip::readFrame(bytes.data() + at, bytes.size() - at);
            if (!frame) {
                break;
            }
            frames.push_back(frame->first);
            at += frame->second;
        }
        return frames;
    }

    Bytes flash(size_t from, size_t size) const {
        const auto first = plotter->flash().begin() + kAddress + static_cast<ptrdiff_t>(from);
        return Bytes(first, first + static_cast<ptrdiff_t>(size));
    }

    static Bytes answer(uint8_t op, uint8_t status = 0) {
        return {0x01, op, 2, 0, 0, 0, 0, 0, status, 0};
    }

    std::unique_ptr<sim::Plotter> plotter;
    SerialPort port;
};

// One packet per acknowledgement of the running total, the MD5 once it reaches the
// size, and commands again after it; a stub that may, sends as far ahead as asked.
TEST_F(ReadPacing, OnePacketPerAcknowledgementThenTheDigest) {
    start({});
    EXPECT_EQ(request(4096), (Frames{answer(esp::READ_FLASH), flash(0, 4096)}));
    EXPECT_EQ(scheduled(), Frames{}) << "nothing comes without an acknowledgement";
    EXPECT_EQ(acknowledge(5000), Frames{}) << "a total that no packet ends at";
    EXPECT_EQ(acknowledge(4096), Frames{flash(4096, 4096)});
    EXPECT_EQ(acknowledge(8192), Frames{flash(8192, kSize - 8192)});
    EXPECT_EQ(acknowledge(kSize), Frames{md5Of(flash(0, kSize).data(), kSize)});
    EXPECT_EQ(exchange(esp::buildCommandPacket(esp::SPI_ATTACH, words({0}), 0)),
              Frames{answer(esp::SPI_ATTACH)});
    const auto& heard = plotter->transcript();
    EXPECT_EQ(std::vector<std::string>(heard.end() - 3, heard.end()),
              (std::vector<std::string>{"READ_FLASH 0x1000 10000",
                                        "READ_FLASH acknowledgement 5000", "SPI_ATTACH"}));

    sim::Config ahead;
    ahead.readSendsAhead = true;
    start(ahead);
    EXPECT_EQ(request(4096, 2),
              (Frames{answer(esp::READ_FLASH), flash(0, 4096), flash(4096, 4096)}));
    EXPECT_EQ(acknowledge(4096), Frames{flash(8192, kSize - 8192)});
    EXPECT_EQ(acknowledge(8192), Frames{});
    EXPECT_EQ(acknowledge(kSize).size(), 1u);
}

// Above 4096 bytes per packet: the real stub's status 0 and silence, and its garbled
// reply to the next command, by the knob; without it, the one-packet read of the
// partition-table probe, unacknowledged.
TEST_F(ReadPacing, LargerPacketsAsTheRealStubOrAsTheProbeReads) {
    sim::Config limited;
    limited.readPacketLimit = true;
    start(limited);
    EXPECT_EQ(request(4097), Frames{answer(esp::READ_FLASH)});
    EXPECT_EQ(scheduled(), Frames{});
    const Bytes attach = esp::buildCommandPacket(esp::SPI_ATTACH, words({0}), 0);
    EXPECT_EQ(exchange(attach), Frames{answer(esp::SPI_ATTACH, 0xC0)});
    EXPECT_EQ(exchange(attach), Frames{answer(esp::SPI_ATTACH)});
    EXPECT_EQ(request(4096).size(), 2u) << "4096 is within the limit";

    start({});
    EXPECT_EQ(request(16384, 1), Frames{answer(esp::READ_FLASH)});
    EXPECT_EQ(scheduled(), (Frames{flash(0, kSize), md5Of(flash(0, kSize).data(), kSize)}));
}

// Each packet leaves a turnaround after the acknowledgement and arrives when its last
// byte would at the link rate.
TEST_F(ReadPacing, ALinkRateAndATurnaround) {
    sim::Config slow;
    slow.linkBytesPerSecond = 1'000'000;
    slow.readTurnaroundMs = 4;
    start(slow);
    plotter->loadFlash(kAddress, Bytes(kSize, 0x00));  // no byte needs escaping
    const auto dueInUs = [&] { return (*plotter->nextOutputNs() - mono::nowNs() + 500) / 1000; };
    EXPECT_EQ(request(4096), Frames{answer(esp::READ_FLASH)});
    // 4098 bytes on the wire at 1 MB/s, and a few virtual clock readings.
    EXPECT_NEAR(static_cast<double>(dueInUs()), 4098, 30);
    EXPECT_EQ(scheduled(), Frames{Bytes(4096, 0x00)});
    EXPECT_EQ(acknowledge(4096), Frames{});
    EXPECT_NEAR(static_cast<double>(dueInUs()), 4000 + 4098, 30);
    EXPECT_EQ(scheduled(), Frames{Bytes(4096, 0x00)});
}

}  // namespace
