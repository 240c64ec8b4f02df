#pragma once

#include <QColor>

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
/// Port path, firmware label, copy icon.
const QColor& secondaryText();
/// The mark of a check that failed.
const QColor& problem();

}  // namespace AppColors

/// The result banner's colours, one pair (field, edge) for each tone of
/// `ResultSummary`. GUI thread only.
namespace BannerColors {

const QColor& goodField();
const QColor& goodEdge();
const QColor& cautionField();
const QColor& cautionEdge();
const QColor& badField();
const QColor& badEdge();

}  // namespace BannerColors
