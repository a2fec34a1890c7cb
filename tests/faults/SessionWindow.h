#pragma once

#include "driver/AnsweringDesktop.h"
#include "driver/DrivenForm.h"

#include <optional>
#include <string>
#include <string_view>

// Says on the standard output, at once and whole, what has been reached.
void Milestone(std::string_view text);

// Questions are answered with Yes, unless unsaved changes would be lost, another answer is wanted about those of an
// earlier session, or the default is taken. Boxes and the outcome of a save are milestones.
class SessionDesktop : public Ui::AnsweringDesktop {
public:
    CommonRoutines::BoxAnswer aboutUnsavedChanges = CommonRoutines::BoxAnswer::Yes;
    bool takesDefaults = false; // where that is No

    SessionDesktop();
    CommonRoutines::BoxAnswer MsgBox(const CommonRoutines::Wording& text, CommonRoutines::BoxIcon icon,
                                     CommonRoutines::BoxButtons buttons) override;
    // A dialogue without a name is cancelled.
    std::optional<std::string> ChooseFileToSave(const CommonRoutines::FileRequest& request) override;
};

// What a session does to the main window.
class SessionWindow : public Ui::DrivenForm<SessionDesktop> {
public:
    void Open(const std::string& path);
    // Makes the edit with this number. The numbers give a mixture of all kinds, each on a district of its
    // own, and always the same one in the same table.
    void MakeEdit(int number);
    // Saves, where there is something to save.
    void Save(const std::string& path);
    // Runs the complete check.
    void Check();
    // Closes the window. False when it asked whether unsaved changes may be lost, and so stayed open.
    bool Close() { return Window().close(); }

private:
    // Clicks on one of the rows, as the number says. False in an empty list.
    bool SelectVariation(int number);

    void Add(int number);
    void Edit(int number);
    void Press(const char* button, int number);
    void ApplyProposals();
};
