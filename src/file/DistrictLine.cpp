#include "file/DistrictLine.h"

#include "core/Ansi.h"

#include <charconv>
#include <optional>
#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::size_t MinHeaderParts = 9;

constexpr std::int16_t AbandonedQuarter = 5;

std::optional<std::int16_t> NumberIn(std::string_view text) {
    text = Ansi::Trim(text);
    std::int16_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return number;
}

bool IsSpecialQuarter(std::int16_t quarter) {
    return quarter == 8 || quarter == 9;
}

} // namespace

HeaderResult FillHeader(DistrictRecord& record, Ansi::String header, std::size_t maxParts) {
    static std::vector<std::string_view> parts; // kept for its memory
    // One too many is enough: of a line with a million of them no more is looked at.
    Ansi::SplitInto(parts, header, '+', maxParts + 1);
    if (parts.size() < MinHeaderParts || parts.size() > maxParts) {
        return HeaderResult::WrongPartCount;
    }
    const auto founded = NumberIn(parts[3]);
    const auto quarterFounded = NumberIn(parts[4]);
    const auto abolished = NumberIn(parts[5]);
    const auto quarterAbolished = NumberIn(parts[6]);
    if (!founded || !quarterFounded || !abolished || !quarterAbolished) {
        return HeaderResult::NotANumber;
    }
    record.Founded = *founded;
    record.QtrF = *quarterFounded;
    record.Abolished = *abolished;
    record.QtrA = *quarterAbolished;
    record.Line = std::move(header);
    return HeaderResult::Filled;
}

bool IsDistrictLine(std::string_view line) {
    DistrictRecord unused;
    const bool hasHeader = !line.starts_with('|');
    const std::string_view header = hasHeader ? line.substr(0, line.find('|')) : line;
    return FillHeader(unused, Ansi::String::PartOf(header), hasHeader ? MaxDistrictParts : MaxPartsWithoutVariations) ==
           HeaderResult::Filled;
}

std::vector<std::string> QuarterComplaints(const DistrictRecord& record) {
    std::vector<std::string> complaints;
    const auto complain = [&](const std::string& about) {
        complaints.push_back("District " + std::string(record.Name()) + " has " + about);
    };
    const auto abolishedAndQuarter = [&] {
        return std::to_string(record.Abolished) + " with an invalid quarter=" + std::to_string(record.QtrA);
    };
    if (record.QtrA == AbandonedQuarter && record.Abolished == NoYear) {
        complain("a abandoned Quarter of 5 with a non-abandoned year");
    }
    if (IsSpecialQuarter(record.QtrA) && record.Abolished != NoYear) {
        complain("an abandoned year of " + abolishedAndQuarter());
    }
    if (IsSpecialQuarter(record.QtrF) && record.Founded != NoYear) {
        complain("a founded year of " + abolishedAndQuarter());
    }
    return complaints;
}

void Retain(DistrictRecord& record, Ansi::String line) {
    record.bRetained = true;
    record.Line = std::move(line);
}

} // namespace CommonRoutines
