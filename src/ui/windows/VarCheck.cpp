#include "ui/windows/VarCheck.h"

#include "checks/ReportOutput.h"
#include "commands/Guide.h"
#include "commands/Session.h"
#include "core/State.h"
#include "ui/Text.h"
#include "ui/lists/ReportModel.h"
#include "ui/lists/RowList.h"
#include "ui/widgets/ButtonMarks.h"
#include "ui/windows/LongWork.h"

#include <QDialogButtonBox>
#include <QHeaderView>
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
    BuildButtons();
    List1->setFocus();
    auto* guideKey = new QShortcut(Qt::Key_F1, this);
    connect(guideKey, &QShortcut::activated, this,
            [this] { LongWork::UnlessPainting([this] { Commands::ShowGuide(m_desktop); }); });
}

void VarCheck::BuildList() {
    List1 = new RowList(this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(QStringLiteral("Findings"));
    List1->setSelectionMode(QAbstractItemView::ExtendedSelection);
    List1->setModel(new ReportModel(m_report.items, List1));
    List1->setHeaderHidden(true);
    List1->setTextElideMode(Qt::ElideNone);
    // The column is as wide as what is visible of it, so that a long report opens at once.
    List1->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    List1->header()->setResizeContentsPrecision(0);
    layout()->addWidget(List1);
}

void VarCheck::BuildButtons() {
    auto* buttons = new QDialogButtonBox(this);
    auto* cbPrint = buttons->addButton(QStringLiteral("Print"), QDialogButtonBox::ActionRole);
    auto* cbSave = buttons->addButton(QStringLiteral("Save List"), QDialogButtonBox::ActionRole);
    auto* cbClose = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
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

const std::string& VarCheck::DataFile() {
    if (m_dataFile.empty()) {
        m_dataFile = sDataFileName;
    }
    return m_dataFile;
}

} // namespace Ui
