#pragma once

#include "edit/VariationStates.h"

#include <QColor>
#include <QPalette>

class QWidget;

// The colours that tell the state of a row.
namespace StateColours {

// Backgrounds of the problem label: as a rule, and when a text was kept in spite of a warning.
inline constexpr QColor LightGrey(192, 192, 192);
inline constexpr QColor BlueGreen(0, 255, 255);

// The colour of a state on a light background; black where there is nothing to say.
[[nodiscard]] QColor OnLight(CommonRoutines::VariationState state);

// The colour of a state in a list: the same on light backgrounds, lighter shades of it on dark ones,
// and the palette's own where there is nothing to say.
[[nodiscard]] QColor InList(CommonRoutines::VariationState state, const QPalette& palette);

// Boxes to tick and to write in are outlined in a darker shade of the window's colour, which cannot be seen on a
// dark ground. With this for the window's colour it is a grey that stands out from light and dark grounds.
inline constexpr QColor ShadedToOutline(165, 165, 165);
void Outline(QWidget& box);

// The grey of what an empty list says: between the text and the background, but well legible.
[[nodiscard]] QColor Hint(const QPalette& palette);

// The ground of chosen rows: a tint of the highlight, or a grey while they only stay chosen.
[[nodiscard]] QColor ChosenGround(const QPalette& palette, bool inHand);

} // namespace StateColours
