#include "core/State.h"

namespace CommonRoutines {

// Behind what they are parts of, so that they go first.
std::string sTableContent;
SlotPool TableSlots;
std::vector<DistrictRecord> Districts;
std::int32_t lTableNumber = 0;
std::int32_t lTextChanges = 0;
std::int32_t lLineCount = 0;
std::string sDataFileName;
Encoding eFileEncoding = Encoding::Windows1252;
Encoding eEncodingOnDisk = Encoding::Windows1252;
bool bChanged = false;
std::int32_t lCurrentDistrict = 0;

std::int32_t lDistrictTotal = 0;
std::int32_t lInvalidTotal = 0;
std::int32_t lCapsOkTotal = 0;

std::int16_t iRepairAction = NoRepair;

std::vector<DupePair> DupePairs;
std::int32_t lDupePairCount = 0;

std::string sInvalidReason;
bool bWarning = false;
std::string sWarningReason;

std::string sMarkerPrefix;
std::string sMarkerSuffix;

std::int32_t lFoundVariation = 0;

std::int16_t iEditMode = NothingOpen;

bool bIgnoreEvents = false;
std::int32_t lEditIndex = 0;
std::int16_t iLastAction = NoAction;

DistrictRecord& RecordOf(std::int32_t line) {
    return Districts[static_cast<std::size_t>(line)];
}

bool IsDistrict(std::int32_t lDistrict) {
    return lDistrict >= 1 && lDistrict <= lLineCount && !RecordOf(lDistrict).bRetained;
}

void ResetState() {
    Districts.clear();
    TableSlots = {};
    sTableContent = std::string();
    ++lTableNumber;
    lTextChanges = 0;
    lLineCount = 0;
    sDataFileName.clear();
    eFileEncoding = eEncodingOnDisk = Encoding::Windows1252;
    bChanged = false;
    lCurrentDistrict = 0;
    lDistrictTotal = lInvalidTotal = lCapsOkTotal = 0;
    iRepairAction = NoRepair;
    DupePairs.clear();
    lDupePairCount = 0;
    sInvalidReason.clear();
    bWarning = false;
    sWarningReason.clear();
    sMarkerPrefix.clear();
    sMarkerSuffix.clear();
    lFoundVariation = 0;
    iEditMode = NothingOpen;
    bIgnoreEvents = false;
    lEditIndex = 0;
    iLastAction = NoAction;
}

} // namespace CommonRoutines
