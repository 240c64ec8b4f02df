#pragma once

// The catalogue of every owner-facing text of the window and the command line,
// one file pair per domain, all in namespace Texts. Texts only: which one applies
// is decided where the facts are (the port diagnosis, the start verdict, the
// outcome table).
#include "app/texts/Audience.h"
#include "app/texts/BackupTexts.h"
#include "app/texts/CatalogueTexts.h"
#include "app/texts/FileTexts.h"
#include "app/texts/FirmwareJobTexts.h"
#include "app/texts/OutcomeTexts.h"
#include "app/texts/PortTexts.h"
#include "app/texts/ReleaseTexts.h"
#include "app/texts/SnapshotTexts.h"
#include "app/texts/WindowTexts.h"
