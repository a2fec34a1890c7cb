#pragma once

#include "rules/Capitals.h"
#include "support/ScriptedDesktop.h"

#include <string>
#include <vector>

// Makes these the words that need no capital, by way of a word list file.
inline void UseLowerCaseWords(const std::vector<std::string>& words) {
    ScriptedDesktop desktop;
    std::string& content = desktop.files["/program/qx_lower.txt"];
    for (const std::string& word : words) {
        content += word + "\r\n";
    }
    CommonRoutines::LoadLowerCaseWords(desktop);
}
