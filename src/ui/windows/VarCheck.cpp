#include "ui/windows/VarCheck.h"

#include "checks/ReportOutput.h"
#include "commands/Guide.h"
#include "commands/Session.h"
#include "core/State.h"
#include "ui/Text.h"
#include "ui/lists/ReportModel.h"
#include "ui/lists/RowList.h"
#include "ui/lists/StateColours.h"
#include "ui/widgets/ButtonMarks.h"
#include "ui/widgets/FindBar.h"
#include "ui/windows/LongWork.h"
#include "ui/windows/ReportFind.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

namespace Ui {

using namespace CommonRoutines;

namespace {

constexpr QSize OpeningSize(640, 420);

} // namespace

VarCheck::VarCheck(const Report& report, Desktop& desktop, QWidget* parent)
    : QDialog(parent), m_report(report), m_desktop(desktop) {
    setObjectName(QStringLiteral("VarCheck"));
    setWindowTitle(Text::ForList(report.caption));
    setSizeGripEnabled(true);
    constexpr double part = 0.85;                                               // with its caption on the screen
    const QScreen* itsScreen = parent == nullptr ? screen() : parent->screen(); // not shown, it has none of its own
    resize(OpeningSize.boundedTo(itsScreen->availableGeometry().size() * part));
    new QVBoxLayout(this);
    BuildList();
    BuildFind();
    BuildButtons();
    if (report.placeOf) {
        ConnectPlaces();
    }
    List1->setFocus();
    auto* guideKey = new QShortcut(Qt::Key_F1, this);
    connect(guideKey, &QShortcut::activated, this,
            [this] { LongWork::UnlessPainting([this] { Commands::ShowGuide(m_desktop); }); });
}

VarCheck::~VarCheck() = default;

void VarCheck::BuildList() {
    List1 = new RowList(this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(QStringLiteral("Findings"));
    List1->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_model = new ReportModel(m_report.items, List1);
    List1->setModel(m_model);
    List1->setHeaderHidden(true);
    List1->installEventFilter(this);
    List1->setTextElideMode(Qt::ElideNone);
    // The column is as wide as what is visible of it, so that a long report opens at once.
    List1->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    List1->header()->setResizeContentsPrecision(0);
}

void VarCheck::BuildFind() {
    m_bar = new FindBar(QStringLiteral("Text in the findings"), List1, this);
    StateColours::Outline(m_bar->Box());
    layout()->addWidget(m_bar);
    layout()->addWidget(List1);
    auto* close = m_bar->findChild<QPushButton*>();
    setTabOrder(&m_bar->Box(), close);
    setTabOrder(close, List1);
    m_find = std::make_unique<ReportFind>(m_report.items, m_desktop, *m_model, *List1, *m_bar);
    auto* findKey = new QShortcut(QKeySequence(QStringLiteral("Ctrl+F")), this);
    connect(findKey, &QShortcut::activated, m_bar, [this] { LongWork::UnlessPainting([this] { m_bar->Open(); }); });
}

void VarCheck::BuildButtons() {
    auto* buttons = new QDialogButtonBox(this);
    auto* cbPrint = buttons->addButton(QStringLiteral("Print"), QDialogButtonBox::ActionRole);
    auto* cbSave = buttons->addButton(QStringLiteral("Save List"), QDialogButtonBox::ActionRole);
    cbClose = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    cbPrint->setObjectName(QStringLiteral("cbPrint"));
    cbSave->setObjectName(QStringLiteral("cbSave"));
    cbClose->setObjectName(QStringLiteral("cbClose"));
    cbClose->setDefault(true);
    for (QPushButton* button : {cbPrint, cbSave}) {
        button->setAutoDefault(false);
        button->setVisible(m_report.canPrintAndSave);
    }
    const auto onClick = [this](QPushButton* button, auto command) {
        connect(button, &QPushButton::clicked, this, [=, this] {
            LongWork::UnlessPainting(
                [&] { Commands::WithinMemory(m_desktop, [&] { command(m_report, DataFile(), m_desktop); }); });
        });
    };
    onClick(cbPrint, &PrintReport);
    onClick(cbSave, &SaveReport);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
    MarkButtons(*this);
}

void VarCheck::ConnectPlaces() {
    const QString said = QStringLiteral("Enter or a double click on a line goes to its district");
    List1->setToolTip(said);
    List1->SetToolTipOverRows(true);
    List1->SetDescription(said);
    connect(List1, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& index) { GoTo(m_report.PlaceOf(m_model->LineOf(index.row()))); });
    const QItemSelectionModel* choice = List1->selectionModel();
    connect(choice, &QItemSelectionModel::selectionChanged, this, &VarCheck::ShowWhatEnterDoes);
    connect(choice, &QItemSelectionModel::currentChanged, this, &VarCheck::ShowWhatEnterDoes);
    connect(m_model, &QAbstractItemModel::modelReset, this, &VarCheck::ShowWhatEnterDoes);
}

// A list that has got the focus has a current line, which nobody has chosen.
std::optional<std::size_t> VarCheck::ChosenLine() const {
    const QModelIndex current = List1->currentIndex();
    const bool isChosen = current.isValid() && List1->selectionModel()->isSelected(current);
    return isChosen ? std::optional(m_model->LineOf(current.row())) : std::nullopt;
}

ReportPlace VarCheck::ChosenPlace() const {
    const auto line = ChosenLine();
    return line ? m_report.PlaceOf(*line) : ReportPlace{};
}

void VarCheck::GoTo(const ReportPlace& place) {
    if (place.IsThere() && !LongWork::IsPainting()) {
        m_wanted = place;
        accept();
    }
}

// The ground of "Close" says that Enter presses it.
void VarCheck::ShowWhatEnterDoes() {
    const bool goes = List1->hasFocus() && ChosenPlace().IsThere();
    if (!cbClose->hasFocus() && cbClose->isDefault() == goes) {
        cbClose->setDefault(!goes);
    }
}

void VarCheck::OpenAt(std::size_t line) {
    if (const auto row = m_model->RowOf(line)) {
        List1->ShowSelection({*row});
    }
}

// Only now it is known how many lines are seen at once.
void VarCheck::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (ChosenLine()) {
        List1->scrollTo(List1->currentIndex(), QAbstractItemView::PositionAtCenter);
    }
}

// Enter goes to the place of the chosen line. Where there is none it presses "Close", as in every box; the list would
// choose a line first.
bool VarCheck::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        ShowWhatEnterDoes();
    }
    if (watched != List1 || event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    const auto& key = dynamic_cast<const QKeyEvent&>(*event);
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!isEnter || (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return QDialog::eventFilter(watched, event);
    }
    if (const ReportPlace place = ChosenPlace(); place.IsThere()) {
        GoTo(place);
    } else {
        cbClose->click();
    }
    return true;
}

const std::string& VarCheck::DataFile() {
    if (m_dataFile.empty()) {
        m_dataFile = sDataFileName;
    }
    return m_dataFile;
}

} // namespace Ui
