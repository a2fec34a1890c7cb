#include "file/DistrictLine.h"

#include "core/Ansi.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace CommonRoutines {

namespace {

constexpr std::size_t MinHeaderParts = 9;
constexpr std::size_t FirstExtraPart = 7;

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

void SplitFields(std::string_view line, std::vector<std::string>& fields) {
    const std::size_t count = 1 + static_cast<std::size_t>(std::count(line.begin(), line.end(), '|'));
    fields.resize(count);
    for (std::string& field : fields) {
        const auto end = std::min(line.find('|'), line.size());
        field.assign(line.substr(0, end));
        line.remove_prefix(std::min(end + 1, line.size()));
    }
}

HeaderResult FillHeader(DistrictRecord& record, std::string_view text, std::size_t maxParts) {
    const std::vector<std::string_view> parts = Ansi::Split(text, '+');
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
    record.Name = Ansi::Trim(parts[0]);
    record.Volume = Ansi::Trim(parts[1]);
    record.County = parts[2];
    record.Founded = *founded;
    record.QtrF = *quarterFounded;
    record.Abolished = *abolished;
    record.QtrA = *quarterAbolished;
    record.HeaderText = text;
    for (std::size_t part = FirstExtraPart; part < parts.size(); ++part) {
        record.Extra[part - FirstExtraPart + 1] = parts[part];
    }
    return HeaderResult::Filled;
}

std::vector<std::string> QuarterComplaints(const DistrictRecord& record) {
    const std::string district = "District " + record.Name;
    const std::string abolishedAndQuarter =
        std::to_string(record.Abolished) + " with an invalid quarter=" + std::to_string(record.QtrA);
    std::vector<std::string> complaints;
    if (record.QtrA == AbandonedQuarter && record.Abolished == NoYear) {
        complaints.push_back(district + " has a abandoned Quarter of 5 with a non-abandoned year");
    }
    if (IsSpecialQuarter(record.QtrA) && record.Abolished != NoYear) {
        complaints.push_back(district + " has an abandoned year of " + abolishedAndQuarter);
    }
    if (IsSpecialQuarter(record.QtrF) && record.Founded != NoYear) {
        complaints.push_back(district + " has a founded year of " + abolishedAndQuarter);
    }
    return complaints;
}

void Retain(DistrictRecord& record, std::string_view line) {
    record.bRetained = true;
    record.Name = line;
    record.HeaderText = line;
}

} // namespace CommonRoutines
