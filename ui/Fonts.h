#pragma once

#include <QFont>

/// The windows' fonts. Sizes are in the same layout pixels as the windows' sizes
/// and positions, so text keeps its proportion to the window at any screen
/// density or scale factor. GUI thread only.
namespace Fonts {

/// The application's proportional font at `pixelSize`, with `weight`.
QFont system(int pixelSize, QFont::Weight weight = QFont::Normal);

/// The system's fixed-pitch font at `pixelSize`, bold or regular.
QFont monospace(int pixelSize, bool bold = false);

}  // namespace Fonts
