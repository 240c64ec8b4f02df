#pragma once

#include <QSet>
#include <QString>
#include <QWidget>
#include <optional>

#include "app/Outcome.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QTreeWidget;

/// File > "Choose Firmware Version…": the bundled version first, then the firmware
/// catalogue's, newest first, one row each with its version, channel, date and
/// notes; beta versions only with "Show beta versions"; a version that ran on this
/// machine is marked so. A line above the list tells a catalogue being read, shown
/// from the cache (with its date), not usable, or not configured. "Use This
/// Version" chooses the selected row and closes; "Close" (also Escape) closes.
/// GUI thread only.
class FirmwareVersionWindow : public QWidget {
    Q_OBJECT

  public:
    /// `ranHere`: versions this machine answered before, as the firmware line shows
    /// them; `chosen`: the release chosen now, none for the bundled firmware.
    FirmwareVersionWindow(QSet<QString> ranHere, std::optional<QString> chosen,
                          QWidget* parent = nullptr);

    /// Shows the listing `outcome` (a `FirmwareListing` as its cause) and whether a
    /// catalogue is configured at all.
    void showListing(const Outcome& outcome, bool hasCatalogue);
    /// Says that the catalogue is being read.
    void showReading();

    /// The versions listed now, in order; the bundled one first.
    QList<FirmwareRelease> shown() const { return shown_; }
    QTreeWidget* list() const { return list_; }
    QCheckBox* betaBox() const { return beta_; }
    QLabel* summary() const { return summary_; }
    QPushButton* useButton() const { return use_; }

  signals:
    /// "Use This Version" was pressed: a catalogue's version, or none for the bundled one.
    void versionChosen(const std::optional<QString>& version);

  private:
    void buildLayout();
    void fill();

    QSet<QString> ranHere_;
    std::optional<QString> chosen_;
    QList<FirmwareRelease> all_;
    QList<FirmwareRelease> shown_;
    QLabel* summary_;
    QTreeWidget* list_;
    QCheckBox* beta_;
    QPushButton* use_;
    QPushButton* close_;
};
