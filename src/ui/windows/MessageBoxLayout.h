#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Geometry of the message box with chosen buttons, in pixels. The window measures its texts and
// carries the result out.
namespace MessageBoxLayout {

// The two measures of a text in the box's font.
struct TextMeasure {
    std::function<int(std::string_view)> width; // of the widest line, whole pixels
    int lineHeight = 0;
};

struct Button {
    std::string text; // the caption with its line breaks
    int left = 0;     // from the left end of the button row
};

struct Layout {
    int labelLeft = 0;
    int labelWidth = 0;
    int labelHeight = 0; // at least; a prompt that wraps to more lines gets its room
    int innerWidth = 0;
    int buttonWidth = 0;
    int buttonHeight = 0;
    std::vector<Button> buttons;
};

// A box of one to five captions. Wide captions are wrapped at their blanks, their buttons getting narrower and
// taller, until the row fits; a word is never cut. A wide prompt is wrapped. `buttonHeight` is the height of a
// button of one line.
[[nodiscard]] Layout Arrange(std::string_view prompt, bool hasIcon, std::span<const std::string> captions,
                             const TextMeasure& measure, int buttonHeight);

} // namespace MessageBoxLayout
