#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "fluidnc/XModem.h"
#include "serial/Clock.h"
#include "tests/support/Records.h"
#include "tests/support/TestImages.h"
#include "tests/support/VirtualTime.h"

namespace {

constexpr uint8_t EOT = 0x04;
constexpr uint8_t ACK = 0x06;
constexpr uint8_t NAK = 0x15;
constexpr uint8_t CAN = 0x18;
const std::string kCommand = "$Xmodem/Receive=config.yaml\n";

using namespace records;

// An XModem receiver behind the console: it asks for the transfer a second after
// the command and again every second, and answers each block as scripted (ACK by
// default). Block times are virtual milliseconds after the command.
struct FakeReceiver {
    uint8_t handshake = 'C';
    std::string chatter;  // console text that arrives just before the first handshake
    std::map<size_t, std::vector<uint8_t>> blockReplies;  // by transmission index
    int eotRefusals = 0;

    int64_t commandNs = -1;
    int64_t nextHandshakeNs = 0;
    std::vector<std::vector<uint8_t>> blocks;
    std::vector<int64_t> blockMs;
    int eots = 0;

    std::vector<uint8_t> onWrite(const uint8_t* data, size_t len) {
        if (std::string(reinterpret_cast<const char*>(data), len) == kCommand) {
            commandNs = mono::nowNs();
            nextHandshakeNs = commandNs + 1'000'000'000;
            const std::string text = "[MSG:INFO: Receiving config.yaml]\r\n";
            return {text.begin(), text.end()};
        }
        if (len == 1 && data[0] == EOT) {
            return {++eots > eotRefusals ? ACK : NAK};
        }
        blocks.emplace_back(data, data + len);
        blockMs.push_back(virtualMsSince(commandNs));
        const auto scripted = blockReplies.find(blocks.size() - 1);
        return scripted == blockReplies.end() ? std::vector<uint8_t>{ACK} : scripted->second;
    }

