#pragma once

#include <QString>

/// What a screen reader says for the window's controls that show no words of their
/// own, and the names of the progress bar by stage. Pure functions; any thread.
namespace Texts {

QString dismiss();  ///< "Dismiss", the result banner's close button
QString logArea();  ///< "Log", the log area
QString copyLog();  ///< "Copy Log", the log's copy button

// The progress bar, named after the stage it measures.
QString writingFirmwareStage();  ///< "Writing firmware"
QString uploadingConfigStage();  ///< "Uploading configuration"
QString readingConfigStage();    ///< "Reading the machine's configuration"
QString checkingStartupStage();  ///< "Checking that the machine starts"

}  // namespace Texts
