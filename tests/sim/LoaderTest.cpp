#include <gtest/gtest.h>
#include <openssl/evp.h>

#include "Chip.h"

namespace {

using wire::Bytes;

Bytes md5(const uint8_t* data, size_t len) {
    Bytes digest(EVP_MAX_MD_SIZE);
    unsigned int n = 0;
    EVP_Digest(data, len, digest.data(), &n, EVP_md5(), nullptr);
    digest.resize(n);
    return digest;
}

Bytes pattern(size_t size, uint8_t seed) {
    Bytes out(size);
    for (size_t i = 0; i < size; ++i) {
        out[i] = static_cast<uint8_t>(seed + i * 7);
    }
    return out;
}

// Writes `image` at `address` as a host does: full 16 KiB blocks padded with 0xFF.
void writeImage(Chip& chip, uint32_t address, const Bytes& image) {
    constexpr size_t kBlock = 16384;
    const uint32_t blocks = static_cast<uint32_t>((image.size() + kBlock - 1) / kBlock);
    const auto size = static_cast<uint32_t>(image.size());
    ASSERT_EQ(
        wire::only(chip.command(kFlashBegin, wire::words({size, blocks, kBlock, address, 0})), 2)
            .status,
        0);
    for (uint32_t seq = 0; seq < blocks; ++seq) {
        Bytes block(kBlock, 0xFF);
        const size_t from = seq * kBlock;
        std::copy(image.begin() + from, image.begin() + std::min(image.size(), from + kBlock),
                  block.begin());
        const auto reply =
            chip.command(kFlashData, wire::dataPayload(block, seq), wire::checksum(block));
        ASSERT_EQ(wire::only(reply, 2).status, 0) << "block " << seq;
    }
}

TEST(SimLoader, SyncIsAnsweredEightTimesEachFrameOnItsOwn) {
    Chip chip;
    const Bytes response{0xC0, 0x01, 0x08, 0x04, 0x00, 0x00, 0x00,
                         0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xC0};
    EXPECT_EQ(chip.command(kSync, syncPayload()), response);
    EXPECT_EQ(chip.plotter.mode(), sim::Mode::RomLoader);
    const auto extra = chip.drain();
    EXPECT_EQ(extra, std::vector<Bytes>(7, response));
    EXPECT_EQ(chip.plotter.transcript(), std::vector<std::string>{"SYNC"});
}

TEST(SimLoader, SyncIsIgnoredBeforeTheConfiguredAttemptAndWhenMalformed) {
    sim::Config config;
    config.syncFromAttempt = 3;
    config.syncReplies = 1;
    Chip chip(config);
    EXPECT_TRUE(chip.command(kSync, syncPayload()).empty());
    EXPECT_TRUE(chip.idle(500).empty());
    EXPECT_TRUE(chip.command(kSync, syncPayload()).empty());
    EXPECT_TRUE(chip.command(kSync, Bytes(36, 0x55)).empty());
    EXPECT_EQ(wire::only(chip.command(kSync, syncPayload()), 4).op, kSync);
}

TEST(SimLoader, RomReportsFusesAndChipIdWithFourStatusBytes) {
    sim::Config config;
    config.chipId = 5;
    config.securityFuses = 0x4;
    Chip chip(config);
    chip.command(kSync, syncPayload());
    chip.drain();

    const auto fuses = wire::only(chip.command(kReadReg, wire::words({0x3FF5A018})), 4);
    EXPECT_EQ(fuses.op, kReadReg);
    EXPECT_EQ(fuses.value, 0x4u);
    EXPECT_EQ(fuses.status, 0);

    const auto info = wire::only(chip.command(kSecurityInfo, {}), 4);
    ASSERT_GE(info.data.size(), 14u);
    EXPECT_EQ(info.data[12] | info.data[13] << 8, 5);
    EXPECT_EQ(chip.plotter.transcript(),
              (std::vector<std::string>{"SYNC", "READ_REG 0x3ff5a018", "GET_SECURITY_INFO"}));
}

TEST(SimLoader, RamUploadChecksSequenceAndChecksumThenGreetsSeparately) {
    Chip chip;
    chip.command(kSync, syncPayload());
    chip.drain();
    const Bytes first = pattern(4, 1);
    const Bytes second = pattern(2, 9);
    EXPECT_EQ(wire::only(chip.command(kMemBegin, wire::words({6, 2, 4, 0x40380000})), 4).status, 0);
    EXPECT_EQ(wire::only(chip.command(kMemEnd, wire::words({0, 0x40380004})), 4).error, 0x06)
        << "MEM_END before the segment is complete";

    const auto outOfOrder =
        wire::only(chip.command(kMemData, wire::dataPayload(second, 1), wire::checksum(second)), 4);
    EXPECT_EQ(outOfOrder.status, 1);
    EXPECT_EQ(outOfOrder.error, 0x05);
    const auto badSum = wire::only(
        chip.command(kMemData, wire::dataPayload(first, 0), wire::checksum(first) ^ 1), 4);
    EXPECT_EQ(badSum.error, 0x07);

    chip.command(kMemData, wire::dataPayload(first, 0), wire::checksum(first));
    chip.command(kMemData, wire::dataPayload(second, 1), wire::checksum(second));
    const auto end = chip.command(kMemEnd, wire::words({0, 0x40380004}));
    EXPECT_EQ(wire::only(end, 4).status, 0) << "answered by the ROM, with its status width";
    EXPECT_EQ(chip.plotter.mode(), sim::Mode::Stub);
    EXPECT_EQ(wire::frames(chip.idle()), (std::vector<std::optional<Bytes>>{wire::text("OHAI")}));

    Bytes loaded = first;
    loaded.insert(loaded.end(), second.begin(), second.end());
    EXPECT_EQ(chip.plotter.ram().at(0x40380000), loaded);
    EXPECT_EQ(wire::only(chip.command(kSpiAttach, wire::words({0})), 2).status, 0)
        << "the stub answers with two status bytes";
}

TEST(SimLoader, WritesPaddedBlocksErasesWholeSectorsAndDigestsTheRegion) {
    Chip chip;
    chip.plotter.loadFlash(0x14FFF,
                           {0x00, 0x00});  // last byte of the region's sector, and the next
    chip.startStub();
    const Bytes image = pattern(16385, 3);
    writeImage(chip, 0x10000, image);
    EXPECT_EQ(wire::only(chip.command(kFlashEnd, wire::words({1})), 2).status, 0);

    const auto& flash = chip.plotter.flash();
    EXPECT_TRUE(std::equal(image.begin(), image.end(), flash.begin() + 0x10000));
    EXPECT_EQ(flash[0x14FFF], 0xFF) << "erased with the region's last sector";
    EXPECT_EQ(flash[0x15000], 0x00) << "outside the region's sectors";

    const auto digest = wire::only(chip.command(kMd5, wire::words({0x10000, 16385, 0, 0})), 2);
    EXPECT_EQ(digest.data, md5(image.data(), image.size()));
    EXPECT_EQ(chip.plotter.transcript().back(), "SPI_FLASH_MD5 0x10000 16385");
    EXPECT_NE(std::find(chip.plotter.transcript().begin(), chip.plotter.transcript().end(),
                        "FLASH_BEGIN 0x10000 16385"),
              chip.plotter.transcript().end());
}

struct Rejection {
    const char* name;
    friend void PrintTo(const Rejection& c, std::ostream* os) { *os << c.name; }
    uint32_t seq;
    int lengthSkew;
    uint32_t checksumFlip;
    bool begin;
    uint8_t error;
};

class SimFlashDataRejection : public ::testing::TestWithParam<Rejection> {};

TEST_P(SimFlashDataRejection, AnswersStatusOneWithItsCode) {
    const auto& c = GetParam();
    Chip chip;
    chip.startStub();
    if (c.begin) {
        chip.command(kFlashBegin, wire::words({1024, 1, 1024, 0x20000, 0}));
    }
    const Bytes block = pattern(1024, 5);
    Bytes payload = wire::dataPayload(block, c.seq);
    payload[0] = static_cast<uint8_t>(payload[0] + c.lengthSkew);
    const auto r =
        wire::only(chip.command(kFlashData, payload, wire::checksum(block) ^ c.checksumFlip), 2);
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.error, c.error);
    EXPECT_EQ(chip.plotter.flash()[0x20000], 0xFF) << "nothing written";
}

