#include "repair/RepairPrompt.h"

#include <initializer_list>

namespace CommonRoutines {

namespace {

constexpr std::string_view CrLf = "\r\n";
constexpr std::string_view TypeLine = "Type = Type a complete replacement for this variation";
constexpr std::string_view QuitLine = "Quit = Stop processing this file";

// Collects the prompt line by line.
class PromptText {
public:
    // Adds the parts of one line, its line break, and an empty line behind it where asked for.
    void Line(std::initializer_list<std::string_view> parts, bool emptyLineBehind = false) {
        for (const std::string_view part : parts) {
            m_text += part;
        }
        m_text += CrLf;
        if (emptyLineBehind) {
            m_text += CrLf;
        }
    }
    [[nodiscard]] std::string Take() { return std::move(m_text); }

private:
    std::string m_text;
};

constexpr bool EmptyLineBehind = true;

void AddTypeAndQuit(PromptText& text) {
    text.Line({TypeLine});
    text.Line({QuitLine}, EmptyLineBehind);
}

std::vector<std::string> Buttons(std::initializer_list<std::string_view> captions) {
    return {captions.begin(), captions.end()};
}

std::vector<std::string> RemoveTypeQuit() {
    return Buttons({RepairButton::Remove, RepairButton::Type, RepairButton::Quit});
}

using ButtonList = std::vector<std::string>;

ButtonList DescribeOnly(PromptText& text) {
    text.Line({" As it is the only variation it can only be removed or replaced."});
    text.Line({RepairButton::Remove});
    AddTypeAndQuit(text);
    return RemoveTypeQuit();
}

ButtonList DescribeLast(const NullVariation& v, PromptText& text) {
    if (v.previous.empty()) {
        text.Line({"It is the last variation and the previous has been deleted and so it can only be removed"},
                  EmptyLineBehind);
        text.Line({"Remove = ", v.previous});
        AddTypeAndQuit(text);
        return RemoveTypeQuit();
    }
    text.Line({"It is the last variation and can only be combined with the previous or removed."});
    text.Line({"Combine Previous = ", v.previous, v.current});
    if (v.canCombinePrevious) {
        text.Line({"Combine Previous = ", v.previous, v.current});
        text.Line({"Remove ", v.previous});
        AddTypeAndQuit(text);
        return Buttons({RepairButton::CombinePrevious, RepairButton::Remove, RepairButton::Type, RepairButton::Quit});
    }
    text.Line({"Combining with Previous gives an invalid variation"}, EmptyLineBehind);
    text.Line({"Remove = ", v.next});
    AddTypeAndQuit(text);
    return RemoveTypeQuit();
}

ButtonList DescribeFirst(const NullVariation& v, PromptText& text) {
    text.Line({"It is the first variation and can only be combined with the next or removed."});
    text.Line({"The next variation is ", v.next});
    if (v.canCombineNext) {
        text.Line({"Combine Next = ", v.current, v.next});
        text.Line({"Remove ", v.next});
        AddTypeAndQuit(text);
        return Buttons({RepairButton::CombineNext, RepairButton::Remove, RepairButton::Type, RepairButton::Quit});
    }
    text.Line({"Combining with next gives an invalid variation"}, EmptyLineBehind);
    text.Line({"Remove = ", v.next});
    AddTypeAndQuit(text);
    return RemoveTypeQuit();
}

ButtonList DescribeMiddle(const NullVariation& v, PromptText& text) {
    ButtonList buttons;
    if (v.previous.empty()) {
        text.Line({"The preceding variation has been deleted."});
    } else {
        text.Line({"With the preceding and following variations the string is..."});
        text.Line({v.previous, "|", v.current, "|", v.next}, EmptyLineBehind);
        if (v.canCombinePrevious) {
            text.Line({"Combine Previous = ", v.previous, v.current, "|", v.next});
            buttons.emplace_back(RepairButton::CombinePrevious);
        } else {
            text.Line({"Combined with the previous gives an invalid variation"}, EmptyLineBehind);
        }
    }
    if (v.canCombineNext) {
        text.Line({"Combine Next = ", v.previous, "|", v.current, v.next});
        buttons.emplace_back(RepairButton::CombineNext);
    } else {
        text.Line({"Combined with the next gives an invalid variation"});
    }
    text.Line({"Remove = ", v.previous, "|", v.next});
    text.Line({TypeLine});
    text.Line({QuitLine});
    for (std::string& button : RemoveTypeQuit()) {
        buttons.push_back(std::move(button));
    }
    return buttons;
}

ButtonList DescribePlace(const NullVariation& v, PromptText& text) {
    if (v.last == 1) {
        return DescribeOnly(text);
    }
    if (v.index == v.last) {
        return DescribeLast(v, text);
    }
    return v.index == 1 ? DescribeFirst(v, text) : DescribeMiddle(v, text);
}

} // namespace

RepairPrompt PromptFor(const NullVariation& variation) {
    PromptText text;
    text.Line({"District ", variation.districtName, " has a null variation."});
    text.Line(
        {"The invalid dependency is ", variation.current, " and it is variation #", std::to_string(variation.index)});
    ButtonList buttons = DescribePlace(variation, text);
    return {text.Take(), std::move(buttons)};
}

} // namespace CommonRoutines
