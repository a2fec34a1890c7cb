// Reads any bytes as a recovery file. One that is taken for whole must come back the same when it is
// written again; made in a table, its changes must all be there afterwards, or none.

#include "FuzzDesktop.h"

#include "commands/RestoreChanges.h"
#include "core/State.h"
#include "file/DistrictFileReader.h"
#include "file/DistrictFileWriter.h"
#include "recovery/RecoveryFile.h"
#include "recovery/UnsavedChanges.h"

#include <algorithm>
#include <cstdlib>

using namespace CommonRoutines;

namespace {

const std::string DataFile =
    "Ashby+1+Kent+1837+3+9999+0+A+B|Ashbye|!Asby\r\n# note\r\nElm+1+Kent+1837+3+9999+0+A+B\r\n";

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

std::string Rewritten(const RecoveryFile& file) {
    std::string content = RecoveryHeader(file.file);
    for (const SlotChange& change : file.changes) {
        content += RecoveryRecord(change.line, change.slot, change.text);
    }
    if (file.savedAs) {
        content += SavingRecord(*file.savedAs);
    }
    return content;
}

void OpenWith(const std::string& leftOver) {
    ResetState();
    Unsaved = {};
    FuzzDesktop desktop(DataFile, "");
    desktop.state.storage->files["1.changes"] = leftOver;
    desktop.state.canLock = true;
    sDataFileName = "/data";
    ReadDistrictFile(desktop);
    Commands::RestoreChanges(desktop);
    Unsaved.Release(desktop);
}

// Changes without checksums to begin with, since no mutation would get past those.
RecoveryFile ChangesIn(std::string_view bytes) {
    RecoveryFile file{IdentityOf("/data", DataFile), {}, std::nullopt};
    while (bytes.size() >= 3) {
        const auto length = std::min<std::size_t>(static_cast<unsigned char>(bytes[2]) % 40, bytes.size() - 3);
        file.changes.push_back({bytes[0] % 5, bytes[1] % 6, std::string(bytes.substr(3, length))});
        bytes.remove_prefix(3 + length);
    }
    return file;
}

bool LastTextsAreInTable(const RecoveryFile& file) {
    for (std::size_t i = 0; i < file.changes.size(); ++i) {
        const SlotChange& change = file.changes[i];
        const bool isLast = std::none_of(
            file.changes.begin() + static_cast<std::ptrdiff_t>(i) + 1, file.changes.end(),
            [&](const SlotChange& later) { return later.line == change.line && later.slot == change.slot; });
        const DistrictRecord& record = RecordOf(change.line);
        if (isLast && record.Variations[static_cast<std::size_t>(change.slot)].Text != change.text) {
            return false;
        }
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (const auto file = ParseRecoveryFile(bytes)) {
        const auto again = ParseRecoveryFile(Rewritten(*file));
        Require(again && again->file == file->file && again->changes == file->changes);
    }
    OpenWith(bytes);

    const RecoveryFile made = ChangesIn(bytes);
    const std::string content = Rewritten(made);
    OpenWith(content);
    Require(bChanged ? LastTextsAreInTable(made) : DistrictFileContent() == DataFile);
    OpenWith(content.substr(0, content.size() - std::min(content.size(), size % 100)));
    return 0;
}
