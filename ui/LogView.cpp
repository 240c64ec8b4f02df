#include "ui/LogView.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextLayout>
#include <QTextOption>
#include <QtMath>
#include <algorithm>

#include "ui/Colors.h"

namespace {

QTextOption wrapOption() {
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

}  // namespace

LogView::LogView(QWidget* parent)
    : QAbstractScrollArea(parent),
      m_regular(QFontDatabase::systemFont(QFontDatabase::FixedFont)),
      m_spacing(2) {
    m_regular.setPointSizeF(11);
    m_bold = m_regular;
    m_bold.setBold(true);
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
    updateScrollRange();
    if (lines.size() != shown && !lines.isEmpty()) {
        scrollToBottom();
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
    const QFontMetrics metrics(fontFor(line));
    const int width = std::max(1, viewport()->width());
    if (metrics.horizontalAdvance(line) <= width) {
        return metrics.height();
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
    bar->setPageStep(visible);
    bar->setSingleStep(QFontMetrics(m_regular).height() + m_spacing);
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
