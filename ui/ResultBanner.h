#pragma once

#include <QFrame>
#include <QList>
#include <optional>

#include "app/ResultSummary.h"

class QAction;
class QHBoxLayout;
class QLabel;
class QToolButton;

/// The end of the last job at a glance, between the progress bar and the log:
/// green when the machine runs what was written, amber when that is not
/// confirmed, red for a failure or a machine that does not start; the headline,
/// the machine's own lines and what to do next. It stays until the next job
/// starts or the owner closes it. It follows the window's light or dark palette.
///
/// For a screen reader it is an alert named by its headline, announced as it
/// appears; its close button is "Dismiss". Tab reaches its offers, then the close
/// button. GUI thread only.
class ResultBanner : public QFrame {
    Q_OBJECT

  public:
    explicit ResultBanner(QWidget* parent = nullptr);

    /// Shows `summary`, or hides the banner for none. `offers` become buttons
    /// under the text (a step the window can take at once); the banner does not
    /// own them.
    void showSummary(const std::optional<ResultSummary>& summary,
                     const QList<QAction*>& offers = {});

    const std::optional<ResultSummary>& summary() const { return summary_; }
    QLabel* headline() const { return headline_; }
    QLabel* details() const { return details_; }
    QLabel* nextStep() const { return nextStep_; }
    QToolButton* closeButton() const { return close_; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void clearOffers();
    void addOffers(const QList<QAction*>& offers);
    /// The field's colour for the tone shown, in the current palette.
    QColor field() const;
    void recolour();

    std::optional<ResultSummary> summary_;
    QLabel* headline_;
    QLabel* details_;
    QLabel* nextStep_;
    QHBoxLayout* offers_;
    QToolButton* close_;
};
