#include "LoaderFixture.h"
#include "tests/support/Records.h"

namespace {

using namespace records;
using testimg::pattern;
using testimg::stubImage;

class StubTest : public LoaderTest {
  protected:
    // The stub's greeting comes after MEM_END's answer, in a read of its own.
    void answerRom(const Bytes& greeting, size_t failAt = 0) {
        reply = [this, greeting, failAt](const Request& r) {
            if (r.op == esp::MEM_END) {
                pieces.push_back(slip::encode(greeting));
            }
            return response(r.op, 0, {}, r.op == esp::MEM_DATA && sent.size() == failAt, 7);
        };
    }
};

TEST_F(StubTest, UploadsSegmentsInRamBlocksThenSpeaksStubStatus) {
    const Bytes image = stubImage(6145, 8);
    answerRom({'O', 'H', 'A', 'I', 'x'});
    ASSERT_TRUE(loader.uploadStub(image.data(), image.size()));
    EXPECT_EQ(lines, Lines{"Stub: text=6145 @ 0x40380000 data=8 @ 0x3fc90000 entry=0x40380004"});
    ASSERT_EQ(sent.size(), 6u);
    EXPECT_EQ(sent[0].payload, words({6145, 2, 6144, 0x40380000}));
    EXPECT_EQ(sent[2].payload, (Bytes{1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x66}));
    EXPECT_EQ(sent[2].checksum, 0x89u);
    EXPECT_EQ(sent[3].payload, words({8, 1, 6144, 0x3FC90000}));
    EXPECT_EQ(sent[5].op, esp::MEM_END);
    EXPECT_EQ(sent[5].payload, words({0, 0x40380004}));
    EXPECT_TRUE(loader.stubRunning());
}

TEST_F(StubTest, FailuresLeaveTheStubStopped) {
    const Bytes empty = stubImage(0, 0);
    answerRom({'O', 'H', 'A', 'I'});
    ASSERT_TRUE(loader.uploadStub(empty.data(), empty.size()));
    EXPECT_EQ(sent.size(), 2u) << "an empty text is announced, empty data skipped";
    loader.hardReset();

    const Bytes image = stubImage(3 * 6144, 0);
    for (const Bytes& greeting : {Bytes{'O', 'H', 'A'}, Bytes{'O', 'H', 'A', 'J'}, Bytes{}}) {
        answerRom(greeting);
        EXPECT_FALSE(loader.uploadStub(image.data(), image.size()));
    }
    reply = [](const Request& r) { return response(r.op); };
    EXPECT_NEAR(elapsedMs([&] { loader.uploadStub(image.data(), image.size()); }), 5000, 20);

    sent.clear();
    lines.clear();
    Bytes overflowing = stubImage(100, 0);
    std::fill(overflowing.begin() + 4, overflowing.begin() + 8, 0xFF);
    EXPECT_FALSE(loader.uploadStub(image.data(), 19));
    EXPECT_FALSE(loader.uploadStub(image.data(), 110)) << "the text runs past the image";
    EXPECT_FALSE(loader.uploadStub(overflowing.data(), overflowing.size()));
    EXPECT_EQ(lines,
              (Lines{"Stub header parse failed (size=19)", "Stub header parse failed (size=110)",
                     "Stub header parse failed (size=120)"}));
    EXPECT_TRUE(sent.empty());
    answerRom({'O', 'H', 'A', 'I'}, 3);
    EXPECT_FALSE(loader.uploadStub(image.data(), image.size()));
    EXPECT_EQ(sent.size(), 3u);
    EXPECT_EQ(lines.back(), "ERROR: MEM_DATA status=1 error=7");
    EXPECT_FALSE(loader.stubRunning());
}

class FlashTest : public StubTest {
  protected:
    void SetUp() override {
        StubTest::SetUp();
        const Bytes stub = stubImage(16, 0);
        answerRom({'O', 'H', 'A', 'I'});
        ASSERT_TRUE(loader.uploadStub(stub.data(), stub.size()));
        sent.clear();
        lines.clear();
        progressCalls.clear();
        reply = [](const Request& r) { return response(r.op, 0, {}, 0, 0, 2); };
    }
};

// Every FLASH_DATA carries a whole block: its length word says 16384 and its
// checksum covers the 0xFF padding (16383 bytes of it, an odd count, in the last).
TEST_F(FlashTest, PadsTheLastBlockAndReportsProgressInSinglePrecision) {
    Bytes image(4 * 16384 + 1, 0x00);
    image[16384 + 7] = 0x42;
    image.back() = 0x24;
    ASSERT_TRUE(
        loader.flashImage(0x10000, image.data(), image.size(), recordProgress, 0.12f, 0.73f));
    EXPECT_EQ(lines, (Lines{"FLASH_BEGIN addr=0x00010000 size=65537 blocks=5 blockSize=16384",
                            "FLASH_BEGIN OK (erase complete)"}));
    ASSERT_EQ(sent.size(), 6u);
    EXPECT_EQ(sent[0].payload, words({65537, 5, 16384, 0x10000, 0}));
    const auto block = [](uint32_t sequence, uint8_t first, uint8_t rest) {
        Bytes payload = words({16384, sequence, 0, 0});
        payload.push_back(first);
        payload.resize(16 + 16384, rest);
        return payload;
    };
    EXPECT_EQ(sent[1].payload, block(0, 0x00, 0x00));
    EXPECT_EQ(sent[1].checksum, 0xEFu);
    EXPECT_EQ(sent[2].payload[16 + 7], 0x42);
    EXPECT_EQ(sent[2].checksum, 0xADu);
    EXPECT_EQ(sent[5].payload, block(4, 0x24, 0xFF));
    EXPECT_EQ(sent[5].checksum, 0x34u);
    // In double precision blocks 2 and 4 would report 0.412 and 0.703999996.
    const std::vector<std::pair<float, std::string>> expected = {{0.266000003f, "Flashing"},
                                                                 {0.41200003f, "Flashing"},
                                                                 {0.558000028f, "Flashing"},
                                                                 {0.704000056f, "Flashing"},
                                                                 {0.850000024f, "Flashing"}};
    EXPECT_EQ(progressCalls, expected);
}

TEST_F(FlashTest, AnEmptyImageOnlyBegins) {
    EXPECT_TRUE(loader.flashImage(0x8000, nullptr, 0, recordProgress, 0, 1));
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].payload, words({0, 0, 16384, 0x8000, 0}));
    EXPECT_TRUE(progressCalls.empty());
}

