#include "ui/Colours.h"

#include <algorithm>
#include <cmath>

namespace Colours {

namespace {

double Linear(double channel) {
    constexpr double straightBelow = 0.03928;
    return channel <= straightBelow ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

} // namespace

bool IsDark(const QColor& ground) {
    constexpr int darkBelow = 128;
    return ground.lightness() < darkBelow;
}

QColor Mix(const QColor& a, const QColor& b, double shareOfB) {
    const auto mixed = [=](int ofA, int ofB) { return qRound((1 - shareOfB) * ofA + shareOfB * ofB); };
    return {mixed(a.red(), b.red()), mixed(a.green(), b.green()), mixed(a.blue(), b.blue())};
}

QColor Tinted(const QColor& ground, const QColor& highlight) {
    constexpr double onLight = 0.22;
    constexpr double onDark = 0.36;
    return Mix(ground, highlight, IsDark(ground) ? onDark : onLight);
}

double Contrast(const QColor& a, const QColor& b) {
    constexpr double glare = 0.05;
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + glare) / (darker + glare);
}

QColor Legible(const QColor& ink, const QColor& ground) {
    constexpr double forSmallText = 5; // 4.5 when thin strokes have been smoothed
    constexpr double step = 0.05;
    const QColor away = IsDark(ground) ? Qt::white : Qt::black;
    QColor shade = ink;
    for (double share = step; share < 1 && Contrast(shade, ground) < forSmallText; share += step) {
        shade = Mix(ink, away, share);
    }
    return shade;
}

} // namespace Colours
