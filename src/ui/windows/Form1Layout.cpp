// How the controls of the main window are arranged.

#include "ui/Text.h"
#include "ui/lists/RowList.h"
#include "ui/widgets/EditBox.h"
#include "ui/widgets/EqualGapLayout.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/widgets/ProblemLabel.h"
#include "ui/widgets/Splitter.h"
#include "ui/windows/FindPanel.h"
#include "ui/windows/Form1Controls.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

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

// Up to its usual height the room goes to the lists, from then on also to the comments.
void Form1Controls::Arrange() {
    const int line = m_inside->fontMetrics().lineSpacing();
    auto* bands = new Splitter(Qt::Vertical, Gap, m_inside);
    bands->AddPart(ListBand(), {.enough = 36 * line, .turn = 1, .weight = 3});
    bands->AddPart(CommentBand(), {.enough = 7 * line, .turn = 0, .weight = 1});
    auto* layout = new QVBoxLayout(m_inside);
    layout->setSpacing(Space);
    layout->setContentsMargins(Space, Space, Space, Space);
    layout->addWidget(FileRow());
    layout->addWidget(bands, 1);
    layout->addWidget(findPanel);
}

QFrame* Form1Controls::Frame(const char* name, const QString& accessibleName) {
    auto* frame = new QFrame(m_inside);
    frame->setObjectName(QString::fromLatin1(name));
    frame->setAccessibleName(accessibleName);
    return frame;
}

QLabel* Form1Controls::Heading(const char* name, const QString& caption, QWidget* of) {
    auto* label = new QLabel(caption, m_inside);
    label->setObjectName(QString::fromLatin1(name));
    label->setAccessibleName(caption);
    label->setBuddy(of);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setIndent(TextInset());
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

    auto* row = new QWidget(m_inside);
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
    auto* layout = new EqualGapLayout(frame, Space, 2 * Space);
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
    auto* heading = new QWidget(m_inside);
    auto* layout = Inner<QHBoxLayout>(Space, heading);
    layout->addWidget(Heading("Label3", QStringLiteral("Change File"), LvChanges));
    layout->addWidget(count, 1);
    return heading;
}

QWidget* Form1Controls::Column(QWidget* heading, QWidget* body, QWidget* buttons) {
    auto* column = new QWidget(m_inside);
    auto* layout = Inner<QVBoxLayout>(Space / 2, column);
    // Of the same height in all columns, so that what is below them is level.
    heading->setFixedHeight(std::max(heading->sizeHint().height(), lbDoing->sizeHint().height()));
    layout->addWidget(heading);
    layout->addWidget(body, 1);
    if (buttons != nullptr) {
        layout->addSpacing(Space / 2);
        layout->addWidget(buttons);
    }
    return column;
}

// The lists side by side, each under its heading and above its commands, with the edit row between
// the variations and the proposals. A wide window has room for all columns of the districts first, then for
// the text that is edited.
QWidget* Form1Controls::ListBand() {
    const int letter = m_inside->fontMetrics().averageCharWidth();
    auto* band = new Splitter(Qt::Horizontal, Gap, m_inside);
    Label1 = Heading("Label1", QStringLiteral("Districts"), lvAlpha);
    band->AddPart(Column(Label1, lvAlpha, nullptr), {.enough = 105 * letter, .turn = 0, .weight = 1});
    band->AddPart(Column(Heading("Label2", QStringLiteral("Variations"), lvVariations), lvVariations,
                         ButtonFrame("Frame5", QStringLiteral("Commands for variations"), Commands::Frame::Variations)),
                  {.enough = 40 * letter, .turn = 3, .weight = 2});
    band->AddPart(Column(lbDoing, EditRow(), nullptr), {.enough = 52 * letter, .turn = 1, .weight = 3});
    band->AddPart(
        Column(ChangeHeading(), LvChanges,
               ButtonFrame("Frame6", QStringLiteral("Commands for the change file"), Commands::Frame::Proposals)),
        {.enough = 40 * letter, .turn = 2, .weight = 2});
    m_handles += band->Handles();
    return band;
}

QWidget* Form1Controls::CommentBand() {
    auto* problems = new QWidget(m_inside);
    auto* layout = Inner<QVBoxLayout>(Space / 2, problems);
    layout->addWidget(lbApplyTo);
    layout->addWidget(lbWhyError, 1);

    auto* band = new Splitter(Qt::Horizontal, Gap, m_inside);
    band->AddPart(lbComments, {.weight = 3});
    band->AddPart(lvComments, {.weight = 9});
    band->AddPart(problems, {.weight = 7});
    m_handles += band->Handles();
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
    next({lvComments, lbWhyError->TextBox()});
    for (QWidget* handle : m_handles) {
        next({handle});
    }
}

} // namespace Ui
