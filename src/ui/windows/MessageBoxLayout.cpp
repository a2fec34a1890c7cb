#include "ui/windows/MessageBoxLayout.h"

#include "core/Ansi.h"

#include <algorithm>
#include <cmath>

namespace MessageBoxLayout {

namespace {

constexpr int Margin = 10;
constexpr int IconRoom = 42; // the icon and the gap behind it
constexpr int MaxInnerWidth = 500;
constexpr int WrappedPromptWidth = 438;
constexpr double WrapEvery = 450;
constexpr int MinButtonWidth = 75;
constexpr int CaptionPadding = 10;
constexpr int ButtonGap = 20;

int WidestWord(std::span<const std::string> captions, const TextMeasure& measure) {
    int widest = 0;
    for (const std::string& caption : captions) {
        for (const std::string_view word : Ansi::Split(caption, ' ')) {
            widest = std::max(widest, measure.width(word));
        }
    }
    return widest;
}

// The caption with a line break wherever the next word would not fit any more.
std::string WrapCaption(std::string_view caption, int width, const TextMeasure& measure) {
    std::string text;
    std::string line;
    for (const std::string_view word : Ansi::Split(caption, ' ')) {
        const std::string longer = line.empty() ? std::string(word) : line + ' ' + std::string(word);
        if (line.empty() || measure.width(longer) <= width) {
            line = longer;
        } else {
            text += line + '\n';
            line = word;
        }
    }
    return text + line;
}

int LineCount(std::string_view text) {
    return 1 + static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

// Makes the buttons narrow enough for the row. The row is reckoned with one button less than there
// are, as the box has always done.
void SizeButtons(Layout& layout, std::span<const std::string> captions, const TextMeasure& measure, int buttonHeight) {
    const int upperBound = static_cast<int>(std::ssize(captions)) - 1;
    int widest = 0;
    for (const std::string& caption : captions) {
        widest = std::max(widest, measure.width(caption));
    }
    layout.buttonWidth = std::max(widest + CaptionPadding, MinButtonWidth);
    layout.buttonHeight = buttonHeight;
    const int narrowest = std::min(WidestWord(captions, measure) + CaptionPadding, layout.buttonWidth);
    while (upperBound * (layout.buttonWidth + ButtonGap) > MaxInnerWidth && layout.buttonWidth > narrowest) {
        layout.buttonWidth = std::max(layout.buttonWidth / 2, narrowest);
        layout.buttonHeight += measure.lineHeight + 1;
    }
    for (const std::string& caption : captions) {
        const std::string text = WrapCaption(caption, layout.buttonWidth - CaptionPadding, measure);
        layout.buttonHeight =
            std::max(layout.buttonHeight, buttonHeight + (LineCount(text) - 1) * (measure.lineHeight + 1));
        layout.buttons.push_back({text, 0});
    }
}

void PlacePrompt(Layout& layout, std::string_view prompt, bool hasIcon, const TextMeasure& measure) {
    const int rowWidth = static_cast<int>(std::ssize(layout.buttons)) * (layout.buttonWidth + ButtonGap);
    const int promptWidth = measure.width(prompt);
    const int textHeight = LineCount(prompt) * measure.lineHeight;
    layout.labelLeft = hasIcon ? Margin + IconRoom : Margin;
    const int need = promptWidth + layout.labelLeft + Margin;
    if (need <= MaxInnerWidth) {
        layout.labelWidth = promptWidth;
        layout.labelHeight = textHeight;
        layout.innerWidth = std::max(need, rowWidth);
    } else {
        layout.labelWidth = WrappedPromptWidth;
        layout.labelHeight = static_cast<int>(std::ceil((textHeight + 2) * (promptWidth / WrapEvery))) + Margin;
        layout.innerWidth = std::max(MaxInnerWidth, rowWidth);
    }
}

void PlaceButtons(Layout& layout) {
    const int upperBound = static_cast<int>(std::ssize(layout.buttons)) - 1;
    const int room = layout.innerWidth - Margin - layout.buttonWidth;
    if (upperBound == 0) {
        layout.buttons.front().left = room / 2;
        return;
    }
    for (int i = 0; i <= upperBound; ++i) {
        layout.buttons[static_cast<std::size_t>(i)].left = room * i / upperBound;
    }
}

} // namespace

Layout Arrange(std::string_view prompt, bool hasIcon, std::span<const std::string> captions, const TextMeasure& measure,
               int buttonHeight) {
    Layout layout;
    SizeButtons(layout, captions, measure, buttonHeight);
    PlacePrompt(layout, prompt, hasIcon, measure);
    PlaceButtons(layout);
    return layout;
}

} // namespace MessageBoxLayout
