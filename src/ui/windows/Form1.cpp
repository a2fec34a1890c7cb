#include "ui/windows/Form1.h"

#include "commands/DistrictCommands.h"
#include "commands/EditCommands.h"
#include "commands/FileCommands.h"
#include "commands/FindCommands.h"
#include "commands/ProposalCommands.h"
#include "commands/VariationCommands.h"
#include "core/State.h"
#include "ui/Text.h"
#include "ui/lists/CommentModels.h"
#include "ui/lists/DistrictColumns.h"
#include "ui/lists/DistrictModel.h"
#include "ui/lists/ProposalModel.h"
#include "ui/lists/RowList.h"
#include "ui/lists/VariationModel.h"
#include "ui/widgets/EditBox.h"
#include "ui/windows/FindPanel.h"
#include "ui/windows/LongWork.h"
#include "ui/windows/ProposalFind.h"
#include "ui/windows/WindowFit.h"

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QCloseEvent>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTimer>

namespace Ui {

using namespace CommonRoutines;
using Commands::Session;

namespace {

constexpr QSize DesignSize(1360, 660);

// A bare widget would be a nameless part of a window to a screen reader.
QAccessibleInterface* AccessibleWindow(const QString& /*className*/, QObject* object) {
    auto* form = dynamic_cast<Form1*>(object);
    return form == nullptr ? nullptr : new QAccessibleWidget(form, QAccessible::Window);
}

} // namespace

Form1::Form1(Desktop& desktop) : m_controls(this), m_session(desktop, *this) {
    QAccessible::installFactory(&AccessibleWindow);
    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(QStringLiteral("Quexal Editor"));
    resize(DesignSize);
    setAcceptDrops(true);
    SetModels();
    ConnectCommands();
    ConnectEditPanel();
    ConnectLists();
    ConnectProposals();
    ConnectFind();
}

Form1::~Form1() = default;

void Form1::Run(const std::function<void(Session&)>& command) {
    LongWork::UnlessPainting([&] { m_session.Run(command); });
}

void Form1::SetModels() {
    m_districts = new DistrictModel(this);
    m_variations = new VariationModel(this);
    m_proposals = new ProposalModel(this);
    m_comments = new CommentModel(this);
    m_commentTypes = new CommentTypeModel(this);
    m_controls.lvAlpha->setModel(m_districts);
    m_controls.lvVariations->setModel(m_variations);
    m_controls.LvChanges->setModel(m_proposals);
    m_controls.lvComments->setModel(m_comments);
    m_controls.lbComments->setModel(m_commentTypes);
}

void Form1::ConnectCommands() {
    for (const Commands::Command& command : Commands::AllCommands()) {
        if (QPushButton* button = m_controls.Button(command.control)) {
            connect(button, &QPushButton::clicked, this, [this, run = command.run] { Run(run); });
        }
        if (!command.key.empty()) {
            ConnectKey(command);
        }
    }
    auto* escapeKey = new QShortcut(Qt::Key_Escape, m_controls.lvVariations);
    escapeKey->setContext(Qt::WidgetShortcut);
    connect(escapeKey, &QShortcut::activated, this, [this] { Run(Commands::GiveUpSelection); });
}

// A button that is disabled ignores its key as it ignores a click.
void Form1::ConnectKey(const Commands::Command& command) {
    if (command.scope == Commands::KeyScope::EditBox) {
        return; // the box handles its keys itself, so that none of them is typed
    }
    const bool isOfList = command.scope == Commands::KeyScope::Variations;
    auto* parent = isOfList ? static_cast<QWidget*>(m_controls.lvVariations) : this;
    auto* key = new QShortcut(QKeySequence(Text::ToQt(command.key)), parent);
    key->setContext(isOfList ? Qt::WidgetShortcut : Qt::WindowShortcut);
    if (key->key() == QKeySequence(QKeySequence::Delete)) {
        key->setKeys(QKeySequence::Delete); // with what else a desktop takes for it
    }
    if (QPushButton* button = m_controls.Button(command.control)) {
        connect(key, &QShortcut::activated, button, &QPushButton::click);
    } else {
        const bool finds = command.control == Commands::Control::find;
        connect(key, &QShortcut::activated, this, [this, finds, run = command.run] {
            if (!finds || !FindInProposals()) {
                Run(run);
            }
        });
        key->setObjectName(Text::ToQt(command.name));
        m_keysAlone[static_cast<std::size_t>(command.control)] = key;
    }
}

void Form1::ConnectEditPanel() {
    using Clicked = void (*)(Session&, bool);
    const auto onClick = [this](QCheckBox* box, Clicked clicked) {
        connect(box, &QCheckBox::clicked, this,
                [=, this](bool ticked) { Run([=](Session& session) { clicked(session, ticked); }); });
    };
    onClick(m_controls.cbSpelling, Commands::ClickSpelling);
    onClick(m_controls.cbVariation, Commands::ClickVariation);
    onClick(m_controls.cbValidinyears, Commands::ClickValidInYears);
    onClick(m_controls.cbVNF, Commands::ClickVolume);

    EditBox* edit = m_controls.tbEdit;
    connect(edit, &QLineEdit::textChanged, this, [=, this] {
        if (!bIgnoreEvents) {
            // The text that the signal brings may have been replaced since.
            Run([=](Session& session) { Commands::TypeText(session, Text::FromQt(edit->text())); });
        }
    });
    connect(edit, &EditBox::KeyRefused, this, [this](const QString& reason) {
        Run([&](Session& session) { Commands::RefuseKey(session, Text::FromQt(reason)); });
    });
    connect(edit, &EditBox::Entered, m_controls.Button(Commands::Control::cbOk), &QPushButton::click);
    connect(edit, &EditBox::Escaped, m_controls.Button(Commands::Control::cbCancel), &QPushButton::click);
    connect(edit, &EditBox::NothingToUndo, m_controls.Button(Commands::Control::cbUndo), &QPushButton::click);
}

void Form1::ConnectLists() {
    using Chosen = void (*)(Session&, const std::vector<int>&);
    const auto onChoice = [this](RowList* list, Chosen chosen) {
        connect(list, &RowList::Chosen, this,
                [=, this] { Run([=](Session& session) { chosen(session, list->SelectedRows()); }); });
    };
    onChoice(m_controls.lvAlpha, Commands::ChooseDistrict);
    onChoice(m_controls.lvVariations, Commands::SelectVariations);
    onChoice(m_controls.lbComments, Commands::ChooseCommentType);
    connect(m_controls.lvVariations, &RowList::TakenUp, this, [this] { Run(Commands::TakeUpSelection); });
    // Lists that a cancelled command has emptied are filled again by the type that is chosen already.
    connect(m_controls.lbComments, &RowList::TakenUp, m_controls.lbComments, &RowList::Chosen);
    connect(m_controls.lvVariations, &RowList::Resized, this, &Form1::SizeWideColumns);
    connect(m_controls.LvChanges, &RowList::Resized, this, &Form1::SizeWideColumns);
    connect(m_controls.lvComments, &RowList::Resized, this, [this] {
        SizeCommentColumn();
        Commands::WithinMemory(m_session.desktop, [this] { WrapComments(m_shown.comments.district); });
    });
}

void Form1::ConnectProposals() {
    m_proposalFind = new ProposalFind(*m_controls.LvChanges, *m_proposals, this);
    connect(m_controls.LvChanges, &RowList::Chosen, this, [this] {
        const std::vector<int> chosen = m_proposals->ProposalsAt(m_controls.LvChanges->SelectedRows());
        Run([&](Session& session) { Commands::HighlightProposals(session, chosen); });
    });
    // The list has forgotten its choice with its rows.
    connect(m_proposals, &ProposalModel::Filtered, this,
            [this] { m_controls.LvChanges->ShowSelection(m_proposals->RowsOf(m_shown.proposals.selected)); });
    connect(m_proposals, &ProposalModel::TickWanted, this, [this](int proposal, bool ticked) {
        m_tickedByClick = true;
        Run([=](Session& session) { Commands::TickProposal(session, proposal, ticked); });
    });
    connect(m_controls.LvChanges, &QAbstractItemView::pressed, this, [this] { m_tickedByClick = false; });
    connect(m_controls.LvChanges, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (!m_tickedByClick) { // a click on the check box only ticks
            const int proposal = m_proposals->ProposalAt(index.row());
            Run([=](Session& session) { Commands::ClickProposal(session, proposal); });
        }
    });
}

