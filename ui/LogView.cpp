#include "ui/LogView.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextLayout>
#include <QTextOption>
#include <QtMath>
#include <algorithm>

#include "ui/Colors.h"
#include "ui/Fonts.h"
#include "ui/LogViewAccessible.h"

namespace {

// QFontInfo::fixedPitch() is false for some monospaced fonts from fontconfig, so
// the pitch is judged by the advances of a wide, a narrow and a blank character.
qreal cellWidth(const QFont& regular, const QFont& bold) {
    qreal cell = 0;
    for (const QFont& font : {regular, bold}) {
        const QFontMetricsF metrics(font);
        const qreal wide = metrics.horizontalAdvance(QLatin1Char('M'));
        if (metrics.horizontalAdvance(QLatin1Char('i')) != wide ||
            metrics.horizontalAdvance(QLatin1Char(' ')) != wide) {
            return 0;
        }
        cell = std::max(cell, wide);
    }
    return cell;
}

// Printable Latin-1 and Latin Extended-A: one cell each in any fixed-pitch font.
bool isCellText(const QString& line) {
    return std::all_of(line.begin(), line.end(),
                       [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x180; });
}

QTextOption wrapOption() {
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

}  // namespace

LogView::LogView(QWidget* parent)
    : QAbstractScrollArea(parent),
      regular_(Fonts::monospace(11)),
      bold_(Fonts::monospace(11, true)),
      regularHeight_(QFontMetrics(regular_).height()),
      boldHeight_(QFontMetrics(bold_).height()),
      cellWidth_(cellWidth(regular_, bold_)),
      spacing_(2) {
    LogViewAccessible::install();
    // Lines may arrive far faster than a screen refreshes; the scroll bar and the
    // lines are redrawn at most once per frame.
    refresh_.setSingleShot(true);
    refresh_.setInterval(16);
    connect(&refresh_, &QTimer::timeout, this, &LogView::refresh);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setAutoFillBackground(false);
    setAutoFillBackground(false);
}

QFont LogView::fontFor(const LogEntry& entry) const {
    return entry.isError() ? bold_ : regular_;
}

int LogView::lineHeight() const {
    return std::max(regularHeight_, boldHeight_) + spacing_;
}

void LogView::setEntries(const LogEntries& entries) {
    const qsizetype shown = entries_.size();
    const bool extends =
        entries.size() > shown && (shown == 0 || entries[shown - 1] == entries_.last());
    if (extends) {
        for (qsizetype i = shown; i < entries.size(); ++i) {
            append(entries[i]);
        }
        LogViewAccessible::reportAppended(this, shown);
    } else {
        const QStringList before = lines_;
        rebuild(entries);
        LogViewAccessible::reportReplaced(this, before);
    }
    if (entries.size() != shown) {
        scrollPending_ = !entries.isEmpty();
    }
    if (!refresh_.isActive()) {
        refresh_.start();
    }
}

void LogView::refresh() {
    updateScrollRange();
    if (scrollPending_) {
        scrollToBottom();
        scrollPending_ = false;
    }
    viewport()->update();
}

void LogView::append(const LogEntry& entry) {
    const int top = entries_.isEmpty() ? 0 : contentHeight_ + spacing_;
    entries_.append(entry);
    textLength_ += (lines_.isEmpty() ? 0 : 1) + entry.line().size();
    lines_.append(entry.line());
    tops_.push_back(top);
    contentHeight_ = top + measure(entry);
}

int LogView::measure(const LogEntry& entry) const {
    const int width = std::max(1, viewport()->width());
    const QString line = entry.line();
    const QFont font = fontFor(entry);
    if (fitsOnOneLine(line, font, width)) {
        return entry.isError() ? boldHeight_ : regularHeight_;
    }
    QTextLayout layout(line, font);
    layout.setTextOption(wrapOption());
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
        row.setLineWidth(width);
        height += row.height();
    }
    layout.endLayout();
    return qCeil(height);
}

// Shaping a line costs far more than the rest of an append, so lines whose width
// follows from their length are not shaped.
bool LogView::fitsOnOneLine(const QString& line, const QFont& font, int width) const {
    if (cellWidth_ > 0 && isCellText(line)) {
        return line.size() * cellWidth_ <= width;
    }
    return QFontMetricsF(font).horizontalAdvance(line) <= width;
}

// Rebuilt entry by entry into fresh lists, so the controller's list is never
// shared with ours: sharing would make its next append copy the whole log.
void LogView::rebuild(const LogEntries& entries) {
    entries_.clear();
    lines_.clear();
    tops_.clear();
    contentHeight_ = 0;
    textLength_ = 0;
    for (const LogEntry& entry : entries) {
        append(entry);
    }
}

void LogView::remeasure() {
    rebuild(LogEntries(entries_));
    updateScrollRange();
}

void LogView::updateScrollRange() {
    const int visible = viewport()->height();
    QScrollBar* bar = verticalScrollBar();
    bar->setRange(0, std::max(0, contentHeight_ - visible));
    if (bar->pageStep() != visible) {
        bar->setPageStep(visible);
        bar->setSingleStep(regularHeight_ + spacing_);
    }
}

void LogView::scrollToBottom() {
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void LogView::resizeEvent(QResizeEvent* event) {
    const QScrollBar* bar = verticalScrollBar();
    const bool atBottom = bar->value() == bar->maximum();
    QAbstractScrollArea::resizeEvent(event);
    remeasure();
    if (atBottom) {
        scrollToBottom();
    }
}

void LogView::scrollContentsBy(int, int) {
    viewport()->update();
}

void LogView::paintEvent(QPaintEvent* event) {
    if (lines_.isEmpty()) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(AppColors::logText());
    const int offset = verticalScrollBar()->value();
    const QRect area = event->rect().translated(0, offset);
    const int width = viewport()->width();
    const QTextOption option = wrapOption();
    // The first line whose bottom may reach into the area: the one before the first
    // line that starts below the area's top.
    auto first = std::upper_bound(tops_.begin(), tops_.end(), area.top());
    qsizetype index = std::max<qsizetype>(0, (first - tops_.begin()) - 1);
    for (; index < lines_.size() && tops_[index] <= area.bottom(); ++index) {
        const QString& line = lines_[index];
        const int next = index + 1 < lines_.size() ? tops_[index + 1] : contentHeight_;
        painter.setFont(fontFor(entries_[index]));
        painter.drawText(QRectF(0, tops_[index] - offset, width, next - tops_[index]), line,
                         option);
    }
}
