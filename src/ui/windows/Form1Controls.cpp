#include "ui/windows/Form1Controls.h"

#include "ui/lists/RowList.h"
#include "ui/lists/StateColours.h"
#include "ui/widgets/EditBox.h"
#include "ui/widgets/EqualGapLayout.h"
#include "ui/widgets/PlainLabel.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace Ui {

namespace {

constexpr int Space = 8;

QString Name(const char* name) {
    return QString::fromLatin1(name);
}

// Makes a button wide enough for each of its captions, so that nothing moves when they change.
void KeepWidthFor(QPushButton* button, const QStringList& captions) {
    const QString present = button->text();
    for (const QString& caption : captions) {
        button->setText(caption);
        button->setMinimumWidth(std::max(button->minimumWidth(), button->sizeHint().width()));
    }
    button->setText(present);
}

void Outline(QWidget* box) {
    QPalette palette;
    palette.setColor(QPalette::Window, StateColours::ShadedToOutline);
    box->setPalette(palette);
}

// A sub-layout inside another, without margins of its own.
template <typename Layout>
Layout* Inner(QWidget* of = nullptr) {
    auto* layout = new Layout(of);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space);
    return layout;
}

} // namespace

Form1Controls::Form1Controls(QWidget* form) : m_form(form) {
    CreateLists();
    CreateEditRow();
    CreateButtons();
    CreateLabels();
    auto* layout = new QVBoxLayout(form);
    layout->setSpacing(Space);
    layout->setContentsMargins(Space, Space, Space, Space);
    layout->addWidget(FileRow());
    layout->addLayout(ListBand(), 1);
    layout->addLayout(CommentBand());
    SetTabOrder();
}

RowList* Form1Controls::List(const char* name, const QString& accessibleName) {
    auto* list = new RowList(m_form);
    list->setObjectName(Name(name));
    list->setAccessibleName(accessibleName);
    list->setMinimumSize(90, 60);
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    return list;
}

QPushButton* Form1Controls::Button(const char* name, const QString& caption, const QString& toolTip) {
    auto* button = new QPushButton(caption, m_form);
    button->setObjectName(Name(name));
    button->setAccessibleName(caption);
    button->setAccessibleDescription(toolTip);
    button->setToolTip(toolTip);
    return button;
}

QCheckBox* Form1Controls::OptionBox(const char* name, const QString& caption, const QString& toolTip) {
    auto* box = new QCheckBox(caption, m_form);
    box->setObjectName(Name(name));
    box->setAccessibleName(caption);
    box->setToolTip(toolTip);
    Outline(box);
    return box;
}

PlainLabel* Form1Controls::Status(const char* name, const QString& purpose, int lines) {
    auto* label = new PlainLabel(m_form);
    label->setObjectName(Name(name));
    label->SetPurpose(purpose);
    label->SetLineCount(lines);
    return label;
}

QFrame* Form1Controls::Frame(const char* name, const QString& accessibleName) {
    auto* frame = new QFrame(m_form);
    frame->setObjectName(Name(name));
    frame->setAccessibleName(accessibleName);
    return frame;
}

