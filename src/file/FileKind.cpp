#include "file/FileKind.h"

#include "core/Ansi.h"
#include "core/Lines.h"
#include "file/DistrictLine.h"

#include <cstddef>

namespace CommonRoutines {

namespace {

// Fewer are soon answered one by one.
constexpr std::size_t FewestForeignLines = 20;

} // namespace

bool IsHardlyADataFile(std::string_view content) {
    std::size_t foreign = 0;
    Lines lines(content);
    for (auto next = lines.Next(); next; next = lines.Next()) {
        const std::string_view line = Ansi::Trim(*next);
        if (line.empty() || line.starts_with('#')) {
            continue;
        }
        if (IsDistrictLine(line)) {
            return false;
        }
        ++foreign;
    }
    return foreign >= FewestForeignLines;
}

} // namespace CommonRoutines
