// Reads any bytes as a recovery file. What is trusted of one must come back the same when it is
// written again; made in a table, its changes must all be there afterwards, or none. A flipped bit costs nothing
// that stands before it.

#include "FuzzDesktop.h"

#include "commands/RestoreChanges.h"
#include "core/State.h"
#include "file/DistrictFileReader.h"
#include "file/DistrictFileWriter.h"
#include "recovery/RecoveryFile.h"
#include "recovery/UnsavedChanges.h"
#include "support/RecoveryText.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>
#include <utility>

using namespace CommonRoutines;

namespace {

const std::string DataFile =
    "Ashby+1+Kent+1837+3+9999+0+A+B|Ashbye|!Asby\r\n# note\r\nElm+1+Kent+1837+3+9999+0+A+B\r\n";

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
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
    RecoveryFile file;
    file.file = {"/data", FingerprintOf(DataFile)};
    while (bytes.size() >= 3) {
        const auto length = std::min<std::size_t>(static_cast<unsigned char>(bytes[2]) % 40, bytes.size() - 3);
        SlotChange& change =
            file.changes.emplace_back(SlotChange{bytes[0] % 5, bytes[1] % 6, std::string(bytes.substr(3, length)), {}});
        if (const int after = static_cast<unsigned char>(bytes[2]) / 40; after > 0) {
            change.after = after - 1;
        }
        bytes.remove_prefix(3 + length);
    }
    return file;
}

// What the lines hold once all changes have been made: by the numbers of the slots, in their order.
using Slots = std::vector<std::pair<std::int32_t, std::string>>;

std::map<std::int32_t, Slots> LinesWith(const RecoveryFile& file) {
    std::map<std::int32_t, Slots> lines{{1, {{1, "Ashbye"}, {2, "!Asby"}}}, {3, {}}};
    for (const SlotChange& change : file.changes) {
        Slots& slots = lines.at(change.line);
        const auto at = [&](std::int32_t number) {
            return std::find_if(slots.begin(), slots.end(), [&](const auto& slot) { return slot.first == number; });
        };
        if (at(change.slot) != slots.end()) {
            at(change.slot)->second = change.text;
        } else if (change.after) {
            const auto place = *change.after == 0 ? slots.begin() : at(*change.after) + 1;
            slots.insert(place, {change.slot, change.text});
        } else {
            slots.emplace_back(change.slot, change.text);
        }
    }
    return lines;
}

bool IsTable(const std::map<std::int32_t, Slots>& lines) {
    return std::all_of(lines.begin(), lines.end(), [](const auto& line) {
        const DistrictRecord& record = RecordOf(line.first);
        bool isEqual = record.lVariationCount == std::ssize(line.second);
        for (std::size_t i = 0; isEqual && i < line.second.size(); ++i) {
            isEqual = record.Variations[i + 1].Text == line.second[i].second;
        }
        return isEqual;
    });
}

void RequireTrustUpTo(std::size_t flipped, const std::string& content, const RecoveryFile& whole) {
    std::string damaged = content;
    damaged[flipped] = static_cast<char>(damaged[flipped] ^ 1);
    const auto file = ParseRecoveryFile(damaged);
    if (file) {
        Require(file->changes.size() <= whole.changes.size());
        Require(std::equal(file->changes.begin(), file->changes.end(), whole.changes.begin()));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (const auto file = ParseRecoveryFile(bytes)) {
        const auto again = ParseRecoveryFile(RecoveryText(*file));
        Require(again && again->file == file->file && again->changes == file->changes && !again->isDamaged);
    }
    OpenWith(bytes);

    const RecoveryFile made = ChangesIn(bytes);
    const std::string content = RecoveryText(made);
    OpenWith(content);
    Require(bChanged ? IsTable(LinesWith(*ParseRecoveryFile(content))) : DistrictFileContent() == DataFile);
    RequireTrustUpTo(size * 31 % content.size(), content, made);
    OpenWith(content.substr(0, content.size() - std::min(content.size(), size % 100)));
    return 0;
}
