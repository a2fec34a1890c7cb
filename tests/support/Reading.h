#pragma once

#include "core/Ansi.h"
#include "core/Lines.h"
#include "core/State.h"
#include "file/DistrictFileReader.h"
#include "support/ScriptedDesktop.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Short ways to read a data file from a text, for the tests of the reader and of what follows it.

inline const std::string DataFilePath = "/data/districts.txt";

inline void ReadText(ScriptedDesktop& desktop, std::string content) {
    CommonRoutines::sDataFileName = DataFilePath;
    desktop.files[DataFilePath] = std::move(content);
    CommonRoutines::ReadDistrictFile(desktop);
}

// The header of a district about which nothing is odd.
inline std::string HeaderOf(const std::string& name) {
    return name + "+1+Shire+1837+3+9999+0+x+y";
}

inline void ExpectReadReport(ScriptedDesktop& desktop, std::vector<std::string> items) {
    desktop.ExpectReport("Read File Results", std::move(items), false);
}

// A file as reading takes it: every line without blanks at its ends, and ended by CR LF.
inline std::string TrimLines(std::string_view content) {
    std::string trimmed;
    CommonRoutines::Lines lines(content);
    while (const auto line = lines.Next()) {
        trimmed.append(Ansi::Trim(*line)).append("\r\n");
    }
    return trimmed;
}
