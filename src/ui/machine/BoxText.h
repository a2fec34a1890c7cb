#pragma once

#include <QString>

class QFont;
class QScreen;

// The texts of the toolkit's message boxes, which are wrapped between words alone.
namespace Ui::BoxText {

// How wide a word in a box may be, in pixels, so that the box shows it to its end.
[[nodiscard]] double RoomOn(const QScreen& screen);

// The text with line breaks in the words that are wider than the room, such as a long file name; and as it is where
// there are none.
[[nodiscard]] QString WithBrokenWords(const QString& text, const QFont& font, double room);

} // namespace Ui::BoxText