QLabel* Form1Controls::Heading(const char* name, const QString& caption, QWidget* of) {
    auto* label = new QLabel(caption, m_form);
    label->setObjectName(Name(name));
    label->setAccessibleName(caption);
    label->setBuddy(of);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

void Form1Controls::CreateLists() {
    lvAlpha = List("lvAlpha", QObject::tr("Districts"));
    lvVariations = List("lvVariations", QObject::tr("Variations"));
    LvChanges = List("LvChanges", QObject::tr("Change File"));
    lvComments = List("lvComments", QObject::tr("Comments"));
    lbComments = List("lbComments", QObject::tr("Comment types"));
    lvVariations->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (RowList* list : {lvVariations, LvChanges, lbComments}) {
        list->setHeaderHidden(true);
    }
    for (RowList* list : {lvAlpha, lvVariations, LvChanges, lvComments}) {
        // The columns have the widths that they are given; none stretches.
        list->header()->setStretchLastSection(false);
    }
}

void Form1Controls::CreateEditRow() {
    cbVariation = OptionBox("cbVariation", QObject::tr("Variation"), QObject::tr("A plain variation, without markers"));
    cbSpelling = OptionBox("cbSpelling", QObject::tr("Spelling Mistake"), QObject::tr("Begins with \"!\""));
    cbValidinyears =
        OptionBox("cbValidinyears", QObject::tr("Only valid in year"), QObject::tr("Begins with \"%\" or \"!%\""));
    cbVNF = OptionBox("cbVNF", QObject::tr("Only if Volume matches"), QObject::tr("Ends with \"%\" and a volume"));
    tbEdit = new EditBox(m_form);
    tbEdit->setObjectName(Name("tbEdit"));
    tbEdit->setAccessibleName(QObject::tr("Variation text"));
    tbEdit->setToolTip(QObject::tr("The variation with its markers (F2)"));
    Outline(tbEdit);
    cbOk = Button("cbOk", QObject::tr("Ok"), QObject::tr("Store the text (Enter)"));
    cbCancel = Button("cbCancel", QObject::tr("Cancel"), QObject::tr("Give up the text (Esc)"));
    lbStatus = Status("lbStatus", QObject::tr("Status of the text"), 3);
}

void Form1Controls::CreateButtons() {
    cbOpen = Button("cbOpen", QObject::tr("Open File"), QObject::tr("Open a data file (Ctrl+O)"));
    cbSave = Button("cbSave", QObject::tr("Save"), QObject::tr("Write the data file (Ctrl+S)"));
    btnProcess = Button("btnProcess", QObject::tr("Process File"),
                        QObject::tr("Read a file of proposed variations for this district"));
    cbCompleteCheck = Button("cbCompleteCheck", QObject::tr("Complete Variation Check"),
                             QObject::tr("Look for duplicates in the whole file"));
    cbUndo = Button("cbUndo", QObject::tr("Undo"), QObject::tr("Take back the last change (Ctrl+Z)"));

    cbAdd = Button("cbAdd", QObject::tr("Add"), QObject::tr("Add a variation to this district (Insert)"));
    cbDelete = Button("cbDelete", QObject::tr("Delete"), QObject::tr("Delete the selected variations (Delete)"));
    cbShriek = Button("cbShriek", QObject::tr("Add !"),
                      QObject::tr("Mark or unmark the selected variations as spelling mistakes"));
    cbDate = Button("cbDate", QObject::tr("Add Date%"),
                    QObject::tr("Mark or unmark the selected variations as valid only in some years"));
    cbSaveVariations = Button("cbSaveVariations", QObject::tr("Save Selected Variations"),
                              QObject::tr("Write the selected variations to a text file"));

    cbApplySelected = Button("cbApplySelected", QObject::tr("Apply Selected"),
                             QObject::tr("Add the ticked proposals to this district"));
    cbApplySelSpell = Button("cbApplySelSpell", QObject::tr("as Spelling"),
                             QObject::tr("Add the ticked proposals as spelling mistakes"));
    cbApplyAll = Button("cbApplyAll", QObject::tr("Apply All"), QObject::tr("Add all proposals to this district"));
    cbApplyAllSpell =
        Button("cbApplyAllSpell", QObject::tr("as Spelling"), QObject::tr("Add all proposals as spelling mistakes"));
    cbEditSel = Button("cbEditSel", QObject::tr("Edit"), QObject::tr("Take the ticked proposal into the edit box"));
    cbClearSel = Button("cbClearSel", QObject::tr("Clear"), QObject::tr("Untick all proposals"));
    for (QPushButton* button : {cbShriek, cbDate}) {
        KeepWidthFor(button, {QObject::tr("Add !"), QObject::tr("Remove !"), QObject::tr("Add Date%"),
                              QObject::tr("Remove Date%")});
    }
    // Two buttons have the same caption; a screen reader needs to tell them apart.
    cbApplySelSpell->setAccessibleName(QObject::tr("Apply Selected as Spelling"));
    cbApplyAllSpell->setAccessibleName(QObject::tr("Apply All as Spelling"));
}

void Form1Controls::CreateLabels() {
    lbUndo = Status("lbUndo", QObject::tr("Next change to take back"), 1);
    lbUndo->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lbApplyTo = Status("lbApplyTo", QObject::tr("Current district"), 1);
    QFont bold = lbApplyTo->font();
    bold.setBold(true);
    lbApplyTo->setFont(bold);
    lbWhyError = Status("lbWhyError", QObject::tr("Problems"), 4);
    lbWhyError->setContentsMargins(Space, Space / 2, Space, Space / 2);
    lbWhyError->SetTextColour(StateColours::OnLight(CommonRoutines::VariationState::Plain));
    lbWhyError->SetBackground(StateColours::LightGrey);
    lbWhyError->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    lbSelectCount = Status("lbSelectCount", QObject::tr("Ticked proposals"), 1);
    lbSelectCount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QWidget* Form1Controls::FileRow() {
    QFrame* files = Frame("Frame4", QObject::tr("File"));
    auto* fileLayout = Inner<QHBoxLayout>(files);
    for (QPushButton* button : {cbOpen, cbSave, btnProcess, cbCompleteCheck}) {
        fileLayout->addWidget(button);
    }
    QFrame* undo = Frame("Frame3", QObject::tr("Undo"));
    auto* undoLayout = Inner<QHBoxLayout>(undo);
    undoLayout->addWidget(cbUndo);
    undoLayout->addWidget(lbUndo, 1);

    auto* row = new QWidget(m_form);
    auto* layout = Inner<QHBoxLayout>(row);
    layout->setSpacing(3 * Space);
    layout->addWidget(files);
    layout->addWidget(undo, 1);
    return row;
}

QWidget* Form1Controls::EditRow() {
    QFrame* frame = Frame("Frame1", QObject::tr("Edit"));
    frame->setFrameShape(QFrame::StyledPanel);
    // The gaps are those of the whole frame, its border included.
    frame->setAttribute(Qt::WA_LayoutOnEntireRect);
    auto* layout = new EqualGapLayout(frame, Space);
    for (QWidget* control : std::initializer_list<QWidget*>{cbVariation, cbSpelling, cbValidinyears, cbVNF, tbEdit}) {
        layout->addWidget(control);
    }
    auto* okAndCancel = Inner<QHBoxLayout>();
    okAndCancel->addWidget(cbOk);
    okAndCancel->addWidget(cbCancel);
    layout->AddRow(okAndCancel);
    layout->addWidget(lbStatus);
    return frame;
}

QWidget* Form1Controls::VariationButtons() {
    QFrame* frame = Frame("Frame5", QObject::tr("Commands for variations"));
    auto* layout = Inner<QGridLayout>(frame);
    layout->addWidget(cbAdd, 0, 0);
    layout->addWidget(cbDelete, 0, 1);
    layout->addWidget(cbShriek, 1, 0);
    layout->addWidget(cbDate, 1, 1);
    layout->addWidget(cbSaveVariations, 2, 0, 1, 2);
    return frame;
}

QWidget* Form1Controls::ChangeButtons() {
    QFrame* frame = Frame("Frame6", QObject::tr("Commands for the change file"));
    auto* layout = Inner<QGridLayout>(frame);
    layout->addWidget(cbApplySelected, 0, 0);
    layout->addWidget(cbApplySelSpell, 0, 1);
    layout->addWidget(cbApplyAll, 1, 0);
    layout->addWidget(cbApplyAllSpell, 1, 1);
    layout->addWidget(cbEditSel, 2, 0);
    layout->addWidget(cbClearSel, 2, 1);
    return frame;
}

QWidget* Form1Controls::ChangeHeading() {
    QFrame* count = Frame("Frame2", QObject::tr("Ticked proposals"));
    Inner<QHBoxLayout>(count)->addWidget(lbSelectCount);
    auto* heading = new QWidget(m_form);
    auto* layout = Inner<QHBoxLayout>(heading);
    layout->addWidget(Heading("Label3", QObject::tr("Change File"), LvChanges));
    layout->addWidget(count, 1);
    return heading;
}

// The lists side by side, each under its heading and above its commands, with the edit row between
// the variations and the proposals.
QBoxLayout* Form1Controls::ListBand() {
    const auto column = [](QWidget* heading, QWidget* list, QWidget* buttons) {
        auto* layout = Inner<QVBoxLayout>();
        layout->setSpacing(Space / 2);
        layout->addWidget(heading);
        layout->addWidget(list, 1);
        if (buttons != nullptr) {
            layout->addSpacing(Space / 2);
            layout->addWidget(buttons);
        }
        return layout;
    };
    QWidget* edit = EditRow();
    auto* editColumn = Inner<QVBoxLayout>();
    editColumn->setSpacing(Space / 2);
    // As high as the headings beside it, so that the panel begins where the lists begin.
    auto* level = new QLabel(m_form);
    level->setFont(lbApplyTo->font());
    editColumn->addWidget(level);
    editColumn->addWidget(edit, 1);

    auto* band = Inner<QHBoxLayout>();
    band->setSpacing(Space + Space / 2);
    band->addLayout(column(Heading("Label1", QObject::tr("Districts"), lvAlpha), lvAlpha, nullptr), 8);
    band->addLayout(
        column(Heading("Label2", QObject::tr("Variations"), lvVariations), lvVariations, VariationButtons()), 5);
    band->addLayout(editColumn, 0);
    band->addLayout(column(ChangeHeading(), LvChanges, ChangeButtons()), 5);
    return band;
}

// The comments stay at the bottom, at a height of their own.
QBoxLayout* Form1Controls::CommentBand() {
    const int height = 7 * m_form->fontMetrics().lineSpacing();
    for (QWidget* control : std::initializer_list<QWidget*>{lbComments, lvComments}) {
        control->setFixedHeight(height);
    }
    auto* problems = Inner<QVBoxLayout>();
    problems->setSpacing(Space / 2);
    problems->addWidget(lbApplyTo);
    problems->addWidget(lbWhyError, 1);

    auto* band = Inner<QHBoxLayout>();
    band->setSpacing(Space + Space / 2);
    band->addWidget(lbComments, 3);
    band->addWidget(lvComments, 9);
    band->addLayout(problems, 7);
    return band;
}

void Form1Controls::SetTabOrder() {
    const std::initializer_list<QWidget*> order{
        cbOpen,       cbSave,     btnProcess,      cbCompleteCheck, cbUndo,     lvAlpha,
        lvVariations, cbAdd,      cbDelete,        cbShriek,        cbDate,     cbSaveVariations,
        cbVariation,  cbSpelling, cbValidinyears,  cbVNF,           tbEdit,     cbOk,
        cbCancel,     LvChanges,  cbApplySelected, cbApplySelSpell, cbApplyAll, cbApplyAllSpell,
        cbEditSel,    cbClearSel, lbComments,      lvComments};
    QWidget* before = nullptr;
    for (QWidget* control : order) {
        if (before != nullptr) {
            QWidget::setTabOrder(before, control);
        }
        before = control;
    }
}

QWidget* Form1Controls::Widget(CommonRoutines::Control control) const {
    // In the order of the enumeration.
    const std::array<QWidget*, CommonRoutines::ControlCount> widgets{
        cbAdd,      cbCancel,        cbDelete,        cbSaveVariations, cbOk,
        cbOpen,     cbSave,          tbEdit,          btnProcess,       cbApplySelected,
        cbApplyAll, cbApplyAllSpell, cbApplySelSpell, cbClearSel,       cbCompleteCheck,
        cbShriek,   cbDate,          lbComments,      cbEditSel};
    return widgets[static_cast<std::size_t>(control)];
}

} // namespace Ui
