#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/Jobs.h"

namespace {

using jobtest::partitionTable;

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
        const auto bytes = partitionTable(entries);
        EXPECT_EQ(esp::isPartitionTableValid(bytes.data(), bytes.size()), valid)
            << entries.substr(0, 8) << " (" << entries.size() << " entries)";
    }
    EXPECT_FALSE(esp::isPartitionTableValid(nullptr, 3072));
    const std::vector<uint8_t> short31(31, 0xAA);
    EXPECT_FALSE(esp::isPartitionTableValid(short31.data(), short31.size()));
}

}  // namespace
