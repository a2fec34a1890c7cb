#include "support/Table.h"

#include "edit/UndoJournal.h"
#include "file/CommentTypes.h"
#include "recovery/OpenFile.h"
#include "recovery/UnsavedChanges.h"
#include "rules/Capitals.h"

using namespace CommonRoutines;

namespace {

DistrictRecord& AddLine() {
    ++lLineCount;
    Districts.resize(static_cast<std::size_t>(lLineCount) + 1);
    return Districts.back();
}

} // namespace

void ResetEverything() {
    ResetState();
    ForgetLowerCaseWords();
    CommentTypes.Reset();
    ClearUndoRing();
    iUndoStep = 1;
    Unsaved = {};
    TheOpenFile = {};
}

std::int32_t AddDistrict(const std::string& name, const std::vector<std::string>& variations) {
    DistrictRecord& record = AddLine();
    record.Line = name + "+1+Shire+1837+3+9999+0+A+B";
    record.Founded = 1837;
    record.QtrF = 3;
    record.Abolished = NoYear;
    record.lVariationCount = static_cast<std::int32_t>(std::ssize(variations));
    record.Variations.Grow(variations.empty() ? 2 : variations.size() + 1);
    for (std::size_t i = 0; i < variations.size(); ++i) {
        record.Variations[i + 1].Text = variations[i];
    }
    return lLineCount;
}

std::int32_t AddRetained(const std::string& line) {
    DistrictRecord& record = AddLine();
    record.bRetained = true;
    record.Line = line;
    return lLineCount;
}

DistrictRecord& DistrictAt(std::int32_t index) {
    return Districts[static_cast<std::size_t>(index)];
}

VariationRecord& VariationAt(std::int32_t district, std::int32_t index) {
    return DistrictAt(district).Variations[static_cast<std::size_t>(index)];
}
