#pragma once

#include <QDate>
#include <QString>

#include "app/texts/Audience.h"

/// The owner-facing texts of choosing and installing a firmware version from a
/// firmware catalogue: the firmware job's lines, the listing, and the window's
/// menu items and dialogs. Versions as the firmware line shows them ("2.11.0").
/// Pure functions; any thread.
namespace Texts {

// The firmware job with a catalogue's release.
QString noCatalogueConfigured(Audience audience);
QString fetchingRelease(const QString& version, const QString& address);
QString downloadingStage();
QString updatingRelease(const QString& version);
QString releaseOlderThanRunning(const QString& chosen, const QString& running, Audience audience);

// The listing of versions (teskal-flash firmware).
QString bundledSource();
QString catalogueSource();
QString stableChannel();
QString betaChannel();
QString releaseLine(const QString& version, const QString& channel, const QString& date,
                    const QString& source, const QString& notes);
QString firmwareListed(qsizetype count);

// The window.
QString firmwareCatalogueItem();
QString chooseFirmwareVersionItem();
QString releaseFirmwareLabel(const QString& version);
QString newerFirmwareAvailable(const QString& version);
QString catalogueSourceTitle();
QString catalogueSourcePrompt();
QString chooseCatalogueFile();
QString chooseCatalogueFolder();
QString catalogueChosen(const QString& address);
QString chooseVersionTitle();
QString versionColumn();
QString channelColumn();
QString notesColumn();
QString showBetaVersions();
QString useThisVersionButton();
QString bundledMark();
QString ranOnThisMachine();
QString readingCatalogue();
QString noCatalogueInWindow();
QString releaseChosen(const QString& version);
QString installOlderTitle();
QString installOlderQuestion(const QString& chosen, const QString& running);
QString installOlderButton();

}  // namespace Texts
