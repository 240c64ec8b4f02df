#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "api/Jobs.h"

namespace {

// Tables described entry by entry: 'A' an application at 0x10000, 'a' one at
// 0x20000, 'D' data at 0x10000, 'd' data at 0x9000, 'x' an application at 0x10000
// without the entry magic, '-' an erased entry, '~' 31 bytes of an application entry.
std::vector<uint8_t> table(const std::string& entries) {
    std::vector<uint8_t> out;
    for (const char kind : entries) {
        std::vector<uint8_t> entry(32, kind == '-' ? 0xFF : 0x00);
        if (kind != '-') {
            const uint32_t offset = kind == 'a' ? 0x20000 : kind == 'd' ? 0x9000 : 0x10000;
            entry[0] = kind == 'x' ? 0xAB : 0xAA;
            entry[1] = 0x50;
            entry[2] = (kind == 'D' || kind == 'd') ? 1 : 0;
            entry[5] = static_cast<uint8_t>(offset >> 8);
            entry[6] = static_cast<uint8_t>(offset >> 16);
            entry[9] = 0x10;
        }
        out.insert(out.end(), entry.begin(), entry.end() - (kind == '~' ? 1 : 0));
    }
    return out;
}

TEST(PartitionTable, NeedsAReachableApplicationEntryAt0x10000) {
    const std::pair<std::string, bool> cases[] = {
        {"ddA" + std::string(93, '-'), true},
        {"D", false},
        {"a", false},
        {"xA", false},
        {"d-A", false},
        {"d~", false},
        {std::string(127, 'd') + "A", true},
        {std::string(128, 'd') + "A", false},
    };
    for (const auto& [entries, valid] : cases) {
        const auto bytes = table(entries);
        EXPECT_EQ(esp::isPartitionTableValid(bytes.data(), bytes.size()), valid)
            << entries.substr(0, 8) << " (" << entries.size() << " entries)";
    }
    EXPECT_FALSE(esp::isPartitionTableValid(nullptr, 3072));
    const std::vector<uint8_t> short31(31, 0xAA);
    EXPECT_FALSE(esp::isPartitionTableValid(short31.data(), short31.size()));
}

}  // namespace
