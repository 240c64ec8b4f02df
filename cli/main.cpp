#include <QCoreApplication>

#include "cli/CommandLine.h"
#include "cli/Session.h"

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("teskal-flash"));
    CommandLine commandLine;
    const auto parsed = commandLine.parse(argc, argv);
    if (const int* status = std::get_if<int>(&parsed)) {
        return *status;
    }
    return runSession(*std::get<const Command*>(parsed), commandLine.options(),
                      QCoreApplication::arguments().mid(1));
}
