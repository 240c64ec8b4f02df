#include "cli/Command.h"

QStringList Command::exitStatusHelp() const {
    QList<int> statuses{ExitStatus::success};
    statuses << failureStatuses();
    statuses << ExitStatus::usage << ExitStatus::stopped;
    return ExitStatus::help(statuses, successMeaning(), convention());
}