// Against silence every command gives up after its own time-out: the whole-chip
// erase is answered only when it has finished, so it waits longest.
TEST_F(FlashTest, EachCommandGivesUpAfterItsOwnTimeOut) {
    reply = [](const Request&) { return Bytes{}; };
    const auto expectSilence = [&](const std::function<bool()>& call, double ms,
                                   const Bytes& payload, const Lines& expected) {
        SCOPED_TRACE(expected.back());
        lines.clear();
        bool ok = true;
        EXPECT_NEAR(elapsedMs([&] { ok = call(); }), ms, 5);
        EXPECT_FALSE(ok);
        EXPECT_EQ(sent.back().payload, payload);
        EXPECT_EQ(lines, expected);
    };
    const Bytes abc = {'a', 'b', 'c'};
    expectSilence([&] { return loader.attachFlash(); }, 3000, words({0}),
                  {"SPI_ATTACH (default pins)", "NO RESPONSE: SPI_ATTACH", "SPI_ATTACH FAILED"});
    expectSilence([&] { return loader.flashEnd(); }, 3000, words({1}),
                  {"NO RESPONSE: FLASH_END", "FLASH_END FAILED"});
    expectSilence([&] { return loader.flashImage(0, nullptr, 0, nullptr, 0, 1); }, 10000,
                  words({0, 0, 16384, 0, 0}),
                  {"FLASH_BEGIN addr=0x00000000 size=0 blocks=0 blockSize=16384",
                   "NO RESPONSE: FLASH_BEGIN", "FLASH_BEGIN FAILED"});
    expectSilence([&] { return loader.eraseFlash(); }, 60000, {},
                  {"ERASE_FLASH (full chip erase)", "NO RESPONSE: CMD_0xD0", "ERASE_FLASH FAILED"});
    expectSilence([&] { return loader.verifyFlash(0x10000, abc.size(), abc.data()); }, 10000,
                  words({0x10000, 3, 0, 0}),
                  {"VERIFY addr=0x00010000 size=3", "NO RESPONSE: SPI_FLASH_MD5",
                   "VERIFY: MD5 command failed"});
    expectSilence([&] { return !loader.readFlash(0x8000, 3072).empty(); }, 3000,
                  words({0x8000, 3072, 16384, 1}), {"NO RESPONSE: READ_FLASH"});
}

// Only the first sixteen bytes of the stub's digest count.
TEST_F(FlashTest, VerifyComparesTheFirstSixteenDigestBytes) {
    const Bytes abc = {'a', 'b', 'c'};
    const Bytes local = {0x90, 0x01, 0x50, 0x98, 0x3c, 0xd2, 0x4f, 0xb0,
                         0xd6, 0x96, 0x3f, 0x7d, 0x28, 0xe1, 0x7f, 0x72};
    Bytes wrong = local;
    wrong[15] ^= 1;
    Bytes longer = local;
    longer.push_back(1);
    const std::pair<Bytes, std::string> cases[] = {
        {local, "VERIFY OK"},
        {longer, "VERIFY OK"},
        {wrong, "VERIFY MISMATCH"},
        {Bytes(15), "VERIFY: MD5 response too short (15 bytes)"},
        {Bytes(32, '0'), "VERIFY MISMATCH"},
    };
    for (const auto& [digest, last] : cases) {
        lines.clear();
        reply = [&digest = digest](const Request& r) { return response(r.op, 0, digest, 0, 0, 2); };
        EXPECT_EQ(loader.verifyFlash(0x10000, abc.size(), abc.data()), last == "VERIFY OK");
        EXPECT_EQ(lines.back(), last);
    }
    EXPECT_EQ(lines[2], "VERIFY flash_md5=30303030303030303030303030303030");
}

// Data frames until the size is reached, then a trailer frame that is waited for
// but not needed; a frame that never comes fails the read after 5 s.
TEST_F(FlashTest, ReadFlashGathersFramesAndWaitsForTheTrailer) {
    const Bytes flash = pattern(4096);
    const Bytes wanted(flash.begin(), flash.begin() + 3072);
    const struct {
        std::vector<size_t> frames;
        size_t size;
        Bytes result;
        double ms;
    } cases[] = {
        {{3072}, 3072, wanted, 1000},
        {{2048, 2048}, 3072, wanted, 1000},
        {{1024}, 3072, {}, 5000},
        {{}, 0, {}, 1000},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.frames));
        reply = [&](const Request& r) {
            for (size_t at = 0; const size_t size : c.frames) {
                pieces.push_back(
                    slip::encode(Bytes(flash.begin() + at, flash.begin() + at + size)));
                at += size;
            }
            return response(r.op, 0, {}, 0, 0, 2);
        };
        Bytes got;
        EXPECT_NEAR(elapsedMs([&] { got = loader.readFlash(0x8000, c.size); }), c.ms, 20);
        EXPECT_EQ(got, c.result);
    }
    EXPECT_TRUE(lines.empty());
}

}  // namespace
