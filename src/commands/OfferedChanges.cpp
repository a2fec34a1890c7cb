#include "commands/OfferedChanges.h"

#include "core/Desktop.h"
#include "core/Encoding.h"
#include "core/State.h"
#include "core/Utf8.h"
#include "file/DistrictFileWriter.h"
#include "recovery/SavesForOthers.h"
#include "recovery/UnsavedChanges.h"

#include <algorithm>
#include <set>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>

using namespace CommonRoutines;

namespace Commands {

namespace {

// Every change names a slot that is there, or the next new one, when its turn comes.
bool FitsTable(std::span<const SlotChange> changes) {
    std::unordered_map<std::int32_t, std::int32_t> counts;
    for (const SlotChange& change : changes) {
        if (!IsDistrict(change.line)) {
            return false;
        }
        auto& count = counts.try_emplace(change.line, RecordOf(change.line).lVariationCount).first->second;
        const bool isNew = change.slot == count + 1;
        if (change.slot > count + 1 || (change.after && (!isNew || *change.after > count))) {
            return false;
        }
        count = std::max(count, change.slot);
    }
    return true;
}

// Of changes in UTF-8, a file that is none takes only the characters of its own code page, unless it is ASCII, which
// may become UTF-8.
bool FitsEncoding(const RecoveryFile& file) {
    const Encoding utf8 = file.encoding;
    return utf8 == Encoding::Windows1252 || TextsAreUtf8() || Utf8::IsAscii(DistrictFileContent()) ||
           std::all_of(file.changes.begin(), file.changes.end(), [&](const SlotChange& change) {
               const std::string ansi = Recoded(change.text, utf8, Encoding::Windows1252);
               return Recoded(ansi, Encoding::Windows1252, utf8) == change.text;
           });
}

// Why none of the changes can be made.
std::string WhyNone(const RecoveryFile& file) {
    if (!file.changes.empty()) {
        return " do not fit this file.";
    }
    return file.overtaken > 0 ? " are all about what has been changed and saved since."
                              : " are damaged from the first one on.";
}

// What the question about changes has to add.
std::string WhatIsMissing(const RecoveryFile& file) {
    std::string missing;
    if (file.isDamaged) {
        const std::size_t count = file.changes.size();
        missing = "\r\nTheir file is damaged: only the first ";
        missing += count == 1 ? "can be had." : std::to_string(count) + " can be had.";
    }
    if (file.overtaken > 0) {
        missing += "\r\n" + std::to_string(file.overtaken);
        missing += file.overtaken == 1 ? " more is left out: it is" : " more are left out: they are";
        missing += " about what has been changed and saved since.";
    }
    return missing.empty() ? missing : missing + "  Their file is kept aside.";
}

// Goes through the left-over files, the latest first, and asks about those that have to do with the open file.
class Asking {
public:
    explicit Asking(Desktop& desktop)
        : m_desktop(desktop), m_folder(desktop.State()), m_saves(m_folder, Unsaved.File().path) {}

    void AskAbout(const std::string& name);
    [[nodiscard]] OfferedChanges& Answers() { return m_answers; }

private:
    void Judge(LeftOver& leftOver);
    void Offer(LeftOver& leftOver);
    void PutOff(const LeftOver& leftOver, bool says);
    void TellOfProblem(const LeftOver& leftOver);
    void TellSetAside(const LeftOver& leftOver, const std::string& what);

    [[nodiscard]] bool IsOfOpenFile(const LeftOver& leftOver);
    [[nodiscard]] std::string ChangesOf(const LeftOver& leftOver) {
        return "unsaved changes of " + m_folder.TimeOf(leftOver.name);
    }

