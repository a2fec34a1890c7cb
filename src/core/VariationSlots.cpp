#include "core/VariationSlots.h"

#include <algorithm>
#include <bit>
#include <new>
#include <utility>

namespace CommonRoutines {

namespace {

// As much as is close to the processor, and enough to be asked for seldom.
constexpr std::size_t BlockSize = 4096;

std::uint32_t CountOf(std::size_t size) {
    if (size - 1 > std::size_t{VariationSlots::MostSlots}) {
        throw std::bad_alloc();
    }
    return static_cast<std::uint32_t>(size - 1);
}

} // namespace

VariationRecord* SlotPool::Take(std::size_t count) {
    if (count > m_left) {
        const std::size_t size = std::max(count, BlockSize);
        m_blocks.emplace_back(size);
        m_next = m_blocks.back().data();
        m_left = size;
    }
    m_left -= count;
    return std::exchange(m_next, m_next + count);
}

// The block goes when there is not enough memory for all texts.
VariationSlots::VariationSlots(const VariationSlots& other) : VariationSlots() {
    if (!other.empty()) {
        Grow(other.size());
        std::copy(other.begin(), other.end(), begin());
    }
}

VariationSlots::VariationSlots(VariationSlots&& other) noexcept : m_block(std::exchange(other.m_block, {})) {}

VariationSlots& VariationSlots::operator=(VariationSlots other) noexcept {
    std::swap(m_block, other.m_block);
    return *this;
}

VariationSlots::~VariationSlots() {
    if (m_block.isOwn != 0) {
        delete[] begin();
    }
}

void VariationSlots::Grow(std::size_t size) {
    const std::uint32_t count = CountOf(size);
    if (m_block.isOwn == 0 || count > std::bit_ceil(std::uint32_t{m_block.count})) {
        auto* records = new VariationRecord[std::bit_ceil(count)];
        std::move(begin(), end(), records);
        VariationSlots before(std::move(*this)); // whose block goes
        m_block.first = records;
        m_block.isOwn = true;
    }
    m_block.count = count & MostSlots;
}

void VariationSlots::TakeFrom(SlotPool& pool, std::size_t size) {
    const std::uint32_t count = CountOf(size);
    m_block.first = pool.Take(count);
    m_block.count = count & MostSlots;
}

} // namespace CommonRoutines
