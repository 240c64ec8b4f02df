#include "app/operations/Repair.h"

#include <QFileInfo>

#include "app/BackupIndex.h"
#include "app/DeviceQueries.h"
#include "app/FirmwareCheck.h"
#include "app/StartupVerdict.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/operations/MachineConfigFile.h"

namespace {

using Kind = Repair::PutBack::Kind;

}  // namespace

bool Repair::helps(const Outcome& outcome) {
    const StartupCause* startup = outcome.startup();
    return outcome.kind == Outcome::Kind::notStarting && startup != nullptr &&
           StartupVerdict::repairHelps(*startup);
}

Repair::Repair(QString port, ResourceBundle resources, Options options)
    : port_(std::move(port)), resources_(std::move(resources)), options_(std::move(options)) {
    options_.flash.eraseAll = true;
    options_.flash.writeBootPartitions = true;
    // The Repair dialog names the version it writes; the owner's "Repair" is the
    // agreement to it, older or not.
    if (options_.flash.release) {
        options_.flash.release->allowOlder = true;
    }
    if (options_.machine.isEmpty()) {
        options_.machine = DeviceQueries::machineIdentity(port_);
    }
}

std::optional<Outcome> Repair::refusal() {
    checked_ = true;
    if (const auto& custom = options_.flash.customFirmware) {
        Outcome checked =
            checkFirmwareFile(*custom, resources_, options_.flash.developmentImages).outcome;
        if (checked.isFailure()) {
            return checked;
        }
    }
    return choose();
}

// Everything but "this machine's newest" is settled here, before the machine is
// asked anything: the newest may be the copy that the save is about to make.
std::optional<Outcome> Repair::choose() {
    const PutBack& putBack = options_.putBack;
    if (putBack.kind == Kind::backup) {
        const BackupIndex index;
        backup_ = index.find(putBack.backup);
        if (!backup_) {
            return Outcome::make(Outcome::Kind::noBackup,
                                 Texts::backupNotFound(putBack.backup, index.folder()));
        }
        restore_ = backup_->path;
    } else if (putBack.kind == Kind::product) {
        const ConfigChoice choice = ConfigChoice::ofProduct(*putBack.product);
        const auto read = readChosenConfig(resources_, choice);
        if (const auto* missing = std::get_if<Outcome>(&read)) {
            return *missing;
        }
        const auto [base, extension] = splitResourceName(putBack.product->configFile);
        restore_ = resources_.path(base, extension, QStringLiteral("configs"));
    }
    if (!restore_) {
        return std::nullopt;
    }
    UploadConfig::Options upload;
    upload.machine = options_.machine;
    upload.developmentConfigsRefused = options_.developmentConfigsRefused;
    const ConfigChoice choice = putBack.kind == Kind::product
                                    ? ConfigChoice::ofProduct(*putBack.product)
                                    : ConfigChoice::ofFile(*restore_);
    upload_ = std::make_shared<UploadConfig>(port_, resources_, choice, upload);
    return upload_->refusal();
}

std::optional<Outcome> Repair::settleNewest(Texts::Audience audience) {
    const BackupIndex index;
    backup_ = index.newestOf(options_.machine);
    if (!backup_) {
        const QList<Backup> backups = index.list();
        QStringList named;
        for (const Backup& backup : backups) {
            named << Texts::namedBackup(QFileInfo(backup.path).fileName(), backup.machine,
                                        Texts::backupTime(backup.time, audience));
        }
        Outcome nothing = Outcome::make(
            Outcome::Kind::nothingToRestore,
            backups.isEmpty() ? Texts::nothingToRestore(options_.machine, index.folder(), audience)
                              : Texts::nothingToRestoreBesides(options_.machine, index.folder(),
                                                               named, audience));
        nothing.cause = BackupListing{backups};
        return nothing;
    }
    restore_ = backup_->path;
    return choose();
}

Outcome Repair::run(const OperationSink& sink) {
    if (!checked_) {
        if (auto refused = refusal()) {
            return *refused;
        }
    }
    sink.info(Texts::savingSettings());
    if (const auto version = DeviceQueries::firmwareVersion(port_)) {
        auto kept = MachineConfigFile::keep({port_, options_.machine, BackupReason::beforeErase},
                                            version, sink);
        if (auto* failure = std::get_if<Outcome>(&kept)) {
            failure->message = Texts::nothingErased(failure->message);
            SettingsCause stopped;
            stopped.stop = SettingsCause::Stop::notSaved;
            failure->cause = stopped;
            return *failure;
        }
        saved_ = std::get<Backup>(kept);
    } else {
        sink.info(Texts::firmwareSilentNothingSaved());
    }
    if (options_.putBack.kind == Kind::newestBackup) {
        if (auto unknown = settleNewest(sink.audience)) {
            return *unknown;
        }
    }
    const std::optional<QString> what = putBackPhrase(sink.audience);
    sink.info(what ? Texts::repairPlan(firmwarePhrase(), *what)
                   : Texts::repairPlanWithoutConfig(firmwarePhrase()));
    FlashFirmware::Options flash = options_.flash;
    flash.putBack = what;
    // A firmware that rejects its configuration runs too, and after the erase it
    // has none of its own.
    const Outcome flashed = FlashFirmware(port_, resources_, flash).run(sink);
    const bool runs =
        flashed.kind == Outcome::Kind::succeeded || flashed.kind == Outcome::Kind::configRejected;
    Outcome ended = upload_ && runs ? upload_->run(sink) : flashed;
    if (ended.kind == Outcome::Kind::succeeded) {
        ended.message = what ? Texts::repaired(firmwarePhrase(), *what)
                             : Texts::repairedWithoutConfig(firmwarePhrase());
    }
    return carrying(ended, upload_ && runs);
}

Outcome Repair::carrying(Outcome outcome, bool restored) const {
    if (outcome.isVerdict() || std::holds_alternative<std::monostate>(outcome.cause)) {
        const StartupCause* startup = outcome.startup();
        SettingsCause cause;
        cause.startup = startup ? std::optional(*startup) : std::nullopt;
        cause.saved = saved_ ? std::optional(saved_->path) : std::nullopt;
        cause.restored = restored && outcome.isVerdict() ? restore_ : std::nullopt;
        outcome.cause = cause;
    }
    return outcome;
}

std::optional<QString> Repair::putBackPhrase(Texts::Audience audience) const {
    if (backup_) {
        return Texts::settingsOf(backup_->time, audience);
    }
    if (options_.putBack.kind == Kind::product) {
        return Texts::stockConfigOf(options_.putBack.product->name);
    }
    return std::nullopt;
}

QString Repair::firmwarePhrase() const {
    const auto& custom = options_.flash.customFirmware;
    if (custom) {
        return QFileInfo(*custom).fileName();
    }
    const auto& release = options_.flash.release;
    return Texts::shippedFirmware(release ? VersionText::shown(release->version)
                                          : BuildConfig::firmwareVersion());
}
