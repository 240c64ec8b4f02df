#pragma once

#include <QObject>
#include <QString>
#include <optional>

#include "app/FirmwareCheck.h"
#include "app/Outcome.h"
#include "app/ResourceBundle.h"
#include "app/operations/FetchRelease.h"
#include "app/operations/OperationRunner.h"

/// The window's firmware catalogue: which one is used (the one named in the window,
/// else the resources' `catalogue-url`), what it lists, and which of its releases
/// the owner chose in place of the bundled firmware. The catalogue is read by a
/// `ListFirmware` on a worker of its own, which the window never waits for; with
/// no catalogue named or configured nothing is fetched and only the bundled
/// version is listed. GUI thread only.
class FirmwareChoice : public QObject {
    Q_OBJECT

  public:
    FirmwareChoice(ResourceBundle resources, DevelopmentImages developmentKey,
                   QObject* parent = nullptr);

    /// The catalogue named in the window; none: the resources' own, if any.
    const std::optional<QString>& catalogue() const { return catalogue_; }
    /// Names the catalogue, drops a chosen release and reads the catalogue again.
    void setCatalogue(const QString& text);

    /// Reads the catalogue (betas included); `listed` follows. A read already
    /// under way is let finish, and this one is not started.
    void refresh();
    bool isReading() const { return reader_.isRunning(); }
    /// The outcome of the last read (a `FirmwareListing` as its cause); until one
    /// ended, the bundled version alone.
    const Outcome& listing() const { return listing_; }
    /// Whether a catalogue is named or configured at all.
    bool hasCatalogue() const;

    /// The chosen release's version; none: no release (the bundled firmware or a file).
    const std::optional<QString>& chosen() const { return chosen_; }
    void choose(const std::optional<QString>& version);
    /// The release the firmware job writes, none without one; `allowOlder` as given.
    std::optional<CatalogueRelease> release(bool allowOlder) const;

  signals:
    void listed(const Outcome& listing);
    void chosenChanged();

  private:
    ResourceBundle resources_;
    DevelopmentImages developmentKey_;
    std::optional<QString> catalogue_;
    std::optional<QString> chosen_;
    Outcome listing_;
    OperationRunner reader_;
};
