#include "commands/CommandTable.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>
#include <vector>

using namespace Commands;

namespace {

// The rows of the page of keys, as "| key | what it does |".
std::vector<std::string> RowsOfThePage() {
    std::ifstream page(QUEXAL_DOCS_DIR "/keys.md");
    EXPECT_TRUE(page);
    std::vector<std::string> rows;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("| ")) {
            rows.push_back(line);
        }
    }
    return rows;
}

bool PageSays(const std::vector<std::string>& rows, std::string_view key, std::string_view what) {
    for (const std::string& row : rows) {
        if (row.starts_with("| " + std::string(key) + " |") && row.find(what) != std::string::npos) {
            return true;
        }
    }
    return false;
}

std::string WhatThePageCalls(const Command& command) {
    switch (command.control) {
    case Control::tbEdit:
        return "edit box";
    case Control::guide:
        return "user guide";
    case Control::find:
        return "finds a text in the whole file";
    case Control::findNext:
        return "to the next place found";
    case Control::findPrevious:
        return "to the one before";
    default:
        break;
    }
    return "**" + std::string(command.caption) + "**";
}

} // namespace

TEST(CommandTable, EveryControlHasItsRow) {
    for (std::size_t i = 0; i < ControlCount; ++i) {
        EXPECT_EQ(CommandOf(static_cast<Control>(i)).control, static_cast<Control>(i)) << AllCommands()[i].name;
    }
}

TEST(CommandTable, NoNameAndNoKeyIsGivenTwice) {
    std::set<std::string_view> names;
    std::set<std::pair<KeyScope, std::string_view>> keys;
    for (const Command& command : AllCommands()) {
        EXPECT_TRUE(names.insert(command.name).second) << command.name;
        EXPECT_TRUE(command.key.empty() || keys.insert({command.scope, command.key}).second) << command.key;
    }
}

TEST(CommandTable, AModeIsOneOfTheKnownCharacters) {
    for (const Command& command : AllCommands()) {
        EXPECT_EQ(command.modes.size(), 10u) << command.name;
        EXPECT_EQ(command.modes.find_first_not_of("E-DC "), std::string_view::npos) << command.name;
    }
}

TEST(CommandTable, EveryButtonSaysWhatItDoesAndDoesIt) {
    for (const Command& command : AllCommands()) {
        const bool isButton = command.place.frame != Frame::None;
        EXPECT_EQ(isButton, !command.caption.empty()) << command.name;
        EXPECT_TRUE(!isButton || (!command.hint.empty() && command.run != nullptr)) << command.name;
        EXPECT_TRUE(command.key.empty() || command.run != nullptr) << command.name;
    }
}

TEST(CommandTable, ThePageOfKeysNamesTheKeyOfEveryCommand) {
    const std::vector<std::string> rows = RowsOfThePage();
    for (const Command& command : AllCommands()) {
        const std::string what = WhatThePageCalls(command);
        EXPECT_TRUE(command.key.empty() || PageSays(rows, command.key, what)) << command.key << " does " << what;
    }
}

// What the page says that a key of the main window does is a command with that key.
TEST(CommandTable, ThePageOfKeysNamesNoKeyThatNoCommandHas) {
    std::size_t found = 0;
    for (const std::string& row : RowsOfThePage()) {
        for (const Command& command : AllCommands()) {
            const std::string caption = "| **" + std::string(command.caption) + "**";
            if (command.caption.empty() || row.find(caption) == std::string::npos) {
                continue;
            }
            ++found;
            EXPECT_TRUE(row.starts_with("| " + std::string(command.key) + " |")) << row;
        }
    }
    EXPECT_GE(found, 7u);
}
