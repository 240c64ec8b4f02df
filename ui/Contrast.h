#pragma once

#include <QColor>

/// How well text reads on its background, by the relative luminance and contrast
/// ratio of WCAG 2 (sRGB). Pure functions; any thread.
namespace Contrast {

/// The least ratio body text needs against its background (WCAG 2, level AA).
inline constexpr double kMinimumForText = 4.5;

/// From 1 (the same luminance) to 21 (black on white); symmetric. Opaque colours.
double ratio(const QColor& a, const QColor& b);

/// Whether black reads better than white on `background`.
bool isLight(const QColor& background);

/// `wanted` when it has at least `minimum` against `background`; else the shade of
/// it nearest to it that has, moved toward black on a light background and toward
/// white on a dark one, in whole 8-bit steps so that it keeps its ratio when written
/// as #rrggbb. A ratio beyond what black or white reach gives black or white.
QColor readableOn(const QColor& wanted, const QColor& background, double minimum = kMinimumForText);

}  // namespace Contrast
