#include "repair/RepairNullVariation.h"

#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/State.h"
#include "repair/RepairPrompt.h"
#include "rules/Validation.h"

#include <optional>

namespace CommonRoutines {

namespace {

NullVariation LookAround(const DistrictRecord& district, const std::vector<std::string>& variations, std::int32_t index,
                         std::int32_t position) {
    const auto at = [&](std::int32_t i) -> const std::string& { return variations[static_cast<std::size_t>(i)]; };
    NullVariation found;
    found.districtName = district.Name();
    found.index = index;
    found.last = static_cast<std::int32_t>(std::ssize(variations)) - 1;
    found.current = at(index);
    if (index > 1 && at(index - 1) != DeletedText) {
        found.previous = at(index - 1);
    }
    if (index < district.lVariationCount) {
        found.next = at(index + 1);
    }
    found.canCombinePrevious = ValidateVariation(found.previous + found.current, position);
    found.canCombineNext = ValidateVariation(found.current + found.next, position);
    return found;
}

// A replacement that the user typed and that is valid; nothing when there is none.
std::optional<std::string> AskForReplacement(const std::string& current, std::int32_t position, Desktop& desktop) {
    const std::string typed = desktop.InputBox("Please enter a replacement for the variation " + current).value_or("");
    const std::string_view replacement = Ansi::Trim(typed);
    if (replacement.empty()) {
        return std::nullopt;
    }
    if (!ValidateVariation(replacement, position)) {
        desktop.MsgBox("Sorry but that is not a valid variation", BoxIcon::Critical);
        return std::nullopt;
    }
    return std::string(replacement);
}

} // namespace

bool RepairNullVariation(const DistrictRecord& district, std::vector<std::string>& variations, std::int32_t index,
                         std::int32_t position, Desktop& desktop) {
    const auto repair = [&](std::string text, RepairAction action) {
        variations[static_cast<std::size_t>(index)] = std::move(text);
        iRepairAction = action;
        bChanged = true;
        return true;
    };
    for (;;) {
        const NullVariation found = LookAround(district, variations, index, position);
        const RepairPrompt prompt = PromptFor(found);
        const std::string choice = desktop.MyMsgBox(prompt.text, IconQuestion, "Null Variation", prompt.buttons);
        if (choice == RepairButton::CombinePrevious) {
            return repair(found.previous + found.current, CombinePrevious);
        }
        if (choice == RepairButton::CombineNext) {
            return repair(found.current + found.next, CombineNext);
        }
        if (choice == RepairButton::Remove) {
            return repair(std::string(DeletedText), Remove);
        }
        if (choice == RepairButton::Type) {
            if (auto replacement = AskForReplacement(found.current, position, desktop)) {
                return repair(std::move(*replacement), Type);
            }
        }
        if (choice == RepairButton::Quit) {
            iRepairAction = Quit;
            return false;
        }
    }
}

} // namespace CommonRoutines
