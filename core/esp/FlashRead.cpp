#include <openssl/evp.h>

#include <algorithm>
#include <memory>

#include "EspLoader.h"
#include "FrameStream.h"
#include "Hex.h"
#include "Packet.h"

namespace esp {

namespace {

constexpr int kReadAnswerTimeoutMs = 3000;
constexpr int kReadPacketTimeoutMs = 5000;
constexpr size_t kDigestSize = 16;

using DigestContext = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;

std::string progressText(size_t done, size_t size) {
    return std::to_string(done) + " of " + std::to_string(size) + " bytes";
}

}  // namespace

ReadEnd EspLoader::readFlashAcknowledged(uint32_t address, size_t size, const ReadSink& sink,
                                         const ReadPacing& pacing) {
    std::vector<uint8_t> request;
    for (const uint32_t word :
         {address, static_cast<uint32_t>(size), pacing.packetSize, pacing.inFlight}) {
        packLE32(request, word);
    }
    if (!sendRequest(READ_FLASH, request, 0)) {
        return ReadEnd::refused;
    }
    // The stub sends its first packet right behind the answer, often in the same
    // read, so the answer comes through the stream that keeps what follows it.
    FrameStream stream(port_, std::max<size_t>(pacing.packetSize, kDigestSize));
    std::vector<uint8_t> answer;
    if (stream.next(answer, kReadAnswerTimeoutMs) != FrameStream::Status::frame) {
        answer.clear();
    }
    ReadEnd end = ReadEnd::refused;
    if (judgeResponse(READ_FLASH, answer).ok) {
        end = receiveRead(stream, size, sink, pacing);
    }
    readUnfinished_ = end != ReadEnd::done && end != ReadEnd::digestMismatch;
    return end;
}

ReadEnd EspLoader::receiveRead(FrameStream& stream, size_t size, const ReadSink& sink,
                               const ReadPacing& pacing) {
    const DigestContext digest(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    EVP_DigestInit_ex(digest.get(), EVP_md5(), nullptr);
    std::vector<uint8_t> packet;
    size_t received = 0;
    while (received < size) {
        const auto status = stream.next(packet, kReadPacketTimeoutMs);
        if (status == FrameStream::Status::timedOut) {
            log("READ_FLASH: no data for 5000 ms after " + progressText(received, size));
            return ReadEnd::noData;
        }
        const size_t expected = std::min<size_t>(pacing.packetSize, size - received);
        if (status == FrameStream::Status::corrupt || packet.size() > expected) {
            log("READ_FLASH: unreadable packet after " + progressText(received, size));
            return ReadEnd::broken;
        }
        EVP_DigestUpdate(digest.get(), packet.data(), packet.size());
        received += packet.size();
        std::vector<uint8_t> acknowledgement;
        packLE32(acknowledgement, static_cast<uint32_t>(received));
        if (!sendFrame(acknowledgement)) {
            log("READ_FLASH: acknowledgement not sent after " + progressText(received, size));
            return ReadEnd::broken;
        }
        if (!sink(packet.data(), packet.size())) {
            log("READ_FLASH: stopped after " + progressText(received, size));
            return ReadEnd::stopped;
        }
    }
    std::vector<uint8_t> local(EVP_MAX_MD_SIZE);
    unsigned int length = 0;
    EVP_DigestFinal_ex(digest.get(), local.data(), &length);
    const auto status = stream.next(packet, kReadPacketTimeoutMs);
    if (status == FrameStream::Status::timedOut) {
        log("READ_FLASH: no digest for 5000 ms after " + progressText(received, size));
        return ReadEnd::noData;
    }
    if (status == FrameStream::Status::corrupt || packet.size() != kDigestSize) {
        log("READ_FLASH: unreadable digest after " + progressText(received, size));
        return ReadEnd::broken;
    }
    if (!std::equal(packet.begin(), packet.end(), local.begin())) {
        log("READ_FLASH: MD5 mismatch (local " + hexBytes(local.data(), kDigestSize) + ", flash " +
            hexBytes(packet.data(), kDigestSize) + ")");
        return ReadEnd::digestMismatch;
    }
    return ReadEnd::done;
}

}  // namespace esp
