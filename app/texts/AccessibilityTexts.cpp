#include "app/texts/AccessibilityTexts.h"

namespace Texts {

QString dismiss() {
    return QStringLiteral("Dismiss");
}

QString logArea() {
    return QStringLiteral("Log");
}

QString copyLog() {
    return QStringLiteral("Copy Log");
}

QString writingFirmwareStage() {
    return QStringLiteral("Writing firmware");
}

QString uploadingConfigStage() {
    return QStringLiteral("Uploading configuration");
}

QString readingConfigStage() {
    return QStringLiteral("Reading the machine's configuration");
}

QString checkingStartupStage() {
    return QStringLiteral("Checking that the machine starts");
}

}  // namespace Texts
