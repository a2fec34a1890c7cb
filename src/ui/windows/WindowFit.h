#pragma once

#include <algorithm>
#include <optional>

// Fitting the window to a small screen. Lengths are pixels; heights of windows include the caption.
namespace WindowFit {

struct Screen {
    int height = 0;        // of the whole screen
    int usableHeight = 0;  // of the inside of a full-screen window
    int captionHeight = 0; // of a window's caption
};

// The width that a window is given.
[[nodiscard]] constexpr int FittedWidth(int windowWidth, int usableWidth) {
    return std::min(windowWidth, usableWidth);
}

// The height that a window is given; nothing when it fits the screen as it is.
[[nodiscard]] constexpr std::optional<int> FittedHeight(int windowHeight, const Screen& screen) {
    if (windowHeight <= screen.height) {
        return std::nullopt;
    }
    return screen.usableHeight + screen.captionHeight;
}

// Twips, 1/1440 inch, at a resolution in dots per inch.
[[nodiscard]] constexpr int TwipsToPixels(int twips, int dotsPerInch) {
    constexpr int twipsPerInch = 1440;
    return (twips * dotsPerInch + twipsPerInch / 2) / twipsPerInch;
}

// Room beside the comment column, so that its text never touches the scroll bar.
inline constexpr int CommentColumnTwips = 400;

} // namespace WindowFit
