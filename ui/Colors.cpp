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
