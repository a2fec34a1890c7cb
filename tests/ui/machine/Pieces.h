#pragma once

#include "core/Desktop.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Contents that are made piece by piece.

inline constexpr std::size_t PieceSize = std::size_t{1} << 20;

// So many pieces, each of one letter.
inline CommonRoutines::PieceSource Pieces(std::size_t count) {
    return [count, next = std::size_t{0}]() mutable -> std::optional<std::string> {
        return next < count ? std::optional(std::string(PieceSize, static_cast<char>('a' + next++ % 26)))
                            : std::nullopt;
    };
}

inline bool HasPieces(std::string_view content, std::size_t count) {
    CommonRoutines::PieceSource pieces = Pieces(count);
    for (auto piece = pieces(); piece; piece = pieces()) {
        if (!content.starts_with(*piece)) {
            return false;
        }
        content.remove_prefix(piece->size());
    }
    return content.empty();
}
