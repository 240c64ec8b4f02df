#pragma once

#include <QString>
#include <QStringList>

#include "sim/PtyPlotter.h"

/// What the simulated plotter received so far, one entry a command, as its
/// transcript records them.
inline QStringList transcript(const sim::PtyPlotter& plotter) {
    QStringList entries;
    plotter.inspect([&](const sim::Plotter& p) {
        for (const std::string& entry : p.transcript()) {
            entries << QString::fromStdString(entry);
        }
    });
    return entries;
}
