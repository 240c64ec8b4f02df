#include "ui/Contrast.h"

#include <QtMath>
#include <algorithm>

namespace {

constexpr int kSteps = 256;

double linear(int channel) {
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : qPow((c + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    const QColor rgb = colour.toRgb();
    return 0.2126 * linear(rgb.red()) + 0.7152 * linear(rgb.green()) + 0.0722 * linear(rgb.blue());
}

QColor mixed(const QColor& from, const QColor& to, int step) {
    const auto mix = [step](int a, int b) { return qRound(a + (b - a) * step / double(kSteps)); };
    return QColor(mix(from.red(), to.red()), mix(from.green(), to.green()),
                  mix(from.blue(), to.blue()));
}

}  // namespace

namespace Contrast {

double ratio(const QColor& a, const QColor& b) {
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

bool isLight(const QColor& background) {
    return ratio(Qt::black, background) >= ratio(Qt::white, background);
}

// Moving toward the far end first lowers the ratio of a colour that stands on the
// same side of the background, then raises it for good, so the steps that pass
// form one run up to the far end, and its start can be bisected.
QColor readableOn(const QColor& wanted, const QColor& background, double minimum) {
    const QColor start = wanted.toRgb();
    if (ratio(start, background) >= minimum) {
        return start;
    }
    const QColor end = isLight(background) ? QColor(Qt::black) : QColor(Qt::white);
    int failing = 0;
    int passing = kSteps;
    while (passing - failing > 1) {
        const int middle = (failing + passing) / 2;
        (ratio(mixed(start, end, middle), background) >= minimum ? passing : failing) = middle;
    }
    return mixed(start, end, passing);
}

}  // namespace Contrast
