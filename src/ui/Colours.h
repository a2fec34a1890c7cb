#pragma once

#include <QColor>

// What can be reckoned of any colours.
namespace Colours {

[[nodiscard]] bool IsDark(const QColor& ground);

// A colour with a share, 0 to 1, of another one in it.
[[nodiscard]] QColor Mix(const QColor& a, const QColor& b, double shareOfB);

// A ground with a tint of the colour that marks what is chosen.
[[nodiscard]] QColor Tinted(const QColor& ground, const QColor& highlight);

// How far two colours stand out from each other, 1 to 21, as the Web Content Accessibility Guidelines reckon it.
[[nodiscard]] double Contrast(const QColor& a, const QColor& b);

// A shade of a colour in which small text is legible on a ground; the colour itself where it is.
[[nodiscard]] QColor Legible(const QColor& ink, const QColor& ground);

} // namespace Colours
