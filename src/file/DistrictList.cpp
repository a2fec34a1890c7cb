#include "file/DistrictList.h"

#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/State.h"
#include "core/UpperCase.h"
#include "edit/VariationStates.h"
#include "file/DistrictComments.h"
#include "rules/Markers.h"

#include <algorithm>
#include <iterator>

namespace CommonRoutines {

std::string DistrictCell(const DistrictRecord& record, std::size_t column, std::size_t longest) {
    const auto& field = DistrictColumnTable[column].field;
    if (const auto* number = std::get_if<std::int16_t DistrictRecord::*>(&field)) {
        return std::to_string(record.**number);
    }
    const auto text = std::get<Ansi::String DistrictRecord::*>(field);
    return std::string(Ansi::FirstCharacters((record.*text).View(), longest));
}

bool DistrictHasProblem(const DistrictRecord& record) {
    return record.iQuestionCount > 0 ||
           std::any_of(VariationStateTable.begin(), VariationStateTable.end(), [&](const VariationStateFacts& facts) {
               return facts.count != nullptr && record.*facts.count > 0;
           });
}

std::string ProblemsOf(const DistrictRecord& record) {
    std::string problems;
    for (const VariationStateFacts& facts : VariationStateTable) {
        if (facts.count != nullptr && record.*facts.count > 0) {
            problems += problems.empty() ? "" : ", ";
            problems += std::string(facts.words) + ": " + std::to_string(record.*facts.count);
        }
    }
    return problems;
}

std::vector<std::int32_t> DistrictsByName() {
    std::vector<std::int32_t> districts;
    districts.reserve(static_cast<std::size_t>(lDistrictTotal));
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        if (IsDistrict(i)) {
            districts.push_back(i);
        }
    }
    Ansi::SortByUpperCase(districts, [](std::int32_t i) -> std::string_view { return RecordOf(i).Name; });
    return districts;
}

std::vector<std::int32_t> DistrictsOfType(std::span<const std::int32_t> districts, std::string_view type) {
    const bool all = Ansi::EqualIgnoringCase(Ansi::Trim(type), "ALL");
    std::vector<std::int32_t> chosen;
    std::copy_if(districts.begin(), districts.end(), std::back_inserter(chosen),
                 [&](std::int32_t district) { return all || DistrictHasCommentType(district, type); });
    return chosen;
}

void ReportDuplicatedDistricts(std::span<const std::int32_t> districts, Desktop& desktop) {
    const auto baseName = [](std::int32_t district) { return Ansi::Trim(SplitMarkers(RecordOf(district).Name).base); };
    // Hashes are made line by line, as the records lie in memory; in the order of the list, only the
    // records of neighbours with equal ones need to be visited.
    std::vector<std::uint64_t> hashes(static_cast<std::size_t>(lLineCount) + 1);
    for (std::int32_t line = 1; line <= lLineCount; ++line) {
        if (IsDistrict(line)) {
            hashes[static_cast<std::size_t>(line)] = Ansi::HashUpper(baseName(line));
        }
    }
    const auto hashAt = [&](std::size_t row) { return hashes[static_cast<std::size_t>(districts[row])]; };
    for (std::size_t row = 1; row < districts.size(); ++row) {
        if (hashAt(row - 1) != hashAt(row)) {
            continue;
        }
        const std::string_view name = baseName(districts[row - 1]);
        if (!Ansi::EqualIgnoringCase(name, baseName(districts[row]))) {
            continue;
        }
        const std::string text = "District " + std::string(name) + " is duplicated in that file";
        if (desktop.MsgBox(text, BoxIcon::Critical, BoxButtons::OkCancel) == BoxAnswer::Cancel) {
            return;
        }
    }
}

} // namespace CommonRoutines
