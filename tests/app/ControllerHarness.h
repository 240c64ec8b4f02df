#pragma once

#include <QTest>
#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>

#include "app/UpdateController.h"

/// Lets QCOMPARE print states.
inline char* toString(const UpdateState& state) {
    return QTest::toString(state.toString());
}

/// An UpdateController whose device detection answers the path a test plugs in,
/// with a record of the states and status lines it published.
class ControllerHarness : public QObject {
    // Declared first: the controller's detector shares it.
    std::shared_ptr<QByteArray> m_port = std::make_shared<QByteArray>();

  public:
    explicit ControllerHarness(const QString& resourcesRoot = TFU_DEV_RESOURCES_DIR)
        : controller(ResourceBundle(resourcesRoot), [port = m_port](uint16_t, uint16_t) -> char* {
              return port->isEmpty() ? nullptr : strdup(port->constData());
          }) {
        connect(&controller, &UpdateController::stateChanged, this,
                [this](const UpdateState& state) { states.append(state); });
        connect(&controller, &UpdateController::statusMessageChanged, this,
                [this](const QString& status) { statuses.append(status); });
    }

    /// Plugs in `path` (empty: unplugs), waits until a poll has made the controller
    /// ready (or idle), then forgets the history.
    bool plug(const QString& path) {
        *m_port = path.toUtf8();
        states.clear();
        const UpdateState wanted = path.isEmpty() ? UpdateState::idle() : UpdateState::ready();
        const bool followed = QTest::qWaitFor([&] { return states.contains(wanted); }, 2000);
        states.clear();
        statuses.clear();
        return followed;
    }

    /// The first error, flashComplete or configComplete recorded, waiting up to
    /// `timeoutMs`. Lines logged after a success may still be on their way.
    std::optional<UpdateState> waitForOutcome(int timeoutMs) {
        const auto outcome = [this] {
            return std::find_if(states.begin(), states.end(), [](const UpdateState& s) {
                return !s.isBusy() && s != UpdateState::ready() && s != UpdateState::idle();
            });
        };
        if (!QTest::qWaitFor([&] { return outcome() != states.end(); }, timeoutMs)) {
            return std::nullopt;
        }
        return *outcome();
    }

    /// The first busy state recorded; ready when there was none.
    UpdateState firstBusy() const {
        const auto busy = std::find_if(states.begin(), states.end(),
                                       [](const UpdateState& s) { return s.isBusy(); });
        return busy == states.end() ? UpdateState::ready() : *busy;
    }

    UpdateController controller;
    QList<UpdateState> states;
    QStringList statuses;
};
