#include "file/CommentTypes.h"

#include "core/Ansi.h"

namespace CommonRoutines {

CommentTypeList CommentTypes;

void CommentTypeList::Reset() {
    m_items = {{" All", 0}};
    m_known.clear();
}

void CommentTypeList::Add(std::string_view type) {
    if (m_known.insert(Ansi::Upper(type)).second) {
        m_items.push_back({std::string(type), static_cast<std::int32_t>(std::ssize(m_items)) + 1});
    }
}

void AddCommentType(std::string_view sLine) {
    const std::string_view type = Ansi::FirstWord(Ansi::Trim(sLine.substr(CommentMarker.size())));
    if (!type.empty()) {
        CommentTypes.Add(type);
    }
}

} // namespace CommonRoutines
