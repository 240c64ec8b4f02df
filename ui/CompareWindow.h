#pragma once

#include <QString>
#include <QWidget>

#include "app/ConfigDiff.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;

/// A read-only window that shows what uploading a configuration would change: a
/// summary, then two tabs, "By Key" (one line per differing key path, or why the
/// files could not be read) and "By Line" (the unified line diff), and the buttons
/// "Upload This Configuration" and "Close" (also Escape). Its content is built once
/// by the constructor. GUI thread only.
class CompareWindow : public QWidget {
    Q_OBJECT

  public:
    /// `comparison` runs from the machine's configuration to the chosen one,
    /// which the user knows as `chosenLabel`.
    CompareWindow(const ConfigComparison& comparison, const QString& chosenLabel,
                  QWidget* parent = nullptr);

    /// The summary line for `comparison`, for example "2 settings differ between
    /// the machine's config and Corvane Halcot." followed by how to read them.
    static QString summary(const ConfigComparison& comparison, const QString& chosenLabel);

    QLabel* summaryLabel() const { return summary_; }
    QTabWidget* tabs() const { return tabs_; }
    QPlainTextEdit* keyView() const { return keys_; }
    QPlainTextEdit* lineView() const { return lines_; }
    QPushButton* uploadButton() const { return upload_; }

  signals:
    /// "Upload This Configuration" was pressed; the window closes itself.
    void uploadRequested();

  private:
    void buildLayout();

    QLabel* summary_;
    QTabWidget* tabs_;
    QPlainTextEdit* keys_;
    QPlainTextEdit* lines_;
    QPushButton* upload_;
    QPushButton* close_;
};
