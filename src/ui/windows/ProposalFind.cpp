#include "ui/windows/ProposalFind.h"

#include "ui/lists/ProposalModel.h"
#include "ui/lists/RowList.h"
#include "ui/lists/StateColours.h"
#include "ui/widgets/ButtonMarks.h"
#include "ui/widgets/FindBar.h"
#include "ui/widgets/PlainLabel.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include <vector>

namespace Ui {

ProposalFind::ProposalFind(RowList& list, ProposalModel& model, QObject* parent)
    : QObject(parent), m_list(list), m_model(model),
      m_bar(new FindBar(QStringLiteral("Text in the proposals"), &list, list.parentWidget())) {
    m_bar->setObjectName(QStringLiteral("ProposalFindBar"));
    m_bar->UseTwoLines();
    StateColours::Outline(m_bar->Box());
    auto* column = dynamic_cast<QBoxLayout*>(list.parentWidget()->layout());
    column->insertWidget(column->indexOf(&list), m_bar);
    auto* close = m_bar->findChild<QPushButton*>();
    close->setObjectName(QStringLiteral("cbCloseProposalFind")); // the window has another bar
    m_bar->Box().setObjectName(QStringLiteral("tbProposalFind"));
    m_bar->findChild<PlainLabel*>()->setObjectName(QStringLiteral("lbProposalsFound"));
    QWidget::setTabOrder(list.previousInFocusChain(), &m_bar->Box());
    QWidget::setTabOrder(&m_bar->Box(), close);
    QWidget::setTabOrder(close, &list);
    MarkButtons(*m_bar);
    connect(m_bar, &FindBar::Typed, this, &ProposalFind::Filter);
    connect(m_bar, &FindBar::Closed, this, [this] { m_bar->Box().clear(); });
    connect(m_bar, &FindBar::Entered, this, [this] {
        if (m_model.rowCount() > 0) {
            m_list.selectionModel()->setCurrentIndex(m_model.index(0, 0), QItemSelectionModel::NoUpdate);
            m_list.setFocus(Qt::OtherFocusReason);
        }
    });
    connect(&model, &QAbstractItemModel::modelReset, this, &ProposalFind::ShowFound);
    ShowFound();
}

bool ProposalFind::OpenWithin() {
    const bool isWithin = m_list.parentWidget()->isAncestorOf(QApplication::focusWidget());
    if (isWithin) {
        m_bar->Open();
    }
    return isWithin;
}

void ProposalFind::SetHint(const QString& hint) {
    m_hint = hint;
    ShowFound();
}

// The row at hand stays the one at hand while it is shown.
void ProposalFind::Filter(const QString& text) {
    const QModelIndex current = m_list.currentIndex();
    std::vector<int> atHand;
    if (current.isValid()) {
        atHand.push_back(m_model.ProposalAt(current.row()));
    }
    m_model.SetFilter(text);
    for (const int row : m_model.RowsOf(atHand)) {
        const QModelIndex index = m_model.index(row, 0);
        m_list.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        m_list.scrollTo(index, QAbstractItemView::PositionAtCenter);
    }
}

void ProposalFind::ShowFound() {
    const auto shown = static_cast<std::size_t>(m_model.rowCount());
    m_bar->ShowFound(FindBar::CountOf(shown, static_cast<std::size_t>(m_model.ProposalCount())));
    const bool isFiltered = m_model.rowCount() < m_model.ProposalCount();
    m_list.SetHint(isFiltered ? QStringLiteral("No proposal contains this text.") : m_hint);
}

} // namespace Ui
