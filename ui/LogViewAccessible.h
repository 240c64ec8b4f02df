#pragma once

#include <QAccessibleWidget>
#include <QStringList>

class LogView;

/// What a screen reader finds of the log: a read-only, multi-line text named "Log"
/// that holds the log's lines, one a line, with the caret at the start of the
/// newest, so that moving into the log reads it. Lines that arrive are reported as
/// inserted text. GUI thread only.
class LogViewAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit LogViewAccessible(LogView* view);

    /// Makes the accessibility framework describe every `LogView` with this class.
    /// Idempotent; call before a log view is first described.
    static void install();
    /// Reports the lines of `view` from index `from` on as inserted, when a screen
    /// reader listens.
    static void reportAppended(LogView* view, qsizetype from);
    /// Reports that the lines of `view`, which were `before`, were replaced.
    static void reportReplaced(LogView* view, const QStringList& before);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // The text: the log's lines joined by "\n". Nothing can be selected.
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    int selectionCount() const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

  private:
    const LogView* view() const;
};
