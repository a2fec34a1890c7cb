#include "ui/lists/StateColours.h"

namespace StateColours {

using CommonRoutines::VariationState;

namespace {

constexpr int DarkBelow = 128;

QColor ColourOf(const CommonRoutines::Rgb& rgb) {
    return {rgb.red, rgb.green, rgb.blue};
}

} // namespace

QColor OnLight(VariationState state) {
    return ColourOf(FactsOf(state).onLight);
}

QColor InList(VariationState state, const QPalette& palette) {
    if (state == VariationState::Plain) {
        return palette.color(QPalette::Text);
    }
    const bool dark = palette.color(QPalette::Base).lightness() < DarkBelow;
    return dark ? ColourOf(FactsOf(state).onDark) : OnLight(state);
}

QColor Hint(const QPalette& palette) {
    constexpr double textShare = 0.65; // the palette's own half, that of placeholders, is too faint
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    const auto mixed = [](int a, int b) { return qRound(textShare * a + (1 - textShare) * b); };
    return {mixed(text.red(), base.red()), mixed(text.green(), base.green()), mixed(text.blue(), base.blue())};
}

} // namespace StateColours
