#include <QFileInfo>

#include "app/ConfigUploadJob.h"
#include "app/UserText.h"
#include "cli/Commands.h"
#include "image/FirmwareCheck.h"

namespace {

QString thousands(uint64_t value) {
    return QString::fromStdString(image::withThousands(value));
}

QString hex(const std::array<uint8_t, 32>& digest) {
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(digest.data()), digest.size()).toHex());
}

QString chipLine(uint16_t chipId) {
    const auto name = image::chipName(chipId);
    return QStringLiteral("  chip: %1 (chip id %2)")
        .arg(name ? QString::fromStdString(*name) : QStringLiteral("unknown"))
        .arg(chipId);
}

QString partitionLine(const image::ImageReport& report, const std::optional<uint64_t>& holds) {
    if (!holds) {
        return QStringLiteral("  partition: unknown (no partition table in the resources)");
    }
    return QStringLiteral("  partition: %1 (the application partition holds %2 bytes)")
        .arg(report.size <= *holds ? QStringLiteral("fits") : QStringLiteral("too large"))
        .arg(thousands(*holds));
}

void logVerdict(const Feed& feed, bool passes) {
    feed.log(passes ? QStringLiteral("  result: passes") : QStringLiteral("  result: refused"));
}

// The report of one firmware image; the refusal in the window's words, if any.
std::optional<QString> inspectImage(const QString& path, const CommandContext& context,
                                    const Feed& feed) {
    const QString name = QFileInfo(path).fileName();
    feed.log(name);
    QString failure;
    const auto bytes = readWholeFile(path, &failure);
    if (!bytes) {
        return name + QStringLiteral(" cannot be used: it could not be read (") + failure + ')';
    }
    const image::ImageReport report = inspectFirmware(*bytes);
    feed.log(QStringLiteral("  size: %1 bytes").arg(thousands(report.size)));
    feed.log(QStringLiteral("  SHA-256: ") + hex(report.fileSha256));
    if (report.layoutFault.empty()) {
        feed.log(chipLine(report.chipId));
    }
    if (report.app) {
        feed.log(QStringLiteral("  version: ") + QString::fromStdString(report.app->version));
        feed.log(QStringLiteral("  project: ") + QString::fromStdString(report.app->projectName));
        feed.log(QStringLiteral("  built: ") +
                 QString::fromStdString(report.app->date + ' ' + report.app->time));
        feed.log(partitionLine(report, applicationPartitionSize(context.resources)));
    }
    const auto refusal = firmwareRefusal(report, context.resources, context.developmentImages());
    logVerdict(feed, !refusal);
    if (refusal) {
        return name + QStringLiteral(" cannot be used: ") + *refusal;
    }
    return std::nullopt;
}

// The report of one configuration; the refusal in the window's words, if any.
std::optional<QString> inspectConfig(const QString& path, const Feed& feed) {
    feed.log(QFileInfo(path).fileName());
    const ConfigFile config = readConfigFile(path);
    if (config.bytes) {
        feed.log(QStringLiteral("  size: %1 bytes").arg(thousands(config.bytes->size())));
        feed.log(QStringLiteral("  meta: ") +
                 UserText::extractMetaVersion(*config.bytes).value_or(QStringLiteral("none")));
    }
    logVerdict(feed, config.bytes.has_value());
    if (!config.bytes) {
        return config.refusal;
    }
    return std::nullopt;
}

class InspectCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "inspect",
            "Reports on firmware images and machine configurations. No plotter is needed: for "
            "each .bin its chip, version, project, build date, size, SHA-256 and whether it "
            "fits the application partition of the resources' partition table; for each .yaml "
            "or .yml whether it is a valid machine configuration. Each file is checked as flash "
            "and upload-config would check it.");
        command->add_option("FILE", files_, "Files to inspect")->required();
        return command;
    }

    QStringList exitCodes() const override {
        return {QStringLiteral("0  every file passes"),
                QStringLiteral("11 at least one is refused")};
    }

    Ports ports() const override { return Ports::none; }

    event::Result run(const CommandContext& context, const Feed& feed) const override {
        int refused = 0;
        for (const std::string& file : files_) {
            const QString path = QString::fromStdString(file);
            const QString suffix = QFileInfo(path).suffix().toLower();
            std::optional<QString> refusal;
            if (suffix == QLatin1String("bin")) {
                refusal = inspectImage(path, context, feed);
            } else if (suffix == QLatin1String("yaml") || suffix == QLatin1String("yml")) {
                refusal = inspectConfig(path, feed);
            } else {
                feed.log(QFileInfo(path).fileName());
                logVerdict(feed, false);
                refusal = QFileInfo(path).fileName() +
                          QStringLiteral(
                              " is neither a firmware image (.bin) nor a machine "
                              "configuration (.yaml, .yml)");
            }
            if (refusal) {
                ++refused;
                feed.error(*refusal);
            }
        }
        if (refused > 0) {
            return {ExitCode::refused,
                    QStringLiteral("%1 of %2 files refused").arg(refused).arg(files_.size()), true};
        }
        return {ExitCode::success, QStringLiteral("All files pass"), false};
    }

  private:
    std::vector<std::string> files_;
};

}  // namespace

std::unique_ptr<Command> makeInspectCommand() {
    return std::make_unique<InspectCommand>();
}
