#include "cli/Command.h"

QStringList Command::exitStatusHelp() const {
    QList<int> statuses{OutcomeTable::success};
    statuses << failureStatuses();
    statuses << OutcomeTable::usage << OutcomeTable::stopped;
    return OutcomeTable::help(statuses, successMeaning(), convention());
}
