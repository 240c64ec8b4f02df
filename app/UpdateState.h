#pragma once

#include <QMetaType>
#include <QString>

/// The update controller's state: one of nine cases, two of which carry a
/// progress fraction and one an error message. A plain value, copied freely.
class UpdateState {
    Q_GADGET

  public:
    /// The cases in their declared order.
    enum class Kind {
        flashing,
        uploadingConfig,
        error,
        idle,
        ready,
        downloadingConfig,  ///< the machine's config.yaml is being read
        checkingStartup,    ///< the machine restarts after a write and is listened to
        flashComplete,
        configComplete,
    };
    Q_ENUM(Kind)

    /// `idle`.
    UpdateState() = default;

    static UpdateState flashing(float progress) { return {Kind::flashing, progress, {}}; }
    static UpdateState uploadingConfig(float progress) {
        return {Kind::uploadingConfig, progress, {}};
    }
    static UpdateState error(const QString& message) { return {Kind::error, 0.0f, message}; }
    static UpdateState idle() { return {Kind::idle, 0.0f, {}}; }
    static UpdateState ready() { return {Kind::ready, 0.0f, {}}; }
    static UpdateState downloadingConfig() { return {Kind::downloadingConfig, 0.0f, {}}; }
    static UpdateState checkingStartup() { return {Kind::checkingStartup, 0.0f, {}}; }
    static UpdateState flashComplete() { return {Kind::flashComplete, 0.0f, {}}; }
    static UpdateState configComplete() { return {Kind::configComplete, 0.0f, {}}; }

    Kind kind() const { return kind_; }
    /// Payload of `flashing` and `uploadingConfig`, 0..1; 0 for the other cases.
    float progress() const { return progress_; }
    /// Payload of `error`; empty for the other cases.
    const QString& message() const { return message_; }

    /// True for every case except `error`, `idle`, `ready`, `flashComplete` and
    /// `configComplete`.
    bool isBusy() const;

    /// Readable form for logs and test output, e.g. "flashing(0.5)" or "error(...)";
    /// the progress with all the digits its float holds ("flashing(0.100000001)").
    QString toString() const;

    /// Equal when the cases and their payloads are equal.
    friend bool operator==(const UpdateState& a, const UpdateState& b) {
        return a.kind_ == b.kind_ && a.progress_ == b.progress_ && a.message_ == b.message_;
    }

  private:
    UpdateState(Kind kind, float progress, QString message)
        : kind_(kind), progress_(progress), message_(std::move(message)) {}

    Kind kind_ = Kind::idle;
    float progress_ = 0.0f;
    QString message_;
};

Q_DECLARE_METATYPE(UpdateState)
