#pragma once

// The editing commands once more, written to be understood: a district is a list of texts, a step of
// the journal a list of items, and every command does what its description says, one thing after
// another. Random rounds are given to this and to the program.

#include "rules/SlowRules.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Slow {

// One line of the file.
struct Line {
    std::string header; // of a retained line: all of it
    bool isDistrict = true;
    std::string name;
    bool dateMarksOverlap = true;   // whether the district existed at all, by its own years
    std::vector<std::string> slots; // slot n is slots[n - 1]
    bool touched = false;           // a command has recorded an item
};

struct Item {
    int type = 0;
    std::string newText;
    std::string oldText;
};

struct Step {
    int line = 0;
    std::vector<Item> items;
};

class Editor {
public:
    std::vector<Line> lines; // line n is lines[n - 1]
    int mode = 3;
    int line = 0;
    int editSlot = 0;
    bool changed = false;
    bool typed = false; // what stands in the box is somebody's, and stored nowhere
    std::string status;
    std::string box;
    std::vector<int> listed;   // slots in list order
    std::vector<int> selected; // of these, in list order
    bool shriekAdds = true;
    bool dateAdds = true;
    bool warned = false;            // by the last "Ok"
    std::map<std::string, int> met; // how often something rare has happened
    bool reversible = true;         // nothing has happened that undoing cannot bring back

    void Choose(int number) {
        line = number;
        List();
        SetMode(4);
        FillBox("");
    }

    void Select(const std::vector<int>& slots) {
        selected = slots;
        bool spelling = false;
        bool date = false;
        for (const int slot : selected) {
            const std::string text = Slot(slot);
            spelling = spelling || text.substr(0, 1) == "!";
            date = date || text.substr(0, 1) == "%" || text.substr(0, 2) == "!%";
        }
        shriekAdds = !spelling;
        dateAdds = !date;
        warned = false;
        editSlot = selected.size() == 1 ? selected[0] : 0;
        FillBox(editSlot > 0 ? Slot(editSlot) : "");
        SetMode(selected.size() < 2 ? 2 : 10);
    }

    void StartAdd() {
        FillBox("");
        SetMode(8);
    }

    void ChangeBox(const std::string& text) {
        box = text;
        if (mode == 4 || (editSlot == 0 && mode != 8 && mode != 9)) {
            mode = 8;
        }
        if (mode != 8 && mode != 9) {
            mode = 6;
        } else if (text.empty()) {
            mode = 8;
        } else {
            mode = 9;
            status = "";
            if (const auto existing = Existing(text)) {
                mode = 8;
                status = "Duplicates " + *existing;
            }
            const std::string trimmed = Trimmed(text);
            if (!check.Check(text) || trimmed == "!" || (!trimmed.empty() && trimmed.back() == '%')) {
                mode = 8;
            }
        }
        SetMode(mode);
        typed = !text.empty() || mode == 6;
    }

    [[nodiscard]] static bool MayType(char key, const std::string& text, std::size_t caret) {
        const char before = caret > 0 ? text[caret - 1] : 'x';
        if (key == ' ') {
            return caret != 0 && before != '!' && before != '%';
        }
        if (key == '!') {
            return caret == 0 && InStr(text, "!") == 0;
        }
        if (key == '%') {
            return before != ' ' && (caret == text.size() || text[caret] != '!');
        }
        if (key == '?') {
            return !SplitAtMarkers(text).suffix.empty() && caret >= InStrRev(text, '%');
        }
        return key != '|';
    }

    void Ok() {
        const std::string text = Trimmed(box);
        if (mode == 9) {
            for (const std::string& existing : Here().slots) {
                reversible = reversible && existing != text; // undoing will take both
            }
            Record({1, text, ""});
            Here().slots.push_back(text);
            SetMode(4);
        } else if (mode == 6) {
            Record({2, text, Slot(editSlot)});
            Slot(editSlot) = text;
            reversible = reversible && text != "\t";
            SetMode(4);
        }
        check.warning = false;
        check.Check(box);
        warned = check.warning;
        FillBox("");
        changed = true;
        List();
        SetMode(mode);
    }

    void Cancel() {
        selected.clear();
        BecomeIdle();
    }

    // What was marked stays selected, to be taken up again.
    void TakeUp() {
        if (mode == 4 && !selected.empty()) {
            Select(std::vector<int>(selected));
        }
    }

    [[nodiscard]] std::string Doing() {
        if (mode == 8 || mode == 9) {
            return "Adding to " + Here().name;
        }
        if (mode == 10) {
            return std::to_string(selected.size()) + " variations chosen";
        }
        return (mode == 2 || mode == 6) && editSlot > 0 ? "Editing " + Slot(editSlot) : "";
    }

    [[nodiscard]] std::string Question() {
        return selected.size() == 1
                   ? "Are you sure you want to delete variation " + Trimmed(Slot(selected[0]))
                   : "Are you sure you want to delete these " + std::to_string(selected.size()) + " variations?";
    }

    void Delete(bool yes) {
        if (yes && !selected.empty()) {
            for (const int slot : selected) {
                Record({3, Slot(slot), ""});
                Slot(slot) = "\t";
            }
            changed = true;
            List();
        }
        BecomeIdle();
    }

    void Shriek() {
        for (const int slot : selected) {
            std::string text = Slot(slot);
            const bool has = text.substr(0, 1) == "!";
            if (shriekAdds && !has) {
                text = "!" + text;
            } else if (!shriekAdds && has) {
                text = text.substr(1);
            }
            Mark(slot, text);
        }
        BecomeIdle();
    }

