#include <gtest/gtest.h>

#include "Chip.h"
#include "serial/Clock.h"

namespace {

using wire::Bytes;

constexpr uint8_t kAck = 0x06;
constexpr uint8_t kNak = 0x15;
constexpr uint8_t kCan = 0x18;

uint16_t crc16(const uint8_t* data, size_t len) {
    uint16_t crc = 0;
    for (size_t i = 0; i < len; ++i) {
        for (int bit = 7; bit >= 0; --bit) {
            const bool feedback = ((crc >> 15) ^ (data[i] >> bit)) & 1;
            crc = static_cast<uint16_t>((crc << 1) ^ (feedback ? 0x1021 : 0));
        }
    }
    return crc;
}

// One 1024-byte XModem block of `file` starting at `offset`, padded with 0x1A.
Bytes block(const Bytes& file, size_t offset, uint8_t number, bool crc) {
    Bytes data(1024, 0x1A);
    std::copy(file.begin() + offset, file.begin() + std::min(file.size(), offset + 1024),
              data.begin());
    Bytes out{0x02, number, static_cast<uint8_t>(0xFF - number)};
    out.insert(out.end(), data.begin(), data.end());
    if (crc) {
        const uint16_t c = crc16(data.data(), data.size());
        out.push_back(static_cast<uint8_t>(c >> 8));
        out.push_back(static_cast<uint8_t>(c));
    } else {
        uint8_t sum = 0;
        for (uint8_t b : data) {
            sum = static_cast<uint8_t>(sum + b);
        }
        out.push_back(sum);
    }
    return out;
}

Bytes yaml(size_t size) {
    Bytes file(size);
    for (size_t i = 0; i < size; ++i) {
        file[i] = static_cast<uint8_t>("name: plotter\n"[i % 14]);
    }
    return file;
}

// Starts the receiver and returns its first handshake byte(s).
Bytes startReceive(Chip& chip) {
    const std::string line = wire::str(chip.send("$Xmodem/Receive=config.yaml\n"));
    EXPECT_NE(line.find("\r\n"), std::string::npos);
    EXPECT_EQ(chip.plotter.mode(), sim::Mode::XModem);
    EXPECT_TRUE(chip.idle(500).empty()) << "a sender draining for 500 ms must not lose it";
    return chip.idle(1000);
}

TEST(SimConsole, CrcSelfCheck) {
    const Bytes digits = wire::text("123456789");
    EXPECT_EQ(crc16(digits.data(), digits.size()), 0x31C3);
}

struct VersionCase {
    const char* name;
    friend void PrintTo(const VersionCase& c, std::ostream* os) { *os << c.name; }
    std::function<void(sim::Config&)> setup;
    std::string reply;
};

class SimVersionQuery : public ::testing::TestWithParam<VersionCase> {};

TEST_P(SimVersionQuery, AnswersWithCrLfLines) {
    sim::Config config;
    GetParam().setup(config);
    Chip chip(config);
    EXPECT_EQ(wire::str(chip.send("$I\n")), GetParam().reply);
    EXPECT_EQ(chip.plotter.transcript(), std::vector<std::string>{"$I"});
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SimVersionQuery,
    ::testing::Values(VersionCase{"Default", [](auto&) {},
                                  "[VER:FluidNC v3.7.8 (sim):]\r\n[OPT:V,15,128]\r\nok\r\n"},
                      VersionCase{"Empty", [](auto& c) { c.versionReport = ""; },
                                  "[VER::]\r\n[OPT:V,15,128]\r\nok\r\n"},
                      VersionCase{"OkFirst", [](auto& c) { c.okBeforeVersion = true; },
                                  "ok\r\n[VER:FluidNC v3.7.8 (sim):]\r\n[OPT:V,15,128]\r\nok\r\n"},
                      VersionCase{"Silent", [](auto& c) { c.silentConsole = true; }, ""}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(SimConsole, SwitchesModesByWhatArrivesAndReportsTheFlashedVersion) {
    sim::Config config;
    config.bootMs = 1000;
    Chip chip(config);
    chip.startStub();
    EXPECT_TRUE(chip.send("$I\n").empty()) << "console text before FLASH_END is noise";
    EXPECT_EQ(chip.plotter.mode(), sim::Mode::Stub);

    Bytes image(4096, 0xFF);
    const Bytes descriptor = wire::words({0xABCD5432});
    std::copy(descriptor.begin(), descriptor.end(), image.begin() + 32);
    const std::string version = "2.10.6";
    std::copy(version.begin(), version.end(), image.begin() + 48);
    image[48 + version.size()] = 0;
    chip.command(kFlashBegin, wire::words({4096, 1, 4096, 0x10000, 0}));
    chip.command(kFlashData, wire::dataPayload(image, 0), wire::checksum(image));
    chip.command(kFlashEnd, wire::words({1}));

    EXPECT_TRUE(chip.send("$I\n").empty()) << "still booting";
    EXPECT_EQ(chip.plotter.mode(), sim::Mode::Console);
    mono::sleepMs(1000);
    EXPECT_EQ(wire::str(chip.send("$I\n")).substr(0, 16), "[VER:2.10.6:]\r\n[");

    EXPECT_EQ(wire::only(chip.command(kSync, syncPayload()), 4).op, kSync);
    EXPECT_EQ(chip.plotter.mode(), sim::Mode::RomLoader) << "a frame means the host reset the chip";
}

TEST(SimXModem, ReceivesCrcBlocksAndStoresTheExactFile) {
    Chip chip;
    EXPECT_EQ(startReceive(chip), Bytes{'C'});
    const Bytes file = yaml(1030);
    EXPECT_EQ(chip.send(block(file, 0, 1, true)), Bytes{kAck});
    EXPECT_EQ(chip.send(block(file, 1024, 2, true)), Bytes{kAck});
    EXPECT_EQ(chip.send(Bytes{0x04}), Bytes{kAck});
    EXPECT_EQ(chip.plotter.storedConfig(), file);
    EXPECT_EQ(chip.plotter.mode(), sim::Mode::Console);
    EXPECT_NE(wire::str(chip.idle()).find("ok\r\n"), std::string::npos);
    const auto& t = chip.plotter.transcript();
    EXPECT_EQ(std::vector<std::string>(t.end() - 3, t.end()),
              (std::vector<std::string>{"XMODEM 1", "XMODEM 2", "EOT"}));
}

TEST(SimXModem, ChecksumModeRefusesABadBlockAndTakesItsRepeat) {
    sim::Config config;
    config.xmodemCrc = false;
    Chip chip(config);
    EXPECT_EQ(startReceive(chip), Bytes{kNak});
    const Bytes file = yaml(1024);
    Bytes bad = block(file, 0, 1, false);
    bad.back() ^= 1;
    EXPECT_EQ(chip.send(bad), Bytes{kNak});
    EXPECT_EQ(chip.send(block(file, 0, 1, false)), Bytes{kAck});
    EXPECT_EQ(chip.send(block(file, 0, 1, false)), Bytes{kAck}) << "a repeat after a lost ACK";
    EXPECT_EQ(chip.send(Bytes{0x04}), Bytes{kAck});
    EXPECT_EQ(chip.plotter.storedConfig(), file);
}

struct XModemFault {
    const char* name;
    friend void PrintTo(const XModemFault& c, std::ostream* os) { *os << c.name; }
    std::function<void(sim::Config&)> setup;
    std::vector<Bytes> answers;  // to block 1, block 2 three times, EOT, as far as listed
    bool stored;
};

class SimXModemFault : public ::testing::TestWithParam<XModemFault> {};

TEST_P(SimXModemFault, AnswersAsConfigured) {
    sim::Config config;
    GetParam().setup(config);
    Chip chip(config);
    startReceive(chip);
    const Bytes file = yaml(2000);
    const std::vector<Bytes> steps{block(file, 0, 1, true), block(file, 1024, 2, true),
                                   block(file, 1024, 2, true), block(file, 1024, 2, true),
                                   Bytes{0x04}};
    std::vector<Bytes> answers;
    for (size_t i = 0; i < GetParam().answers.size(); ++i) {
        answers.push_back(chip.send(steps[i]));
    }
    EXPECT_EQ(answers, GetParam().answers);
    EXPECT_EQ(chip.plotter.storedConfig().has_value(), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(Cases, SimXModemFault,
                         ::testing::Values(XModemFault{"NakTwice",
                                                       [](auto& c) {
                                                           c.xmodemNakBlock = 2;
                                                           c.xmodemNakTimes = 2;
                                                       },
                                                       {{kAck}, {kNak}, {kNak}, {kAck}, {kAck}},
                                                       true},
                                           XModemFault{"Cancel",
                                                       [](auto& c) { c.xmodemCanBlock = 2; },
                                                       {{kAck}, {kCan, kCan}},
                                                       false},
                                           XModemFault{"EotRefused",
                                                       [](auto& c) { c.xmodemAckEot = false; },
                                                       {{kAck}, {kAck}, {kAck}, {kAck}, {kNak}},
                                                       false},
                                           XModemFault{"LineLost",
                                                       [](auto& c) { c.goneAfterXModemBlocks = 1; },
                                                       {{kAck}, {}, {}, {}, {}},
                                                       false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(SimXModem, HandshakesAboutOnceASecondWithJunkFirstAndGivesUp) {
    sim::Config config;
    config.xmodemJunk = "zz";
    config.xmodemHandshakeTries = 3;
    Chip chip(config);
    EXPECT_EQ(startReceive(chip), (Bytes{'z', 'z', 'C'}));
    EXPECT_EQ(chip.idle(1000), Bytes{'C'});
    EXPECT_EQ(chip.idle(1000), Bytes{'C'});
    EXPECT_TRUE(chip.idle(5000).empty());
    EXPECT_EQ(chip.plotter.mode(), sim::Mode::Console);
}

}  // namespace
