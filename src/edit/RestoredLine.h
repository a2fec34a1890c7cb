#pragma once

#include "recovery/RecoveryFile.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace CommonRoutines {

// The slots of a line while changes from recovery files are made in it. The table follows at the end, in one go:
// a slot that comes between two others would move all those behind it.
class RestoredLine {
public:
    explicit RestoredLine(std::int32_t line);

    // The changes that follow are of another file. Each file numbers its new slots from the end of the line as it
    // was read.
    void BeginFile() { m_added.clear(); }
    // Makes a change, which must fit.
    void Make(const SlotChange& change);
    // Puts the slots into the table and notes the changes as unsaved, and those to come under the same numbers.
    void Store() const;

private:
    struct Slot {
        std::string text;
        std::int32_t next = 0; // by number; 0 behind the last one
    };

    [[nodiscard]] std::int32_t NumberOf(std::int32_t slotOfFile) const;
    std::int32_t Insert(std::int32_t after);

    std::int32_t m_line;
    std::int32_t m_countAsRead;
    std::vector<Slot> m_slots; // by number; the first one is that of number 0, and none of the line
    std::int32_t m_last = 0;
    std::unordered_map<std::int32_t, std::int32_t> m_added; // numbers, by those of the file
    std::vector<SlotChange> m_made;
};

} // namespace CommonRoutines
