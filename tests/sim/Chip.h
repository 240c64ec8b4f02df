#pragma once

#include <utility>

#include "Wire.h"
#include "sim/Plotter.h"

// A plotter driven byte by byte, as a host would over the loopback.
struct Chip {
    explicit Chip(sim::Config config = {}) : plotter(std::move(config)) {}

    wire::Bytes send(const wire::Bytes& bytes) {
        return plotter.onHostBytes(bytes.data(), bytes.size());
    }
    wire::Bytes send(const std::string& text) { return send(wire::text(text)); }
    wire::Bytes command(uint8_t op, const wire::Bytes& payload, uint32_t sum = 0) {
        return send(wire::request(op, payload, sum));
    }
    wire::Bytes idle(int timeoutMs = 100) { return plotter.onIdle(timeoutMs); }

    /// Collects scheduled output until a 100 ms wait brings nothing.
    std::vector<wire::Bytes> drain() {
        std::vector<wire::Bytes> outputs;
        for (wire::Bytes b = idle(); !b.empty(); b = idle()) {
            outputs.push_back(b);
        }
        return outputs;
    }

    /// Syncs, loads a small stub and waits for its greeting.
    void startStub();

    sim::Plotter plotter;
};

inline constexpr uint8_t kSync = 0x08;
inline constexpr uint8_t kReadReg = 0x0A;
inline constexpr uint8_t kSecurityInfo = 0x14;
inline constexpr uint8_t kMemBegin = 0x05;
inline constexpr uint8_t kMemEnd = 0x06;
inline constexpr uint8_t kMemData = 0x07;
inline constexpr uint8_t kSpiAttach = 0x0D;
inline constexpr uint8_t kFlashBegin = 0x02;
inline constexpr uint8_t kFlashData = 0x03;
inline constexpr uint8_t kFlashEnd = 0x04;
inline constexpr uint8_t kMd5 = 0x13;
inline constexpr uint8_t kReadFlash = 0xD2;

wire::Bytes syncPayload();
