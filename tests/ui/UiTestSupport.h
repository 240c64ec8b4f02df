#pragma once

#include <QTest>
#include <cstring>
#include <memory>
#include <string>

#include "app/DeviceMonitor.h"
#include "app/UpdateState.h"

/// Lets QCOMPARE print states.
inline char* toString(const UpdateState& state) {
    return QTest::toString(state.toString());
}

/// A plotter that tests plug in and pull out: the monitor's detector reports
/// whatever path is plugged in, as the library's detection would.
class FakePort {
  public:
    DeviceMonitor::Detector detector() const {
        return [path = m_path](uint16_t, uint16_t) -> char* {
            return path->empty() ? nullptr : strdup(path->c_str());
        };
    }
    void plug(const std::string& path) { *m_path = path; }
    void unplug() { m_path->clear(); }

  private:
    std::shared_ptr<std::string> m_path = std::make_shared<std::string>();
};
