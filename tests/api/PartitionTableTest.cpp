#include <gtest/gtest.h>

#include <vector>

#include "api/Jobs.h"

namespace {

constexpr uint8_t kApp = 0;
constexpr uint8_t kData = 1;

void addEntry(std::vector<uint8_t>& table, uint8_t type, uint32_t offset, uint8_t magic = 0xAA) {
    std::vector<uint8_t> entry(32, 0);
    entry[0] = magic;
    entry[1] = 0x50;
    entry[2] = type;
    for (int i = 0; i < 4; ++i) {
        entry[4 + i] = static_cast<uint8_t>(offset >> (8 * i));
        entry[8 + i] = static_cast<uint8_t>(0x1000 >> (8 * i));
    }
    table.insert(table.end(), entry.begin(), entry.end());
}

bool valid(const std::vector<uint8_t>& table) {
    return esp::isPartitionTableValid(table.data(), table.size());
}

TEST(PartitionTable, AcceptsATableWithTheApplicationAt0x10000) {
    std::vector<uint8_t> table;
    addEntry(table, kData, 0x9000);
    addEntry(table, kData, 0xE000);
    addEntry(table, kApp, 0x10000);
    table.resize(3072, 0xFF);
    EXPECT_TRUE(valid(table));
}

TEST(PartitionTable, RefusesTablesWithoutAReachableApplicationEntry) {
    std::vector<uint8_t> dataAt0x10000;
    addEntry(dataAt0x10000, kData, 0x10000);
    EXPECT_FALSE(valid(dataAt0x10000));

    std::vector<uint8_t> appElsewhere;
    addEntry(appElsewhere, kApp, 0x20000);
    EXPECT_FALSE(valid(appElsewhere));

    std::vector<uint8_t> unmarkedFirst;
    addEntry(unmarkedFirst, kApp, 0x10000, 0xAB);
    addEntry(unmarkedFirst, kApp, 0x10000);
    EXPECT_FALSE(valid(unmarkedFirst));

    std::vector<uint8_t> afterTheEnd;
    addEntry(afterTheEnd, kData, 0x9000);
    afterTheEnd.resize(64, 0xFF);
    addEntry(afterTheEnd, kApp, 0x10000);
    EXPECT_FALSE(valid(afterTheEnd));

    EXPECT_FALSE(esp::isPartitionTableValid(nullptr, 3072));
    EXPECT_FALSE(valid(std::vector<uint8_t>(31, 0xAA)));
}

TEST(PartitionTable, LooksOnlyAtWholeEntriesAndAtMost128) {
    std::vector<uint8_t> table;
    addEntry(table, kData, 0x9000);
    std::vector<uint8_t> partial;
    addEntry(partial, kApp, 0x10000);
    table.insert(table.end(), partial.begin(), partial.begin() + 31);
    EXPECT_FALSE(valid(table));

    std::vector<uint8_t> long128;
    for (int i = 0; i < 127; ++i) {
        addEntry(long128, kData, 0x9000);
    }
    auto long129 = long128;
    addEntry(long128, kApp, 0x10000);
    EXPECT_TRUE(valid(long128));
    addEntry(long129, kData, 0x9000);
    addEntry(long129, kApp, 0x10000);
    EXPECT_FALSE(valid(long129));
}

}  // namespace