    void Date() {
        for (const int slot : selected) {
            std::string text = Slot(slot);
            const std::string shriek = text.substr(0, 1) == "!" ? "!" : "";
            const std::string rest = text.substr(shriek.size());
            const bool has = rest.substr(0, 1) == "%";
            if (dateAdds && !has) {
                text = shriek + "%" + rest;
            } else if (!dateAdds && has) {
                text = shriek + rest.substr(1);
            }
            Mark(slot, text);
        }
        BecomeIdle();
    }

    void Save() {
        changed = false;
        warned = false;
    }

    // False when there was nothing to take back.
    bool Undo() {
        if (Now().items.empty()) {
            return false;
        }
        const Item item = Now().items.back();
        if (Now().line != line) {
            Choose(Now().line);
            met["undo in another district"] += 1;
        }
        const bool boxShowsSelection = mode == 2;
        Now().items.pop_back();
        const std::vector<std::string> before = Here().slots;
        TakeBack(item);
        changed = changed || before != Here().slots;
        met["undo that changes nothing"] += before == Here().slots ? 1 : 0;
        if (Now().items.empty()) {
            Now().line = 0;
            step = step == 1 ? 20 : step - 1;
        }
        List();
        if (boxShowsSelection) {
            FillBox("");
        }
        SetMode(mode == 2 || mode == 6 || mode == 10 ? 4 : mode);
        return true;
    }

    [[nodiscard]] std::string NextUndo() const {
        const Step& now = ring[static_cast<std::size_t>(step)];
        if (now.items.empty()) {
            return "";
        }
        const Item& last = now.items.back();
        const std::string name = lines[static_cast<std::size_t>(now.line) - 1].name;
        return last.type == 1   ? "Add " + last.newText + " to " + name
               : last.type == 2 ? "Change " + last.oldText + " to " + last.newText
                                : "Delete " + last.newText + " from " + name;
    }

    std::string& Slot(int number) { return Here().slots[static_cast<std::size_t>(number) - 1]; }

private:
    Line& Here() { return lines[static_cast<std::size_t>(line) - 1]; }
    Step& Now() { return ring[static_cast<std::size_t>(step)]; }

    void SetMode(int number) {
        mode = number;
        if (mode != 7 && mode != 8) {
            status = "";
        }
    }

    // Every text goes in front of the first one that is greater.
    void List() {
        editSlot = 0;
        selected.clear();
        listed.clear();
        for (int slot = 1; slot <= static_cast<int>(Here().slots.size()); ++slot) {
            if (Slot(slot) == "\t") {
                continue;
            }
            auto place = listed.begin();
            while (place != listed.end() && Ansi::Upper(Slot(*place)) <= Ansi::Upper(Slot(slot))) {
                ++place;
            }
            listed.insert(place, slot);
        }
        if (!listed.empty()) {
            SetMode(4);
        }
    }

    [[nodiscard]] bool Same(const std::string& a, const std::string& b) {
        const Split first = SplitAtMarkers(a);
        const Split second = SplitAtMarkers(b);
        const std::string base = Trimmed(first.base);
        if (base == "\t" || Ansi::Upper(base) != Ansi::Upper(Trimmed(second.base))) {
            return false;
        }
        const std::string suffix = Trimmed(first.suffix);
        if (suffix != Trimmed(second.suffix) && !suffix.empty() && !Trimmed(second.suffix).empty()) {
            return false;
        }
        const bool dated = InStr(first.prefix, "%") > 0;
        return dated == (InStr(second.prefix, "%") > 0) && (!dated || Here().dateMarksOverlap);
    }

    [[nodiscard]] std::optional<std::string> Existing(const std::string& text) {
        for (const std::string& slot : Here().slots) {
            if (Same(slot, text)) {
                return slot;
            }
        }
        return Same(text, Here().name) ? std::optional(Here().name) : std::nullopt;
    }

    void Mark(int slot, const std::string& text) {
        Record({2, Trimmed(text), Slot(slot)});
        reversible = reversible && text == Trimmed(text) && text != "\t";
        met["marker that changes nothing"] += text == Slot(slot) ? 1 : 0;
        Slot(slot) = text;
        changed = true;
    }

    void FillBox(const std::string& text) {
        box = text;
        typed = false;
    }

    void BecomeIdle() {
        editSlot = 0;
        FillBox("");
        SetMode(4);
    }

    void Record(const Item& item) {
        Here().touched = true;
        if (Now().line != line) {
            step = step == 20 ? 1 : step + 1;
            reversible = reversible && Now().items.empty();
            met["step used again"] += Now().items.empty() ? 0 : 1;
            Now() = {line, {}};
        }
        Now().items.push_back(item);
    }

    void TakeBack(const Item& item) {
        std::vector<std::string>& slots = Here().slots;
        if (item.type == 1) {
            for (std::string& slot : slots) {
                slot = slot == item.newText ? "\t" : slot;
            }
            return;
        }
        const std::string wanted = item.type == 2 ? item.newText : "\t";
        const std::string given = item.type == 2 ? item.oldText : item.newText;
        if (item.type == 2 && wanted == "\t") {
            return; // a free slot is not listed
        }
        for (std::string& slot : slots) {
            if (slot == wanted) {
                slot = given;
                return;
            }
        }
        if (item.type == 3) {
            slots.push_back(given);
        }
    }

    Validation check;
    std::array<Step, 21> ring;
    int step = 1;
};

} // namespace Slow
