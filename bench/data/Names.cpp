#include "Names.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

namespace BenchData {

namespace {

// Shares of the kinds of names, in percent, added up.
constexpr int WelshUpTo = 12;
constexpr int PrefixedUpTo = 30;
constexpr int JoinedUpTo = 40;
constexpr int DoubledUpTo = 46;
constexpr int SaintsUpTo = 48;

constexpr std::uint32_t WelshWithSuffix = 40;

std::string WelshName(Random& random) {
    std::string name(random.OneOf(Words::WelshBeginnings));
    name += random.OneOf(Words::WelshEnds);
    if (random.Happens(WelshWithSuffix)) {
        name.append(" ").append(random.OneOf(Words::WelshSuffixes));
    }
    return name;
}

std::string PlainName(Random& random) {
    std::string name(random.OneOf(Words::NameBeginnings));
    name += random.OneOf(Words::NameMiddles);
    name += random.OneOf(Words::NameEnds);
    return name;
}

std::string Prefixed(std::string_view name, Random& random) {
    return std::string(random.OneOf(Words::NamePrefixes)).append(" ").append(name);
}

// A name that is more than one plain one.
std::string FancyName(int kind, Random& random) {
    if (kind < WelshUpTo) {
        return WelshName(random);
    }
    std::string name = PlainName(random);
    if (kind < PrefixedUpTo) {
        return Prefixed(name, random);
    }
    if (kind < JoinedUpTo) {
        name += random.OneOf(Words::Joiners);
        name += random.OneOf(Words::Features);
    } else if (kind < DoubledUpTo) {
        name.append(" ").append(random.OneOf(Words::NameBeginnings)).append(random.OneOf(Words::NameEnds));
    } else {
        name.append(" St ").append(random.OneOf(Words::NameBeginnings)).append("y");
    }
    return name;
}

char Capital(char c) {
    constexpr char firstAccented = '\xE0';
    constexpr char divisionSign = '\xF7';
    constexpr char lastAccented = '\xFE';
    const bool accented = c >= firstAccented && c <= lastAccented && c != divisionSign;
    const bool small = (c >= 'a' && c <= 'z') || accented;
    return small ? static_cast<char>(c - ('a' - 'A')) : c;
}

} // namespace

std::string InCapitals(std::string_view text) {
    std::string capitals(text);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), Capital);
    return capitals;
}

std::string Volume(Random& random) {
    constexpr std::string_view parts = "abcde";
    constexpr std::uint32_t romanPercent = 14;
    const std::size_t number = random.Below(Words::RomanNumbers.size());
    if (random.Happens(romanPercent)) {
        return std::string(Words::RomanNumbers[number]);
    }
    const std::size_t part = random.Below(parts.size() + 1);
    return std::to_string(number + 1).append(parts.substr(part, 1));
}

namespace {

// A name that is in none of `taken`; nothing when this try met only names that are.
std::optional<std::string> NewName(Random& random, std::unordered_set<std::string>& taken) {
    const auto isNew = [&](const std::string& name) { return taken.insert(InCapitals(name)).second; };
    if (const int kind = random.Between(0, 99); kind < SaintsUpTo) {
        std::string name = FancyName(kind, random);
        return isNew(name) ? std::optional(std::move(name)) : std::nullopt;
    }
    // The plain names run out first; with a word before and one behind there are enough for millions.
    std::string name = PlainName(random);
    if (isNew(name)) {
        return name;
    }
    name = Prefixed(name, random);
    if (isNew(name)) {
        return name;
    }
    name.append(" ").append(random.OneOf(Words::Features));
    return isNew(name) ? std::optional(std::move(name)) : std::nullopt;
}

} // namespace

std::vector<std::string> DistrictNames(Random& random, std::size_t count) {
    std::vector<std::string> names;
    names.reserve(count);
    std::unordered_set<std::string> taken;
    taken.reserve(count);
    while (names.size() < count) {
        if (auto name = NewName(random, taken)) {
            names.push_back(std::move(*name));
        }
    }
    return names;
}

} // namespace BenchData
