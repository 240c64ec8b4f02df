#include "ui/Fonts.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace Fonts {

namespace {

QFont sized(QFont font, int pixelSize, QFont::Weight weight) {
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

}  // namespace

QFont system(int pixelSize, QFont::Weight weight) {
    return sized(QGuiApplication::font(), pixelSize, weight);
}

QFont monospace(int pixelSize, bool bold) {
    return sized(QFontDatabase::systemFont(QFontDatabase::FixedFont), pixelSize,
                 bold ? QFont::Bold : QFont::Normal);
}

}  // namespace Fonts
