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

namespace {

// What counts of a name where two are compared, its case aside.
std::string_view BaseName(std::string_view name) {
    return Ansi::Trim(SplitMarkers(name).base);
}

} // namespace

std::string DistrictCell(const DistrictRecord& record, std::size_t column, std::size_t longest) {
    const auto& field = DistrictColumnTable[column].field;
    if (const auto* number = std::get_if<std::int16_t DistrictRecord::*>(&field)) {
        return std::to_string(record.**number);
    }
    const auto text = std::get<std::string_view (DistrictRecord::*)() const>(field);
    return std::string(Ansi::FirstCharacters((record.*text)(), longest));
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

std::vector<NamedDistrict> DistrictsByName(const std::function<void(std::int32_t line)>& visit) {
    Ansi::UpperCaseOrder<NamedDistrict> order;
    order.Reserve(static_cast<std::size_t>(lDistrictTotal));
    for (std::int32_t line = 1; line <= lLineCount; ++line) {
        visit(line);
        if (IsDistrict(line)) {
            const std::string_view name = RecordOf(line).Name();
            order.Add({line, static_cast<std::uint32_t>(Ansi::HashUpper(BaseName(name)))}, name);
        }
    }
    return std::move(order).Sorted([](const NamedDistrict& district) { return RecordOf(district.line).Name(); });
}

std::vector<std::int32_t> LinesOf(std::span<const NamedDistrict> districts) {
    std::vector<std::int32_t> lines;
    lines.reserve(districts.size());
    for (const NamedDistrict& district : districts) {
        lines.push_back(district.line);
    }
    return lines;
}

std::vector<std::int32_t> DistrictsOfType(std::span<const std::int32_t> districts, std::string_view type) {
    const bool all = Ansi::EqualIgnoringCase(Ansi::Trim(type), "ALL");
    std::vector<std::int32_t> chosen;
    std::copy_if(districts.begin(), districts.end(), std::back_inserter(chosen),
                 [&](std::int32_t district) { return all || DistrictHasCommentType(district, type); });
    return chosen;
}

void ReportDuplicatedDistricts(std::span<const NamedDistrict> districts, Desktop& desktop) {
    for (std::size_t row = 1; row < districts.size(); ++row) {
        // In the order of names, each look at a record is one at another place of the memory.
        if (districts[row - 1].name != districts[row].name) {
            continue;
        }
        const std::string_view name = BaseName(RecordOf(districts[row - 1].line).Name());
        if (!Ansi::EqualIgnoringCase(name, BaseName(RecordOf(districts[row].line).Name()))) {
            continue;
        }
        const std::string text = "District " + std::string(name) + " is duplicated in that file";
        if (desktop.MsgBox(text, BoxIcon::Critical, BoxButtons::OkCancel) == BoxAnswer::Cancel) {
            return;
        }
    }
}

} // namespace CommonRoutines
