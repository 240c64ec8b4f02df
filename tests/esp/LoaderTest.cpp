#include <tuple>

#include "LoaderFixture.h"

namespace {

using Line = SerialPort::Line;

TEST_F(LoaderTest, SyncTriesEachAttemptForHalfASecond) {
    EXPECT_FALSE(loader.sync(0));
    bool synced = true;
    EXPECT_NEAR(elapsedMs([&] { synced = loader.sync(10); }), 5000, 50);
    EXPECT_FALSE(synced);
    ASSERT_EQ(sent.size(), 10u);
    Bytes syncPayload{0x07, 0x07, 0x12, 0x20};
    syncPayload.resize(36, 0x55);
    EXPECT_EQ(sent[0].op, 0x08);
    EXPECT_EQ(sent[0].payload, syncPayload);
    EXPECT_EQ(lines, Lines(10, "NO RESPONSE: SYNC"));

    reply = [this](const Request& r) { return sent.size() < 13 ? Bytes{} : response(r.op); };
    EXPECT_TRUE(loader.sync(5));
    EXPECT_EQ(sent.size(), 13u);
}

// The ROM answers one SYNC several times; the loader drains at most seven extra replies.
class SyncDrainTest : public LoaderTest, public ::testing::WithParamInterface<int> {};

TEST_P(SyncDrainTest, DrainsAtMostSevenExtraReplies) {
    reply = [&](const Request& r) {
        if (r.op == esp::SYNC) {
            pieces.assign(GetParam() - 1, response(esp::SYNC));
            return response(esp::SYNC);
        }
        // Behind the SYNC replies the drain left.
        pieces.push_back(response(r.op, 0, Bytes(14)));
        return Bytes{};
    };
    ASSERT_TRUE(loader.sync(1));
    loader.readChipId();
    EXPECT_EQ(lines,
              GetParam() <= 8 ? Lines{} : Lines{"CMD MISMATCH: sent GET_SECURITY_INFO got SYNC"});
}

INSTANTIATE_TEST_SUITE_P(Replies, SyncDrainTest, ::testing::Values(1, 8, 9));

// A frame that arrived in the same read as an answer is no answer to the next command.
TEST_F(LoaderTest, FramesSharingAReadWithTheAnswerAreDropped) {
    uint32_t value = 0;
    reply = [&](const Request& r) {
        Bytes both = response(r.op, ++value);
        const Bytes late = response(r.op, 0x55);
        both.insert(both.end(), late.begin(), late.end());
        return both;
    };
    EXPECT_EQ(loader.readReg(0x60000000), 1u);
    EXPECT_EQ(loader.readReg(0x60000000), 2u);
    EXPECT_TRUE(lines.empty());
}

TEST_F(LoaderTest, ReceiveFrameAssemblesPiecesAfterNoise) {
    const Bytes frame = response(esp::READ_REG, 0xCAFEF00D);
    pieces = {{'b', 'o', 'o', 't', '\n', 0xC0},
              Bytes(frame.begin() + 1, frame.begin() + 5),
              Bytes(frame.begin() + 5, frame.end())};
    EXPECT_TRUE(loader.receiveFrame(0).empty());
    EXPECT_EQ(pieces.size(), 3u);
    EXPECT_EQ(loader.readReg(0x1000), 0xCAFEF00Du);
    EXPECT_EQ(sent[0].payload, words({0x1000}));
    EXPECT_TRUE(lines.empty());
}

TEST_F(LoaderTest, EachFailedExchangeLogsExactlyOneLine) {
    const std::pair<Bytes, std::string> cases[] = {
        {{}, "NO RESPONSE: READ_REG"},
        {{0xC0, 0xC0}, "NO RESPONSE: READ_REG"},
        {{0xC0, 0x01, 0xDB, 0x07, 0xC0}, "NO RESPONSE: READ_REG"},
        {slip::encode({1, 0x0A, 0, 0, 0, 0, 0}), "PARSE FAIL: READ_REG payload_size=7"},
        {slip::encode({0, 0x0A, 4, 0, 0, 0, 0, 0, 0, 0, 0, 0}),
         "PARSE FAIL: READ_REG payload_size=12"},
        {slip::encode({1, 0x0A, 6, 0, 0, 0, 0, 0, 0, 0, 0, 0}),
         "PARSE FAIL: READ_REG payload_size=12"},
        {response(esp::READ_REG, 0, {}, 0, 0, 2), "PARSE FAIL: READ_REG payload_size=10"},
        {response(esp::SYNC), "CMD MISMATCH: sent READ_REG got SYNC"},
        {response(0xD0), "CMD MISMATCH: sent READ_REG got CMD_0xD0"},
        {response(esp::READ_REG, 0, {}, 1, 5), "ERROR: READ_REG status=1 error=5"},
        {response(esp::READ_REG, 0, {}, 200, 255), "ERROR: READ_REG status=200 error=255"},
    };
    for (const auto& [bytes, line] : cases) {
        lines.clear();
        reply = [&bytes = bytes](const Request&) { return bytes; };
        const esp::CommandResult result = loader.sendCommand(esp::READ_REG, words({0}), 0, 3000);
        EXPECT_FALSE(result.ok);
        EXPECT_EQ(result.value, 0u);
        EXPECT_EQ(lines, Lines{line});
    }

    reply = [](const Request& r) { return response(r.op, 7, {0xAB}, 1, 5); };
    const esp::CommandResult kept = loader.sendCommand(esp::READ_REG, words({0}), 0, 3000);
    EXPECT_EQ(kept.value, 7u);
    EXPECT_EQ(kept.data, Bytes{0xAB});
    EXPECT_EQ(loader.readReg(0), 0u);

    port.close();
    lines.clear();
    EXPECT_FALSE(loader.sendCommand(esp::SYNC, {}, 0, 500).ok);
    EXPECT_EQ(lines, Lines{"SEND FAIL: SYNC"});
}

TEST_F(LoaderTest, ChipIdNeedsFourteenDataBytesAndFusesTolerateOnlyBitTwo) {
    Bytes info(14);
    info[12] = 9;
    reply = [&](const Request& r) { return response(r.op, 0, info); };
    EXPECT_EQ(loader.readChipId(), 9u);
    info.resize(12);
    EXPECT_EQ(loader.readChipId(), 0u);
    EXPECT_TRUE(lines.empty());

    const std::string ok = "Security check OK - no secure boot or flash encryption";
    const std::string bad =
        "WARNING: Unexpected security fuse value! Secure boot or flash encryption may be enabled.";
    const std::tuple<uint32_t, std::string, bool> fuses[] = {
        {4, "0x00000004", true}, {1, "0x00000001", false}, {0x80000004, "0x80000004", false}};
    for (const auto& [value, shown, passes] : fuses) {
        lines.clear();
        reply = [value = value](const Request& r) { return response(r.op, value); };
        EXPECT_EQ(loader.checkSecurityFuses(), passes) << shown;
        EXPECT_EQ(lines, (Lines{"Security fuses: " + shown, passes ? ok : bad}));
    }
    EXPECT_EQ(sent.back().payload, words({0x3FF5A018}));
}

TEST_F(LoaderTest, ResetSequencesDriveTheLinesInOrder) {
    reply = [](const Request&) { return Bytes{'b', 'o', 'o', 't'}; };
    loader.sendFrame(esp::buildCommandPacket(esp::SYNC, {}, 0));
    EXPECT_NEAR(elapsedMs([&] { EXPECT_TRUE(loader.enterBootloader()); }), 500, 1);
    uint8_t byte = 0;
    EXPECT_EQ(port.read(&byte, 1, 0), 0u);
    EXPECT_NEAR(elapsedMs([&] { loader.hardReset(); }), 200, 1);

    const std::vector<std::pair<Line, bool>> expected = {
        {Line::RTS, false}, {Line::DTR, false}, {Line::DTR, true}, {Line::RTS, false},
        {Line::RTS, true},  {Line::DTR, false}, {Line::RTS, true}, {Line::DTR, true},
        {Line::RTS, false}, {Line::DTR, false}, {Line::RTS, true}, {Line::RTS, false}};
    EXPECT_EQ(lineCalls, expected);
    EXPECT_EQ(sent.size(), 1u);
    EXPECT_TRUE(lines.empty());
}

}  // namespace
