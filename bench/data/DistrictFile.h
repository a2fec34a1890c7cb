#pragma once

#include "Random.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace BenchData {

// What a data file is to hold. As it stands here, opening the file raises no question and no message
// box: no variation is blank, null or invalid, no line incomplete, no name of a district used twice.
struct FilePlan {
    std::uint64_t seed = 1;
    std::size_t districts = 2300;
    std::size_t mean = 20;     // variations of a district
    std::size_t big = 0;       // variations of the middle district; 0 for as many as chance will have it
    std::size_t proposals = 0; // new spellings for the middle district
    // Shares of the variations.
    Share duplicates = Share::FromBillionths(20'000'000); // of another one of the district
    Share unreadable = Share::FromBillionths(10'000'000); // with one of _*[]{} and no "!", hence warned of
    Share accented = Share::FromBillionths(10'000'000);   // with a letter above ASCII, hence warned of
    Share unusualCapitals = Share::FromBillionths(5'000'000);
    Share otherNames = Share::FromBillionths(10'000'000); // names of other districts
    // Shares of the districts.
    Share comments = Share::FromBillionths(30'000'000);  // with a comment line above
    Share blankLines = Share::FromBillionths(2'000'000); // with a blank line above
};

// What a data file does hold; the counts of findings are those that opening the file has to show.
struct FileCounts {
    std::uint64_t lines = 0;
    std::uint64_t commentLines = 0;
    std::uint64_t blankLines = 0;
    std::uint64_t districts = 0;
    std::uint64_t variations = 0;
    std::uint64_t duplicates = 0; // pairs within districts
    std::uint64_t warnings = 0;
    std::uint64_t unusualCapitals = 0;
    std::uint64_t otherNames = 0;
    std::uint64_t bytes = 0;
};

struct WrittenFile {
    FileCounts counts;
    std::vector<std::string> proposals; // one in twenty repeats what the middle district has
};

// Writes a data file in Windows-1252 with CR LF line ends. The same plan gives the same bytes on
// every machine. Proposals do not change the file.
[[nodiscard]] WrittenFile WriteDistrictFile(const FilePlan& plan, std::ostream& out);

} // namespace BenchData
