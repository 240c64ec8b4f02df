#include <bit>
#include <functional>
#include <random>

#include "Campaign.h"
#include "esp/EspLoader.h"
#include "esp/Packet.h"
#include "tests/support/TestImages.h"

namespace reliability {
namespace {

using Rng = std::mt19937;
using Fault = std::function<std::string(sim::Config&, Rng&)>;

int pick(Rng& rng, int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(rng);
}

bool chance(Rng& rng, int percent) {
    return pick(rng, 1, 100) <= percent;
}

std::string responseFault(sim::Config& config, Rng& rng) {
    static constexpr uint8_t kOps[] = {esp::SYNC,       esp::GET_SECURITY_INFO, esp::READ_REG,
                                       esp::MEM_BEGIN,  esp::MEM_DATA,          esp::MEM_END,
                                       esp::SPI_ATTACH, esp::ERASE_FLASH,       esp::FLASH_BEGIN,
                                       esp::FLASH_DATA, esp::FLASH_END,         esp::SPI_FLASH_MD5};
    static const char* kKinds[] = {"drop",    "duplicate", "corrupt",     "truncate",
                                   "garbage", "wrong-op",  "error-status"};
    sim::ResponseFault fault;
    fault.kind = static_cast<sim::FaultKind>(pick(rng, 0, 6));
    fault.errorCode = static_cast<uint8_t>(pick(rng, 0, 255));
    std::string where = "any";
    if (chance(rng, 25)) {
        fault.occurrence = pick(rng, 0, 30);
    } else {
        fault.op = kOps[pick(rng, 0, std::size(kOps) - 1)];
        fault.occurrence = pick(rng, 0, *fault.op == esp::FLASH_DATA ? 6 : 2);
        where = esp::cmdName(*fault.op);
    }
    config.responseFaults.push_back(fault);
    return std::string(kKinds[static_cast<int>(fault.kind)]) + "@" + where + "#" +
           std::to_string(fault.occurrence);
}

/// Sets `field` to a value drawn from [low, high].
template <typename T>
Fault knob(T sim::Config::*field, const char* name, int low, int high) {
    return [=](sim::Config& c, Rng& r) {
        const int value = pick(r, low, high);
        c.*field = value;
        return std::string(name) + "=" + std::to_string(value);
    };
}

Fault flag(bool sim::Config::*field, bool value, const char* name) {
    return [=](sim::Config& c, Rng&) { return (c.*field = value, std::string(name)); };
}

using C = sim::Config;

// Faults of the loader side and of the console the job talks to after the reset.
const std::vector<Fault>& flashFaults() {
    static const std::vector<Fault> faults = {
        responseFault,
        responseFault,
        responseFault,
        flag(&C::silent, true, "silent"),
        knob(&C::syncFromAttempt, "syncFrom", 2, 32),
        knob(&C::syncReplies, "syncReplies", 0, 12),
        flag(&C::greeting, false, "noGreeting"),
        knob(&C::wrongMd5At, "wrongMd5At", 0, 3),
        knob(&C::badFlashDataAt, "badFlashDataAt", 0, 6),
        [](C& c, Rng& r) {
            static constexpr uint32_t kIds[] = {0, 2, 5, 0x1234};
            c.chipId = kIds[pick(r, 0, 3)];
            return "chipId=" + std::to_string(c.chipId);
        },
        [](C& c, Rng& r) {
            c.securityFuses = uint32_t{1} << pick(r, 0, 31);
            return "fuseBit=" + std::to_string(std::countr_zero(c.securityFuses));
        },
        knob(&C::goneAfterFlashData, "goneAfterFlashData", 0, 6),
        knob(&C::goneAtMd5, "goneAtMd5", 0, 3),
        knob(&C::hangAfterFlashData, "hangAfterFlashData", 1, 6),
        flag(&C::silentConsole, true, "silentConsole"),
        flag(&C::okBeforeVersion, true, "okBeforeVersion"),
        [](C& c, Rng& r) {
            static const char* kReports[] = {"", "2.10.6", "v2.10.6:x", "[VER:nested"};
            c.versionReport = kReports[pick(r, 0, 3)];
            return "report=" + c.versionReport;
        },
        knob(&C::frameGapMs, "gap", 0, 80),
        knob(&C::flashBeginDelayMs, "beginDelay", 0, 12000),
        knob(&C::flashBlockDelayMs, "blockDelay", 0, 11000),
        knob(&C::eraseDelayMs, "eraseDelay", 0, 70000),
        knob(&C::md5DelayMs, "md5Delay", 0, 11000),
        knob(&C::bootMs, "bootMs", 0, 6000),
        knob(&C::consoleDelayMs, "consoleDelay", 0, 3000),
    };
    return faults;
}

// Faults of the console and its XModem receiver.
const std::vector<Fault>& uploadFaults() {
    static const std::vector<Fault> faults = {
        flag(&C::xmodemCrc, false, "checksumMode"),
        flag(&C::xmodemHandshake, false, "noHandshake"),
        knob(&C::xmodemHandshakeTries, "handshakeTries", 0, 3),
        [](C& c, Rng& r) {
            c.xmodemJunk.resize(static_cast<size_t>(pick(r, 1, 40)));
            for (char& ch : c.xmodemJunk) {
                ch = static_cast<char>(pick(r, 0, 255));
            }
            return "junk=" + std::to_string(c.xmodemJunk.size());
        },
        [](C& c, Rng& r) {
            c.xmodemNakBlock = pick(r, 1, 5);
            c.xmodemNakTimes = pick(r, 1, 30);
            return "nakBlock=" + std::to_string(*c.xmodemNakBlock) + "x" +
                   std::to_string(c.xmodemNakTimes);
        },
        knob(&C::xmodemCanBlock, "canBlock", 1, 5),
        flag(&C::xmodemAckEot, false, "eotUnanswered"),
        knob(&C::goneAfterXModemBlocks, "goneAfterBlocks", 0, 5),
        flag(&C::silentConsole, true, "silentConsole"),
        flag(&C::silent, true, "silent"),
        flag(&C::okBeforeVersion, true, "okBeforeVersion"),
        knob(&C::handshakeFirstMs, "handshakeFirst", 0, 35000),
        knob(&C::handshakeIntervalMs, "handshakeEvery", 100, 3000),
        knob(&C::xmodemIdleTimeoutMs, "idleTimeout", 50, 6000),
        knob(&C::consoleDelayMs, "consoleDelay", 0, 3000),
        knob(&C::bootMs, "bootMs", 0, 3000),
    };
    return faults;
}

// One run in ten is healthy, so the campaign also shows that a good device passes.
// A small flash keeps the whole-chip erase and the simulator's set-up cheap.
std::vector<std::string> drawFaults(const std::vector<Fault>& menu, sim::Config& config, Rng& rng) {
    config.flashSize = 1024 * 1024;
    std::vector<std::string> drawn;
    const int count = chance(rng, 10) ? 0 : pick(rng, 1, 3);
    for (int i = 0; i < count; ++i) {
        drawn.push_back(menu[static_cast<size_t>(pick(rng, 0, int(menu.size()) - 1))](config, rng));
    }
    return drawn;
}

int64_t blocksOf(size_t size, size_t block) {
    return static_cast<int64_t>((size + block - 1) / block);
}

// Slack for the clock readings and read slices of the loops around the waits.
int64_t withSlack(int64_t ms) {
    return ms + ms / 10 + 1000;
}

}  // namespace

FlashScenario drawFlashScenario(uint32_t seed) {
    Rng rng(seed);
    FlashScenario s;
    s.fullFlash = chance(rng, 50);
    s.eraseAll = chance(rng, 25);
    s.withBootApp = chance(rng, 50);
    s.firmwareSize = static_cast<size_t>(pick(rng, 0, 3 * 16384 + 100));
    static const char* kExpected[] = {"", "v3.7.8", "2.10.6"};
    s.expectedVersion = kExpected[pick(rng, 0, 2)];
    s.faults = drawFaults(flashFaults(), s.config, rng);
    return s;
}

UploadScenario drawUploadScenario(uint32_t seed) {
    Rng rng(seed);
    UploadScenario s;
    s.file = testimg::pattern(static_cast<size_t>(pick(rng, 0, 5 * 1024 + 7)),
                              static_cast<uint8_t>(seed));
    // The receiver takes trailing 0x1A bytes for padding, as every XModem receiver must.
    if (!s.file.empty() && s.file.back() == 0x1A) {
        s.file.back() = '\n';
    }
    s.faults = drawFaults(uploadFaults(), s.config, rng);
    return s;
}

int64_t flashJobBoundMs(const esp::FlashRequest& request) {
    constexpr int64_t kReg = 3000, kMem = 3000, kFlash = 10000;
    int64_t ms = 500;                     // settle
    ms += 3 * (500 + 10 * 500 + 7 * 50);  // bootloader entries, SYNC attempts, drains
    ms += 2 * kReg;                       // chip id, fuses
    if (const auto header = esp::EspLoader::parseStubHeader(request.stub, request.stubLen)) {
        ms += kMem * (2 + blocksOf(header->textSize, esp::EspLoader::RAM_BLOCK));
        ms += kMem * (1 + blocksOf(header->dataSize, esp::EspLoader::RAM_BLOCK));
        ms += 5000;  // greeting
    }
    ms += 3000 + (request.eraseAll ? 60000 : 0);  // attach, erase
    for (const size_t size :
         {request.bootloaderLen, request.partitionsLen, request.bootAppLen, request.firmwareLen}) {
        ms += kFlash * (2 + blocksOf(size, esp::EspLoader::FLASH_BLOCK));  // begin, blocks, MD5
    }
    ms += 3000 + 200;                           // flash end, reset
    ms += 2000 + 3 * (1000 + 2000) + 2 * 1000;  // version confirmation with its drains
    return withSlack(ms);
}

int64_t uploadJobBoundMs(size_t length) {
    int64_t ms = 500 + 1000 + 2000;                  // settle, version query with its drain
    ms += 60000;                                     // drain after the receive command
    ms += 30 * 1000;                                 // handshake tries
    ms += (blocksOf(length, 1024) + 1) * 25 * 5000;  // blocks and EOT, 25 transmissions each
    ms += 5000 + 500;                                // acknowledgement, restart
    return withSlack(ms);
}

}  // namespace reliability
