#pragma once

#include "commands/ListView.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace Ui {

// The rows of a list as a model has them. They are the list's own, not a copy, and stay until the model shows
// others.
template <typename Row>
class ShownRows {
public:
    [[nodiscard]] bool AreOthersThan(const Commands::ListView<Row>& list) const { return m_rows != list.rows; }

    // Whether rows have changed in their places since the last time; asked once.
    [[nodiscard]] bool TakeTouched(const Commands::ListView<Row>& list) {
        return std::exchange(m_touched, list.touched) != list.touched;
    }
    void Take(const Commands::ListView<Row>& list) {
        m_rows = list.rows;
        m_touched = list.touched;
    }

    [[nodiscard]] const std::vector<Row>& All() const { return *m_rows; }
    [[nodiscard]] int Count() const { return static_cast<int>(m_rows->size()); }
    [[nodiscard]] const Row& At(int row) const { return (*m_rows)[static_cast<std::size_t>(row)]; }

private:
    std::shared_ptr<const std::vector<Row>> m_rows = std::make_shared<std::vector<Row>>();
    std::int32_t m_touched = 0;
};

} // namespace Ui
