#pragma once

#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <optional>

#include "app/UpdateController.h"

/// Lets QCOMPARE print states.
inline char* toString(const UpdateState& state) {
    return QTest::toString(state.toString());
}

/// `bytes` as the file `name` in `dir`; returns its path.
inline QString writeFile(const QTemporaryDir& dir, const QString& name, const QByteArray& bytes) {
    QFile file(dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return file.fileName();
}

/// The whole file at `path`; "(unreadable)" when it cannot be read.
inline QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

/// An UpdateController whose device detection answers the path a test plugs in,
/// with a record of what it published. It accepts the development images unless
/// told otherwise.
class ControllerHarness : public QObject {
    // Declared first: the controller's detector shares it.
    std::shared_ptr<QByteArray> port_ = std::make_shared<QByteArray>();

  public:
    explicit ControllerHarness(const QString& resourcesRoot = TFU_DEV_RESOURCES_DIR,
                               UpdateController::DevelopmentImages developmentImages =
                                   UpdateController::DevelopmentImages::accept)
        : controller(
              ResourceBundle(resourcesRoot),
              [port = port_](uint16_t, uint16_t) -> char* {
                  return port->isEmpty() ? nullptr : strdup(port->constData());
              },
              developmentImages) {
        connect(&controller, &UpdateController::stateChanged, this, [this](const UpdateState& s) {
            states.append(s);
            published.append(s.toString());
        });
        connect(&controller, &UpdateController::statusMessageChanged, this,
                [this](const QString& status) { published.append("status: " + status); });
    }

    /// Plugs in `path` (empty: unplugs), waits until a poll has made the controller
    /// ready (or idle), then forgets the history.
    bool plug(const QString& path) {
        *port_ = path.toUtf8();
        states.clear();
        const UpdateState wanted = path.isEmpty() ? UpdateState::idle() : UpdateState::ready();
        const bool followed = QTest::qWaitFor([&] { return states.contains(wanted); }, 10000);
        states.clear();
        published.clear();
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

    /// Plugs in `path`, starts `job` and waits up to a minute for its result; false
    /// when the plug or the result did not come.
    bool run(const QString& path, const std::function<void()>& job) {
        if (!plug(path)) {
            return false;
        }
        job();
        return QTest::qWaitFor([this] { return !controller.jobRunning() && controller.result(); },
                               60000);
    }

    /// The states from the first busy one to the first that is not, which only the
    /// job's own end may bring; empty when there was no busy state.
    QList<UpdateState> busySpan() const {
        const auto busy = [](const UpdateState& s) { return s.isBusy(); };
        const auto first = std::find_if(states.begin(), states.end(), busy);
        const auto end = std::find_if_not(first, states.end(), busy);
        return QList<UpdateState>(first, end == states.end() ? end : end + 1);
    }

    /// What was published since the plug, without the polls' "ready" before the job.
    QStringList publishedByJob() const {
        const auto own = std::find_if(published.begin(), published.end(), [](const QString& p) {
            return p != "ready" && p != "status: Device connected";
        });
        return QStringList(own, published.end());
    }

    UpdateController controller;
    QList<UpdateState> states;
    /// States as `toString()` and status lines as "status: TEXT", in publication order.
    QStringList published;
};
