#pragma once

#include "edit/UndoJournal.h"
#include "edit/VariationList.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

#include <array>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

// A fresh state with an empty undo journal, and short ways to show a district and to look at it.
class EditTest : public StateTest {
protected:
    // Appends a district and makes it the current one, with nothing under way.
    static std::int32_t Show(const std::string& name, const Texts& variations = {}) {
        CommonRoutines::lCurrentDistrict = AddDistrict(name, variations);
        CommonRoutines::iEditMode = CommonRoutines::DistrictIdle;
        return CommonRoutines::lCurrentDistrict;
    }

    // All slots of a district.
    static Texts SlotsOf(std::int32_t district) {
        Texts texts;
        for (std::int32_t i = 1; i <= DistrictAt(district).lVariationCount; ++i) {
            texts.push_back(VariationAt(district, i).Text);
        }
        return texts;
    }
    static Texts Slots() { return SlotsOf(CommonRoutines::lCurrentDistrict); }

    static std::vector<CommonRoutines::VariationRow> RowsOf(const std::vector<std::int32_t>& slots) {
        std::vector<CommonRoutines::VariationRow> rows;
        for (const std::int32_t slot : slots) {
            rows.push_back({slot, CommonRoutines::VariationState::Plain});
        }
        return rows;
    }
    static std::vector<CommonRoutines::VariationRow> AllRows() {
        return CommonRoutines::ListVariations(CommonRoutines::lCurrentDistrict).rows;
    }

    // Takes the last recorded change off the current step, as one text: type, new and old text.
    static std::string TakeItem() {
        const CommonRoutines::UndoneItem last = CommonRoutines::CurrentUndoStep().LastItem();
        return std::to_string(last.item.iUndoType) + " [" + last.item.sNewName + "] [" + last.item.sOldName + "] in " +
               std::to_string(last.lDistrict);
    }

    static void ExpectNothingRecorded() {
        for (const CommonRoutines::UndoClass& step : CommonRoutines::UndoRing) {
            EXPECT_EQ(step.Count(), 0);
        }
        EXPECT_EQ(CommonRoutines::iUndoStep, 1);
    }

    ScriptedDesktop m_desktop;
};
