#pragma once

#include <memory>
#include <vector>

#include "cli/Command.h"

std::unique_ptr<Command> makeDetectCommand();
std::unique_ptr<Command> makeVersionCommand();
std::unique_ptr<Command> makeFlashCommand();
std::unique_ptr<Command> makeFirmwareCommand();
std::unique_ptr<Command> makeUploadConfigCommand();
std::unique_ptr<Command> makeProbeCommand();
std::unique_ptr<Command> makeFileReportCommand();
std::unique_ptr<Command> makeSaveConfigCommand();
std::unique_ptr<Command> makeDiffConfigCommand();
std::unique_ptr<Command> makeDoctorCommand();
std::unique_ptr<Command> makeBackupsCommand();
std::unique_ptr<Command> makeRestoreConfigCommand();
std::unique_ptr<Command> makeRepairCommand();
std::unique_ptr<Command> makeSnapshotCommand();
std::unique_ptr<Command> makeRestoreMachineCommand();

/// Every subcommand, in the order --help lists them.
std::vector<std::unique_ptr<Command>> makeCommands();