bool Form1::FindInProposals() {
    return !LongWork::IsPainting() && m_proposalFind->OpenWithin();
}

void Form1::ConnectFind() {
    m_findingGoesOn.setSingleShot(true);
    connect(&m_findingGoesOn, &QTimer::timeout, this, [this] { Run(Commands::ContinueFinding); });
    FindPanel* panel = m_controls.findPanel;
    connect(panel, &FindPanel::Typed, this, [this](const QString& text) {
        const std::string sought = Text::FromQt(text);
        // What the open file has no character for is in none of its texts. No line break is.
        const bool mayBeThere = Text::ToQt(sought) == text;
        Run([&](Session& session) { Commands::TypeSought(session, mayBeThere ? sought : "\n"); });
    });
    connect(panel, &FindPanel::WholeWanted, this,
            [this](bool whole) { Run([=](Session& session) { Commands::FindWholeSpellings(session, whole); }); });
    connect(panel, &FindPanel::NextWanted, this, [this] { Run(Commands::FindNext); });
    connect(panel, &FindPanel::RowWanted, this, [this](int row) {
        Run([=](Session& session) { Commands::GoToHit(session, static_cast<std::size_t>(row)); });
    });
    connect(panel, &FindPanel::Closed, this, [this] { Run(Commands::CloseFind); });
}

