#pragma once

#include "edit/EditTest.h"
#include "edit/HeadlessWindow.h"
#include "edit/RestoreChanges.h"
#include "edit/SlowEditor.h"
#include "file/DistrictFileWriter.h"
#include "support/Reading.h"

#include <algorithm>
#include <random>
#include <sstream>

// Texts that any file can hold, and texts that somebody might enter all the same.
inline const Texts TameTexts = {"Ash",    "ASH",    "!Ash",        "%Ash",   "!%Ash",      "Elm",
                                "Elm%12", "Elm%13", "%Elm%12",     "Sm_th",  "!!Oak",      "Caf\xE9",
                                "north",  "%!Oak",  "Upper Yew",   "Smi?h",  "CAF\xC9%12", "?",
                                "%South", "Yew",    "!%Upper Yew", "yew%1%2"};
inline const Texts WildTexts = {"",     " ",       "!",  "%",   "!%",    "Ash ", " Elm",
                                "Oak%", "Ash|Elm", "\t", "!\t", "%Yew%", "Yew!", "\tYew"};

// A window and the slow editor side by side over the same small file, given the same commands at random.
// A wild session also enters texts that do not survive being read again.
class EditingSession {
public:
    EditingSession(std::uint32_t seed, bool wild)
        : m_random(seed), m_wild(wild), m_hasty(seed % 5 == 0), m_window(m_desktop) {
        m_desktop.recordReports = true;
        std::string file;
        for (auto count = 2 + UpTo(3); count > 0; --count) {
            AddLine(file, count);
        }
        ResetEverything();
        ReadText(m_desktop, file);
        CommonRoutines::iEditMode = CommonRoutines::FileOpen;
        m_original = m_slow.lines;
        Choose();
    }

    void DoSomething() {
        if (m_hasty && UpTo(1) == 0) {
            return AddSomewhere();
        }
        switch (UpTo(22)) {
        case 0:
        case 1:
            return Choose();
        case 2:
        case 3:
        case 4:
            return Select();
        case 5:
        case 6:
        case 7:
            return Enter(Text());
        case 8:
        case 9:
            return Type();
        case 10:
            return Press();
        case 11:
            return Both(HeadlessWindow::Enabled(CommonRoutines::Control::cbCancel),
                        [](auto& editor) { editor.Cancel(); });
        case 12:
            return Both(HeadlessWindow::Enabled(CommonRoutines::Control::cbAdd),
                        [](auto& editor) { editor.StartAdd(); });
        case 13:
            return Delete();
        case 14:
            return Both(HeadlessWindow::Enabled(CommonRoutines::Control::cbShriek),
                        [](auto& editor) { editor.Shriek(); });
        case 15:
            return Both(HeadlessWindow::Enabled(CommonRoutines::Control::cbDate), [](auto& editor) { editor.Date(); });
        case 16:
        case 17:
            return Both(true, [](auto& editor) { editor.Undo(); });
        case 18:
            return Save();
        default:
            return Both(HeadlessWindow::Enabled(CommonRoutines::Control::cbOk) || UpTo(20) == 0,
                        [](auto& editor) { editor.Ok(); });
        }
    }

    // What both show, and the table behind it.
    [[nodiscard]] std::string Shown() const {
        std::ostringstream shown;
        shown << "district " << CommonRoutines::lCurrentDistrict << " mode " << CommonRoutines::iEditMode << " editing "
              << CommonRoutines::lEditIndex << " changed " << CommonRoutines::bChanged << " warned " << m_window.warned
              << "\nbox [" << m_window.box << "] status [" << m_window.status << "] undo [" << m_window.nextUndo
              << "] [" << CommonRoutines::CurrentUndoStep().WhatAmI() << "]\nrows";
        for (const CommonRoutines::VariationRow& row : m_window.listed) {
            shown << " [" << VariationAt(CommonRoutines::lCurrentDistrict, row.lIndex).Text << ']';
        }
        for (std::int32_t line = 1; line <= CommonRoutines::lLineCount; ++line) {
            shown << "\nline " << line;
            for (std::int32_t slot = 1; slot <= DistrictAt(line).lVariationCount; ++slot) {
                shown << " [" << VariationAt(line, slot).Text << ']';
            }
        }
        return shown.str();
    }

