#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

inline constexpr std::string_view CommentMarker = "#QX_";

// An entry of the comment-type list, with the number that it carries.
struct CommentType {
    std::string type;
    std::int32_t itemData = 0;
};

// The types of comment met in the file, in the order of their appearance, behind the entry " All",
// which stands for every district. The type words are distinct whatever their case.
class CommentTypeList {
public:
    CommentTypeList() { Reset(); }

    // Only " All" is left.
    void Reset();

    // Adds a type unless it is there. The entry " All" is not compared with.
    void Add(std::string_view type);

    [[nodiscard]] const std::vector<CommentType>& Items() const { return m_items; }

private:
    std::vector<CommentType> m_items;
    std::set<std::string> m_known; // upper-cased; a hash could be made to collide by what a file holds
};

// The list of lbComments; reset by "Open File", filled by AddCommentType.
extern CommentTypeList CommentTypes;

// Registers the type word of a line that begins with the comment marker.
void AddCommentType(std::string_view sLine);

} // namespace CommonRoutines
