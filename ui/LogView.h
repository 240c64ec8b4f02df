#pragma once

#include <QAbstractScrollArea>
#include <QFont>
#include <QTimer>
#include <vector>

#include "app/LogEntry.h"

/// The log's lines, one wrapped text per entry, 2 px apart, in the fixed-pitch
/// system font at 11 px (errors in bold, after "ERROR:").
///
/// Lines are measured once when they arrive and painted only while visible, so a
/// line appended to a log of any length costs the same. A screen reader finds it as
/// the read-only text "Log" (see `LogViewAccessible`). GUI thread only.
class LogView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit LogView(QWidget* parent = nullptr);

    /// Shows `entries`. A list that extends the one shown (same count up to its
    /// last shown entry) only measures the new ones; any other list replaces them
    /// all. When the count changed and is not zero, scrolls so that the last line
    /// lies at the bottom edge of the visible area. The entries are taken at once;
    /// scroll bar and drawing follow within one frame (16 ms), once for any number
    /// of calls.
    void setEntries(const LogEntries& entries);

    /// The entries shown, oldest first.
    const LogEntries& entries() const { return entries_; }
    /// The lines shown, as `LogEntry::line` renders them.
    const QStringList& lines() const { return lines_; }
    /// The length of the lines joined by "\n", kept as they arrive.
    qsizetype textLength() const { return textLength_; }

    /// The font `entry` is drawn with: bold for an error.
    QFont fontFor(const LogEntry& entry) const;

    /// Pixels one unwrapped line takes, with the space below it.
    int lineHeight() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    void append(const LogEntry& entry);
    void rebuild(const LogEntries& entries);
    void remeasure();
    int measure(const LogEntry& entry) const;
    bool fitsOnOneLine(const QString& line, const QFont& font, int width) const;
    void refresh();
    void updateScrollRange();
    void scrollToBottom();

    QFont regular_;
    QFont bold_;
    int regularHeight_;
    int boldHeight_;
    // Advance of one character cell; 0 when the font is not fixed-pitch.
    qreal cellWidth_;
    int spacing_;
    LogEntries entries_;
    QStringList lines_;  // entries_ as shown, rendered once
    // Top edge of each line in content coordinates; the content's height follows
    // the last line.
    std::vector<int> tops_;
    int contentHeight_ = 0;
    qsizetype textLength_ = 0;
    bool scrollPending_ = false;
    QTimer refresh_;
};
