#include "app/texts/FileTexts.h"

#include <QCoreApplication>

namespace Texts {

namespace {

// The translators' context for this file's texts.
class FileTexts {
    Q_DECLARE_TR_FUNCTIONS(FileTexts)
};

}  // namespace

QString cannotBeUsed(const QString& fileName, const QString& reason) {
    return FileTexts::tr("%1 cannot be used: %2").arg(fileName, reason);
}

QString couldNotBeRead(const QString& reason) {
    return FileTexts::tr("it could not be read (%1)").arg(reason);
}

QString imageRefused(const QString& reason) {
    return FileTexts::tr("Firmware image refused: %1").arg(reason);
}

QString shippedImageRefused(const QString& name) {
    return FileTexts::tr("Bundled %1.bin refused: a development image, not firmware").arg(name);
}

QString imageDescription(const QString& version, const QString& project, const QString& built) {
    return FileTexts::tr("Firmware image: version %1, project %2, built %3")
        .arg(version, project, built);
}

QString fileUnreadable(const QString& fileName) {
    return FileTexts::tr("Could not read file: %1").arg(fileName);
}

QString notAConfiguration(const QString& fileName, const QString& problem) {
    return FileTexts::tr("%1 is not a valid machine configuration: %2").arg(fileName, problem);
}

QString developmentConfigs() {
    return FileTexts::tr("The development set's configurations are only for simulated plotters");
}

QString reportSize(const QString& bytes) {
    return FileTexts::tr("  size: %1 bytes").arg(bytes);
}

QString reportSha256(const QString& hex) {
    return QStringLiteral("  SHA-256: %1").arg(hex);
}

QString reportChip(const QString& name, int chipId) {
    return FileTexts::tr("  chip: %1 (chip id %2)").arg(name, QString::number(chipId));
}

QString reportVersion(const QString& version) {
    return FileTexts::tr("  version: %1").arg(version);
}

QString reportProject(const QString& project) {
    return FileTexts::tr("  project: %1").arg(project);
}

QString reportBuilt(const QString& built) {
    return FileTexts::tr("  built: %1").arg(built);
}

QString reportPartitionFits(const QString& partitionBytes) {
    return FileTexts::tr("  partition: fits (the application partition holds %1 bytes)")
        .arg(partitionBytes);
}

QString reportPartitionTooLarge(const QString& partitionBytes) {
    return FileTexts::tr("  partition: too large (the application partition holds %1 bytes)")
        .arg(partitionBytes);
}

QString reportPartitionUnknown() {
    return FileTexts::tr("  partition: unknown (no partition table in the resources)");
}

QString reportMeta(const QString& version) {
    return QStringLiteral("  meta: %1").arg(version);
}

QString reportNoMeta() {
    return FileTexts::tr("  meta: none");
}

QString reportPasses() {
    return FileTexts::tr("  result: passes");
}

QString reportRefused() {
    return FileTexts::tr("  result: refused");
}

QString unknownChip() {
    return FileTexts::tr("unknown");
}

QString neitherImageNorConfig(const QString& fileName) {
    return FileTexts::tr(
               "%1 is neither a firmware image (.bin) nor a machine configuration (.yaml, .yml)")
        .arg(fileName);
}

QString allFilesPass() {
    return FileTexts::tr("All files pass");
}

QString filesRefused(qsizetype refused, qsizetype total) {
    return FileTexts::tr("%1 of %2 files refused")
        .arg(QString::number(refused), QString::number(total));
}

QString logNotSaved(const QString& reason) {
    return FileTexts::tr("Could not save log: %1").arg(reason);
}

}  // namespace Texts
