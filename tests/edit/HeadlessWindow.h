#pragma once

#include "core/State.h"
#include "edit/EditPanel.h"
#include "edit/MarkerCommands.h"
#include "edit/Selection.h"
#include "edit/UndoJournal.h"
#include "edit/Variations.h"
#include "edit/WindowMode.h"
#include "rules/Duplicates.h"
#include "support/ScriptedDesktop.h"

#include <string>
#include <vector>

// The main window without its widgets: every command calls the routines in the order in which the
// window does, and keeps what the window would show. Whether a command is enabled is for the caller.
class HeadlessWindow {
public:
    explicit HeadlessWindow(CommonRoutines::Desktop& desktop) : m_desktop(desktop) {}

    std::string status;
    std::string box;
    std::string nextUndo;
    bool warned = false;
    std::vector<CommonRoutines::VariationRow> listed;
    std::vector<CommonRoutines::VariationRow> selected;

    [[nodiscard]] static bool Enabled(CommonRoutines::Control control) {
        return CommonRoutines::EnabledInMode(control, CommonRoutines::iEditMode, CommonRoutines::bChanged, {}) == true;
    }

    void Choose(std::int32_t district) {
        CommonRoutines::lCurrentDistrict = district;
        CommonRoutines::lEditIndex = 0;
        List();
        SetMode(CommonRoutines::DistrictIdle);
        box.clear();
    }

    void Select(const std::vector<CommonRoutines::VariationRow>& rows) {
        selected = rows;
        const CommonRoutines::SelectionView view = CommonRoutines::DescribeSelection(rows);
        m_shriekCaption = view.shriekCaption;
        m_dateCaption = view.dateCaption;
        CommonRoutines::lEditIndex = view.editIndex;
        box = EditedText();
        SetMode(view.editMode);
    }

    void StartAdd() {
        box.clear();
        SetMode(CommonRoutines::AddingUnacceptable);
    }

    void ChangeBox(const std::string& text) {
        box = text;
        const CommonRoutines::TextChange change = CommonRoutines::FollowText(text);
        status = change.status.value_or(status);
        SetMode(change.editMode);
    }

    void Ok() {
        const CommonRoutines::Committed committed = CommonRoutines::CommitText(box, m_desktop);
        if (committed.stored) {
            SetMode(CommonRoutines::DistrictIdle);
        }
        nextUndo = CommonRoutines::CurrentUndoStep().WhatAmI();
        box.clear();
        warned = !committed.warning.empty();
        List();
        SetMode(CommonRoutines::iEditMode);
    }

    void Cancel() {
        box.clear();
        SetMode(CommonRoutines::DistrictIdle);
    }

    void Delete(bool yes) {
        if (yes && !selected.empty()) {
            CommonRoutines::DeleteVariations(selected, m_desktop);
            nextUndo = CommonRoutines::CurrentUndoStep().WhatAmI();
            List();
        }
        Cancel();
    }

    void Shriek() { Mark(CommonRoutines::ShriekCommand(m_shriekCaption)); }
    void Date() { Mark(CommonRoutines::DateCommand(m_dateCaption)); }

    // False when there was nothing to take back.
    bool Undo() {
        if (CommonRoutines::CurrentUndoStep().Count() == 0) {
            return false;
        }
        const CommonRoutines::UndoneItem undone = CommonRoutines::CurrentUndoStep().LastItem();
        if (undone.lDistrict != CommonRoutines::lCurrentDistrict) {
            Choose(undone.lDistrict);
        }
        CommonRoutines::TakeBack(undone.item, listed, m_desktop);
        nextUndo = CommonRoutines::DescribeNextUndo();
        CommonRoutines::FindDuplicateVariations(undone.lDistrict, false);
        List();
        if (CommonRoutines::iEditMode == CommonRoutines::EditingVariation) {
            SetMode(CommonRoutines::DistrictIdle);
        }
        SetMode(CommonRoutines::iEditMode);
        return true;
    }

private:
    void SetMode(std::int16_t mode) {
        CommonRoutines::iEditMode = mode;
        if (CommonRoutines::ModeClearsStatus(mode)) {
            status.clear();
        }
    }

    void List() {
        CommonRoutines::lEditIndex = 0;
        selected.clear();
        listed = CommonRoutines::ListVariations(CommonRoutines::lCurrentDistrict).rows;
        if (!listed.empty()) {
            SetMode(CommonRoutines::DistrictIdle);
        }
    }

    void Mark(CommonRoutines::MarkerCommand command) {
        CommonRoutines::ChangeMarkers(command, selected, m_desktop);
        nextUndo = CommonRoutines::CurrentUndoStep().WhatAmI();
        if (CommonRoutines::lEditIndex > 0) {
            box = EditedText();
        }
        SetMode(CommonRoutines::DistrictIdle);
    }

    static std::string EditedText() {
        const std::int32_t slot = CommonRoutines::lEditIndex;
        return slot > 0 ? CommonRoutines::VariationOf(CommonRoutines::lCurrentDistrict, slot).Text : std::string();
    }

    CommonRoutines::Desktop& m_desktop;
    std::string m_shriekCaption = "Add !";
    std::string m_dateCaption = "Add Date%";
};
