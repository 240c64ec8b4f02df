#include "cli/TextReporter.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>

#include "app/ResultSummary.h"

namespace {

constexpr int kDrawIntervalMs = 100;
constexpr int kStageWidth = 16;
constexpr int kBarWidth = 16;

int terminalColumns() {
    winsize size{};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
        return size.ws_col;
    }
    return 80;
}

void write(std::FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fflush(stream);
}

// A checklist row as "✓ line", a problem's fix indented below its line.
QString checkLines(const CheckRow& row) {
    const QString mark = row.mark == CheckRow::Mark::ok        ? QStringLiteral("\u2713 ")
                         : row.mark == CheckRow::Mark::problem ? QStringLiteral("\u2717 ")
                                                               : QStringLiteral("\u2022 ");
    return row.fix.isEmpty() ? mark + row.line : mark + row.line + QStringLiteral("\n  ") + row.fix;
}

}  // namespace

TextReporter::TextReporter(Style style) : style_(style) {
    clock_.start();
    drawTimer_.setSingleShot(true);
    connect(&drawTimer_, &QTimer::timeout, this, [this] { draw(); });
}

void TextReporter::report(const QString& port, const Event& event) {
    Row& target = row(port);
    if (const auto* entry = std::get_if<LogEntry>(&event)) {
        if (entry->isError()) {
            printLine(stderr, prefixed(port, entry->line()));
        } else if (style_.showLog) {
            printLine(stdout, prefixed(port, entry->line()));
        }
    } else if (const auto* progress = std::get_if<event::Progress>(&event)) {
        onProgress(target, *progress);
    } else {
        onResult(target, std::get<event::Result>(event));
    }
}

void TextReporter::notice(const QString& text) {
    printLine(stderr, text);
}

void TextReporter::close() {
    drawTimer_.stop();
    if (style_.terminal) {
        draw();
    }
}

TextReporter::Row& TextReporter::row(const QString& port) {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&](const Row& r) { return r.port == port; });
    if (found != rows_.end()) {
        return *found;
    }
    rows_.push_back(Row{port, {}, {}, -1});
    return rows_.back();
}

void TextReporter::onProgress(Row& row, const event::Progress& progress) {
    row.meter.update(progress, clock_.elapsed());
    if (style_.terminal) {
        scheduleDraw();
        return;
    }
    if (progress.stage.isEmpty() && row.printedStage.isEmpty()) {
        return;  // the job has started; the library has not reported yet
    }
    const int tenth = row.meter.percent() / 10;
    const bool newStage = !progress.stage.isEmpty() && progress.stage != row.printedStage;
    if (!newStage && tenth <= row.printedTenth) {
        return;
    }
    row.printedStage = row.meter.stage();
    row.printedTenth = tenth;
    const QString figures = row.meter.figures();
    printLine(stdout, prefixed(row.port, figures.isEmpty()
                                             ? row.meter.stage()
                                             : row.meter.stage() + QLatin1Char(' ') + figures));
}

// A failure goes to standard error in the window's words, and so does a machine
// that does not run what was written; what the machine said and what to do next
// follow. With several plotters a success gets a line of its own. A checklist
// comes before all of it.
void TextReporter::onResult(Row& row, const event::Result& result) {
    const Outcome& outcome = result.outcome;
    if (row.meter.active()) {
        row.meter.finish(!outcome.isFailure());
        scheduleDraw();
    }
    if (const auto* checklist = std::get_if<Checklist>(&outcome.cause)) {
        for (const CheckRow& check : checklist->rows) {
            printLine(stdout, prefixed(row.port, checkLines(check)));
        }
    }
    const auto summary = summarize(outcome, Texts::Audience::commandLine);
    if (!summary) {
        if (style_.withPorts) {
            printLine(stdout, prefixed(row.port, outcome.message));
        }
        for (const QString& line : outcome.evidence) {
            printLine(stdout, prefixed(row.port, line));
        }
        return;
    }
    std::FILE* stream = outcome.isFailure() ? stderr : stdout;
    printLine(stream,
              prefixed(row.port, outcome.isFailure() ? LogEntry::error(summary->headline).line()
                                                     : summary->headline));
    for (const QString& line : summary->details) {
        printLine(stream, prefixed(row.port, QStringLiteral("  ") + line));
    }
    if (!summary->nextStep.isEmpty()) {
        printLine(stream, prefixed(row.port, summary->nextStep));
    }
}

QString TextReporter::prefixed(const QString& port, const QString& text) const {
    return style_.withPorts && !port.isEmpty() ? port + QStringLiteral(": ") + text : text;
}

void TextReporter::printLine(std::FILE* stream, const QString& text) {
    if (style_.terminal) {
        erase();
        scheduleDraw();
    }
    write(stream, text + QLatin1Char('\n'));
}

void TextReporter::scheduleDraw() {
    if (!style_.terminal || drawTimer_.isActive()) {
        return;
    }
    const qint64 sinceLast = clock_.elapsed() - lastDrawMs_;
    drawTimer_.start(static_cast<int>(std::max<qint64>(0, kDrawIntervalMs - sinceLast)));
}

void TextReporter::draw() {
    erase();
    int portWidth = 0;
    for (const Row& r : rows_) {
        if (style_.withPorts) {
            portWidth = std::max(portWidth, static_cast<int>(r.port.size()));
        }
    }
    QString lines;
    for (const Row& r : rows_) {
        if (r.meter.active()) {
            lines += progressLine(r, portWidth) + QLatin1Char('\n');
            ++drawnLines_;
        }
    }
    write(stdout, lines);
    lastDrawMs_ = clock_.elapsed();
}

void TextReporter::erase() {
    if (drawnLines_ == 0) {
        return;
    }
    // Up to the first progress line, then clear everything below it.
    write(stdout, QStringLiteral("\x1b[%1A\r\x1b[J").arg(drawnLines_));
    drawnLines_ = 0;
}

QString TextReporter::progressLine(const Row& row, int portWidth) const {
    QString line;
    if (portWidth > 0) {
        line = row.port.leftJustified(portWidth) + QStringLiteral("  ");
    }
    line += row.meter.stage().leftJustified(kStageWidth, QLatin1Char(' '), true) +
            QLatin1Char(' ') + row.meter.bar(kBarWidth) + QStringLiteral("  ") +
            row.meter.figures();
    // A line that wraps would throw off the cursor movement of the next redraw.
    return line.left(terminalColumns() - 1);
}
