// Appends 100,000 log lines one by one through the update controller's log into
// a shown main-window view, letting the event loop run after every line (and, in a
// second pass, after every batch of 100), and reports wall time and memory.
//
//   log_bench [lines]      (offscreen unless QT_QPA_PLATFORM is set)
#include <sys/resource.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "app/UpdateController.h"
#include "ui/LogPanel.h"
#include "ui/LogView.h"
#include "ui/UpdaterView.h"

namespace {

long residentKiB() {
    std::ifstream status("/proc/self/status");
    std::string key;
    long value = 0;
    while (status >> key) {
        if (key == "VmRSS:") {
            status >> value;
            return value;
        }
        status.ignore(1 << 12, '\n');
    }
    return 0;
}

long peakKiB() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

QString lineFor(int index) {
    if (index % 50 == 49) {
        return QStringLiteral("ERROR: Flash write failed at block %1").arg(index);
    }
    return QStringLiteral("FLASH_DATA seq %1 (%2 bytes) ok").arg(index).arg(0x4000);
}

struct Pass {
    double seconds;
    long peakKiB;
    long residentKiB;
};

// Returns after every line reached the view; the log is emptied before the pass by
// a fresh controller, as a new job would.
Pass run(int lines, int batch) {
    QTemporaryDir resources;
    UpdateController controller(ResourceBundle(resources.path()),
                                [](uint16_t, uint16_t) -> char* { return nullptr; });
    UpdaterView view(controller);
    view.show();
    QApplication::processEvents();

    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < lines; ++i) {
        controller.log(lineFor(i));
        if ((i + 1) % batch == 0) {
            QApplication::processEvents();
        }
    }
    // Done when the view shows every line, scrolled to the last one.
    const LogView* log = view.logPanel()->view();
    const QScrollBar* bar = log->verticalScrollBar();
    while (log->lines().size() != lines || bar->maximum() == 0 || bar->value() != bar->maximum()) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (timer.elapsed() > 60'000) {
            std::fprintf(stderr, "view did not follow the log\n");
            std::exit(1);
        }
    }
    const double seconds = timer.nsecsElapsed() / 1e9;
    return {seconds, peakKiB(), residentKiB()};
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const int lines = argc > 1 ? std::atoi(argv[1]) : 100000;
    const long baseline = residentKiB();
    std::printf("lines: %d, resident before: %.1f MiB\n", lines, baseline / 1024.0);
    for (const int batch : {1, 10}) {
        const Pass pass = run(lines, batch);
        std::printf(
            "events every %3d line(s): %.3f s total, %.2f us/line, resident after %.1f MiB "
            "(+%.1f), peak %.1f MiB\n",
            batch, pass.seconds, pass.seconds * 1e6 / lines, pass.residentKiB / 1024.0,
            (pass.residentKiB - baseline) / 1024.0, pass.peakKiB / 1024.0);
    }
    return 0;
}
