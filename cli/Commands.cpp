#include "cli/Commands.h"

std::vector<std::unique_ptr<Command>> makeCommands() {
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(makeDetectCommand());
    commands.push_back(makeVersionCommand());
    commands.push_back(makeFlashCommand());
    commands.push_back(makeFirmwareCommand());
    commands.push_back(makeUploadConfigCommand());
    commands.push_back(makeProbeCommand());
    commands.push_back(makeFileReportCommand());
    commands.push_back(makeSaveConfigCommand());
    commands.push_back(makeDiffConfigCommand());
    commands.push_back(makeDoctorCommand());
    commands.push_back(makeBackupsCommand());
    commands.push_back(makeRestoreConfigCommand());
    commands.push_back(makeRepairCommand());
    commands.push_back(makeSnapshotCommand());
    commands.push_back(makeRestoreMachineCommand());
    return commands;
}
