#pragma once

#include <QString>

#include <string>
#include <string_view>

class QUrl;

namespace CommonRoutines {
class Wording;
} // namespace CommonRoutines

// Where the core's texts, Windows-1252 or UTF-8 as the open file is, become the toolkit's and come back.
namespace Text {

// Of a text that is longer, only this many characters are shown.
inline constexpr std::size_t LongestShown = 2000;

// Exactly the characters of the text. Back again, a character that the open file cannot have becomes "?": one that
// Windows-1252 lacks, or half of one.
[[nodiscard]] QString ToQt(std::string_view text);
[[nodiscard]] std::string FromQt(const QString& text);

// For message boxes and labels: CR LF as the toolkit's line break, and a line of unreasonable length
// cut off with an ellipsis.
[[nodiscard]] QString ForBox(std::string_view text);

// For one line of a list: a line break as a blank, control characters as visible symbols, a text
// of unreasonable length cut off with an ellipsis.
[[nodiscard]] QString ForList(std::string_view text);

// For a tooltip, which would otherwise take markup for what it says.
[[nodiscard]] QString ForToolTip(const QString& text);

// File names are in the machine's own encoding. Shown, a control character in one is a visible symbol.
[[nodiscard]] QString PathToQt(const std::string& path);
[[nodiscard]] std::string PathFromQt(const QString& path);
[[nodiscard]] std::string PathFromUrl(const QUrl& url); // of a local file; its name need not be UTF-8
[[nodiscard]] QString ShownPath(const std::string& path);

// A wording with its paths as they are shown: with exactly the characters of its texts, or for message boxes.
[[nodiscard]] QString WordingToQt(const CommonRoutines::Wording& wording);
[[nodiscard]] QString WordingForBox(const CommonRoutines::Wording& wording);

} // namespace Text