    [[nodiscard]] std::string Expected() {
        std::ostringstream shown;
        shown << "district " << m_slow.line << " mode " << m_slow.mode << " editing " << m_slow.editSlot << " changed "
              << m_slow.changed << " warned " << m_slow.warned << "\nbox [" << m_slow.box << "] status ["
              << m_slow.status << "] undo [" << m_slow.NextUndo() << "] [" << m_slow.NextUndo() << "]\nrows";
        for (const int slot : m_slow.listed) {
            shown << " [" << m_slow.Slot(slot) << ']';
        }
        for (std::size_t line = 0; line < m_slow.lines.size(); ++line) {
            shown << "\nline " << line + 1;
            for (const std::string& slot : m_slow.lines[line].slots) {
                shown << " [" << slot << ']';
            }
        }
        return shown.str();
    }

    // The file now: a line that no command has touched is the one that was read.
    [[nodiscard]] std::string ExpectedFile() const {
        std::string file;
        for (std::size_t i = 0; i < m_slow.lines.size(); ++i) {
            const Slow::Line& line = m_slow.lines[i].touched ? m_slow.lines[i] : m_original[i];
            file += FileLine(line) + "\r\n";
        }
        return file;
    }

    // Undoes until nothing is left to undo.
    void UndoAll() {
        while (m_window.Undo()) {
            m_slow.Undo();
        }
        EXPECT_FALSE(m_slow.Undo());
    }

    // The texts of every line apart from free slots.
    static std::vector<Texts> Survivors(const std::vector<Slow::Line>& lines) {
        std::vector<Texts> survivors;
        for (const Slow::Line& line : lines) {
            std::copy_if(line.slots.begin(), line.slots.end(), std::back_inserter(survivors.emplace_back()),
                         [](const std::string& text) { return text != "\t"; });
        }
        return survivors;
    }
    static std::vector<Texts> SurvivorsInTable() {
        std::vector<Slow::Line> lines(static_cast<std::size_t>(CommonRoutines::lLineCount));
        for (std::int32_t line = 1; line <= CommonRoutines::lLineCount; ++line) {
            for (std::int32_t slot = 1; slot <= DistrictAt(line).lVariationCount; ++slot) {
                lines[static_cast<std::size_t>(line) - 1].slots.push_back(VariationAt(line, slot).Text);
            }
        }
        return Survivors(lines);
    }

