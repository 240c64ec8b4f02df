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
      m_regular(Fonts::monospace(11)),
      m_bold(Fonts::monospace(11, true)),
      m_regularHeight(QFontMetrics(m_regular).height()),
      m_boldHeight(QFontMetrics(m_bold).height()),
      m_cellWidth(cellWidth(m_regular, m_bold)),
      m_spacing(2) {
    // Lines may arrive far faster than a screen refreshes; the scroll bar and the
    // lines are redrawn at most once per frame.
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(16);
    connect(&m_refresh, &QTimer::timeout, this, &LogView::refresh);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setAutoFillBackground(false);
    setAutoFillBackground(false);
}

bool LogView::isErrorLine(const QString& line) {
    return line.startsWith(QLatin1String("ERROR:"));
}

QFont LogView::fontFor(const QString& line) const {
    return isErrorLine(line) ? m_bold : m_regular;
}

void LogView::setLines(const QStringList& lines) {
    const qsizetype shown = m_lines.size();
    const bool extends = lines.size() > shown && (shown == 0 || lines[shown - 1] == m_lines.last());
    if (extends) {
        for (qsizetype i = shown; i < lines.size(); ++i) {
            appendLine(lines[i]);
        }
    } else {
        // Rebuilt from a fresh list so the controller's list is never shared with
        // ours: sharing would make its next append copy the whole log.
        m_lines.clear();
        m_tops.clear();
        m_contentHeight = 0;
        for (const QString& line : lines) {
            appendLine(line);
        }
    }
    if (lines.size() != shown) {
        m_scrollPending = !lines.isEmpty();
    }
    if (!m_refresh.isActive()) {
        m_refresh.start();
    }
}

void LogView::refresh() {
    updateScrollRange();
    if (m_scrollPending) {
        scrollToBottom();
        m_scrollPending = false;
    }
    viewport()->update();
}

void LogView::appendLine(const QString& line) {
    const int top = m_lines.isEmpty() ? 0 : m_contentHeight + m_spacing;
    m_lines.append(line);
    m_tops.push_back(top);
    m_contentHeight = top + measure(line);
}

int LogView::measure(const QString& line) const {
    const int width = std::max(1, viewport()->width());
    if (fitsOnOneLine(line, width)) {
        return isErrorLine(line) ? m_boldHeight : m_regularHeight;
    }
    QTextLayout layout(line, fontFor(line));
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
bool LogView::fitsOnOneLine(const QString& line, int width) const {
    if (m_cellWidth > 0 && isCellText(line)) {
        return line.size() * m_cellWidth <= width;
    }
    return QFontMetricsF(fontFor(line)).horizontalAdvance(line) <= width;
}

void LogView::remeasure() {
    const QStringList lines = m_lines;
    m_lines.clear();
    m_tops.clear();
    m_contentHeight = 0;
    for (const QString& line : lines) {
        appendLine(line);
    }
    updateScrollRange();
}

void LogView::updateScrollRange() {
    const int visible = viewport()->height();
    QScrollBar* bar = verticalScrollBar();
    bar->setRange(0, std::max(0, m_contentHeight - visible));
    if (bar->pageStep() != visible) {
        bar->setPageStep(visible);
        bar->setSingleStep(m_regularHeight + m_spacing);
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
    if (m_lines.isEmpty()) {
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
    auto first = std::upper_bound(m_tops.begin(), m_tops.end(), area.top());
    qsizetype index = std::max<qsizetype>(0, (first - m_tops.begin()) - 1);
    for (; index < m_lines.size() && m_tops[index] <= area.bottom(); ++index) {
        const QString& line = m_lines[index];
        const int next = index + 1 < m_lines.size() ? m_tops[index + 1] : m_contentHeight;
        painter.setFont(fontFor(line));
        painter.drawText(QRectF(0, m_tops[index] - offset, width, next - m_tops[index]), line,
                         option);
    }
}
