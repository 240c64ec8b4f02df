#pragma once

#include <QTest>
#include <cstdint>

#include "app/UpdateState.h"

/// Lets QCOMPARE print states.
inline char* toString(const UpdateState& state) {
    return QTest::toString(state.toString());
}

/// A device detection that never finds the plotter.
inline char* noDevice(uint16_t, uint16_t) {
    return nullptr;
}
