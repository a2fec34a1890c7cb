#pragma once

#include "ui/lists/RowList.h"
#include "ui/machine/QtDesktop.h"
#include "ui/windows/Form1.h"

#include <functional>
#include <string>
#include <string_view>

// Says on the standard output, at once and whole, what has been reached.
void Milestone(std::string_view text);

// The real desktop with its dialogues answered: questions with Yes, unless they are about unsaved changes
// and these are not wanted. Boxes and the outcome of a save are milestones. Files stay those of the machine.
class SessionDesktop : public Ui::QtDesktop {
public:
    std::string fileToOpen;
    std::string fileToSave;
    bool wantsUnsavedChanges = true;

    CommonRoutines::BoxAnswer MsgBox(std::string_view text, CommonRoutines::BoxIcon icon,
                                     CommonRoutines::BoxButtons buttons) override;
    std::string MyMsgBox(const std::string& Prompt, std::int32_t Img, const std::string& Title,
                         std::span<const std::string> ButtonCaptions) override;
    std::optional<std::string> InputBox(std::string_view prompt) override;
    void ShowReport(const CommonRoutines::Report& /*report*/) override {}
    std::optional<std::string> ChooseFileToOpen(const CommonRoutines::FileRequest& /*request*/) override {
        return fileToOpen;
    }
    std::optional<std::string> ChooseFileToSave(const CommonRoutines::FileRequest& /*request*/) override {
        return fileToSave;
    }
    // The word list is there.
    std::string ProgramFolder() override { return QUEXAL_DATA_DIR; }
    void Beep() override {}
};

// The main window, driven by mouse and keys as a user drives it. A control that cannot be used ends the
// program, since nothing could be learnt from such a session.
class SessionWindow {
public:
    SessionWindow();

    void Open(const std::string& path);
    // Makes the edit with this number. The numbers give a mixture of all kinds, each on a district of its
    // own, and always the same one in the same table.
    void MakeEdit(int number);
    // Saves, where there is something to save.
    void Save(const std::string& path);

    SessionDesktop desktop;

private:
    template <typename Widget>
    Widget& Find(const char* name) {
        return *m_form.findChild<Widget*>(QString::fromLatin1(name));
    }
    void Click(const char* button);
    void ClickRow(const char* list, int row);
    // Clicks on one of the rows, as the number says. False in an empty list.
    bool SelectVariation(int number);

    void Add(int number);
    void Edit(int number);
    void Press(const char* button, int number);
    void ApplyProposals();

    Ui::Form1 m_form;
};
