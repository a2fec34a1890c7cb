// The main window's file commands: opening and saving.

#include "core/Desktop.h"
#include "core/Paths.h"
#include "core/Progress.h"
#include "core/State.h"
#include "edit/RestoreChanges.h"
#include "edit/UndoJournal.h"
#include "file/CommentTypes.h"
#include "file/DistrictFileReader.h"
#include "file/DistrictFileWriter.h"
#include "file/DistrictList.h"
#include "recovery/UnsavedChanges.h"
#include "ui/lists/CommentModels.h"
#include "ui/lists/DistrictColumns.h"
#include "ui/lists/DistrictModel.h"
#include "ui/lists/RowList.h"
#include "ui/lists/VariationModel.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/windows/Form1.h"

namespace Ui {

using namespace CommonRoutines;

bool Form1::MayDiscardChanges() {
    // A cancelled or failed save costs nothing, unless the recovery file could not be written either.
    if (!bChanged && !Unsaved.AreUnwritten()) {
        return true;
    }
    bChanged = true; // the save that cleared it has saved nothing
    return m_desktop.MsgBox("This will loose your changes.\r\nAre you sure you want to do this?", BoxIcon::Question,
                            BoxButtons::YesNo) == BoxAnswer::Yes;
}

void Form1::OpenClicked() {
    if (!MayDiscardChanges()) {
        return;
    }
    ResetWindow();
    FileRequest request;
    request.sFolder = m_desktop.GetSetting(Settings::Section, Settings::DataFolder);
    if (request.sFolder.empty()) {
        request.sFolder = m_desktop.ProgramFolder();
    }
    if (const auto path = m_desktop.ChooseFileToOpen(request)) {
        OpenFile(*path);
    }
}

void Form1::OpenDropped(const std::string& path) {
    if (MayDiscardChanges()) {
        ResetWindow();
        OpenFile(path);
    }
}

void Form1::OpenFile(const std::string& path) {
    if (bChanged) {
        Unsaved.Remove(m_desktop); // they were given up; until now the choice of a file could be cancelled
    }
    sDataFileName = path;
    RememberFolder(path, Settings::DataFolder);
    bChanged = false;
    m_districtsByName.clear();
    ReadDistrictFile(m_desktop);
    if (sDataFileName.empty()) {
        // Nothing is open, so nothing must be saved over the file that could not be read.
        ApplyWindowMode();
        return;
    }
    m_commentTypes->Refresh();
    m_controls.lbComments->SelectRow(0);
    if (iRepairAction == Quit) {
        lLineCount = 0;
    }
    if (lLineCount > 0) {
        RestoreChanges(m_desktop);
        FillDistrictList();
        iEditMode = FileOpen;
        ApplyWindowMode();
        m_controls.lvAlpha->setFocus();
    }
}

void Form1::RememberFolder(const std::string& path, std::string_view key) {
    if (const std::string_view folder = Paths::FolderOf(path); !folder.empty()) {
        m_desktop.SaveSetting(Settings::Section, key, std::string(folder));
    }
}

void Form1::ResetWindow() {
    lCurrentDistrict = 0;
    lEditIndex = 0;
    m_controls.lbApplyTo->ShowText({});
    m_comments->SetRows({});
    SizeCommentColumn();
    ClearWhyError();
    ClearUndoRing();
    CommentTypes.Reset();
    m_commentTypes->Refresh();
    m_controls.lbComments->SelectRow(0);
    iEditMode = NothingOpen;
    m_controls.lbUndo->ShowText({});
    m_districts->SetDistricts({});
    m_variations->SetRows(0, {});
}

void Form1::SaveClicked() {
    ClearWhyError();
    SaveDistrictFile(m_desktop);
    bChanged = false;
}

void Form1::FillDistrictList() {
    m_desktop.ShowBusy(true);
    Progress progress(m_desktop, "Listing the districts", static_cast<std::size_t>(lLineCount));
    DistrictColumns columns(m_controls.lvAlpha->font());
    m_districtsByName = DistrictsByName();
    for (std::int32_t line = 1; line <= lLineCount; ++line) {
        if (IsDistrict(line)) {
            columns.AddDistrictRow(RecordOf(line));
        }
        progress.Advance(1);
    }
    m_desktop.ShowBusy(false);
    m_districts->SetDistricts(m_districtsByName);
    ReportDuplicatedDistricts(m_districtsByName, m_desktop);
    for (std::size_t column = 0; column < DistrictHeadings.size(); ++column) {
        m_controls.lvAlpha->setColumnWidth(static_cast<int>(column), columns.Width(column));
    }
}

} // namespace Ui
