#include "ui/lists/StateColours.h"

#include "ui/Colours.h"

#include <QWidget>

namespace StateColours {

using CommonRoutines::VariationState;

namespace {

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
    return Colours::IsDark(palette.color(QPalette::Base)) ? ColourOf(FactsOf(state).onDark) : OnLight(state);
}

void Outline(QWidget& box) {
    QPalette palette;
    palette.setColor(QPalette::Window, ShadedToOutline);
    box.setPalette(palette);
}

QColor Hint(const QPalette& palette) {
    constexpr double textShare = 0.65; // the palette's own half, that of placeholders, is too faint
    return Colours::Mix(palette.color(QPalette::Base), palette.color(QPalette::Text), textShare);
}

QColor ChosenGround(const QPalette& palette, bool inHand) {
    constexpr double grey = 0.12;
    const QColor base = palette.color(QPalette::Base);
    return inHand ? Colours::Tinted(base, palette.color(QPalette::Highlight))
                  : Colours::Mix(base, palette.color(QPalette::Text), grey);
}

} // namespace StateColours
