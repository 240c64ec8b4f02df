#include <openssl/evp.h>

#include <algorithm>

#include "serial/Clock.h"
#include "sim/Loader.h"

namespace sim::detail {

namespace {

constexpr uint32_t kSectorSize = 4096;
constexpr uint32_t kAppOffset = 0x10000;

std::vector<uint8_t> hexText(const std::vector<uint8_t>& digest) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::vector<uint8_t> text;
    for (uint8_t b : digest) {
        text.push_back(kDigits[b >> 4]);
        text.push_back(kDigits[b & 0x0F]);
    }
    return text;
}

}  // namespace

std::vector<uint8_t> md5Digest(const uint8_t* data, size_t len) {
    std::vector<uint8_t> digest(EVP_MAX_MD_SIZE);
    unsigned int digestLen = 0;
    EVP_Digest(data, len, digest.data(), &digestLen, EVP_md5(), nullptr);
    digest.resize(digestLen);
    return digest;
}

Loader::Result Loader::eraseChip(const Request&) {
    d_.note("ERASE_FLASH");
    if (rom()) {
        return failure(kErrInvalid);
    }
    d_.beforeFlashChange();
    std::fill(d_.flash.begin(), d_.flash.end(), 0xFF);
    d_.files.clear();
    d_.fileSystemErased = true;
    chipErased_ = true;
    return answer(0, {}, d_.config.eraseDelayMs);
}

Loader::Result Loader::flashBegin(const Request& r) {
    if (r.size < 16) {
        d_.note("FLASH_BEGIN");
        return failure(kErrInvalid);
    }
    const uint32_t size = r.word(0);
    const uint32_t blockSize = r.word(2);
    const uint32_t address = r.word(3);
    d_.note("FLASH_BEGIN " + hex(address) + " " + std::to_string(size));
    if (blockSize == 0 || !inFlash(d_, address, size)) {
        return failure(kErrInvalid);
    }
    d_.beforeFlashChange();
    // Flash erases whole sectors, so the neighbours of an unaligned region go too.
    const size_t first = address / kSectorSize * kSectorSize;
    const size_t end = std::min<uint64_t>(
        d_.flash.size(), (uint64_t{address} + size + kSectorSize - 1) / kSectorSize * kSectorSize);
    std::fill(d_.flash.begin() + first, d_.flash.begin() + end, 0xFF);
    write_ = FlashWrite{address, 0};
    appBegun_ =
        appBegun_ || address == kAppOffset || (address < kAppOffset && kAppOffset - address < size);
    bootBegun_ = bootBegun_ || address == 0;
    return answer(0, {}, d_.config.flashBeginDelayMs);
}

Loader::Result Loader::flashData(const Request& r) {
    if (r.size < 16) {
        d_.note("FLASH_DATA");
        return failure(kErrInvalid);
    }
    const uint32_t length = r.word(0);
    const uint32_t seq = r.word(1);
    d_.note("FLASH_DATA " + std::to_string(seq));
    const int index = flashDataSeen_++;
    if (d_.config.goneAfterFlashData == index) {
        d_.loseLine();
        return std::nullopt;
    }
    if (!write_) {
        return failure(kErrFailed);
    }
    const uint8_t* data = r.payload + 16;
    if (length != r.size - 16 || seq != write_->nextSeq || !inFlash(d_, write_->next, length)) {
        return failure(kErrInvalid);
    }
    if (r.checksum != dataChecksum(data, length)) {
        return failure(kErrChecksum);
    }
    // NOR flash programming only clears bits; erased bytes take the data as is.
    uint8_t* target = d_.flash.data() + write_->next;
    for (uint32_t i = 0; i < length; ++i) {
        target[i] &= data[i];
    }
    if (d_.config.badFlashDataAt == index && length > 0) {
        target[length / 2] ^= 0x10;
    }
    write_->next += length;
    ++write_->nextSeq;
    if (d_.config.hangAfterFlashData == index + 1) {
        d_.hung = true;
    }
    return answer(0, {}, d_.config.flashBlockDelayMs);
}

Loader::Result Loader::flashEnd(const Request& r) {
    d_.note("FLASH_END");
    write_.reset();
    d_.loaderDone = true;
    d_.appFlashed = appBegun_;
    // Whatever kept the chip from starting lived in the flash: an erased chip with a
    // new bootloader and application starts as a healthy one does. A brown-out is
    // the power supply's, which no flash mends.
    if (chipErased_ && bootBegun_ && appBegun_ && d_.config.startup != Startup::Brownout) {
        d_.config.startup = Startup::Healthy;
    }
    d_.loaderDoneNs = mono::nowNs();
    // 0 asks the loader to reboot at once; otherwise the host resets the chip itself.
    const bool reboot = r.size >= 4 && r.word(0) == 0;
    d_.restartNs = d_.loaderDoneNs + (reboot ? 0 : kHardResetNs);
    if (reboot) {
        d_.mode = Mode::Console;
    } else {
        scheduleRestart();
    }
    return answer();
}

void Loader::scheduleRestart() {
    d_.outbox.scheduleAt(d_.restartNs, [this, frame = frames_] {
        const bool inLoader = d_.mode == Mode::RomLoader || d_.mode == Mode::Stub;
        if (frames_ == frame && d_.loaderDone && inLoader) {
            d_.mode = Mode::Console;
        }
        return std::vector<uint8_t>{};
    });
}

Loader::Result Loader::flashMd5(const Request& r) {
    if (r.size < 16) {
        d_.note("SPI_FLASH_MD5");
        return failure(kErrInvalid);
    }
    const uint32_t address = r.word(0);
    const uint32_t size = r.word(1);
    d_.note("SPI_FLASH_MD5 " + hex(address) + " " + std::to_string(size));
    const int index = md5Seen_++;
    if (d_.config.goneAtMd5 == index) {
        d_.loseLine();
        return std::nullopt;
    }
    if (!inFlash(d_, address, size)) {
        return failure(kErrInvalid);
    }
    std::vector<uint8_t> digest = md5Digest(d_.flash.data() + address, size);
    if (d_.config.wrongMd5At == index) {
        digest[0] ^= 0xFF;
    }
    // The ROM reports the digest as hexadecimal text, the stub as raw bytes.
    return answer(0, rom() ? hexText(digest) : digest, d_.config.md5DelayMs);
}

}  // namespace sim::detail
