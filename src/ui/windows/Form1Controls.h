#pragma once

#include "commands/CommandTable.h"

#include <QList>

#include <array>

class QCheckBox;
class QFrame;
class QGridLayout;
class QLabel;
class QPushButton;
class QString;
class QWidget;

namespace Ui {

class EditBox;
class FindPanel;
class PlainLabel;
class ProblemLabel;
class RowList;

// The controls of the main window and their arrangement; the buttons are those of the table of commands.
// Each control has its name as its objectName. The form owns the controls; this class only builds them and
// knows where they are.
class Form1Controls {
public:
    // Creates all controls as children of `form` and lays them out.
    explicit Form1Controls(QWidget* form);

    // The control of a command, and its button; nothing when it is none.
    [[nodiscard]] QWidget* Widget(Commands::Control control) const;
    [[nodiscard]] QPushButton* Button(Commands::Control control) const;

    // What the control of a command does, by which key, with which file, and what stands in its way.
    void Describe(QWidget& control, const Commands::Command& command, const QString& file = {},
                  const QString& obstacle = {}) const;

    // The list whose rows a button works on.
    [[nodiscard]] RowList* ListBeside(const QWidget& button) const;

    RowList* lvAlpha = nullptr;
    RowList* lvVariations = nullptr;
    RowList* LvChanges = nullptr;
    RowList* lvComments = nullptr;
    RowList* lbComments = nullptr;

    QCheckBox* cbVariation = nullptr;
    QCheckBox* cbSpelling = nullptr;
    QCheckBox* cbValidinyears = nullptr;
    QCheckBox* cbVNF = nullptr;
    EditBox* tbEdit = nullptr;
    PlainLabel* lbStatus = nullptr;
    PlainLabel* lbDoing = nullptr; // what is being edited

    FindPanel* findPanel = nullptr;

    PlainLabel* lbUndo = nullptr;
    PlainLabel* lbSelectCount = nullptr;
    ProblemLabel* lbWhyError = nullptr;
    PlainLabel* lbApplyTo = nullptr;
    QLabel* Label1 = nullptr; // the heading of the districts

private:
    static constexpr int Space = 8; // between controls, in pixels
    static constexpr int Gap = 12;  // between lists

    RowList* List(const char* name, const QString& accessibleName);
    QCheckBox* OptionBox(const char* name, const QString& caption, const QString& toolTip);
    PlainLabel* Status(const char* name, const QString& purpose, int lines);
    void SetUp(PlainLabel* label, const char* name, const QString& purpose, int lines);
    QFrame* Frame(const char* name, const QString& accessibleName);
    QLabel* Heading(const char* name, const QString& caption, QWidget* of);

    void CreateLists();
    void CreateEditRow();
    void CreateButton(const Commands::Command& command);
    void CreateLabels();
    void Arrange();

    // The buttons of a group, where the table has them.
    void AddButtons(QGridLayout* layout, Commands::Frame frame);
    QFrame* ButtonFrame(const char* name, const QString& accessibleName, Commands::Frame frame);
    QWidget* FileRow();
    QWidget* EditRow();
    QWidget* ChangeHeading();
    QWidget* Column(QWidget* heading, QWidget* body, QWidget* buttons);
    QWidget* ListBand();
    QWidget* CommentBand();
    // Where texts of rows begin, from the left end of their list.
    [[nodiscard]] int TextInset() const;
    void SetTabOrder();

    QWidget* m_inside;                                            // of the form
    QList<QWidget*> m_handles;                                    // between lists
    std::array<QPushButton*, Commands::ControlCount> m_buttons{}; // by Control
};

} // namespace Ui
