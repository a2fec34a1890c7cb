#pragma once

#include "Random.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace BenchData {

// A variation and what is odd about it.
struct Variation {
    std::string prefix{}; // markers
    std::string base{};
    std::string suffix{};      // "%" and a volume
    bool isUnreadable = false; // holds one of _ * [ ] { }
    bool isAccented = false;   // holds a letter above ASCII
    bool hasUnusualCapitals = false;
    bool isOtherName = false; // the name of another district

    [[nodiscard]] std::string Text() const { return prefix + base + suffix; }
    // Unreadable letters are in order where a "!" says that the spelling is a mistake.
    [[nodiscard]] bool IsWarned() const {
        return isAccented || (isUnreadable && prefix.find('!') == std::string::npos);
    }
};

// The spellings of one district: its name with the slips that clerks and copyists make. None of them
// is given out twice, in whatever letters, so that a file has only the duplicates that were planted.
class Spellings {
public:
    // `name` and `county` must live as long as the object.
    Spellings(const std::string& name, const std::string& county);

    Variation Ordinary(Random& random);
    Variation Unreadable(Random& random);
    Variation Accented(Random& random);
    Variation UnusualCapitals(Random& random);
    // The name itself, which another district has; an ordinary spelling when it has been given out.
    Variation OtherName(std::string_view name, Random& random);
    // One of those given out before, with or without its "!".
    static Variation Duplicate(const std::vector<Variation>& earlier, Random& random);

private:
    std::string NewSpelling(Random& random);
    [[nodiscard]] std::string Misspelt(const std::string& spelling, bool isFirst, Random& random) const;
    bool Take(std::string_view spelling);

    const std::string& m_name;
    const std::string& m_county;
    std::vector<std::size_t> m_letters;      // of the name's words, first letters aside
    std::unordered_set<std::string> m_taken; // in capitals
};

} // namespace BenchData
