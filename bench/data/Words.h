#pragma once

// The words that the names, the spellings and the comments of generated data files are made of. The
// places and counties are invented.

#include <span>
#include <string_view>

namespace BenchData::Words {

using Table = std::span<const std::string_view>;

extern const Table NameBeginnings; // "Ash" + "er" + "ton"
extern const Table NameMiddles;    // often empty
extern const Table NameEnds;
extern const Table NamePrefixes;    // "Great" Asherton
extern const Table Features;        // Asherton upon "Wendle"
extern const Table Joiners;         // with their blanks or hyphens
extern const Table WelshBeginnings; // "Llan" + "fair" + " Fawr"
extern const Table WelshEnds;
extern const Table WelshSuffixes;
extern const Table Counties;
extern const Table Additions;     // behind a spelling: Asherton "Union"
extern const Table Abbreviations; // before a spelling: "Gt" Asherton
extern const Table CommentTypes;  // of "#QX_" lines
extern const Table CommentWords;
extern const Table RomanNumbers; // 1 to 27

} // namespace BenchData::Words
