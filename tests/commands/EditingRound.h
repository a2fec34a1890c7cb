#pragma once

#include "commands/EditingPlayer.h"
#include "commands/SlowEditor.h"
#include "core/Utf8.h"
#include "edit/EditPanel.h"
#include "edit/EditTest.h"

#include <algorithm>
#include <random>
#include <sstream>

// Texts that any file can hold, and texts that somebody might enter all the same.
inline const Texts TameTexts = {"Ash",    "ASH",    "!Ash",        "%Ash",   "!%Ash",      "Elm",
                                "Elm%12", "Elm%13", "%Elm%12",     "Sm_th",  "!!Oak",      "Caf\xE9",
                                "north",  "%!Oak",  "Upper Yew",   "Smi?h",  "CAF\xC9%12", "?",
                                "%South", "Yew",    "!%Upper Yew", "yew%1%2"};
inline const Texts WelshTexts = {
    "D\xC5\xB5r",       "D\xC5\xB4R",    "!d\xC5\xB5r",    "%T\xC5\xB7", "!%T\xC5\xB7", "Elm",       "T\xC5\xB7%12",
    "T\xC5\xB6%13",     "%T\xC5\xB7%12", "T\xC5\xB7_",     "!!\xC5\xB4", "Caf\xC3\xA9", "\xC5\xB5n", "%!\xC5\xB4n",
    "\xF0\x9F\x98\x80", "Smi?\xC5\xB5",  "CAF\xC3\x89%12", "?",          "%\xC5\xB7%1", "\xC5\xB8",  "\xC3\xBF"};
inline const Texts WildTexts = {"",     " ",       "!",  "%",   "!%",    "Ash ", " Elm",
                                "Oak%", "Ash|Elm", "\t", "!\t", "%Yew%", "Yew!", "\tYew"};

// A player and the slow editor side by side over the same small file, given the same commands at random.
// A wild round also enters texts that do not survive being read again. Every third round is one on a file in UTF-8. The
// player begins with a fresh state.
class EditingRound {
public:
    EditingRound(EditingPlayer& player, std::uint32_t seed, bool wild)
        : m_random(seed), m_wild(wild), m_utf8(seed % 3 == 0), m_hasty(seed % 5 == 0), m_player(player) {
        std::string file;
        for (auto count = 2 + UpTo(3); count > 0; --count) {
            AddLine(file, count);
        }
        m_player.Open(file, RepeatedNames());
        m_original = m_slow.lines;
        Choose();
    }

    void DoSomething() {
        if (m_hasty && UpTo(1) == 0) {
            return AddSomewhere();
        }
        switch (UpTo(23)) {
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
            return Both(Control::cbCancel, [](auto& slow) { slow.Cancel(); });
        case 12:
            return Both(Control::cbAdd, [](auto& slow) { slow.StartAdd(); });
        case 13:
            return Delete();
        case 14:
            return Both(Control::cbShriek, [](auto& slow) { slow.Shriek(); });
        case 15:
            return Both(Control::cbDate, [](auto& slow) { slow.Date(); });
        case 16:
        case 17:
            return Both(Control::cbUndo, [](auto& slow) { slow.Undo(); });
        case 18:
            return Save();
        case 19:
            return TakeUp();
        default:
            return Both(Control::cbOk, [](auto& slow) { slow.Ok(); });
        }
    }

    // Whether closing the window would lose a change, or what is typed.
    [[nodiscard]] bool WouldLose() const { return m_slow.changed || m_isUnsaved || m_slow.typed; }

    // Closes the window, which asks where something would be lost, and only there. True when it has gone.
    bool Close(bool givesUp) {
        const bool asks = WouldLose();
        m_slow.changed = m_slow.changed || m_isUnsaved;
        if (asks) {
            m_player.desktop.ExpectBox("This will loose your changes.\r\nAre you sure you want to do this?",
                                       CommonRoutines::BoxIcon::Question, CommonRoutines::BoxButtons::YesNoDefaultNo,
                                       givesUp ? CommonRoutines::BoxAnswer::Yes : CommonRoutines::BoxAnswer::No);
        }
        const bool isClosed = m_player.Close();
        m_player.desktop.CheckDone();
        EXPECT_EQ(isClosed, givesUp || !asks);
        return isClosed;
    }

