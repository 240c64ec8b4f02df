#include "cli/ProgressMeter.h"

#include <algorithm>
#include <cmath>

#include "app/texts/FirmwareJobTexts.h"
#include "image/FirmwareCheck.h"

void ProgressMeter::update(const event::Progress& progress, qint64 elapsedMs) {
    active_ = true;
    fraction_ = std::clamp(progress.fraction, 0.0f, 1.0f);
    if (!progress.stage.isEmpty()) {
        stage_ = progress.stage;
    }
    const qint64 previous = bytes_;
    bytes_ = progress.bytes;
    // A later transfer of the same command (the upload of the settings after the
    // flash) is timed from its own start.
    if (bytes_ >= 0 && bytes_ < previous) {
        firstBytes_.reset();
        bytesPerSecond_.reset();
    }
    if (bytes_ <= 0) {
        return;
    }
    if (!firstBytes_) {
        firstBytes_.emplace(elapsedMs, bytes_);
    } else if (elapsedMs > firstBytes_->first) {
        bytesPerSecond_ = static_cast<double>(bytes_ - firstBytes_->second) * 1000.0 /
                          static_cast<double>(elapsedMs - firstBytes_->first);
    }
}

void ProgressMeter::finish(bool succeeded) {
    succeeded_ = succeeded;
}

int ProgressMeter::percent() const {
    if (succeeded_.value_or(false)) {
        return 100;
    }
    return static_cast<int>(std::floor(fraction_ * 100.0f));
}

QString ProgressMeter::stage() const {
    if (succeeded_) {
        return *succeeded_ ? Texts::progressComplete() : Texts::progressFailed();
    }
    return stage_.isEmpty() ? Texts::progressPreparing() : stage_;
}

QString ProgressMeter::figures() const {
    if (bytes_ < 0) {
        return QString();
    }
    QString text =
        QStringLiteral("%1%  %2 bytes")
            .arg(percent())
            .arg(QString::fromStdString(image::withThousands(static_cast<uint64_t>(bytes_))));
    if (bytesPerSecond_) {
        const double kib = *bytesPerSecond_ / 1024.0;
        text += kib < 1024.0 ? QStringLiteral("  %1 KiB/s").arg(kib, 0, 'f', 0)
                             : QStringLiteral("  %1 MiB/s").arg(kib / 1024.0, 0, 'f', 1);
    }
    return text;
}

QString ProgressMeter::bar(int width) const {
    const int filled = percent() * width / 100;
    return QLatin1Char('[') + QString(filled, QLatin1Char('#')) +
           QString(width - filled, QLatin1Char('-')) + QLatin1Char(']');
}
