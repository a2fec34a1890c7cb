#pragma once

#include "core/StateFolder.h"
#include "recovery/RecoveryFile.h"

#include <string>

// The content of a recovery file that holds all this.
inline std::string RecoveryText(const CommonRoutines::RecoveryFile& file) {
    CommonRoutines::RecoveryRecords records(file.file, file.encoding);
    for (const CommonRoutines::SlotChange& change : file.changes) {
        records.AddChange(change);
    }
    for (const std::string& name : file.holds) {
        records.AddHeld(name);
    }
    for (const CommonRoutines::LineNumbers& numbers : file.numbers) {
        records.AddNumbers(numbers);
    }
    if (file.savedAs) {
        records.AddSaving(*file.savedAs);
    }
    return records.Content();
}

// The name of the recovery file that is made after so many other names, for a data file.
inline std::string RecoveryName(int number, const std::string& dataFile) {
    return std::to_string(number) + '-' + CommonRoutines::FingerprintOf(dataFile).digest + ".changes";
}
