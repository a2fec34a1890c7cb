#include "ui/windows/Form1Controls.h"

#include "ui/Text.h"
#include "ui/lists/RowDrawing.h"
#include "ui/lists/RowList.h"
#include "ui/lists/StateColours.h"
#include "ui/widgets/ButtonMarks.h"
#include "ui/widgets/EditBox.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/widgets/ProblemLabel.h"
#include "ui/widgets/WindowInside.h"
#include "ui/windows/FindPanel.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QPushButton>

#include <algorithm>
#include <span>
#include <vector>

namespace Ui {

namespace {

// What a command does, and by which key.
QString HintOf(const Commands::Command& command) {
    const QString hint = Text::ToQt(command.hint);
    return command.key.empty() ? hint : hint + QStringLiteral(" (%1)").arg(Text::ToQt(command.key));
}

// Makes the buttons of which some change their captions equally wide, so that nothing moves when they do.
void KeepWidths(std::span<QPushButton* const> buttons) {
    std::vector<QPushButton*> changing;
    int widest = 0;
    for (const Commands::Command& command : Commands::AllCommands()) {
        if (command.otherCaption.empty()) {
            continue;
        }
        QPushButton* button = buttons[static_cast<std::size_t>(command.control)];
        changing.push_back(button);
        for (const std::string_view caption : {command.otherCaption, command.caption}) {
            button->setText(Text::ToQt(caption));
            widest = std::max(widest, button->sizeHint().width());
        }
    }
    for (QPushButton* button : changing) {
        button->setMinimumWidth(widest);
    }
}

} // namespace

Form1Controls::Form1Controls(QWidget* form) : m_inside(new QWidget) {
    new WindowInside(form, m_inside);
    CreateLists();
    CreateEditRow();
    for (const Commands::Command& command : Commands::AllCommands()) {
        if (command.place.frame != Commands::Frame::None) {
            CreateButton(command);
        }
    }
    KeepWidths(m_buttons);
    CreateLabels();
    findPanel = new FindPanel(m_inside);
    Arrange();
    SetTabOrder();
    MarkButtons(*m_inside);
}

RowList* Form1Controls::List(const char* name, const QString& accessibleName) {
    auto* list = new RowList(m_inside);
    list->setObjectName(QString::fromLatin1(name));
    list->setAccessibleName(accessibleName);
    list->setMinimumSize(90, 60);
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    return list;
}

QCheckBox* Form1Controls::OptionBox(const char* name, const QString& caption, const QString& toolTip) {
    auto* box = new QCheckBox(caption, m_inside);
    box->setObjectName(QString::fromLatin1(name));
    box->setAccessibleName(caption);
    box->setToolTip(toolTip);
    StateColours::Outline(*box);
    return box;
}

PlainLabel* Form1Controls::Status(const char* name, const QString& purpose, int lines) {
    auto* label = new PlainLabel(m_inside);
    SetUp(label, name, purpose, lines);
    return label;
}

void Form1Controls::SetUp(PlainLabel* label, const char* name, const QString& purpose, int lines) {
    label->setObjectName(QString::fromLatin1(name));
    label->SetPurpose(purpose);
    label->SetLineCount(lines);
}

void Form1Controls::CreateLists() {
    lvAlpha = List("lvAlpha", QStringLiteral("Districts"));
    lvVariations = List("lvVariations", QStringLiteral("Variations"));
    LvChanges = List("LvChanges", QStringLiteral("Change File"));
    lvComments = List("lvComments", QStringLiteral("Comments"));
    lbComments = List("lbComments", QStringLiteral("Comment types"));
    lbComments->SetToolTipOverRows(true);
    Describe(*lbComments, Commands::CommandOf(Commands::Control::lbComments));
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
    cbVariation =
        OptionBox("cbVariation", QStringLiteral("Variation"),
                  QStringLiteral("Ticked for a text that begins without a marker. To change it, change the text."));
    cbSpelling = OptionBox("cbSpelling", QStringLiteral("Spelling Mistake"),
                           QStringLiteral("Ticked for a text that begins with \"!\". To change it, change the text."));
    cbValidinyears =
        OptionBox("cbValidinyears", QStringLiteral("Only valid in year"),
                  QStringLiteral("Ticked for a text that begins with \"%\" or \"!%\". To change it, change the text."));
    cbVNF = OptionBox("cbVNF", QStringLiteral("Only if Volume matches"),
                      QStringLiteral("Ticked for a text with a \"%\" behind its name, where a volume has its place. To "
                                     "change it, change the text."));
    tbEdit = new EditBox(m_inside);
    const Commands::Command& edit = Commands::CommandOf(Commands::Control::tbEdit);
    tbEdit->setObjectName(Text::ToQt(edit.name));
    tbEdit->setAccessibleName(Text::ToQt(edit.spokenName));
    Describe(*tbEdit, edit);
    StateColours::Outline(*tbEdit);
    lbStatus = Status("lbStatus", QStringLiteral("Status of the text"), 3);
    lbStatus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
}

void Form1Controls::CreateButton(const Commands::Command& command) {
    auto* button = new QPushButton(Text::ToQt(command.caption), m_inside);
    button->setObjectName(Text::ToQt(command.name));
    // Two buttons have the same caption; a screen reader needs to tell them apart.
    button->setAccessibleName(Text::ToQt(command.spokenName.empty() ? command.caption : command.spokenName));
    Describe(*button, command);
    m_buttons[static_cast<std::size_t>(command.control)] = button;
}

void Form1Controls::CreateLabels() {
    lbUndo = Status("lbUndo", QStringLiteral("Next change to take back"), 1);
    lbUndo->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lbApplyTo = Status("lbApplyTo", QStringLiteral("Current district"), 1);
    lbDoing = Status("lbDoing", QStringLiteral("What is being edited"), 1);
    QFont bold = lbApplyTo->font();
    bold.setBold(true);
    for (PlainLabel* heading : {lbApplyTo, lbDoing}) {
        heading->setFont(bold);
        heading->setContentsMargins(TextInset(), 0, 0, 0);
    }
    lbWhyError = new ProblemLabel(m_inside);
    SetUp(lbWhyError, "lbWhyError", QStringLiteral("Problems"), 4);
    lbWhyError->setContentsMargins(Space / 2, Space / 2, Space / 2, Space / 2);
    lbWhyError->ShowProblem(QString(), StateColours::OnLight(CommonRoutines::VariationState::Plain),
                            StateColours::LightGrey);
    lbWhyError->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    lbSelectCount = Status("lbSelectCount", QStringLiteral("Ticked proposals"), 1);
    lbSelectCount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void Form1Controls::Describe(QWidget& control, const Commands::Command& command, const QString& file,
                             const QString& obstacle) const {
    const QString hint = HintOf(command) + (file.isEmpty() ? QString() : QStringLiteral(": ") + file) +
                         (obstacle.isEmpty() ? QString() : QStringLiteral(" - ") + obstacle);
    control.setToolTip(Text::ForToolTip(hint));
    if (auto* list = qobject_cast<RowList*>(&control)) {
        list->SetDescription(hint); // while it is not empty
    } else {
        control.setAccessibleDescription(hint);
    }
}

int Form1Controls::TextInset() const {
    return lvAlpha->frameWidth() + RowDelegate::TextInset(*lvAlpha);
}

QPushButton* Form1Controls::Button(Commands::Control control) const {
    return m_buttons[static_cast<std::size_t>(control)];
}

QWidget* Form1Controls::Widget(Commands::Control control) const {
    switch (control) {
    case Commands::Control::tbEdit:
        return tbEdit;
    case Commands::Control::lbComments:
        return lbComments;
    default:
        return Button(control);
    }
}

RowList* Form1Controls::ListBeside(const QWidget& button) const {
    const QWidget* frame = button.parentWidget();
    if (frame == Button(Commands::Control::cbAdd)->parentWidget()) {
        return lvVariations;
    }
    return frame == Button(Commands::Control::cbApplyAll)->parentWidget() ? LvChanges : lvAlpha;
}

} // namespace Ui
