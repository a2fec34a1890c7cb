#include "commands/WindowMode.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string_view>
#include <vector>

using namespace Commands;

namespace {

// A row of the table: a cell for each of the modes 1 to 10, every other character.
//   E    enabled
//   -    disabled
//   D    enabled while there are unsaved changes
//   C    as the list of proposals says, by the second table
//        (nothing) left as it is
struct ModeRow {
    Control control;
    const char* name;
    std::string_view cells;

    [[nodiscard]] char Cell(std::int16_t mode) const { return cells[static_cast<std::size_t>(mode - 1) * 2]; }
};

void PrintTo(const ModeRow& row, std::ostream* out) {
    *out << row.name;
}

// clang-format off
constexpr ModeRow ModeRows[] = {
    //                                              1 2 3 4 5 6 7 8 9 10
    {Control::cbAdd,            "cbAdd",           "- - - E E - - - - -"},
    {Control::cbCancel,         "cbCancel",        "- E - - - E E E E -"},
    {Control::cbDelete,         "cbDelete",        "- E - - E - - - - E"},
    {Control::cbSaveVariations, "cbSaveVariations","- E - - E - - - - E"},
    {Control::cbOk,             "cbOk",            "- - - - - E - - E -"},
    {Control::cbOpen,           "cbOpen",          "E - E E E - - - - -"},
    {Control::cbSave,           "cbSave",          "- - D D D - - - - -"},
    {Control::tbEdit,           "tbEdit",          "- E - E - E E E E -"},
    {Control::btnProcess,       "btnProcess",      "- - - E - - - - - -"},
    {Control::cbApplySelected,  "cbApplySelected", "- - - C - - - - - -"},
    {Control::cbApplyAll,       "cbApplyAll",      "- - - C - - - - - -"},
    {Control::cbApplyAllSpell,  "cbApplyAllSpell", "- - - C - -   - - -"},
    {Control::cbApplySelSpell,  "cbApplySelSpell", "- - - C - -   - - -"},
    {Control::cbClearSel,       "cbClearSel",      "- - - C E - - - - -"},
    {Control::cbCompleteCheck,  "cbCompleteCheck", "- - E E E - - - - -"},
    {Control::cbShriek,         "cbShriek",        "- E - - - -   - - E"},
    {Control::cbDate,           "cbDate",          "- E - - - -   - - E"},
    {Control::lbComments,       "lbComments",      "- - E E E - - - - E"},
    {Control::cbEditSel,        "cbEditSel",       "- - - - - - - - - -"},
    {Control::cbUndo,           "cbUndo",          "E E E E E E E E E E"},
    {Control::guide,            "guide",           "E E E E E E E E E E"},
    {Control::find,             "find",            "E E E E E E E E E E"},
    {Control::findNext,         "findNext",        "- E E E E - - - - E"},
    {Control::findPrevious,     "findPrevious",    "- E E E E - - - - E"},
};
// clang-format on

static_assert(std::size(ModeRows) == ControlCount);

// What the list of proposals makes of a C: without rows, with a selected row, with rows of which none is selected.
struct ProposalRow {
    Control control;
    const char* name;
    std::string_view cells;
};

void PrintTo(const ProposalRow& row, std::ostream* out) {
    *out << row.name;
}

// clang-format off
constexpr ProposalRow ProposalRows[] = {
    //                                            none sel. rows
    {Control::cbApplySelected,  "cbApplySelected", "-   E   -"},
    {Control::cbApplyAll,       "cbApplyAll",      "-   E   E"},
    {Control::cbApplyAllSpell,  "cbApplyAllSpell", "-   E   E"},
    {Control::cbApplySelSpell,  "cbApplySelSpell", "-   E   -"},
    {Control::cbClearSel,       "cbClearSel",      "-   E   -"},
};
// clang-format on

constexpr ProposalListState NoRows{false, false};
constexpr ProposalListState OneRowSelected{true, true};
constexpr ProposalListState NoRowSelected{true, false};
constexpr ProposalListState ProposalLists[] = {NoRows, OneRowSelected, NoRowSelected};

std::optional<bool> Meaning(char cell, bool changed) {
    switch (cell) {
    case 'E':
        return true;
    case '-':
        return false;
    case 'D':
        return changed;
    case ' ':
        return std::nullopt;
    default:
        ADD_FAILURE() << "no such cell: " << cell;
        return std::nullopt;
    }
}

std::vector<std::int16_t> ModesThatClear(bool (*clears)(std::int16_t)) {
    std::vector<std::int16_t> modes;
    for (std::int16_t mode = -2; mode <= 13; ++mode) {
        if (clears(mode)) {
            modes.push_back(mode);
        }
    }
    return modes;
}

constexpr std::int16_t NoModes[] = {
    0, 11, -1, 12, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()};

class ModeTable : public testing::TestWithParam<ModeRow> {};
class ProposalTable : public testing::TestWithParam<ProposalRow> {};

template <typename Row>
std::string RowName(const testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

} // namespace

TEST_P(ModeTable, HoldsForEveryModeWhateverElseIsTheCase) {
    const ModeRow& row = GetParam();
    ASSERT_EQ(row.cells.size(), 19u);
    for (std::int16_t mode = 1; mode <= 10; ++mode) {
        if (row.Cell(mode) == 'C') {
            continue; // the table of proposals's
        }
        for (const bool changed : {false, true}) {
            for (const ProposalListState proposals : ProposalLists) {
                EXPECT_EQ(EnabledInMode(row.control, mode, changed, proposals), Meaning(row.Cell(mode), changed))
                    << "mode " << mode << ", changed " << changed << ", proposals " << proposals.hasAny << ", selected "
                    << proposals.hasSelection;
            }
        }
    }
}

TEST_P(ModeTable, HasNoControlForAnOtherMode) {
    for (const std::int16_t mode : NoModes) {
        for (const bool changed : {false, true}) {
            for (const ProposalListState proposals : ProposalLists) {
                EXPECT_EQ(EnabledInMode(GetParam().control, mode, changed, proposals), std::nullopt) << "mode " << mode;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(WindowMode, ModeTable, testing::ValuesIn(ModeRows), RowName<ModeRow>);

TEST_P(ProposalTable, HoldsForTheIdleModeWhetherSomethingIsUnsavedOrNot) {
    const ProposalRow& row = GetParam();
    for (const bool changed : {false, true}) {
        EXPECT_EQ(EnabledInMode(row.control, 4, changed, NoRows), row.cells[0] == 'E');
        EXPECT_EQ(EnabledInMode(row.control, 4, changed, OneRowSelected), row.cells[4] == 'E');
        EXPECT_EQ(EnabledInMode(row.control, 4, changed, NoRowSelected), row.cells[8] == 'E');
    }
}

TEST_P(ProposalTable, NeedsRowsForASelectionToCount) {
    EXPECT_EQ(EnabledInMode(GetParam().control, 4, false, {false, true}), false);
}

INSTANTIATE_TEST_SUITE_P(WindowMode, ProposalTable, testing::ValuesIn(ProposalRows), RowName<ProposalRow>);

TEST(WindowModeTest, BothTablesNameTheSameControlsForTheProposals) {
    std::vector<Control> inModes;
    for (const ModeRow& row : ModeRows) {
        if (row.cells.find('C') != std::string_view::npos) {
            EXPECT_EQ(row.Cell(4), 'C') << row.name;
            inModes.push_back(row.control);
        }
    }
    std::vector<Control> forProposals;
    for (const ProposalRow& row : ProposalRows) {
        forProposals.push_back(row.control);
    }
    EXPECT_EQ(inModes, forProposals);
}

TEST(WindowModeTest, TheSeventhModeLeavesFourControlsAsTheyAre) {
    std::vector<std::string> kept;
    for (const ModeRow& row : ModeRows) {
        if (!EnabledInMode(row.control, 7, true, OneRowSelected)) {
            kept.emplace_back(row.name);
        }
    }
    EXPECT_EQ(kept, (std::vector<std::string>{"cbApplyAllSpell", "cbApplySelSpell", "cbShriek", "cbDate"}));
}

TEST(WindowModeTest, TheStatusIsClearedInAllModesButSevenAndEight) {
    EXPECT_EQ(ModesThatClear(ModeClearsStatus), (std::vector<std::int16_t>{1, 2, 3, 4, 5, 6, 9, 10}));
}

TEST(WindowModeTest, TheDistrictsNameIsClearedInTheFirstModeOnly) {
    EXPECT_EQ(ModesThatClear(ModeClearsApplyTo), (std::vector<std::int16_t>{1}));
}
