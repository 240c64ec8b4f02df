#pragma once

#include <QCryptographicHash>
#include <QTemporaryDir>
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

/// A firmware file the updater must refuse, and the reason it gives.
struct RefusedFirmware {
    QString fileName;
    QByteArray bytes;
    QString reason;
};

/// One file of each kind that must never be written as firmware, most of them
/// made from the development application (whose partition holds 1,966,080 bytes).
inline QList<RefusedFirmware> refusedFirmwares() {
    const QByteArray application =
        ResourceBundle(TFU_DEV_RESOURCES_DIR).read("firmware", "bin").value_or("");
    QByteArray esp32 = application;
    esp32[12] = 0;  // chip id
    QByteArray damaged = application;
    damaged[damaged.size() - 1] = char(damaged.back() ^ 1);  // inside the appended SHA-256
    QByteArray padded = application;
    padded.append(4 * 1024 * 1024 - application.size(), char(0xFF));
    return {
        {"notes.bin", "{\"name\": \"plotter\", \"pens\": 12}\n",
         "not a firmware image (first byte 0x7B, expected 0xE9)"},
        {"empty.bin", "", "an empty file (0 bytes)"},
        {"padded.bin", padded,
         "too large for the application partition (4,194,304 bytes; the partition holds "
         "1,966,080)"},
        {"esp32.bin", esp32,
         "built for another chip (chip id 0, ESP32; this machine is an ESP32-S3)"},
        {"damaged.bin", damaged, "damaged: its SHA-256 does not match"},
    };
}

/// The development application made into one the real program takes: each marker
/// text overwritten with another of its length, the checksum byte (right before
/// the appended SHA-256) and the SHA-256 made to match again.
inline QByteArray unmarkedApplication() {
    QByteArray image = ResourceBundle(TFU_DEV_RESOURCES_DIR).read("firmware", "bin").value_or("");
    const QByteArray marker("TESKAL DEVELOPMENT IMAGE - NOT FIRMWARE");
    const QByteArray other("TESKAL TEST APPLICATION - NOT FIRMWARE!");
    const qsizetype checksumAt = image.size() - 33;
    for (qsizetype at = image.indexOf(marker); at >= 0; at = image.indexOf(marker, at)) {
        for (qsizetype i = 0; i < marker.size(); ++i) {
            image[checksumAt] = char(image[checksumAt] ^ marker[i] ^ other[i]);
        }
        image.replace(at, marker.size(), other);
    }
    const QByteArray hashed = image.left(image.size() - 32);
    return hashed + QCryptographicHash::hash(hashed, QCryptographicHash::Sha256);
}

/// An UpdateController whose device detection answers the path a test plugs in,
/// with a record of what it published. It accepts the development images unless
/// told otherwise.
class ControllerHarness : public QObject {
    // Declared first: the controller's detector shares it.
    std::shared_ptr<QByteArray> m_port = std::make_shared<QByteArray>();

  public:
    explicit ControllerHarness(const QString& resourcesRoot = TFU_DEV_RESOURCES_DIR,
                               UpdateController::DevelopmentImages developmentImages =
                                   UpdateController::DevelopmentImages::accept)
        : controller(
              ResourceBundle(resourcesRoot),
              [port = m_port](uint16_t, uint16_t) -> char* {
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
        *m_port = path.toUtf8();
        states.clear();
        const UpdateState wanted = path.isEmpty() ? UpdateState::idle() : UpdateState::ready();
        const bool followed = QTest::qWaitFor([&] { return states.contains(wanted); }, 2000);
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
