#pragma once

#include <QString>
#include <functional>
#include <optional>

class QWidget;

/// Asks where the firmware catalogue is, starting from `current`: an http(s)
/// address, a catalogue.json file or a folder. The text given, or none when the
/// user cancelled. Runs modally on the GUI thread.
using CatalogueChooser =
    std::function<std::optional<QString>(QWidget* parent, const QString& current)>;

/// File > "Firmware Catalogue…": a line for the address with "Choose File…" and
/// "Choose Folder…" beside it, then OK and Cancel (also Escape).
std::optional<QString> chooseCatalogueWithDialog(QWidget* parent, const QString& current);
