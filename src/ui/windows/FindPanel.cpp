#include "ui/windows/FindPanel.h"

#include "ui/Text.h"
#include "ui/lists/HitModel.h"
#include "ui/lists/RowDrawing.h"
#include "ui/lists/RowList.h"
#include "ui/lists/StateColours.h"
#include "ui/widgets/FindBar.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace Ui {

namespace {

constexpr int Space = 4; // between the bar and the list, in pixels
constexpr int ShownRows = 7;

} // namespace

FindPanel::FindPanel(QWidget* parent) : QWidget(parent), m_list(new RowList(this)), m_model(new HitModel(this)) {
    setObjectName(QStringLiteral("FindPanel"));
    m_list->setObjectName(QStringLiteral("lvFound"));
    m_list->setAccessibleName(QStringLiteral("Found"));
    m_list->setModel(m_model);
    m_list->SetHint(QStringLiteral("What is found in districts, variations and comments is shown here"));
    m_list->SetDescription(QStringLiteral("Enter goes to the row"));
    m_bar = new FindBar(QStringLiteral("Find in the whole file"), m_list, this);
    m_whole = new QCheckBox(QStringLiteral("Whole spelling"), this);
    m_whole->setObjectName(QStringLiteral("cbWholeSpelling"));
    m_whole->setAccessibleName(m_whole->text());
    m_whole->setToolTip(QStringLiteral("Find what counts as the same spelling: markers and volumes matter as in a "
                                       "complete check"));
    StateColours::Outline(*m_whole);
    StateColours::Outline(m_bar->Box());
    m_bar->AddOption(m_whole);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space);
    layout->addWidget(m_bar);
    layout->addWidget(m_list);
    const int letter = fontMetrics().averageCharWidth();
    m_list->SetColumnWidths({14 * letter, 40 * letter, 14 * letter, 60 * letter});
    m_list->header()->setStretchLastSection(true);
    m_list->setFixedHeight(m_list->header()->sizeHint().height() + ShownRows * RowDelegate::RowHeight(*m_list) +
                           2 * m_list->frameWidth());
    setTabOrder(&m_bar->Box(), m_whole);
    Connect();
    hide();
}

void FindPanel::Connect() {
    connect(m_bar, &FindBar::Typed, this, &FindPanel::Typed);
    connect(m_bar, &FindBar::Entered, this, &FindPanel::NextWanted);
    connect(m_bar, &FindBar::Closed, this, [this] {
        hide();
        Q_EMIT Closed();
    });
    connect(m_whole, &QCheckBox::toggled, this, &FindPanel::WholeWanted);
    connect(m_list, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT RowWanted(index.row()); });
    connect(m_list, &RowList::TakenUp, this, [this] { Q_EMIT RowWanted(m_list->currentIndex().row()); });
}

void FindPanel::Open() {
    show();
    m_bar->Open();
}

void FindPanel::Show(const Commands::FindView& find, bool isEnabled) {
    if (find.isOpen && isHidden()) {
        show();
        m_bar->show();
    }
    m_bar->ShowFound(Text::ForBox(find.status));
    for (QWidget* control : {static_cast<QWidget*>(&m_bar->Box()), static_cast<QWidget*>(m_whole)}) {
        control->setEnabled(isEnabled);
    }
    // Where both are as they were, the row is left to the user.
    if (find.touched == m_touched && find.current == m_current) {
        return;
    }
    if (find.touched != m_touched) {
        m_model->Show(find.hits);
    }
    m_touched = find.touched;
    m_current = find.current;
    const auto row = find.current ? find.hits->RowOf(*find.current) : std::nullopt;
    if (row && m_model->Reach(*row)) {
        m_list->ShowSelection({static_cast<int>(*row)});
    }
}

void FindPanel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        m_bar->Close();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace Ui