    // What both show, and the table behind it.
    [[nodiscard]] std::string Shown() const {
        const ShownWindow window = m_player.Shown();
        std::ostringstream shown;
        shown << "district " << CommonRoutines::lCurrentDistrict << " mode " << CommonRoutines::iEditMode << " editing "
              << CommonRoutines::lEditIndex << " changed " << CommonRoutines::bChanged << "\nbox [" << window.box
              << "] status [" << window.labels[0] << "] undo [" << window.labels[1] << "] warns [" << window.labels[3]
              << "] doing [" << window.labels[8] << "] captions [" << window.labels[6] << "] [" << window.labels[7]
              << "]\nrows";
        for (const std::string& variation : window.variations) {
            shown << " [" << variation.substr(0, variation.rfind(' ')) << ']';
        }
        shown << "\nselected";
        for (const int row : window.chosenVariations) {
            shown << ' ' << row;
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
              << m_slow.changed << "\nbox [" << m_slow.box << "] status [" << m_slow.status << "] undo ["
              << m_slow.NextUndo() << "] warns [" << (m_slow.warned ? "warns" : "") << "] doing [" << m_slow.Doing()
              << "] captions [" << (m_slow.shriekAdds ? "Add !" : "Remove !") << "] ["
              << (m_slow.dateAdds ? "Add Date%" : "Remove Date%") << "]\nrows";
        for (const int slot : m_slow.listed) {
            shown << " [" << m_slow.Slot(slot) << ']';
        }
        shown << "\nselected";
        for (std::size_t row = 0; row < m_slow.listed.size(); ++row) {
            const auto& selected = m_slow.selected;
            if (std::find(selected.begin(), selected.end(), m_slow.listed[row]) != selected.end()) {
                shown << ' ' << row;
            }
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
        while (m_slow.Undo()) {
            m_player.Press(Control::cbUndo);
        }
        m_player.Press(Control::cbUndo); // to no effect
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
        m_player.desktop.state.Die();
        ResetEverything();
        CommandPlayer heir;
        heir.desktop.files = m_player.desktop.files;
        heir.desktop.state.storage = m_player.desktop.state.storage;
        heir.desktop.ExpectOpen(DataFilePath);
        if (!heir.desktop.state.Kept(".changes").empty()) {
            heir.desktop.ExpectBox(
                "There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                CommonRoutines::BoxIcon::Question, CommonRoutines::BoxButtons::YesNoCancel,
                CommonRoutines::BoxAnswer::Yes);
        }
        heir.desktop.recordReports = true;
        heir.ExpectRepeatedNames(RepeatedNames());
        heir.Press(Control::cbOpen);
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
    using Control = Commands::Control;

    std::size_t UpTo(std::size_t most) { return m_random() % (most + 1); }

    [[nodiscard]] const Texts& Tame() const { return m_utf8 ? WelshTexts : TameTexts; }

    // Whether nothing is cut by ending a text here.
    [[nodiscard]] bool IsPlace(const std::string& text, std::size_t place) const {
        return !m_utf8 || place >= text.size() || !Utf8::IsContinuation(text[place]);
    }

    std::string Text() {
        const Texts& texts = m_wild && UpTo(2) == 0 ? WildTexts : Tame();
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
        line.header = line.name + (m_utf8 ? "+1+S\xC5\xB5ydd+" : "+1+Shire+") + years[choice] + "+x+ y";
        file += line.header;
        for (auto count = UpTo(4); count > 0; --count) {
            const bool blank = UpTo(5) == 0;
            std::string text = Tame()[UpTo(Tame().size() - 1)];
            if (m_wild && count > 1 && UpTo(3) == 0) {
                text = " " + text + " "; // not in the last one, since the ends of a line are trimmed
            }
            line.slots.push_back(blank ? "\t" : text);
            file += '|' + (blank ? std::string() : line.slots.back());
        }
        file += "\r\n";
    }

    // Of the districts of one name, all but the first are asked about.
    [[nodiscard]] std::vector<std::string> RepeatedNames() const {
        std::vector<std::string> repeated;
        for (const char* name : {"North", "South"}) {
            const auto count = std::count_if(m_slow.lines.begin(), m_slow.lines.end(), [&](const Slow::Line& line) {
                return line.isDistrict && line.name == name;
            });
            repeated.insert(repeated.end(), static_cast<std::size_t>(std::max<std::ptrdiff_t>(count - 1, 0)), name);
        }
        return repeated;
    }

    // Presses a button that is enabled.
    template <typename Slowly>
    void Both(Control button, Slowly slowly) {
        if (m_player.IsEnabled(button)) {
            m_player.Press(button);
            const std::vector<Texts> before = SlotsOf(m_slow.lines);
            slowly(m_slow);
            m_isUnsaved = m_isUnsaved || SlotsOf(m_slow.lines) != before;
        }
    }
    static std::vector<Texts> SlotsOf(const std::vector<Slow::Line>& lines) {
        std::vector<Texts> slots;
        for (const Slow::Line& line : lines) {
            slots.push_back(line.slots);
        }
        return slots;
    }

    void Choose() {
        std::vector<int> districts;
        for (int line = 1; line <= static_cast<int>(m_slow.lines.size()); ++line) {
            if (m_slow.lines[static_cast<std::size_t>(line) - 1].isDistrict) {
                districts.push_back(line);
            }
        }
        const int line = districts[UpTo(districts.size() - 1)];
        m_player.ChooseDistrict(line);
        m_slow.Choose(line);
    }

    // Where nothing was chosen, a click beside the rows chooses nothing anew.
    void Select() {
        std::vector<int> rows;
        std::vector<int> slots;
        const auto oneIn = 1 + UpTo(3);
        for (std::size_t i = 0; i < m_slow.listed.size(); ++i) {
            if (UpTo(oneIn) == 0) {
                rows.push_back(static_cast<int>(i));
                slots.push_back(m_slow.listed[i]);
            }
        }
        if (!rows.empty() || !m_slow.selected.empty()) {
            m_player.Select(rows);
            m_slow.Select(slots);
        }
    }

    // Space in a list that has nothing selected would select.
    void TakeUp() {
        if (!m_slow.selected.empty()) {
            m_player.TakeUp();
            m_slow.TakeUp();
        }
    }

    void Enter(const std::string& text) {
        if (m_player.IsEnabled(Control::tbEdit) && text != m_slow.box) {
            m_player.Enter(text);
            m_slow.ChangeBox(text);
        }
    }

    // A text from its first character to its last, each step followed by both.
    void Type() {
        const std::string text = Text();
        const std::size_t length = m_wild ? UpTo(text.size()) : text.size();
        for (std::size_t typed = 1; typed <= length && m_player.IsEnabled(Control::tbEdit); ++typed) {
            if (IsPlace(text, typed)) {
                Enter(text.substr(0, typed));
                ASSERT_EQ(Shown(), Expected());
            }
        }
    }

    // Single keys anywhere in the text, where they may be typed.
    void Press() {
        for (int i = 0; i < 20; ++i) {
            std::string text = m_slow.box;
            std::size_t caret = UpTo(text.size());
            while (!IsPlace(text, caret)) {
                ++caret;
            }
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
        Both(Control::cbOk, [](auto& slow) { slow.Ok(); });
    }

    void Delete() {
        if (!m_player.IsEnabled(Control::cbDelete)) {
            return;
        }
        const bool yes = UpTo(4) > 0;
        if (!m_slow.selected.empty()) {
            m_player.desktop.ExpectBox(m_slow.Question(), CommonRoutines::BoxIcon::Question,
                                       CommonRoutines::BoxButtons::YesNo,
                                       yes ? CommonRoutines::BoxAnswer::Yes : CommonRoutines::BoxAnswer::No);
        }
        Both(Control::cbDelete, [&](auto& slow) { slow.Delete(yes); });
    }

    void Save() {
        if (!m_player.IsEnabled(Control::cbSave)) {
            return;
        }
        // Only what survives being read again can be compared with what a crash leaves.
        const bool cancels = m_wild || UpTo(1) == 0;
        m_player.desktop.ExpectSave(cancels ? std::nullopt : std::optional(DataFilePath));
        if (!cancels) {
            m_player.desktop.ExpectBox("File Saved to " + DataFilePath, CommonRoutines::BoxIcon::Information);
            m_hasSaved = true;
            m_isUnsaved = false;
        }
        Both(Control::cbSave, [](auto& slow) { slow.Save(); });
    }

    std::mt19937 m_random;
    bool m_wild;
    bool m_utf8;
    bool m_hasSaved = false;
    bool m_isUnsaved = false; // also of changes that were taken back since
    bool m_hasty;             // goes from district to district, so that the journal runs out of steps
    EditingPlayer& m_player;
    Slow::Editor m_slow;
    std::vector<Slow::Line> m_original;
};