INSTANTIATE_TEST_SUITE_P(Cases, SimFlashDataRejection,
                         ::testing::Values(Rejection{"BadChecksum", 0, 0, 1, true, 0x07},
                                           Rejection{"WrongSequence", 1, 0, 0, true, 0x05},
                                           Rejection{"LengthMismatch", 0, 1, 0, true, 0x05},
                                           Rejection{"NoFlashBegin", 0, 0, 0, false, 0x06}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(SimLoader, ReadFlashSendsEachPacketAndTheDigestAsSeparateFrames) {
    Chip chip;
    const Bytes table = pattern(3072, 11);
    chip.plotter.loadFlash(0x8000, table);
    chip.startStub();
    EXPECT_EQ(wire::only(chip.command(kReadFlash, wire::words({0x8000, 3072, 1024, 1})), 2).status,
              0);
    const auto outputs = chip.drain();
    ASSERT_EQ(outputs.size(), 4u);
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(wire::frames(outputs[i]),
                  (std::vector<std::optional<Bytes>>{
                      Bytes(table.begin() + i * 1024, table.begin() + (i + 1) * 1024)}));
    }
    EXPECT_EQ(wire::frames(outputs[3]),
              (std::vector<std::optional<Bytes>>{md5(table.data(), table.size())}));
}

TEST(SimLoader, WrongMd5AndLineLossFollowTheirCounts) {
    sim::Config config;
    config.wrongMd5At = 1;
    config.goneAfterFlashData = 1;
    Chip chip(config);
    chip.startStub();
    const Bytes query = wire::words({0, 4096, 0, 0});
    const Bytes good = wire::only(chip.command(kMd5, query), 2).data;
    EXPECT_EQ(good, md5(chip.plotter.flash().data(), 4096));
    EXPECT_NE(wire::only(chip.command(kMd5, query), 2).data, good);

    const Bytes block(16384, 0);
    chip.command(kFlashBegin, wire::words({32768, 2, 16384, 0, 0}));
    EXPECT_FALSE(
        chip.command(kFlashData, wire::dataPayload(block, 0), wire::checksum(block)).empty());
    EXPECT_TRUE(
        chip.command(kFlashData, wire::dataPayload(block, 1), wire::checksum(block)).empty());
    EXPECT_EQ(chip.plotter.mode(), sim::Mode::Gone);
    EXPECT_TRUE(chip.command(kSync, syncPayload()).empty());
    EXPECT_TRUE(chip.idle(1000).empty());
}

struct FaultCase {
    const char* name;
    sim::FaultKind kind;
    friend void PrintTo(const FaultCase& c, std::ostream* os) { *os << c.name; }
    std::function<void(const Bytes& reply, Chip& chip)> check;
};

class SimResponseFault : public ::testing::TestWithParam<FaultCase> {};

TEST_P(SimResponseFault, SpoilsOnlyTheChosenResponse) {
    sim::Config config;
    config.responseFaults = {{kSpiAttach, 1, GetParam().kind, 0x09}};
    Chip chip(config);
    chip.startStub();
    EXPECT_EQ(wire::only(chip.command(kSpiAttach, wire::words({0})), 2).status, 0)
        << "occurrence 0 is untouched";
    GetParam().check(chip.command(kSpiAttach, wire::words({0})), chip);
    EXPECT_EQ(wire::only(chip.command(kSpiAttach, wire::words({0})), 2).status, 0)
        << "occurrence 2 is untouched";
}

const Bytes kAttachOk{0xC0, 0x01, kSpiAttach, 0x02, 0x00, 0, 0, 0, 0, 0x00, 0x00, 0xC0};

INSTANTIATE_TEST_SUITE_P(
    Kinds, SimResponseFault,
    ::testing::Values(FaultCase{"Drop", sim::FaultKind::Drop,
                                [](const Bytes& reply, Chip& chip) {
                                    EXPECT_TRUE(reply.empty());
                                    EXPECT_TRUE(chip.idle().empty());
                                }},
                      FaultCase{"Duplicate", sim::FaultKind::Duplicate,
                                [](const Bytes& reply, Chip& chip) {
                                    EXPECT_EQ(reply, kAttachOk);
                                    EXPECT_EQ(chip.idle(), kAttachOk);
                                }},
                      FaultCase{"Corrupt", sim::FaultKind::Corrupt,
                                [](const Bytes& reply, Chip&) {
                                    EXPECT_EQ(wire::frames(reply),
                                              (std::vector<std::optional<Bytes>>{std::nullopt}));
                                }},
                      FaultCase{"Truncate", sim::FaultKind::Truncate,
                                [](const Bytes& reply, Chip&) {
                                    EXPECT_FALSE(reply.empty());
                                    EXPECT_TRUE(wire::frames(reply).empty());
                                }},
                      FaultCase{"GarbageBefore", sim::FaultKind::GarbageBefore,
                                [](const Bytes& reply, Chip&) {
                                    EXPECT_NE(reply.front(), 0xC0);
                                    EXPECT_EQ(wire::only(reply, 2).op, kSpiAttach);
                                }},
                      FaultCase{"WrongOpcode", sim::FaultKind::WrongOpcode,
                                [](const Bytes& reply, Chip&) {
                                    EXPECT_NE(wire::only(reply, 2).op, kSpiAttach);
                                }},
                      FaultCase{"ErrorStatus", sim::FaultKind::ErrorStatus,
                                [](const Bytes& reply, Chip&) {
                                    const auto r = wire::only(reply, 2);
                                    EXPECT_EQ(r.status, 1);
                                    EXPECT_EQ(r.error, 0x09);
                                }}));

}  // namespace
