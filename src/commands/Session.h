#pragma once

#include "commands/PresentingDesktop.h"
#include "commands/WindowView.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace Commands {

// What the commands need of the window itself: that it shows what is so, and that it measures texts.
class Screen {
public:
    Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;

    virtual void Show(const WindowView& view) = 0;

    // The widths of the districts list: from its headings, from every district that is added, and then set.
    virtual void StartColumnWidths() = 0;
    virtual void AddDistrictRow(const CommonRoutines::DistrictRecord& record) = 0;
    virtual void SetColumnWidths() = 0;
    // Gives the comments all the room beside their types.
    virtual void SizeCommentColumn() = 0;
};

// A search through the table as it was at a certain time.
struct HitSearch {
    HitSearch(std::string_view sought, CommonRoutines::FindBy by) : finder(sought, by) {}
    [[nodiscard]] bool IsUpToDate() const {
        return table == CommonRoutines::lTableNumber && textChanges == CommonRoutines::lTextChanges;
    }

    CommonRoutines::Finder finder;
    std::int32_t table = CommonRoutines::lTableNumber;
    std::int32_t textChanges = CommonRoutines::lTextChanges;
};

// What the commands work on, beside the table: what the window shows, and the desktop. A command is a
// function that takes a session; it is run from its beginning to its end by Run.
struct Session {
    Session(CommonRoutines::Desktop& machine, Screen& window);

    // Runs a command, goes where the user wants to go from a report that it has shown, puts what it has changed on the
    // disk, and shows what the window shows now. One that there is not enough memory for ends with a message, since the
    // toolkit must not meet with an exception.
    void Run(const std::function<void(Session&)>& command);

    CommonRoutines::Desktop& desktop; // shows what is so before it asks anything
    Screen& screen;
    WindowView view;
    std::vector<std::int32_t> districtsByName; // all of the file; the filter chooses from them
    std::optional<HitSearch> search;           // whose hits are shown, while something is looked for
    bool isOpening = false;                    // a data file, which is not shown yet

private:
    [[nodiscard]] bool GoToWantedPlace(bool mayGo);
    void Present();

    CommonRoutines::Desktop& m_machine;
    PresentingDesktop m_presenting;
    PresentingDesktop m_showing; // for what there is to say while changes are being written
};

// Does something that may need more memory than there is, which then ends with a message.
void WithinMemory(CommonRoutines::Desktop& desktop, const std::function<void()>& work);

} // namespace Commands
