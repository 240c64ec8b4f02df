#pragma once

#include <QWidget>

#include "app/LogEntry.h"

class LogView;
class QToolButton;

/// The log area of the main window: the scrolling lines on a rounded field of the
/// text background colour, and, while there are lines, a copy button in the
/// top-right corner. Its context menu holds its actions: "Copy" (the whole log),
/// then any the window adds. While the lines have the focus, and the keyboard
/// moved it there, the field is outlined in the palette's highlight colour. GUI
/// thread only.
class LogPanel : public QWidget {
    Q_OBJECT

  public:
    explicit LogPanel(QWidget* parent = nullptr);

    /// Shows `entries` (see `LogView::setEntries`) and the copy button while there
    /// are any.
    void setEntries(const LogEntries& entries);

    LogView* view() const { return view_; }
    QToolButton* copyButton() const { return copyButton_; }

  public slots:
    /// Replaces the clipboard's content with the lines joined by "\n" (no newline
    /// after the last).
    void copyToClipboard();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void placeCopyButton();
    void drawCopyIcon();

    LogView* view_;
    QToolButton* copyButton_;
};
