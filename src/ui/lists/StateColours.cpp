#include "ui/lists/StateColours.h"

namespace StateColours {

using CommonRoutines::VariationState;

namespace {

constexpr int DarkBelow = 128;

// Shades of the same hues that stand out from dark backgrounds with a contrast of more than 4.5 to 1.
QColor OnDark(VariationState state) {
    switch (state) {
    case VariationState::Invalid:
        return {255, 128, 128};
    case VariationState::Warning:
        return {255, 170, 85};
    case VariationState::Duplicate:
        return {150, 170, 255};
    case VariationState::UnusualCaps:
        return {110, 210, 110};
    case VariationState::Plain:
        break;
    }
    return Qt::white;
}

} // namespace

QColor OnLight(VariationState state) {
    switch (state) {
    case VariationState::Invalid:
        return {236, 0, 0};
    case VariationState::Warning:
        return {204, 102, 0};
    case VariationState::Duplicate:
        return {0, 0, 255};
    case VariationState::UnusualCaps:
        return {0, 128, 0};
    case VariationState::Plain:
        break;
    }
    return Qt::black;
}

QColor InList(VariationState state, const QPalette& palette) {
    if (state == VariationState::Plain) {
        return palette.color(QPalette::Text);
    }
    const bool dark = palette.color(QPalette::Base).lightness() < DarkBelow;
    return dark ? OnDark(state) : OnLight(state);
}

QColor Hint(const QPalette& palette) {
    constexpr double textShare = 0.65; // the palette's own half, that of placeholders, is too faint
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    const auto mixed = [](int a, int b) { return qRound(textShare * a + (1 - textShare) * b); };
    return {mixed(text.red(), base.red()), mixed(text.green(), base.green()), mixed(text.blue(), base.blue())};
}

} // namespace StateColours