    // What a new editor has in its table after this one has died and the user wants the changes back: the
    // slots of every line.
    std::vector<Texts> AfterCrash() {
        m_desktop.state.Die();
        ResetEverything();
        if (!m_desktop.state.Kept(".changes").empty()) {
            m_desktop.ExpectBox(
                "There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                CommonRoutines::BoxIcon::Question, CommonRoutines::BoxButtons::YesNo, CommonRoutines::BoxAnswer::Yes);
        }
        ReadText(m_desktop, std::string(m_desktop.files[DataFilePath]));
        CommonRoutines::RestoreChanges(m_desktop);
        return SlotsInTable();
    }
    [[nodiscard]] bool HasSaved() const { return m_hasSaved; }

    static std::vector<Texts> SlotsInTable() {
        std::vector<Texts> lines;
        for (std::int32_t line = 1; line <= CommonRoutines::lLineCount; ++line) {
            Texts& slots = lines.emplace_back();
            for (std::int32_t slot = 1; slot <= DistrictAt(line).lVariationCount; ++slot) {
                slots.push_back(VariationAt(line, slot).Text);
            }
        }
        return lines;
    }

    [[nodiscard]] const std::vector<Slow::Line>& Original() const { return m_original; }
    [[nodiscard]] const Slow::Editor& SlowEditor() const { return m_slow; }

private:
    std::size_t UpTo(std::size_t most) { return m_random() % (most + 1); }

    std::string Text() {
        const Texts& texts = m_wild && UpTo(2) == 0 ? WildTexts : TameTexts;
        return texts[UpTo(texts.size() - 1)];
    }

    static std::string FileLine(const Slow::Line& line) {
        std::string text = line.header;
        for (const std::string& slot : line.slots) {
            text += slot == "\t" ? "" : "|" + slot;
        }
        return text;
    }

    void AddLine(std::string& file, std::size_t number) {
        Slow::Line& line = m_slow.lines.emplace_back();
        if (number > 1 && UpTo(3) == 0) {
            line.isDistrict = false;
            line.header = UpTo(1) == 0 ? "" : "# note | with a bar";
            file += line.header + "\r\n";
            return;
        }
        const std::string years[] = {"1837+3+9999+0", "1900+1+1850+1", "1850+2+1850+1", "1850+1+1850+2"};
        const std::size_t choice = UpTo(3);
        line.dateMarksOverlap = choice == 0 || choice == 3;
        line.name = number % 2 == 0 ? "North" : "South";
        line.header = line.name + "+1+Shire+" + years[choice] + "+x+ y";
        file += line.header;
        for (auto count = UpTo(4); count > 0; --count) {
            const bool blank = UpTo(5) == 0;
            std::string text = TameTexts[UpTo(TameTexts.size() - 1)];
            if (m_wild && count > 1 && UpTo(3) == 0) {
                text = " " + text + " "; // not in the last one, since the ends of a line are trimmed
            }
            line.slots.push_back(blank ? "\t" : text);
            file += '|' + (blank ? std::string() : line.slots.back());
        }
        file += "\r\n";
    }

    template <typename Command>
    void Both(bool enabled, Command command) {
        if (enabled) {
            command(m_window);
            command(m_slow);
        }
    }

    void Choose() {
        std::vector<int> districts;
        for (int line = 1; line <= static_cast<int>(m_slow.lines.size()); ++line) {
            if (m_slow.lines[static_cast<std::size_t>(line) - 1].isDistrict) {
                districts.push_back(line);
            }
        }
        const int line = districts[UpTo(districts.size() - 1)];
        Both(true, [&](auto& editor) { editor.Choose(line); });
    }

    void Select() {
        std::vector<CommonRoutines::VariationRow> rows;
        std::vector<int> slots;
        const auto oneIn = 1 + UpTo(3);
        for (std::size_t i = 0; i < m_window.listed.size(); ++i) {
            if (UpTo(oneIn) == 0) {
                rows.push_back(m_window.listed[i]);
                slots.push_back(m_slow.listed[i]);
            }
        }
        m_window.Select(rows);
        m_slow.Select(slots);
    }

    void Enter(const std::string& text) {
        Both(HeadlessWindow::Enabled(CommonRoutines::Control::tbEdit), [&](auto& editor) { editor.ChangeBox(text); });
    }

    // A text from its first character to its last, each step followed by both.
    void Type() {
        const std::string text = Text();
        const std::size_t length = m_wild ? UpTo(text.size()) : text.size();
        for (std::size_t typed = 1; typed <= length && HeadlessWindow::Enabled(CommonRoutines::Control::tbEdit);
             ++typed) {
            Enter(text.substr(0, typed));
            ASSERT_EQ(Shown(), Expected());
        }
    }

    // Single keys anywhere in the text, where they may be typed.
    void Press() {
        for (int i = 0; i < 20; ++i) {
            std::string text = m_slow.box;
            const std::size_t caret = UpTo(text.size());
            const char key = " !%?|aB1"[UpTo(7)];
            const bool may = CommonRoutines::MayType(key, text, caret);
            ASSERT_EQ(may, Slow::Editor::MayType(key, text, caret)) << key << " in " << text << " at " << caret;
            if (m_wild && may && UpTo(3) == 0) {
                Enter(text.insert(caret, 1, key));
            }
        }
    }

    void AddSomewhere() {
        Choose();
        Enter("Name " + std::to_string(UpTo(999)));
        Both(HeadlessWindow::Enabled(CommonRoutines::Control::cbOk), [](auto& editor) { editor.Ok(); });
    }

    void Delete() {
        if (!HeadlessWindow::Enabled(CommonRoutines::Control::cbDelete)) {
            return;
        }
        if (!m_window.selected.empty()) {
            ASSERT_EQ(CommonRoutines::DeleteQuestion(m_window.selected), m_slow.Question());
        }
        const bool yes = UpTo(4) > 0;
        Both(true, [&](auto& editor) { editor.Delete(yes); });
    }

    void Save() {
        if (HeadlessWindow::Enabled(CommonRoutines::Control::cbSave)) {
            // Only what survives being read again can be compared with what a crash leaves.
            const bool cancels = m_wild || UpTo(1) == 0;
            m_desktop.ExpectSave(cancels ? std::nullopt : std::optional(DataFilePath));
            if (!cancels) {
                m_desktop.ExpectBox("File Saved to " + DataFilePath, CommonRoutines::BoxIcon::Information);
                m_hasSaved = true;
            }
            CommonRoutines::SaveDistrictFile(m_desktop);
            CommonRoutines::bChanged = false;
            m_slow.changed = false;
        }
    }

    std::mt19937 m_random;
    bool m_wild;
    bool m_hasSaved = false;
    bool m_hasty; // goes from district to district, so that the journal runs out of steps
    ScriptedDesktop m_desktop;
    HeadlessWindow m_window;
    Slow::Editor m_slow;
    std::vector<Slow::Line> m_original;
};
