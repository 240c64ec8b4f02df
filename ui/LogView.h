#pragma once

#include <QAbstractScrollArea>
#include <QFont>
#include <QStringList>
#include <QTimer>
#include <vector>

/// The log's lines, one wrapped text per entry, 2 px apart, in the fixed-pitch
/// system font at 11 px (bold for lines that begin with "ERROR:").
///
/// Lines are measured once when they arrive and painted only while visible, so a
/// line appended to a log of any length costs the same. GUI thread only.
class LogView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit LogView(QWidget* parent = nullptr);

    /// Shows `lines`. A list that extends the one shown (same count up to its last
    /// shown line) only measures the new lines; any other list replaces them all.
    /// When the count changed and is not zero, scrolls so that the last line lies at
    /// the bottom edge of the visible area. The lines are taken at once; scroll bar
    /// and drawing follow within one frame (16 ms), once for any number of calls.
    void setLines(const QStringList& lines);

    /// The lines shown, oldest first.
    const QStringList& lines() const { return lines_; }

    /// True when `line` is shown in bold: it begins with the six characters "ERROR:".
    static bool isErrorLine(const QString& line);

    /// The font `line` is drawn with.
    QFont fontFor(const QString& line) const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    void appendLine(const QString& line);
    void remeasure();
    int measure(const QString& line) const;
    bool fitsOnOneLine(const QString& line, int width) const;
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
    QStringList lines_;
    // Top edge of each line in content coordinates; the content's height follows
    // the last line.
    std::vector<int> tops_;
    int contentHeight_ = 0;
    bool scrollPending_ = false;
    QTimer refresh_;
};
