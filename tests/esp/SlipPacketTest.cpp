#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "esp/Packet.h"
#include "esp/Slip.h"
#include "tests/support/TestImages.h"

namespace {

using Bytes = std::vector<uint8_t>;

TEST(Slip, EncodesAndDecodesFrames) {
    EXPECT_EQ(slip::encode({}), (Bytes{0xC0, 0xC0}));
    EXPECT_EQ(slip::encode({0x01, 0xC0, 0xDB, 0x02}),
              (Bytes{0xC0, 0x01, 0xDB, 0xDC, 0xDB, 0xDD, 0x02, 0xC0}));
    const std::pair<Bytes, std::optional<Bytes>> cases[] = {
        {{0xC0, 0xC0}, Bytes{}},
        {{0xC0, 0x01, 0xC0, 0x02, 0xC0}, Bytes{0x01, 0xC0, 0x02}},
        {{0xC0, 0xDB, 0xC0}, std::nullopt},
        {{0xC0, 0xDB, 0x01, 0xC0}, std::nullopt},
        {{0x01, 0x02, 0xC0}, std::nullopt},
        {{0xC0, 0x01, 0x02}, std::nullopt},
        {{0xC0}, std::nullopt},
    };
    for (const auto& [frame, payload] : cases) {
        EXPECT_EQ(slip::decode(frame), payload) << ::testing::PrintToString(frame);
    }
    const Bytes every = testimg::pattern(512);
    EXPECT_EQ(slip::decode(slip::encode(every)), every);
}

TEST(Slip, ReadFrameFindsTheFirstCompleteFrame) {
    using Found = std::optional<std::pair<Bytes, size_t>>;
    const std::pair<Bytes, Found> cases[] = {
        {{0x78, 0x79, 0x7A, 0xC0, 0x01, 0x02, 0xC0, 0xC0, 0x03, 0xC0}, {{{0x01, 0x02}, 7}}},
        {{0xC0, 0x01, 0x02}, std::nullopt},
        {{0xC0, 0x01, 0x02, 0xC0}, {{{0x01, 0x02}, 4}}},
        {{0xC0, 0xC0, 0x01, 0x02, 0xC0}, {{{}, 2}}},
        {{0xC0, 0xDB, 0x07, 0xC0, 0xC0, 0x01, 0xC0}, std::nullopt},
        {{}, std::nullopt},
    };
    for (const auto& [buffer, found] : cases) {
        EXPECT_EQ(slip::readFrame(buffer.data(), buffer.size()), found)
            << ::testing::PrintToString(buffer);
    }
}

TEST(Packet, BuildsRequests) {
    EXPECT_EQ(esp::buildCommandPacket(0x0A, {0x04, 0x03, 0x02, 0x01}, 0),
              (Bytes{0x00, 0x0A, 0x04, 0x00, 0x00, 0x00, 0x00, 0x00, 0x04, 0x03, 0x02, 0x01}));
    EXPECT_EQ(esp::buildCommandPacket(0x03, {}, 0x12345678),
              (Bytes{0x00, 0x03, 0x00, 0x00, 0x78, 0x56, 0x34, 0x12}));
    EXPECT_EQ(esp::buildCommandPacket(0x03, Bytes(300), 0)[3], 1) << "the size is 16-bit";
    EXPECT_EQ(esp::calculateChecksum({0x01, 0x02, 0x03}), 0xEF ^ 0x01 ^ 0x02 ^ 0x03);
    EXPECT_EQ(esp::calculateChecksum({}), 0xEF);
    EXPECT_EQ(esp::buildSyncPayload().size(), 36u);
    EXPECT_EQ(esp::buildSyncPayload()[4], 0x55);
    EXPECT_STREQ(esp::cmdName(0xD0), "CMD_0xD0");
    EXPECT_STREQ(esp::cmdName(0x14), "GET_SECURITY_INFO");
}

TEST(Packet, ParsesResponsesByStatusByteCount) {
    const Bytes rom{0x01, 0x08, 0x04, 0x00, 0x78, 0x56, 0x34, 0x12, 0x00, 0x00, 0x00, 0x00};
    const auto fromRom = esp::parseResponsePacket(rom, false);
    ASSERT_TRUE(fromRom);
    EXPECT_EQ(fromRom->op, 0x08);
    EXPECT_EQ(fromRom->value, 0x12345678u);
    EXPECT_TRUE(fromRom->data.empty());
    const auto fromStub = esp::parseResponsePacket(rom, true);
    ASSERT_TRUE(fromStub);
    EXPECT_EQ(fromStub->data, (Bytes{0x00, 0x00}));

    const auto failed = esp::parseResponsePacket({1, 0x0A, 2, 0, 0, 0, 0, 0, 1, 5}, true);
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->status, 1);
    EXPECT_EQ(failed->error, 5);

    const Bytes malformed[] = {
        {0x00, 0x08, 0x04, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00},
        {0x01, 0x08, 0x00, 0x00, 0x00, 0x00, 0x00},
        {0x01, 0x08, 0x06, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00},
        {0x01, 0x08, 0x03, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00},
    };
    for (const Bytes& frame : malformed) {
        EXPECT_FALSE(esp::parseResponsePacket(frame, false)) << ::testing::PrintToString(frame);
    }
}

}  // namespace
