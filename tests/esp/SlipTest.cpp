#include <gtest/gtest.h>

#include <optional>

#include "esp/Slip.h"
#include "tests/support/TestImages.h"

namespace {

using Bytes = std::vector<uint8_t>;

TEST(Slip, EncodesDecodesAndFindsFrames) {
    EXPECT_EQ(slip::encode({0x01, 0xC0, 0xDB, 0x02}),
              (Bytes{0xC0, 0x01, 0xDB, 0xDC, 0xDB, 0xDD, 0x02, 0xC0}));
    EXPECT_EQ(slip::decode(slip::encode(testimg::pattern(512))), testimg::pattern(512));
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

}  // namespace