    std::vector<uint8_t> onIdle(int timeoutMs) {
        const int64_t waitNs = nextHandshakeNs - mono::nowNs();
        if (commandNs < 0 || handshake == 0 || !blocks.empty() ||
            waitNs > int64_t{timeoutMs} * 1'000'000) {
            mono::sleepMs(timeoutMs);
            return {};
        }
        mono::sleepMs(static_cast<int>((waitNs + 999'999) / 1'000'000));
        std::vector<uint8_t> out(chatter.begin(), chatter.end());
        chatter.clear();
        out.push_back(handshake);
        nextHandshakeNs += 1'000'000'000;
        return out;
    }
};

using testimg::pattern;

class XModemTest : public ::testing::Test {
  protected:
    void SetUp() override { clearRecords(); }

    bool upload(const std::vector<uint8_t>& file) {
        port.openLoopback([this](const uint8_t* d, size_t n) { return receiver.onWrite(d, n); },
                          [this](int timeoutMs) { return receiver.onIdle(timeoutMs); });
        return fluidnc::uploadConfig(port, file.data(), file.size(), recordProgress, 30000);
    }

    std::vector<int> blockNumbers() const {
        std::vector<int> numbers;
        for (const auto& block : receiver.blocks) {
            numbers.push_back(block[1]);
        }
        return numbers;
    }

    FakeReceiver receiver;
    SerialPort port;
};

// Two blocks whose bytes together use every entry of the CRC table.
TEST_F(XModemTest, SendsPaddedBlocksWithTheCheckTheReceiverAskedFor) {
    // The handshake and the trailers of the two blocks.
    const std::pair<uint8_t, std::vector<std::vector<uint8_t>>> modes[] = {
        {'C', {{0x86, 0x19}, {0x50, 0x96}}}, {NAK, {{0x09}, {0xE8}}}};
    const auto file = pattern(1025);
    for (const auto& [handshake, trailers] : modes) {
        SCOPED_TRACE(handshake == 'C' ? "CRC" : "checksum");
        receiver = FakeReceiver{};
        receiver.handshake = handshake;
        clearRecords();
        ASSERT_TRUE(upload(file));
        ASSERT_EQ(receiver.blocks.size(), 2u);
        for (uint8_t i = 0; i < 2; ++i) {
            // STX, the block number and its complement, 1024 bytes padded with SUB, the check.
            std::vector<uint8_t> block = {0x02, static_cast<uint8_t>(i + 1),
                                          static_cast<uint8_t>(254 - i)};
            block.insert(block.end(), file.begin() + i * 1024, file.begin() + (i ? 1025 : 1024));
            block.resize(1027, 0x1A);
            block.insert(block.end(), trailers[i].begin(), trailers[i].end());
            EXPECT_EQ(receiver.blocks[i], block);
        }
        EXPECT_EQ(receiver.eots, 1);
        const decltype(progressCalls) fractions = {{0.999024391f, "Uploading config file..."},
                                                   {1.0f, "Uploading config file..."}};
        EXPECT_EQ(progressCalls, fractions);
    }
    receiver = FakeReceiver{};
    clearRecords();
    ASSERT_TRUE(upload(pattern(1024)));
    EXPECT_EQ(receiver.blocks.size(), 1u) << "a whole block needs no padding block";
    EXPECT_EQ(progressCalls.size(), 1u);
}

// Past 16 MiB a length has no exact float: single precision reports 1024 / 2^24
// for the first block where double precision would give 1024 / (2^24 + 1).
TEST_F(XModemTest, LargeFileWrapsBlockNumbersAndReportsProgressInSinglePrecision) {
    ASSERT_TRUE(upload(std::vector<uint8_t>(16 * 1024 * 1024 + 1, 'y')));
    ASSERT_EQ(progressCalls.size(), 16385u);
    EXPECT_EQ(progressCalls[0].first, 0x1p-14f);
    EXPECT_EQ(progressCalls[1].first, 0x1p-13f);
    EXPECT_EQ(progressCalls.back().first, 1.0f);
    const auto numbers = blockNumbers();
    EXPECT_EQ(std::vector<int>(numbers.begin() + 254, numbers.begin() + 258),
              (std::vector<int>{255, 0, 1, 2}));
    EXPECT_EQ(receiver.blocks[255][2], 255);
}

TEST_F(XModemTest, RefusedOrUnansweredBlockIsSentAgainButCancelEndsAtOnce) {
    receiver.blockReplies = {{1, {NAK}}, {2, {}}, {3, {'x'}}};
    ASSERT_TRUE(upload(pattern(3000)));
    EXPECT_EQ(blockNumbers(), (std::vector<int>{1, 2, 2, 2, 2, 3}));
    EXPECT_EQ(receiver.blocks[1], receiver.blocks[3]);
    // The handshake at 1000 ms; an unanswered block goes out again after 5 s.
    EXPECT_EQ(receiver.blockMs, (std::vector<int64_t>{1000, 1000, 1000, 6000, 6000, 6000}));
    EXPECT_EQ(progressCalls.size(), 3u);

    receiver = FakeReceiver{};
    receiver.blockReplies = {{1, {CAN}}};
    EXPECT_FALSE(upload(pattern(5000)));
    EXPECT_EQ(receiver.blocks.size(), 2u);
    EXPECT_EQ(receiver.eots, 0);
}

// The 25th transmission of a block, or of EOT, may still be taken; none follows it.
TEST_F(XModemTest, SendsABlockOrTheEndOfTransmissionUpTo25Times) {
    for (const auto& [refusals, ok] : {std::pair{24, true}, std::pair{25, false}}) {
        SCOPED_TRACE(refusals);
        receiver = FakeReceiver{};
        for (int i = 0; i < refusals; ++i) {
            receiver.blockReplies[static_cast<size_t>(i)] = {NAK};
        }
        EXPECT_EQ(upload(pattern(10)), ok);
        EXPECT_EQ(receiver.blocks.size(), 25u);
        EXPECT_EQ(receiver.eots, ok ? 1 : 0);
        receiver = FakeReceiver{};
        receiver.eotRefusals = refusals;
        EXPECT_EQ(upload(pattern(10)), ok);
        EXPECT_EQ(receiver.eots, 25);
    }
}

// Thirty tries of a second each; every byte of console text uses up one.
TEST_F(XModemTest, WaitsThirtyTriesForTheHandshake) {
    receiver.handshake = 0;
    EXPECT_FALSE(upload(pattern(10)));
    EXPECT_EQ(virtualMsSince(receiver.commandNs), 500 + 30 * 1000);
    const decltype(progressCalls) report = {{0.0f, "XModem: no handshake received (30s timeout)"}};
    EXPECT_EQ(progressCalls, report);
    for (const auto& [chatter, ok] : {std::pair{29, true}, std::pair{30, false}}) {
        receiver = FakeReceiver{};
        receiver.chatter = std::string(chatter, '.');
        EXPECT_EQ(upload(pattern(10)), ok) << chatter << " bytes of console text";
        EXPECT_EQ(receiver.blocks.size(), ok ? 1u : 0u);
    }
}

}  // namespace