    Desktop& m_desktop;
    StateFolder& m_folder;
    SavesForOthers m_saves;
    OfferedChanges m_answers;
    std::set<std::string> m_held; // files whose changes are all in another one
};

bool Asking::IsOfOpenFile(const LeftOver& leftOver) {
    const FileIdentity& file = Unsaved.File();
    if (!leftOver.file) {
        return RecoveryNames::MayBelongTo(leftOver.name, file.path);
    }
    const FileIdentity& of = leftOver.file->file;
    return of.path == file.path || of.bytes == file.bytes || m_saves.Lead(of.bytes, file.bytes);
}

void Asking::AskAbout(const std::string& name) {
    auto leftOver = TakeLeftOver(m_folder, name);
    if (!leftOver) {
        return;
    }
    if (!IsOfOpenFile(*leftOver)) {
        GiveBack(m_folder, leftOver->name); // so that another editor may ask about it
    } else if (!leftOver->problem.empty()) {
        TellOfProblem(*leftOver);
    } else {
        Judge(*leftOver);
    }
}

void Asking::Judge(LeftOver& leftOver) {
    if (leftOver.isOfNewerVersion) {
        leftOver.problem = "A newer version of this program has written it";
        TellOfProblem(leftOver);
        GiveBack(m_folder, leftOver.name);
        return;
    }
    if (!leftOver.file) {
        TellSetAside(leftOver, "The recovery file with " + ChangesOf(leftOver) + " is damaged.");
        return;
    }
    RecoveryFile& file = *leftOver.file;
    m_held.insert(file.holds.begin(), file.holds.end());
    const bool isWhole = !file.isDamaged;
    const bool isHeld = m_held.contains(leftOver.name) || m_saves.Hold(leftOver.name);
    if (isWhole && (file.changes.empty() || isHeld)) {
        Drop(m_folder, leftOver.name);
    } else if (isHeld || (isWhole && file.savedAs && file.savedAs->bytes == Unsaved.File().bytes)) {
        SetAside(m_folder, leftOver.name); // the saved file's name may not be on the disk yet
    } else if (!m_saves.CarryTo(Unsaved.File().bytes, file) && !m_saves.Problem().empty()) {
        leftOver.problem = m_saves.Problem();
        TellOfProblem(leftOver);
        GiveBack(m_folder, leftOver.name);
    } else if (file.file.bytes != Unsaved.File().bytes) {
        TellSetAside(leftOver, "There are " + ChangesOf(leftOver) + " to an earlier state of this file.");
    } else if (!FitsEncoding(file)) {
        TellSetAside(leftOver, "The " + ChangesOf(leftOver) + " have characters that this file cannot hold.");
    } else if (!file.changes.empty() && FitsTable(file.changes)) {
        Offer(leftOver);
    } else if (file.file.path != Unsaved.File().path) {
        GiveBack(m_folder, leftOver.name); // whoever opens the file to which they were made is told
    } else {
        TellSetAside(leftOver, "The " + ChangesOf(leftOver) + WhyNone(file));
    }
}

void Asking::Offer(LeftOver& leftOver) {
    const RecoveryFile& file = *leftOver.file;
    const bool isOfAnother = file.file.path != Unsaved.File().path;
    Wording question = "There are " + ChangesOf(leftOver);
    if (isOfAnother) {
        question = question + " (made to " + Wording::OfPath(file.file.path) +
                   ").  That file had the same content as this one.\r\nDo you want them in this file?";
    } else {
        question = question + " to this file.\r\nDo you want them back?";
    }
    const BoxAnswer answer =
        m_desktop.MsgBox(question + WhatIsMissing(file), BoxIcon::Question, BoxButtons::YesNoCancel);
    if (answer == BoxAnswer::Yes) {
        m_answers.wanted.insert(m_answers.wanted.begin(), std::move(leftOver));
    } else if (isOfAnother) {
        PutOff(leftOver, answer == BoxAnswer::No);
    } else if (answer == BoxAnswer::No) {
        m_desktop.MsgBox("The changes are kept in\r\n" + Wording::OfPath(SetAside(m_folder, leftOver.name)) +
                             "\r\nThey are offered again when \".aside\" is taken off that name.",
                         BoxIcon::Information);
    } else {
        GiveBack(m_folder, leftOver.name);
    }
}

void Asking::PutOff(const LeftOver& leftOver, bool says) {
    GiveBack(m_folder, leftOver.name);
    m_answers.putOff.push_back(leftOver.name);
    if (says) {
        m_desktop.MsgBox("The changes stay for the file to which they were made.  They are in\r\n" +
                             Wording::OfPath(m_folder.PathOf(leftOver.name)),
                         BoxIcon::Information);
    }
}

void Asking::TellOfProblem(const LeftOver& leftOver) {
    m_desktop.MsgBox("There are unsaved changes to this file that cannot be had back now.\r\n" + leftOver.problem +
                         ".\r\nThey stay in\r\n" + Wording::OfPath(m_folder.PathOf(leftOver.name)),
                     BoxIcon::Exclamation);
}

void Asking::TellSetAside(const LeftOver& leftOver, const std::string& what) {
    const Wording place = Wording::OfPath(SetAside(m_folder, leftOver.name));
    m_desktop.MsgBox(what + "  None of them has been made.  They are kept in\r\n" + place, BoxIcon::Exclamation);
}

} // namespace

OfferedChanges OfferChanges(Desktop& desktop) {
    const std::vector<std::string> names = RecoveryFiles(desktop.State());
    const std::string problem = desktop.State().Problem();
    RemoveDeadLocks(desktop.State());
    if (!problem.empty()) {
        desktop.MsgBox("It cannot be told whether there are unsaved changes to this file.\r\n" + problem + ".\r\n" +
                           Wording::OfPath(desktop.State().PathOf({})),
                       BoxIcon::Exclamation);
    }
    Asking asking(desktop);
    for (const std::string& name : names) {
        asking.AskAbout(name);
    }
    return std::move(asking.Answers());
}

} // namespace Commands
