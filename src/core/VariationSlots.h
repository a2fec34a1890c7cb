#pragma once

// The variations of a district. There are millions of them, so that a record has 16 bytes, and those of many districts
// stand one behind the other in a pool.

#include "core/AnsiString.h"
#include "core/PackedPointer.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace CommonRoutines {

// Text of a deleted slot. Deleting never moves the other variations of a district, so that every
// list may name a variation by its index.
inline constexpr std::string_view DeletedText = "\t";

struct VariationRecord {
    Ansi::String Text;                  // exactly as in the file, markers included
    std::uint32_t bDuplicate : 1 = 0;   // another variation of the district is the same spelling
    std::uint32_t bUnusualCaps : 1 = 0; // the capitalisation check found a problem while reading
    std::int32_t lDuplicateOf : 30 = 0; // index of that variation, while bDuplicate is set

    [[nodiscard]] bool IsDeleted() const { return Text == DeletedText; }
};
static_assert(sizeof(VariationRecord) == 16);

// Blocks of memory in which the slots of many districts stand.
class SlotPool {
public:
    // So many empty records, which stay until the pool goes.
    [[nodiscard]] VariationRecord* Take(std::size_t count);

private:
    std::vector<std::vector<VariationRecord>> m_blocks; // which do not grow
    VariationRecord* m_next = nullptr;
    std::size_t m_left = 0; // in the last block
};

// The slots of a district, 1 to size() - 1: an array with an element 0 that is not there, since it is never used. They
// stand in a pool until they become more; then, and in a copy, in a block of their own. There are at most MostSlots;
// more find no memory.
class VariationSlots {
public:
    static constexpr std::int32_t MostSlots = 0x1FFFFFFF; // which lDuplicateOf can name

    VariationSlots() = default;
    VariationSlots(const VariationSlots& other);
    VariationSlots(VariationSlots&& other) noexcept;
    VariationSlots& operator=(VariationSlots other) noexcept;
    ~VariationSlots();

    [[nodiscard]] std::size_t size() const { return m_block.count == 0 ? 0 : std::size_t{m_block.count} + 1; }
    [[nodiscard]] bool empty() const { return m_block.count == 0; }
    [[nodiscard]] VariationRecord& operator[](std::size_t slot) { return begin()[slot - 1]; }
    [[nodiscard]] const VariationRecord& operator[](std::size_t slot) const { return begin()[slot - 1]; }
    [[nodiscard]] VariationRecord* begin() { return m_block.first; }
    [[nodiscard]] VariationRecord* end() { return begin() + m_block.count; }
    [[nodiscard]] const VariationRecord* begin() const { return m_block.first; }
    [[nodiscard]] const VariationRecord* end() const { return begin() + m_block.count; }

    // As of a vector with an element 0, never to less than it is; what is new is empty. Growing by one over and over
    // moves each slot a few times.
    void Grow(std::size_t size);
    // The same for a district without slots, whose pool outlives it.
    void TakeFrom(SlotPool& pool, std::size_t size);

private:
    struct Block {
        PackedPointer<VariationRecord> first; // that of slot 1
        std::uint32_t count : 31 = 0;
        std::uint32_t isOwn : 1 = 0; // of so many records as the next power of two
    };
    Block m_block;
};

} // namespace CommonRoutines
