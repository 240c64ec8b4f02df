#include "ui/Colors.h"

#include <QGuiApplication>
#include <QPalette>

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

const QColor& secondaryText() {
    return CV::darkGray();
}

const QColor& problem() {
    static const QColor colour(198, 40, 40);
    return colour;
}

}  // namespace AppColors

namespace BannerColors {

const QColor& goodField() {
    static const QColor colour(226, 243, 228);
    return colour;
}

const QColor& goodEdge() {
    static const QColor colour(46, 125, 50);
    return colour;
}

const QColor& cautionField() {
    static const QColor colour(255, 243, 214);
    return colour;
}

const QColor& cautionEdge() {
    static const QColor colour(191, 128, 0);
    return colour;
}

const QColor& badField() {
    static const QColor colour(253, 228, 226);
    return colour;
}

const QColor& badEdge() {
    static const QColor colour(198, 40, 40);
    return colour;
}

}  // namespace BannerColors
