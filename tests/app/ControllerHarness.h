#pragma once

#include <QObject>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>
#include <optional>

#include "app/UpdateController.h"

/// An UpdateController whose device detection answers a path the test sets, with
/// a record of every state and status it published.
class ControllerHarness : public QObject {
    Q_OBJECT

  public:
    explicit ControllerHarness(const QString& resourcesRoot);
    ~ControllerHarness() override;

    UpdateController& controller() { return *m_controller; }

    /// The path the next polls detect; empty: no device.
    void setPort(const QString& path);
    /// Waits until the controller has followed a poll to ready (or idle).
    bool waitForConnection(bool connected, int timeoutMs = 2000);

    /// Forgets the recorded states and statuses.
    void clearHistory();
    const QList<UpdateState>& states() const { return m_states; }
    const QStringList& statuses() const { return m_statuses; }
    /// Waits for the first error, flashComplete or configComplete recorded since
    /// the last `clearHistory`. Lines logged after a success may still be on their way.
    std::optional<UpdateState> waitForOutcome(int timeoutMs);

  private:
    std::shared_ptr<QByteArray> m_port = std::make_shared<QByteArray>();
    std::unique_ptr<UpdateController> m_controller;
    QList<UpdateState> m_states;
    QStringList m_statuses;
};

/// A copy of the development resources without the named top-level files
/// (e.g. "esp32s3_stub.bin") or configurations (e.g. "configs/Halcot.yaml").
class ResourcesWithout {
  public:
    explicit ResourcesWithout(const QStringList& missing);
    QString root() const { return m_dir.path(); }

  private:
    QTemporaryDir m_dir;
};
