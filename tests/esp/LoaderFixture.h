#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "esp/EspLoader.h"
#include "esp/Packet.h"
#include "esp/Slip.h"
#include "serial/Clock.h"
#include "tests/support/TestImages.h"

using Bytes = std::vector<uint8_t>;
using Lines = std::vector<std::string>;
using testimg::words;

/// One request as the scripted device decoded it.
struct Request {
    uint8_t op = 0;
    uint32_t checksum = 0;
    Bytes payload;
};

/// An EspLoader over a loopback whose device the test scripts: `reply` answers each
/// request with raw bytes; `pieces` are handed out one per read of an empty queue.
class LoaderTest : public ::testing::Test {
  protected:
    void SetUp() override {
        port.openLoopback([this](const uint8_t* d, size_t n) { return onWrite(Bytes(d, d + n)); },
                          [this](int) { return pieces.empty() ? Bytes{} : takePiece(); },
                          [this](SerialPort::Line l, bool level) {
                              lineCalls.push_back({l, level});
                          });
    }

    /// A framed response with `statusBytes` status bytes (4 from the ROM, 2 from the stub).
    static Bytes response(uint8_t op, uint32_t value = 0, Bytes data = {}, uint8_t status = 0,
                          uint8_t error = 0, size_t statusBytes = 4) {
        const size_t size = data.size() + statusBytes;
        Bytes packet{0x01, op, static_cast<uint8_t>(size), static_cast<uint8_t>(size >> 8)};
        esp::packLE32(packet, value);
        packet.insert(packet.end(), data.begin(), data.end());
        packet.insert(packet.end(), {status, error});
        packet.resize(8 + size, 0);
        return slip::encode(packet);
    }

    /// Virtual milliseconds that `fn` took.
    static double elapsedMs(const std::function<void()>& fn) {
        const int64_t start = mono::nowNs();
        fn();
        return static_cast<double>(mono::nowNs() - start) / 1e6;
    }

    SerialPort port;
    Lines lines;
    esp::EspLoader loader{port, [this](const std::string& line) { lines.push_back(line); }};
    std::function<Bytes(const Request&)> reply = [](const Request&) { return Bytes{}; };
    std::vector<Request> sent;
    std::deque<Bytes> pieces;
    std::vector<std::pair<SerialPort::Line, bool>> lineCalls;

  private:
    Bytes onWrite(const Bytes& frame) {
        const auto packet = slip::decode(frame);
        EXPECT_TRUE(packet && packet->size() >= 8 && (*packet)[0] == 0x00 &&
                    esp::readLE16(*packet, 2) == packet->size() - 8);
        if (!packet || packet->size() < 8) {
            return {};
        }
        sent.push_back(
            {(*packet)[1], esp::readLE32(*packet, 4), Bytes(packet->begin() + 8, packet->end())});
        return reply(sent.back());
    }

    Bytes takePiece() {
        Bytes piece = std::move(pieces.front());
        pieces.pop_front();
        return piece;
    }
};
