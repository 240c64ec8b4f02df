#include "ui/Colors.h"

#include <QGuiApplication>
#include <QPalette>
#include <QWidget>

#include "ui/Contrast.h"

namespace {

// A light field would glare in a dark window: there the field is the window's own
// colour, tinged with the tone's.
QColor fieldIn(const QColor& window, const QColor& lightField, const QColor& edge) {
    if (Contrast::isLight(window)) {
        return lightField;
    }
    constexpr double kTinge = 0.3;
    const auto mix = [](double a, double b) { return a + (b - a) * kTinge; };
    return QColor::fromRgbF(mix(window.redF(), edge.redF()), mix(window.greenF(), edge.greenF()),
                            mix(window.blueF(), edge.blueF()));
}

}  // namespace

namespace CV {

const QColor& darkGray() {
    static const QColor colour(61, 64, 68);
    return colour;
}

const QColor& mediumGray() {
    static const QColor colour(115, 117, 121);
    return colour;
}

const QColor& blue() {
    static const QColor colour(0, 159, 223);
    return colour;
}

namespace NS {
const QColor& deepBlue() {
    static const QColor colour(27, 67, 154);
    return colour;
}
}  // namespace NS

}  // namespace CV

namespace AppColors {

const QColor& connected() {
    return CV::blue();
}

const QColor& disconnected() {
    return CV::mediumGray();
}

const QColor& accent() {
    return CV::blue();
}

QColor logText() {
    return QGuiApplication::palette().color(QPalette::Text);
}

// The brand's grey and blue read on a light window but not on a dark one, and the
// blue not even on white: where they fall short, a shade of them is used for text
// alone.
QColor secondaryText(const QColor& background) {
    return Contrast::readableOn(CV::darkGray(), background);
}

QColor accentText(const QColor& background) {
    return Contrast::readableOn(CV::blue(), background);
}

QColor problemText(const QColor& background) {
    return Contrast::readableOn(BannerColors::badEdge(), background);
}

}  // namespace AppColors

namespace BannerColors {

QColor goodField(const QColor& window) {
    return fieldIn(window, QColor(226, 243, 228), goodEdge());
}

const QColor& goodEdge() {
    static const QColor colour(46, 125, 50);
    return colour;
}

QColor cautionField(const QColor& window) {
    return fieldIn(window, QColor(255, 243, 214), cautionEdge());
}

const QColor& cautionEdge() {
    static const QColor colour(191, 128, 0);
    return colour;
}

QColor badField(const QColor& window) {
    return fieldIn(window, QColor(253, 228, 226), badEdge());
}

const QColor& badEdge() {
    static const QColor colour(198, 40, 40);
    return colour;
}

QColor text(const QColor& field) {
    return Contrast::readableOn(CV::darkGray(), field);
}

}  // namespace BannerColors

namespace Palettes {

void setColour(QWidget* widget, QPalette::ColorRole role, const QColor& colour) {
    QPalette palette = widget->palette();
    palette.setColor(role, colour);
    widget->setPalette(palette);
}

}  // namespace Palettes
