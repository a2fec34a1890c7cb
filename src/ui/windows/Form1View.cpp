// How the main window shows what a command has ended with.

#include "core/State.h"
#include "file/DistrictComments.h"
#include "ui/Text.h"
#include "ui/lists/CommentModels.h"
#include "ui/lists/DistrictModel.h"
#include "ui/lists/ProposalModel.h"
#include "ui/lists/RowList.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/VariationModel.h"
#include "ui/widgets/EditBox.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/widgets/ProblemLabel.h"
#include "ui/windows/FindPanel.h"
#include "ui/windows/Form1.h"
#include "ui/windows/ProposalFind.h"
#include "ui/windows/WindowFit.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>

namespace Ui {

using namespace CommonRoutines;
using Commands::Control;

namespace {

// Where rows and selection are those that were shown, the list is left to the user.
template <typename Row>
void ShowSelection(RowList* in, const Commands::ListView<Row>& list, const Commands::ListView<Row>& shown) {
    if (list.rows != shown.rows || list.selected != shown.selected) {
        in->ShowSelection(list.selected);
    }
}

} // namespace

// A key that is typed must not cost what is not changed by it.
void Form1::Show(const Commands::WindowView& view) {
    ShowLists(view);
    ShowTexts(view);
    ShowCaptions(view);
    ShowEditPanel(view.edit);
    if (view.hints != m_shown.hints) {
        ShowHints(view.hints);
    }
    if (view.openFile != m_shown.openFile) {
        ShowOpenFile(view.openFile);
    }
    ShowEnabled(view);
    ShowToolTips(view);
    if (view.arrivals != m_shown.arrivals) {
        for (RowList* list : {m_controls.lvAlpha, m_controls.lvVariations}) {
            list->scrollTo(list->currentIndex(), QAbstractItemView::PositionAtCenter);
        }
    }
    ShowFind(view);
    ShowFocus(view.focus);
    m_shown = view;
}

void Form1::ShowLists(const Commands::WindowView& view) {
    m_districts->Show(view.districts, view.variationsOf);
    ShowSelection(m_controls.lvAlpha, view.districts, m_shown.districts);
    m_variations->Show(view.variations, view.variationsOf);
    ShowSelection(m_controls.lvVariations, view.variations, m_shown.variations);
    m_controls.lvVariations->ShowAsInHand(view.AreVariationsInHand());
    m_proposals->Show(view.proposals);
    if (view.proposals.rows != m_shown.proposals.rows || view.proposals.selected != m_shown.proposals.selected) {
        m_controls.LvChanges->ShowSelection(m_proposals->RowsOf(view.proposals.selected));
    }
    if (view.comments.filled != m_shown.comments.filled) {
        WrapComments(view.comments.district);
    }
    const Commands::CommentTypesView& types = view.commentTypes;
    m_commentTypes->Show(types);
    if (types.filled != m_shown.commentTypes.filled || types.selected != m_shown.commentTypes.selected) {
        m_controls.lbComments->ShowSelection(types.selected);
    }
}

void Form1::WrapComments(std::int32_t district) {
    const QFontMetricsF metrics(font());
    const auto measure = [&](std::string_view text) { return metrics.horizontalAdvance(Text::ForList(text)); };
    const int room =
        m_controls.lvComments->columnWidth(1) - WindowFit::TwipsToPixels(WindowFit::CommentColumnTwips, logicalDpiX());
    m_comments->SetRows(CommentRows(district, room, measure));
}

void Form1::ShowEnabled(const Commands::WindowView& view) {
    for (const Commands::Command& command : Commands::AllCommands()) {
        if (QWidget* control = m_controls.Widget(command.control)) {
            control->setEnabled(view.IsEnabled(command.control));
        } else {
            m_keysAlone[static_cast<std::size_t>(command.control)]->setEnabled(view.IsEnabled(command.control));
        }
    }
}

// The tooltip of "Save" names the open file, and that of a disabled control ends with what would enable it.
void Form1::ShowToolTips(const Commands::WindowView& view) {
    for (const Commands::Command& command : Commands::AllCommands()) {
        QWidget* control = m_controls.Widget(command.control);
        const std::string_view obstacle = view.ObstacleTo(command.control);
        const bool namesFile = command.control == Control::cbSave;
        const bool isOther = namesFile && view.openFile != m_shown.openFile;
        if (control != nullptr && (isOther || obstacle != m_shown.ObstacleTo(command.control))) {
            const QString file = namesFile ? Text::ShownPath(view.openFile) : QString();
            m_controls.Describe(*control, command, file, Text::ForBox(obstacle));
        }
    }
}

void Form1::ShowTexts(const Commands::WindowView& view) {
    if (view.StatusLine() != m_shown.StatusLine()) {
        m_controls.lbStatus->ShowText(Text::ForBox(view.StatusLine()));
    }
    if (view.doing != m_shown.doing) {
        m_controls.lbDoing->ShowText(Text::ForList(view.doing));
    }
    if (view.nextUndo != m_shown.nextUndo) {
        m_controls.lbUndo->ShowText(Text::ForList(view.nextUndo));
    }
    if (view.applyTo != m_shown.applyTo) {
        m_controls.lbApplyTo->ShowText(view.applyTo > 0 ? Text::ForList(RecordOf(view.applyTo).Name()) : QString());
    }
    if (view.selectCount != m_shown.selectCount) {
        m_controls.lbSelectCount->ShowText(Text::ToQt(view.selectCount));
    }
    if (view.whyError != m_shown.whyError) {
        m_controls.lbWhyError->ShowProblem(Text::ForBox(view.whyError.text), StateColours::OnLight(view.whyError.ink),
                                           view.whyError.warns ? StateColours::BlueGreen : StateColours::LightGrey);
    }
}

void Form1::ShowCaptions(const Commands::WindowView& view) {
    const auto show = [](QPushButton* button, const QString& caption) {
        button->setText(caption);
        button->setAccessibleName(caption);
    };
    if (view.shriekCaption != m_shown.shriekCaption || view.dateCaption != m_shown.dateCaption) {
        show(m_controls.Button(Control::cbShriek), Text::ToQt(view.shriekCaption));
        show(m_controls.Button(Control::cbDate), Text::ToQt(view.dateCaption));
    }
}

void Form1::ShowEditPanel(const Commands::EditView& edit) {
    const QScopedValueRollback ignoring(bIgnoreEvents, true);
    // A text that was typed is there already; setting it would forget the typing.
    if (edit.filled != m_shown.edit.filled) {
        m_controls.tbEdit->ShowText(edit.text);
    }
    m_controls.cbSpelling->setChecked(edit.options.spelling);
    m_controls.cbVariation->setChecked(edit.options.variation);
    m_controls.cbValidinyears->setChecked(edit.options.validInYears);
    m_controls.cbVNF->setChecked(edit.options.volume);
}

void Form1::ShowHints(const Commands::HintsView& hints) {
    m_controls.lvAlpha->SetHint(Text::ToQt(hints.districts));
    m_controls.lvVariations->SetHint(Text::ToQt(hints.variations));
    m_proposalFind->SetHint(Text::ToQt(hints.proposals));
    m_controls.lvComments->SetHint(Text::ToQt(hints.comments));
}

void Form1::ShowOpenFile(const std::string& path) {
    const QString shown = Text::ShownPath(path);
    for (QWidget* widget : {static_cast<QWidget*>(m_controls.Label1), static_cast<QWidget*>(m_controls.lvAlpha)}) {
        widget->setToolTip(shown.isEmpty() ? QString() : Text::ForToolTip(shown));
    }
    // Otherwise the tooltips would be read out, with their mark-up.
    m_controls.Label1->setAccessibleDescription(shown);
    m_controls.lvAlpha->SetDescription(shown);
}

// What is left of a search is done between two events, so that a key that comes first ends it, and what has been found
// is painted before.
void Form1::ShowFind(const Commands::WindowView& view) {
    const Commands::FindView& find = view.find;
    if (find.isOpen || m_shown.find.isOpen) {
        m_controls.findPanel->Show(find, view.IsEnabled(Control::findNext));
    }
    if (find.isSearching) {
        constexpr int pause = 1; // millisecond
        m_findingGoesOn.start(pause);
    }
}

void Form1::ShowFocus(Commands::Focus focus) {
    switch (focus) {
    case Commands::Focus::Districts:
        m_controls.lvAlpha->setFocus();
        break;
    case Commands::Focus::Variations:
        m_controls.lvVariations->setFocus();
        break;
    case Commands::Focus::Proposals:
        m_controls.LvChanges->setFocus();
        break;
    case Commands::Focus::EditBox:
        m_controls.tbEdit->setFocus();
        break;
    case Commands::Focus::WholeText:
        m_controls.tbEdit->setFocus(Qt::ShortcutFocusReason); // which selects it all
        break;
    case Commands::Focus::OpenButton:
        m_controls.Widget(Control::cbOpen)->setFocus();
        break;
    case Commands::Focus::FindBox:
        m_controls.findPanel->Open();
        break;
    case Commands::Focus::Stays:
        break;
    }
}

} // namespace Ui
