// How the controls of the main window are arranged.

#include "ui/Text.h"
#include "ui/lists/RowList.h"
#include "ui/widgets/EditBox.h"
#include "ui/widgets/EqualGapLayout.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/windows/Form1Controls.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace Ui {

namespace {

// A sub-layout inside another, without margins of its own.
template <typename Layout>
Layout* Inner(int spacing, QWidget* of = nullptr) {
    auto* layout = new Layout(of);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

} // namespace

void Form1Controls::Arrange() {
    auto* layout = new QVBoxLayout(m_form);
    layout->setSpacing(Space);
    layout->setContentsMargins(Space, Space, Space, Space);
    layout->addWidget(FileRow());
    layout->addLayout(ListBand(), 1);
    layout->addLayout(CommentBand());
}

QFrame* Form1Controls::Frame(const char* name, const QString& accessibleName) {
    auto* frame = new QFrame(m_form);
    frame->setObjectName(QString::fromLatin1(name));
    frame->setAccessibleName(accessibleName);
    return frame;
}

QLabel* Form1Controls::Heading(const char* name, const QString& caption, QWidget* of) {
    auto* label = new QLabel(caption, m_form);
    label->setObjectName(QString::fromLatin1(name));
    label->setAccessibleName(caption);
    label->setBuddy(of);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

void Form1Controls::AddButtons(QGridLayout* layout, Commands::Frame frame) {
    for (const Commands::Command& command : Commands::AllCommands()) {
        const Commands::Place& place = command.place;
        if (place.frame == frame) {
            layout->addWidget(Button(command.control), place.row, place.column, 1, place.columns);
        }
    }
}

QFrame* Form1Controls::ButtonFrame(const char* name, const QString& accessibleName, Commands::Frame frame) {
    QFrame* buttons = Frame(name, accessibleName);
    AddButtons(Inner<QGridLayout>(Space, buttons), frame);
    return buttons;
}

QWidget* Form1Controls::FileRow() {
    QFrame* files = ButtonFrame("Frame4", QStringLiteral("File"), Commands::Frame::File);
    QFrame* undo = Frame("Frame3", QStringLiteral("Undo"));
    auto* undoLayout = Inner<QHBoxLayout>(Space, undo);
    undoLayout->addWidget(Button(Commands::Control::cbUndo));
    undoLayout->addWidget(lbUndo, 1);

    auto* row = new QWidget(m_form);
    auto* layout = Inner<QHBoxLayout>(Space, row);
    layout->setSpacing(3 * Space);
    layout->addWidget(files);
    layout->addWidget(undo, 1);
    return row;
}

QWidget* Form1Controls::EditRow() {
    QFrame* frame = Frame("Frame1", QStringLiteral("Edit"));
    frame->setFrameShape(QFrame::StyledPanel);
    // The gaps are those of the whole frame, its border included.
    frame->setAttribute(Qt::WA_LayoutOnEntireRect);
    auto* layout = new EqualGapLayout(frame, Space);
    for (QWidget* control : std::initializer_list<QWidget*>{cbVariation, cbSpelling, cbValidinyears, cbVNF, tbEdit}) {
        layout->addWidget(control);
    }
    auto* okAndCancel = Inner<QGridLayout>(Space);
    AddButtons(okAndCancel, Commands::Frame::Edit);
    layout->AddRow(okAndCancel);
    layout->addWidget(lbStatus);
    return frame;
}

QWidget* Form1Controls::ChangeHeading() {
    QFrame* count = Frame("Frame2", QStringLiteral("Ticked proposals"));
    Inner<QHBoxLayout>(Space, count)->addWidget(lbSelectCount);
    auto* heading = new QWidget(m_form);
    auto* layout = Inner<QHBoxLayout>(Space, heading);
    layout->addWidget(Heading("Label3", QStringLiteral("Change File"), LvChanges));
    layout->addWidget(count, 1);
    return heading;
}

// The lists side by side, each under its heading and above its commands, with the edit row between
// the variations and the proposals.
QBoxLayout* Form1Controls::ListBand() {
    const auto column = [](QWidget* heading, QWidget* list, QWidget* buttons) {
        auto* layout = Inner<QVBoxLayout>(Space);
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
    auto* editColumn = Inner<QVBoxLayout>(Space);
    editColumn->setSpacing(Space / 2);
    // As high as the headings beside it, so that the panel begins where the lists begin.
    auto* level = new QLabel(m_form);
    level->setFont(lbApplyTo->font());
    editColumn->addWidget(level);
    editColumn->addWidget(edit, 1);

    auto* band = Inner<QHBoxLayout>(Space);
    band->setSpacing(Space + Space / 2);
    Label1 = Heading("Label1", QStringLiteral("Districts"), lvAlpha);
    band->addLayout(column(Label1, lvAlpha, nullptr), 8);
    band->addLayout(
        column(Heading("Label2", QStringLiteral("Variations"), lvVariations), lvVariations,
               ButtonFrame("Frame5", QStringLiteral("Commands for variations"), Commands::Frame::Variations)),
        5);
    band->addLayout(editColumn, 0);
    band->addLayout(
        column(ChangeHeading(), LvChanges,
               ButtonFrame("Frame6", QStringLiteral("Commands for the change file"), Commands::Frame::Proposals)),
        5);
    return band;
}

// The comments stay at the bottom, at a height of their own.
QBoxLayout* Form1Controls::CommentBand() {
    const int height = 7 * m_form->fontMetrics().lineSpacing();
    for (QWidget* control : std::initializer_list<QWidget*>{lbComments, lvComments}) {
        control->setFixedHeight(height);
    }
    auto* problems = Inner<QVBoxLayout>(Space);
    problems->setSpacing(Space / 2);
    problems->addWidget(lbApplyTo);
    problems->addWidget(lbWhyError, 1);

    auto* band = Inner<QHBoxLayout>(Space);
    band->setSpacing(Space + Space / 2);
    band->addWidget(lbComments, 3);
    band->addWidget(lvComments, 9);
    band->addLayout(problems, 7);
    return band;
}

// The controls of the table, with the lists and the option boxes among them.
void Form1Controls::SetTabOrder() {
    QWidget* before = nullptr;
    const auto next = [&](std::initializer_list<QWidget*> controls) {
        for (QWidget* control : controls) {
            if (before != nullptr && control != nullptr) {
                QWidget::setTabOrder(before, control);
            }
            before = control != nullptr ? control : before;
        }
    };
    for (const Commands::Command& command : Commands::AllCommands()) {
        QWidget* control = Widget(command.control);
        if (control == Widget(Commands::Control::cbAdd)) {
            next({lvAlpha, lvVariations});
        } else if (control == tbEdit) {
            next({cbVariation, cbSpelling, cbValidinyears, cbVNF});
        } else if (control == Widget(Commands::Control::cbApplySelected)) {
            next({LvChanges});
        }
        next({control});
    }
    next({lvComments});
}

} // namespace Ui
