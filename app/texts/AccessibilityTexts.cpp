#include "app/texts/AccessibilityTexts.h"

#include <QCoreApplication>

namespace Texts {

namespace {

// The translators' context for this file's texts.
class AccessibilityTexts {
    Q_DECLARE_TR_FUNCTIONS(AccessibilityTexts)
};

}  // namespace

QString dismiss() {
    return AccessibilityTexts::tr("Dismiss");
}

QString logArea() {
    return AccessibilityTexts::tr("Log");
}

QString copyLog() {
    return AccessibilityTexts::tr("Copy Log");
}

QString writingFirmwareStage() {
    return AccessibilityTexts::tr("Writing firmware");
}

QString uploadingConfigStage() {
    return AccessibilityTexts::tr("Uploading configuration");
}

QString readingConfigStage() {
    return AccessibilityTexts::tr("Reading the machine's configuration");
}

QString checkingStartupStage() {
    return AccessibilityTexts::tr("Checking that the machine starts");
}

}  // namespace Texts