void Form1::LoadForm() {
    StartColumnWidths();
    SetColumnWidths();
    SizeWideColumns();
    SizeCommentColumn();
    Run(Commands::Start);
}

void Form1::MendFiles() {
    Run(Commands::MendFiles);
}

void Form1::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    FitWindowToScreen();
}

void Form1::closeEvent(QCloseEvent* event) {
    bool mayClose = false;
    Run([&](Session& session) { mayClose = Commands::ConfirmClose(session); });
    event->setAccepted(mayClose);
}

// A button that its own command disables gives the focus to the list that it belongs to, not to whatever
// control comes next.
bool Form1::focusNextPrevChild(bool next) {
    if (const QWidget* control = focusWidget(); control != nullptr && !control->isEnabled()) {
        m_controls.ListBeside(*control)->setFocus();
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

// One file that is dropped on the list of proposals is processed, elsewhere it is opened, wherever the button
// for that could be pressed.
Commands::Control Form1::ButtonForDropAt(const QPoint& position) const {
    const RowList& list = *m_controls.LvChanges;
    const bool isOnProposals = list.rect().contains(list.mapFrom(this, position));
    return isOnProposals ? Commands::Control::btnProcess : Commands::Control::cbOpen;
}

bool Form1::MayPress(Commands::Control button) const {
    return m_controls.Widget(button)->isEnabled() && !LongWork::IsPainting();
}

// On its way a file may pass over places where it cannot be dropped.
void Form1::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    const bool isOneFile = urls.size() == 1 && urls.constFirst().isLocalFile();
    if (isOneFile && (MayPress(Commands::Control::cbOpen) || MayPress(Commands::Control::btnProcess))) {
        event->acceptProposedAction();
    }
}

void Form1::dragMoveEvent(QDragMoveEvent* event) {
    event->setAccepted(MayPress(ButtonForDropAt(event->position().toPoint())));
}

void Form1::dropEvent(QDropEvent* event) {
    if (!MayPress(ButtonForDropAt(event->position().toPoint()))) {
        return event->ignore();
    }
    event->acceptProposedAction();
    const std::string path = Text::PathFromUrl(event->mimeData()->urls().constFirst());
    const bool isProcessed = ButtonForDropAt(event->position().toPoint()) == Commands::Control::btnProcess;
    const auto command = isProcessed ? Commands::ProcessPath : Commands::OpenPath;
    // Questions come up only when the program that the file was dragged from has been answered.
    QTimer::singleShot(0, this, [=, this] { Run([&](Session& session) { command(session, path); }); });
}

void Form1::StartColumnWidths() {
    m_columns = std::make_unique<DistrictColumns>(m_controls.lvAlpha->font());
}

void Form1::AddDistrictRow(const DistrictRecord& record) {
    m_columns->AddDistrictRow(record);
}

void Form1::SetColumnWidths() {
    std::vector<int> widths;
    for (std::size_t column = 0; column < DistrictColumnTable.size(); ++column) {
        widths.push_back(m_columns->Width(column));
    }
    m_controls.lvAlpha->SetColumnWidths(widths);
    m_columns.reset();
}

void Form1::SizeCommentColumn() {
    const RowList& list = *m_controls.lvComments;
    const int width =
        list.width() - list.columnWidth(0) - WindowFit::TwipsToPixels(WindowFit::CommentColumnTwips, logicalDpiX());
    m_controls.lvComments->setColumnWidth(1, width);
}

void Form1::SizeWideColumns() {
    for (RowList* list : {m_controls.lvVariations, m_controls.LvChanges}) {
        list->setColumnWidth(0, 2 * list->width());
    }
}

void Form1::FitWindowToScreen() {
    if (m_fittedToScreen) {
        return;
    }
    m_fittedToScreen = true;
    const QRect available = screen()->availableGeometry();
    const int caption = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const WindowFit::Screen fit{screen()->geometry().height(), available.height() - caption, caption};
    const auto height = WindowFit::FittedHeight(this->height() + caption, fit);
    const int width =
        WindowFit::FittedWidth(this->width(), available.width() - (frameGeometry().width() - this->width()));
    if (height || width < this->width()) {
        move(width < this->width() ? available.left() : x(), height ? available.top() : y());
        resize(width, height ? *height - caption : this->height());
    }
}

} // namespace Ui
