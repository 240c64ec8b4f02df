#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

/// Brand colours: opaque sRGB constants, each created once on first use.
namespace CV {

const QColor& darkGray();
const QColor& mediumGray();
const QColor& blue();

/// Colours for the About window's text.
namespace NS {
const QColor& deepBlue();
}  // namespace NS

}  // namespace CV

/// Semantic colours of the windows. GUI thread only.
namespace AppColors {

/// Status dot while a device is connected.
const QColor& connected();
/// Status dot while none is.
const QColor& disconnected();
/// The determinate progress bar.
const QColor& accent();
/// Log lines: the application palette's text colour at the time of the call, so it
/// follows a light or dark theme.
QColor logText();

// Colours of text, each for the background it is drawn on: the brand's (or the
// design's) colour where it reads well enough there (`Contrast::readableOn`), else
// the nearest shade of it that does, so that text stays legible in a light and in
// a dark theme.

/// Port path, firmware label, a check's fix, copy icon.
QColor secondaryText(const QColor& background);
/// The "Plotter not found?" link and the mark of a check that passed.
QColor accentText(const QColor& background);
/// The mark of a check that failed, and what went wrong.
QColor problemText(const QColor& background);

}  // namespace AppColors

/// The result banner's colours, one pair (field, edge) for each tone of
/// `ResultSummary`, and its text. A field is light in a light window and dark in a
/// dark one (`window` is the colour of the window around the banner). GUI thread
/// only.
namespace BannerColors {

QColor goodField(const QColor& window);
const QColor& goodEdge();
QColor cautionField(const QColor& window);
const QColor& cautionEdge();
QColor badField(const QColor& window);
const QColor& badEdge();
/// Text on `field`.
QColor text(const QColor& field);

}  // namespace BannerColors

namespace Palettes {

/// Sets `role` of `widget`'s palette to `colour`; the other roles go on following
/// its parent's.
void setColour(QWidget* widget, QPalette::ColorRole role, const QColor& colour);

}  // namespace Palettes
