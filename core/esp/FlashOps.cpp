#include <openssl/evp.h>

#include <algorithm>
#include <cstring>

#include "EspLoader.h"
#include "Hex.h"
#include "Packet.h"

namespace esp {

namespace {

constexpr int kAttachTimeoutMs = 3000;
// The whole-chip erase is answered only once it has finished.
constexpr int kEraseTimeoutMs = 60000;
// FLASH_BEGIN erases the region before it answers; blocks and MD5 are slow as well.
constexpr int kFlashTimeoutMs = 10000;
constexpr int kFlashEndTimeoutMs = 3000;
constexpr int kReadFlashTimeoutMs = 3000;
constexpr int kReadPacketTimeoutMs = 5000;
constexpr int kReadTrailerTimeoutMs = 1000;
constexpr size_t kDigestSize = 16;
constexpr uint32_t kReadPacketsInFlight = 1;

std::vector<uint8_t> words(std::initializer_list<uint32_t> values) {
    std::vector<uint8_t> payload;
    payload.reserve(values.size() * 4);
    for (const uint32_t value : values) {
        packLE32(payload, value);
    }
    return payload;
}

const char* okText(bool ok) {
    return ok ? "OK" : "FAILED";
}

}  // namespace

bool EspLoader::attachFlash() {
    log("SPI_ATTACH (default pins)");
    const bool ok = sendCommand(SPI_ATTACH, words({0}), 0, kAttachTimeoutMs).ok;
    log(std::string("SPI_ATTACH ") + okText(ok));
    return ok;
}

bool EspLoader::eraseFlash() {
    log("ERASE_FLASH (full chip erase)");
    const bool ok = sendCommand(ERASE_FLASH, {}, 0, kEraseTimeoutMs).ok;
    log(std::string("ERASE_FLASH ") + okText(ok));
    return ok;
}

bool EspLoader::flashImage(uint32_t address, const uint8_t* data, size_t size, ProgressFn progress,
                           float progressBase, float progressScale) {
    const auto blocks = static_cast<uint32_t>((size + FLASH_BLOCK - 1) / FLASH_BLOCK);
    log("FLASH_BEGIN addr=" + hexStr(address) + " size=" + std::to_string(size) +
        " blocks=" + std::to_string(blocks) + " blockSize=" + std::to_string(FLASH_BLOCK));
    const auto begin =
        words({static_cast<uint32_t>(size), blocks, FLASH_BLOCK, address, uint32_t{0}});
    if (!sendCommand(FLASH_BEGIN, begin, 0, kFlashTimeoutMs).ok) {
        log("FLASH_BEGIN FAILED");
        return false;
    }
    log("FLASH_BEGIN OK (erase complete)");
    std::vector<uint8_t> block(FLASH_BLOCK);
    for (uint32_t seq = 0; seq < blocks; ++seq) {
        const size_t offset = size_t{seq} * FLASH_BLOCK;
        const size_t length = std::min<size_t>(size - offset, FLASH_BLOCK);
        // The stub writes whole blocks, so the tail is padded with erased-flash bytes.
        std::memcpy(block.data(), data + offset, length);
        std::fill(block.begin() + static_cast<std::ptrdiff_t>(length), block.end(), 0xFF);
        if (!sendCommand(FLASH_DATA, buildDataPacket(block.data(), FLASH_BLOCK, seq),
                         calculateChecksum(block), kFlashTimeoutMs)
                 .ok) {
            return false;
        }
        if (progress != nullptr) {
            const float done = static_cast<float>(seq + 1) / static_cast<float>(blocks);
            progress(progressBase + progressScale * done, "Flashing");
        }
    }
    return true;
}

bool EspLoader::flashEnd() {
    // 1 keeps the device in the loader; the restart is hardReset's.
    const bool ok = sendCommand(FLASH_END, words({1}), 0, kFlashEndTimeoutMs).ok;
    log(std::string("FLASH_END ") + okText(ok));
    return ok;
}

bool EspLoader::verifyFlash(uint32_t address, size_t size, const uint8_t* data) {
    log("VERIFY addr=" + hexStr(address) + " size=" + std::to_string(size));
    const std::vector<uint8_t> local = md5(data, size);
    const auto request = words({address, static_cast<uint32_t>(size), 0, 0});
    const CommandResult result = sendCommand(SPI_FLASH_MD5, request, 0, kFlashTimeoutMs);
    if (!result.ok) {
        log("VERIFY: MD5 command failed");
        return false;
    }
    if (result.data.size() < kDigestSize) {
        log("VERIFY: MD5 response too short (" + std::to_string(result.data.size()) + " bytes)");
        return false;
    }
    log("VERIFY local_md5=" + hexBytes(local.data(), kDigestSize));
    log("VERIFY flash_md5=" + hexBytes(result.data.data(), kDigestSize));
    const bool same = std::equal(local.begin(), local.end(), result.data.begin());
    log(std::string("VERIFY ") + (same ? "OK" : "MISMATCH"));
    return same;
}

std::vector<uint8_t> EspLoader::md5(const uint8_t* data, size_t size) {
    std::vector<uint8_t> digest(kDigestSize);
    unsigned int length = 0;
    EVP_Digest(data, size, digest.data(), &length, EVP_md5(), nullptr);
    return digest;
}

std::vector<uint8_t> EspLoader::readFlash(uint32_t address, size_t size) {
    const auto request =
        words({address, static_cast<uint32_t>(size), FLASH_BLOCK, kReadPacketsInFlight});
    if (!sendCommand(READ_FLASH, request, 0, kReadFlashTimeoutMs).ok) {
        return {};
    }
    std::vector<uint8_t> result;
    result.reserve(size);
    size_t remaining = size;
    while (remaining > 0) {
        // Data packets are bare frames of raw flash bytes, not response packets.
        const std::vector<uint8_t> packet = receiveFrame(kReadPacketTimeoutMs);
        if (packet.empty()) {
            return {};
        }
        result.insert(result.end(), packet.begin(), packet.end());
        if (packet.size() >= remaining) {
            break;
        }
        remaining -= packet.size();
    }
    // The stub follows the data with one more frame (a digest of what it sent); unused here.
    receiveFrame(kReadTrailerTimeoutMs);
    result.resize(size);
    return result;
}

}  // namespace esp
