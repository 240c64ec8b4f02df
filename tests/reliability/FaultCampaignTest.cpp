#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "api/Jobs.h"
#include "esp/Packet.h"
#include "serial/Clock.h"
#include "sim/PlotterLoopback.h"
#include "tests/support/Descriptors.h"
#include "tests/support/Records.h"
#include "tests/support/TestImages.h"
#include "tests/support/VirtualTime.h"

// Random faults against the simulated plotter, over loopback in virtual time. Every
// run draws its faults from a seed derived from its index; a failure names the seed,
// and drawing from that seed again replays the run.
namespace {

using Rng = std::mt19937;
using Fault = std::function<std::string(sim::Config&, Rng&)>;
using C = sim::Config;
using namespace records;

int pick(Rng& rng, int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(rng);
}

bool chance(Rng& rng, int percent) {
    return pick(rng, 1, 100) <= percent;
}

std::string responseFault(C& config, Rng& rng) {
    static constexpr uint8_t kOps[] = {esp::SYNC,       esp::GET_SECURITY_INFO, esp::READ_REG,
                                       esp::MEM_BEGIN,  esp::MEM_DATA,          esp::MEM_END,
                                       esp::SPI_ATTACH, esp::ERASE_FLASH,       esp::FLASH_BEGIN,
                                       esp::FLASH_DATA, esp::FLASH_END,         esp::SPI_FLASH_MD5};
    sim::ResponseFault fault;
    fault.kind = static_cast<sim::FaultKind>(pick(rng, 0, 6));
    fault.errorCode = static_cast<uint8_t>(pick(rng, 0, 255));
    if (!chance(rng, 25)) {
        fault.op = kOps[pick(rng, 0, std::size(kOps) - 1)];
    }
    fault.occurrence = pick(rng, 0, !fault.op ? 30 : fault.op == esp::FLASH_DATA ? 6 : 2);
    config.responseFaults.push_back(fault);
    return "fault" + std::to_string(static_cast<int>(fault.kind)) + "@" +
           (fault.op ? esp::cmdName(*fault.op) : "any") + "#" + std::to_string(fault.occurrence);
}

/// Sets `field` to a value drawn from [low, high].
template <typename T>
Fault knob(T C::*field, const char* name, int low, int high) {
    return [=](C& c, Rng& r) {
        const int value = pick(r, low, high);
        c.*field = value;
        return std::string(name) + "=" + std::to_string(value);
    };
}

/// Sets `field` to one of `values`.
template <typename T>
Fault oneOf(T C::*field, const char* name, std::vector<T> values) {
    return [=](C& c, Rng& r) {
        c.*field = values[static_cast<size_t>(pick(r, 0, static_cast<int>(values.size()) - 1))];
        return std::string(name) + "=" + ::testing::PrintToString(c.*field);
    };
}

Fault flag(bool C::*field, bool value, const char* name) {
    return [=](C& c, Rng&) { return (c.*field = value, std::string(name)); };
}

std::string fuseFault(C& c, Rng& r) {
    c.securityFuses = uint32_t{1} << pick(r, 0, 31);
    return "fuseBit=" + std::to_string(std::countr_zero(c.securityFuses));
}

std::string junkFault(C& c, Rng& r) {
    c.xmodemJunk.resize(static_cast<size_t>(pick(r, 1, 40)));
    for (char& ch : c.xmodemJunk) {
        ch = static_cast<char>(pick(r, 0, 255));
    }
    return "junk=" + std::to_string(c.xmodemJunk.size());
}

std::string nakFault(C& c, Rng& r) {
    c.xmodemNakBlock = pick(r, 1, 5);
    c.xmodemNakTimes = pick(r, 1, 30);
    return "nakBlock=" + std::to_string(*c.xmodemNakBlock) + "x" + std::to_string(c.xmodemNakTimes);
}

template <typename... Draw>
std::vector<Fault> menu(Draw... draws) {
    return {Fault(draws)...};
}

// Faults of the loader side and of the console the job talks to after the reset.
const std::vector<Fault> kFlashFaults =
    menu(responseFault, responseFault, responseFault, flag(&C::silent, true, "silent"),
         knob(&C::syncFromAttempt, "syncFrom", 2, 32), knob(&C::syncReplies, "syncReplies", 0, 12),
         flag(&C::greeting, false, "noGreeting"), knob(&C::wrongMd5At, "wrongMd5At", 0, 3),
         knob(&C::badFlashDataAt, "badFlashDataAt", 0, 6),
         oneOf(&C::chipId, "chipId", {0, 2, 5, 0x1234}), fuseFault,
         knob(&C::goneAfterFlashData, "goneAfterFlashData", 0, 6),
         knob(&C::goneAtMd5, "goneAtMd5", 0, 3),
         knob(&C::hangAfterFlashData, "hangAfterFlashData", 1, 6),
         flag(&C::silentConsole, true, "silentConsole"),
         flag(&C::okBeforeVersion, true, "okBeforeVersion"),
         oneOf(&C::versionReport, "report", {"", "2.10.6", "v2.10.6:x", "[VER:nested"}),
         knob(&C::frameGapMs, "gap", 0, 80), knob(&C::flashBeginDelayMs, "beginDelay", 0, 12000),
         knob(&C::flashBlockDelayMs, "blockDelay", 0, 11000),
         knob(&C::eraseDelayMs, "eraseDelay", 0, 70000), knob(&C::md5DelayMs, "md5Delay", 0, 11000),
         knob(&C::bootMs, "bootMs", 0, 6000), knob(&C::consoleDelayMs, "consoleDelay", 0, 3000));

// Faults of the console and its XModem receiver.
const std::vector<Fault> kUploadFaults = menu(
    flag(&C::xmodemCrc, false, "checksumMode"), flag(&C::xmodemHandshake, false, "noHandshake"),
    knob(&C::xmodemHandshakeTries, "handshakeTries", 0, 3), junkFault, nakFault,
    knob(&C::xmodemCanBlock, "canBlock", 1, 5), flag(&C::xmodemAckEot, false, "eotUnanswered"),
    knob(&C::goneAfterXModemBlocks, "goneAfterBlocks", 0, 5),
    flag(&C::silentConsole, true, "silentConsole"), flag(&C::silent, true, "silent"),
    flag(&C::okBeforeVersion, true, "okBeforeVersion"),
    knob(&C::handshakeFirstMs, "handshakeFirst", 0, 35000),
    knob(&C::handshakeIntervalMs, "handshakeEvery", 100, 3000),
    knob(&C::xmodemIdleTimeoutMs, "idleTimeout", 50, 6000),
    knob(&C::consoleDelayMs, "consoleDelay", 0, 3000), knob(&C::bootMs, "bootMs", 0, 3000));

// One run in ten is healthy, so the campaign also shows that a good device passes.
// A small flash keeps the whole-chip erase and the simulator's set-up cheap.
std::string drawFaults(const std::vector<Fault>& menu, C& config, Rng& rng) {
    config.flashSize = 1024 * 1024;
    std::string drawn;
    for (int i = chance(rng, 10) ? 3 : pick(rng, 0, 2); i < 3; ++i) {
        drawn += " " + menu[static_cast<size_t>(pick(rng, 0, int(menu.size()) - 1))](config, rng);
    }
    return drawn;
}

int64_t blocksOf(size_t size, size_t block) {
    return static_cast<int64_t>((size + block - 1) / block);
}

// The longest a job may take when every exchange runs into its time-out, with slack
// for the read slices around the waits: generous, but finite.
int64_t withSlack(int64_t ms) {
    return ms + ms / 10 + 1000;
}

int64_t flashJobBoundMs(const esp::FlashRequest& r) {
    // Settle, three bootloader entries of ten SYNCs and seven drains, chip id and
    // fuses, the campaign's stub (six RAM commands and the greeting), attach.
    int64_t ms = 500 + 3 * (500 + 10 * 500 + 7 * 50) + 2 * 3000 + 6 * 3000 + 5000 + 3000;
    ms += r.eraseAll ? 60000 : 0;
    for (const size_t size : {r.bootloaderLen, r.partitionsLen, r.bootAppLen, r.firmwareLen}) {
        ms += 10000 * (2 + blocksOf(size, 16384));  // begin, blocks, MD5
    }
    return withSlack(ms + 3000 + 200 + 2000 + 3 * (1000 + 2000) + 2 * 1000);
}

int64_t uploadJobBoundMs(size_t length) {
    // Settle and query, the drain after the command, 30 handshake tries, 25 tries of
    // every block and of EOT, the acknowledgement and the restart.
    return withSlack(3500 + 60000 + 30000 + (blocksOf(length, 1024) + 1) * 25 * 5000 + 5500);
}

// The job's last line names the cause of its non-zero code.
bool explainsFailure(const std::vector<std::string>& lines, unsigned code) {
    static const std::map<unsigned, std::vector<std::string>> kCauses = {
        {3, {"Sync failed after all retries"}},
        {4, {"Wrong chip!", "ABORTED:"}},
        {5, {"Stub upload failed"}},
        {6,
         {"Flash erase failed", "FLASH_BEGIN FAILED", "SEND FAIL: FLASH_DATA",
          "NO RESPONSE: FLASH_DATA", "PARSE FAIL: FLASH_DATA", "CMD MISMATCH: sent FLASH_DATA",
          "ERROR: FLASH_DATA"}},
        {7, {"VERIFY MISMATCH", "VERIFY: MD5 command failed", "VERIFY: MD5 response too short ("}}};
    const auto causes = kCauses.find(code);
    return !lines.empty() && causes != kCauses.end() &&
           std::any_of(causes->second.begin(), causes->second.end(),
                       [&](const std::string& cause) { return lines.back().starts_with(cause); });
}

/// Runs `runs` seeds from `seedBase`. Each run draws faults from `menu` for a fresh
/// plotter on a loopback port; `run` then draws its request, runs the job, checks it
/// and returns its code. A healthy plotter must never fail, and every code in `codes`
/// must occur. Stops after the first failed run. No run, good or bad, may leave
/// anything behind: no descriptor, and no heap that grows with the number of runs (a
/// leak of one job's buffers, KiB each, over hundreds of runs would not fit).
void campaign(int runs, uint32_t seedBase, const std::vector<Fault>& menu,
              const std::set<unsigned>& codes,
              const std::function<unsigned(Rng&, sim::Plotter&, SerialPort&)>& run) {
    std::set<unsigned> outcomes;
    const size_t descriptors = fdcheck::openDescriptorCount();
    size_t heapAfterWarmUp = 0;
    for (int i = 0; i < runs && !::testing::Test::HasFailure(); ++i) {
        heapAfterWarmUp = i == runs / 10 ? fdcheck::heapInUse() : heapAfterWarmUp;
        const uint32_t seed = seedBase + static_cast<uint32_t>(i);
        Rng rng(seed);
        C config;
        const std::string faults = drawFaults(menu, config, rng);
        SCOPED_TRACE(testing::Message() << "seed 0x" << std::hex << seed << ", faults:" << faults);
        sim::Plotter plotter(config);
        SerialPort port;
        sim::connectLoopback(plotter, port);
        clearRecords();
        const unsigned code = run(rng, plotter, port);
        EXPECT_TRUE(code == 0 || !faults.empty()) << "a healthy device failed";
        outcomes.insert(code);
    }
    EXPECT_EQ(outcomes, codes) << "results the runs ended with";
    EXPECT_EQ(fdcheck::openDescriptorCount(), descriptors);
    EXPECT_LE(fdcheck::heapInUse(), heapAfterWarmUp + 64 * 1024);
}

TEST(FaultCampaign, FlashingJobKeepsItsPromisesUnderRandomFaults) {
    const auto bootloader = testimg::pattern(20000, 2);
    const auto partitions = testimg::pattern(3072, 3);
    const auto bootApp = testimg::pattern(8192, 4);
    const auto stub = testimg::stubImage(7000, 20);
    campaign(
        1000, 0xF1A50000, kFlashFaults, {0, 3, 4, 5, 6, 7},
        [&](Rng& rng, auto& plotter, SerialPort& port) {
            auto firmware = testimg::pattern(static_cast<size_t>(pick(rng, 0, 3 * 16384 + 100)),
                                             static_cast<uint8_t>(rng()));
            auto request = testimg::flashRequest(firmware, bootloader, partitions, stub);
            request.fullFlash = chance(rng, 50);
            request.eraseAll = chance(rng, 25);
            const bool withBootApp = chance(rng, 50);
            request.bootApp = withBootApp ? bootApp.data() : nullptr;
            request.bootAppLen = withBootApp ? bootApp.size() : 0;
            static const char* kExpected[] = {"", "v3.7.8", "2.10.6"};
            request.expectedVersion = kExpected[pick(rng, 0, 2)];
            const int64_t startNs = mono::nowNs();
            const esp_error_t code = esp::runFlashJob(port, request, recordProgress, recordLog);

            EXPECT_TRUE(code == 0 || (code >= 3 && code <= 7)) << "result " << code;
            EXPECT_LE(virtualMsSince(startNs), flashJobBoundMs(request)) << "virtual ms";
            const auto holds = [&](uint32_t address, const std::vector<uint8_t>& bytes) {
                return std::equal(bytes.begin(), bytes.end(), plotter.flash().begin() + address);
            };
            if (code == 0) {
                EXPECT_TRUE(!request.fullFlash ||
                            (holds(0x0, bootloader) && holds(0x8000, partitions)));
                EXPECT_TRUE(!withBootApp || holds(0xE000, bootApp));
                EXPECT_TRUE(holds(0x10000, firmware));
            } else {
                EXPECT_TRUE(explainsFailure(logLines, code))
                    << "result " << code << " after \"" << (logLines.empty() ? "" : logLines.back())
                    << "\"";
            }
            return code;
        });
}

TEST(FaultCampaign, ConfigurationUploadKeepsItsPromisesUnderRandomFaults) {
    campaign(
        400, 0xC0F10000, kUploadFaults, {0, 8}, [&](Rng& rng, auto& plotter, SerialPort& port) {
            auto file = testimg::pattern(static_cast<size_t>(pick(rng, 0, 5 * 1024 + 7)),
                                         static_cast<uint8_t>(rng()));
            // The receiver takes trailing 0x1A bytes for padding, as every XModem receiver must.
            if (!file.empty() && file.back() == 0x1A) {
                file.back() = '\n';
            }
            const int64_t startNs = mono::nowNs();
            const esp_error_t code =
                esp::runUploadConfigJob(port, file.data(), file.size(), recordProgress);

            EXPECT_TRUE(code == 0 || code == 8) << "result " << code;
            EXPECT_LE(virtualMsSince(startNs), uploadJobBoundMs(file.size())) << "virtual ms";
            for (const auto& [fraction, stage] : progressCalls) {
                EXPECT_TRUE(stage == "Uploading config file..." ||
                            stage == "XModem: no handshake received (30s timeout)")
                    << "undefined stage: \"" << stage << "\"";
            }
            if (code == 0) {
                EXPECT_EQ(plotter.storedConfig(), std::optional(file)) << "success, file not whole";
            }
            return code;
        });
}

}  // namespace
