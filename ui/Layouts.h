#pragma once

#include <QLabel>
#include <QVBoxLayout>

/// The layout the updater's windows share. GUI thread only.
namespace Layouts {

/// Installs on `window` (which owns it) its main column: 20 px margins and
/// `spacing` px between rows.
QVBoxLayout* windowColumn(QWidget* window, int spacing);

/// Adds `summary` as the plain-text, wrapping first line of a dialog's `column`.
void addSummary(QVBoxLayout* column, QLabel* summary);

}  // namespace Layouts
