#include "commands/FileCommands.h"

#include "commands/DistrictCommands.h"
#include "commands/EditCommands.h"
#include "commands/FindCommands.h"
#include "commands/ProposalCommands.h"
#include "commands/RestoreChanges.h"
#include "commands/Session.h"
#include "commands/VariationCommands.h"
#include "commands/WindowMode.h"
#include "core/Encoding.h"
#include "core/Paths.h"
#include "core/State.h"
#include "edit/UndoJournal.h"
#include "file/CommentTypes.h"
#include "file/DistrictFileReader.h"
#include "file/DistrictFileWriter.h"
#include "recovery/OpenFile.h"
#include "recovery/SaveCopy.h"
#include "recovery/UnsavedChanges.h"
#include "rules/Capitals.h"

#include <new>
#include <utility>

using namespace CommonRoutines;

namespace Commands {

namespace {

// A text that is only typed is no change of the table, and must be no reason to save it.
bool ConfirmDiscard(Session& session) {
    bChanged = bChanged || Unsaved.HasChanges(); // a save that cleared it may have saved nothing
    return (!bChanged && !session.view.edit.isPending) ||
           session.desktop.MsgBox("This will loose your changes.\r\nAre you sure you want to do this?",
                                  BoxIcon::Question, BoxButtons::YesNoDefaultNo) == BoxAnswer::Yes;
}

void ShowCommentTypes(Session& session) {
    CommentTypesView& types = session.view.commentTypes;
    types = {CommentTypes.Items().size(), {0}, types.filled + 1};
}

void ResetWindow(Session& session) {
    WindowView& view = session.view;
    lCurrentDistrict = 0;
    lEditIndex = 0;
    view.applyTo = 0;
    view.comments = {0, view.comments.filled + 1};
    session.screen.SizeCommentColumn();
    ClearWhyError(session);
    CommentTypes.Reset();
    ShowCommentTypes(session);
    ForgetHits(session);
    SetMode(NothingOpen); // the controls follow when a file is open: the old one can still be saved
    view.nextUndo.clear();
    view.districts.Fill({});
    ShowVariations(session, 0, {});
}

// The texts that outlive the table: proposals, what can be undone, what is typed and what is looked for. They are in
// the encoding of the open file, whichever that becomes.
class StayingTexts {
public:
    explicit StayingTexts(Session& session) : m_session(session) {}

    void FollowEncoding() {
        if (m_encoding != eFileEncoding) {
            RecodeProposals(m_session, m_encoding, eFileEncoding);
            RecodeUndoRing(m_encoding, eFileEncoding);
            PutIntoEditBox(m_session, Recoded(m_session.view.edit.text, m_encoding, eFileEncoding));
            m_session.view.find.text = Recoded(m_session.view.find.text, m_encoding, eFileEncoding);
            m_encoding = eFileEncoding;
        }
    }
    void KeepEncoding() const { eFileEncoding = m_encoding; }

private:
    Session& m_session;
    Encoding m_encoding = eFileEncoding;
};

void ReadAndRestore(Session& session, StayingTexts& texts) {
    ReadDistrictFile(session.desktop, [&] { texts.FollowEncoding(); });
    if (sDataFileName.empty()) {
        // Nothing is open, so nothing must be saved over the file that could not be read.
        ApplyWindowMode(session);
        return;
    }
    ShowCommentTypes(session);
    if (iRepairAction == Quit) {
        lLineCount = 0;
    }
    if (lLineCount > 0) {
        RestoreChanges(session.desktop);
        texts.FollowEncoding();
        FillDistrictList(session);
        EnterMode(session, FileOpen);
        session.view.focus = Focus::Districts;
    }
}

void ReadAndShow(Session& session, std::string path) {
    session.isOpening = true;
    MendFile(session.desktop, path);
    if (bChanged) {
        Unsaved.Remove(session.desktop); // they were given up; until now the choice of a file could be cancelled
    }
    session.view.edit.isPending = false;
    RememberFolder(session, path, Settings::DataFolder);
    sDataFileName = std::move(path);
    bChanged = false;
    session.districtsByName.clear();
    StayingTexts texts(session);
    try {
        ReadAndRestore(session, texts);
    } catch (const std::bad_alloc&) {
        // Changes of which only some have been made must not pass for all.
        ForgetDistrictFile(session.desktop);
        texts.KeepEncoding();
        ResetWindow(session);
        ApplyWindowMode(session);
        throw;
    }
}

// The saved bytes are taken for another encoding, so that the table is no longer what stands in the file. What can
// be undone and what is typed stays; so does the district.
void OpenAnew(Session& session) {
    const std::int32_t district = lCurrentDistrict;
    const bool wasPending = session.view.edit.isPending;
    ResetWindow(session);
    ReadAndShow(session, TheOpenFile.Path());
    if (lLineCount == 0) {
        ClearUndoRing();
        return;
    }
    session.view.nextUndo = CurrentUndoStep().WhatAmI();
    const std::string typed = session.view.edit.text;
    if (district > 0 && GoToDistrict(session, district)) {
        PutIntoEditBox(session, typed);
    }
    session.view.edit.isPending = wasPending;
}

} // namespace

void MendFiles(Session& session) {
    CommonRoutines::MendFiles(session.desktop);
}

void Start(Session& session) {
    ClearUndoRing();
    iUndoStep = 1;
    LoadLowerCaseWords(session.desktop);
    bChanged = false;
    EnterMode(session, NothingOpen);
    session.view.focus = Focus::OpenButton;
}

void Open(Session& session) {
    if (!ConfirmDiscard(session)) {
        return;
    }
    ResetWindow(session);
    ClearUndoRing();
    FileRequest request;
    request.folder = session.desktop.GetSetting(Settings::Section, Settings::DataFolder);
    if (request.folder.empty()) {
        request.folder = session.desktop.ProgramFolder();
    }
    if (const auto path = session.desktop.ChooseFileToOpen(request)) {
        ReadAndShow(session, *path);
    }
}

void OpenPath(Session& session, const std::string& path) {
    if (ConfirmDiscard(session)) {
        ResetWindow(session);
        ClearUndoRing();
        ReadAndShow(session, path);
    }
}

void Save(Session& session) {
    ClearWhyError(session);
    SaveDistrictFile(session.desktop);
    bChanged = false; // also where nothing was saved; ConfirmDiscard knows of that
    const bool isTakenForAnother = eEncodingOnDisk != eFileEncoding && eEncodingOnDisk != Encoding::Windows1252;
    if (isTakenForAnother) { // ASCII is the same in both
        OpenAnew(session);
    }
}

bool ConfirmClose(Session& session) {
    if (!ConfirmDiscard(session)) {
        return false;
    }
    if (bChanged) {
        Unsaved.Remove(session.desktop);
    }
    return true;
}

void RememberFolder(Session& session, const std::string& path, std::string_view key) {
    if (const std::string_view folder = Paths::FolderOf(path); !folder.empty()) {
        session.desktop.SaveSetting(Settings::Section, key, std::string(folder));
    }
}

} // namespace Commands
