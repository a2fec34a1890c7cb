// Reads any bytes as a change file and applies all of its proposals.

#include "FuzzDesktop.h"

#include "changes/ApplyChanges.h"
#include "changes/ChangeFile.h"
#include "core/State.h"
#include "edit/UndoJournal.h"
#include "file/CommentTypes.h"
#include "file/DistrictFileReader.h"

using namespace CommonRoutines;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    ResetState();
    CommentTypes.Reset();
    ClearUndoRing();
    FuzzDesktop desktop("Ashby+1+Kent+1837+3+9999+0+A+B|Ashbye|!Asby\r\n", "");
    ReadDistrictFile(desktop);
    lCurrentDistrict = 1;
    iEditMode = DistrictIdle;
    const ProposalList list = ReadProposals({reinterpret_cast<const char*>(data), size});
    static_cast<void>(list.Summary());
    if (const auto applied = ApplyChanges(list.proposals, false, size % 2 == 0, desktop)) {
        ReportAppliedProposals(*applied, desktop);
    }
    return 0;
}
