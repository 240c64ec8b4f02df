#include "Chip.h"

#include <gtest/gtest.h>

wire::Bytes syncPayload() {
    wire::Bytes payload{0x07, 0x07, 0x12, 0x20};
    payload.resize(36, 0x55);
    return payload;
}

void Chip::startStub() {
    send(wire::request(kSync, syncPayload()));
    drain();
    const wire::Bytes text{1, 2, 3, 4};
    command(kMemBegin, wire::words({4, 1, 6144, 0x40380000}));
    command(kMemData, wire::dataPayload(text, 0), wire::checksum(text));
    command(kMemEnd, wire::words({0, 0x40380000}));
    ASSERT_EQ(wire::frames(idle()), (std::vector<std::optional<wire::Bytes>>{wire::text("OHAI")}));
    ASSERT_EQ(plotter.mode(), sim::Mode::Stub);
}
