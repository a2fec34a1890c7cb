#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace Commands {

// A list. Other rows are a list that was filled anew, and is shown from its beginning. Rows that have changed
// in their places raise `touched`. Copies of a list share its rows, so that a million of them cost nothing.
template <typename Row>
struct ListView {
    std::shared_ptr<std::vector<Row>> rows = std::make_shared<std::vector<Row>>();
    std::vector<int> selected; // numbers of rows, from 0, in list order
    std::int32_t touched = 0;

    void Fill(std::vector<Row> newRows) {
        rows = std::make_shared<std::vector<Row>>(std::move(newRows));
        selected.clear();
    }
    [[nodiscard]] Row& Change(int row) {
        ++touched;
        return (*rows)[static_cast<std::size_t>(row)];
    }
    [[nodiscard]] bool IsEmpty() const { return rows->empty(); }
    [[nodiscard]] const Row& At(int row) const { return (*rows)[static_cast<std::size_t>(row)]; }
};

} // namespace Commands
