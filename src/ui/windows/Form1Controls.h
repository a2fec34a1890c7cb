#pragma once

#include "edit/WindowMode.h"

class QBoxLayout;
class QCheckBox;
class QFrame;
class QLabel;
class QPushButton;
class QString;
class QWidget;

namespace Ui {

class EditBox;
class PlainLabel;
class RowList;

// The controls of the main window and their arrangement. Each control has its name as its objectName.
// The form owns the controls; this class only builds them and knows where they are.
class Form1Controls {
public:
    // Creates all controls as children of `form` and lays them out.
    explicit Form1Controls(QWidget* form);

    // The control that a row of the mode table is about.
    [[nodiscard]] QWidget* Widget(CommonRoutines::Control control) const;

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
    QPushButton* cbOk = nullptr;
    QPushButton* cbCancel = nullptr;
    PlainLabel* lbStatus = nullptr;

    QPushButton* cbAdd = nullptr;
    QPushButton* cbDelete = nullptr;
    QPushButton* cbShriek = nullptr;
    QPushButton* cbDate = nullptr;
    QPushButton* cbSaveVariations = nullptr;

    QPushButton* cbOpen = nullptr;
    QPushButton* cbSave = nullptr;
    QPushButton* btnProcess = nullptr;
    QPushButton* cbCompleteCheck = nullptr;

    QPushButton* cbUndo = nullptr;
    PlainLabel* lbUndo = nullptr;

    QPushButton* cbApplySelected = nullptr;
    QPushButton* cbApplySelSpell = nullptr;
    QPushButton* cbApplyAll = nullptr;
    QPushButton* cbApplyAllSpell = nullptr;
    QPushButton* cbEditSel = nullptr;
    QPushButton* cbClearSel = nullptr;
    PlainLabel* lbSelectCount = nullptr;

    PlainLabel* lbWhyError = nullptr;
    PlainLabel* lbApplyTo = nullptr;

private:
    RowList* List(const char* name, const QString& accessibleName);
    QPushButton* Button(const char* name, const QString& caption, const QString& toolTip);
    QCheckBox* OptionBox(const char* name, const QString& caption, const QString& toolTip);
    PlainLabel* Status(const char* name, const QString& purpose, int lines);
    QFrame* Frame(const char* name, const QString& accessibleName);
    QLabel* Heading(const char* name, const QString& caption, QWidget* of);

    void CreateLists();
    void CreateEditRow();
    void CreateButtons();
    void CreateLabels();

    QWidget* FileRow();
    QWidget* EditRow();
    QWidget* VariationButtons();
    QWidget* ChangeButtons();
    QWidget* ChangeHeading();
    QBoxLayout* ListBand();
    QBoxLayout* CommentBand();
    void SetTabOrder();

    QWidget* m_form;
};

} // namespace Ui
