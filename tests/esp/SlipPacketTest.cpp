#include <gtest/gtest.h>

#include <optional>
#include <tuple>

#include "esp/Packet.h"
#include "esp/Slip.h"
#include "tests/support/TestImages.h"

namespace {

using Bytes = std::vector<uint8_t>;

TEST(Slip, EncodesDecodesAndFindsFrames) {
    EXPECT_EQ(slip::encode({0x01, 0xC0, 0xDB, 0x02}),
              (Bytes{0xC0, 0x01, 0xDB, 0xDC, 0xDB, 0xDD, 0x02, 0xC0}));
    const Bytes every = testimg::pattern(512);
    EXPECT_EQ(slip::decode(slip::encode(every)), every);
    const std::pair<Bytes, std::optional<Bytes>> decoded[] = {
        {{0xC0, 0xC0}, Bytes{}},
        {{0xC0, 0x01, 0xC0, 0x02, 0xC0}, Bytes{0x01, 0xC0, 0x02}},
        {{0xC0, 0xDB, 0xC0}, std::nullopt},
        {{0xC0, 0xDB, 0x01, 0xC0}, std::nullopt},
        {{0x01, 0x02, 0xC0}, std::nullopt},
        {{0xC0, 0x01, 0x02}, std::nullopt},
    };
    for (const auto& [frame, payload] : decoded) {
        EXPECT_EQ(slip::decode(frame), payload) << ::testing::PrintToString(frame);
    }
    using Found = std::optional<std::pair<Bytes, size_t>>;
    const std::pair<Bytes, Found> found[] = {
        {{0x78, 0x79, 0xC0, 0x01, 0x02, 0xC0, 0xC0, 0x03, 0xC0}, {{{0x01, 0x02}, 6}}},
        {{0xC0, 0x01, 0x02}, std::nullopt},
        {{0xC0, 0xC0, 0x01, 0x02, 0xC0}, {{{}, 2}}},
        {{0xC0, 0xDB, 0x07, 0xC0, 0xC0, 0x01, 0xC0}, std::nullopt},
    };
    for (const auto& [buffer, frame] : found) {
        EXPECT_EQ(slip::readFrame(buffer.data(), buffer.size()), frame)
            << ::testing::PrintToString(buffer);
    }
}

TEST(Packet, BuildsRequestsAndParsesResponsesByStatusByteCount) {
    EXPECT_EQ(esp::buildCommandPacket(0x0A, {0x04, 0x03}, 0x12345678),
              (Bytes{0x00, 0x0A, 0x02, 0x00, 0x78, 0x56, 0x34, 0x12, 0x04, 0x03}));
    EXPECT_EQ(esp::buildCommandPacket(0x03, Bytes(300), 0)[3], 1) << "the size is 16-bit";
    for (const auto& [block, checksum] : {std::pair<Bytes, uint8_t>{{}, 0xEF},
                                          {{0x01, 0x02, 0x03}, 0xEF},
                                          {{0x10}, 0xFF},
                                          {{0xEF, 0x20, 0x01}, 0x21}}) {
        EXPECT_EQ(esp::calculateChecksum(block), checksum) << ::testing::PrintToString(block);
    }

    const Bytes rom{0x01, 0x08, 0x04, 0x00, 0x78, 0x56, 0x34, 0x12, 0x00, 0x00, 0x00, 0x00};
    const auto fromRom = esp::parseResponsePacket(rom, false);
    ASSERT_TRUE(fromRom);
    EXPECT_EQ(std::tuple(fromRom->op, fromRom->value, fromRom->data),
              std::tuple(uint8_t{0x08}, 0x12345678u, Bytes{}));
    EXPECT_EQ(esp::parseResponsePacket(rom, true)->data, (Bytes{0x00, 0x00}));
    const auto failed = esp::parseResponsePacket({1, 0x0A, 2, 0, 0, 0, 0, 0, 1, 5}, true);
    ASSERT_TRUE(failed);
    EXPECT_EQ(std::pair(failed->status, failed->error), std::pair(uint8_t{1}, uint8_t{5}));

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
