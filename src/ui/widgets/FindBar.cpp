#include "ui/widgets/FindBar.h"

#include "find/FoundInWords.h"
#include "ui/Text.h"
#include "ui/widgets/PlainLabel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Ui {

namespace {

constexpr int Space = 8; // between controls, in pixels
constexpr int BoxLetters = 36;

} // namespace

FindBar::FindBar(const QString& purpose, QWidget* over, QWidget* parent)
    : QWidget(parent), m_box(new QLineEdit(this)), m_found(new PlainLabel(this)),
      m_close(new QPushButton(QStringLiteral("Close Find"), this)), m_lines(new QVBoxLayout(this)),
      m_row(new QHBoxLayout), m_over(over) {
    auto* caption = new QLabel(QStringLiteral("Find"), this);
    caption->setBuddy(m_box);
    m_box->setObjectName(QStringLiteral("tbFind"));
    m_box->setAccessibleName(purpose);
    m_box->setClearButtonEnabled(true);
    m_box->setMaximumWidth(BoxLetters * fontMetrics().averageCharWidth());
    m_box->installEventFilter(this);
    m_found->setObjectName(QStringLiteral("lbFound"));
    m_found->SetPurpose(QStringLiteral("Found"));
    m_found->SetLineCount(1);
    m_found->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_close->setObjectName(QStringLiteral("cbCloseFind"));
    m_close->setAccessibleName(m_close->text());
    m_close->setToolTip(QStringLiteral("Close the find bar (Esc)"));
    m_close->setAutoDefault(false);
    m_lines->setContentsMargins(0, 0, 0, 0);
    m_lines->setSpacing(Space / 2);
    m_lines->addLayout(m_row);
    m_row->setSpacing(Space);
    m_row->addWidget(caption);
    m_row->addWidget(m_box, 2);
    m_row->addWidget(m_found, 3);
    m_row->addWidget(m_close);
    connect(m_box, &QLineEdit::textChanged, this, &FindBar::Typed);
    connect(m_close, &QPushButton::clicked, this, &FindBar::Close);
    hide();
}

void FindBar::Open() {
    if (QWidget* focus = QApplication::focusWidget(); focus != nullptr && !parentWidget()->isAncestorOf(focus)) {
        m_focusBefore = focus;
    }
    show();
    m_box->setFocus(Qt::ShortcutFocusReason); // which chooses its text
}

void FindBar::Close() {
    if (isHidden()) {
        return;
    }
    const bool hadFocus = parentWidget()->isAncestorOf(QApplication::focusWidget());
    const bool canGiveBack = m_focusBefore != nullptr && m_focusBefore->isVisible() && m_focusBefore->isEnabled();
    if (hadFocus) {
        (canGiveBack ? m_focusBefore.data() : m_over)->setFocus();
    }
    hide();
    Q_EMIT Closed();
}

void FindBar::AddOption(QWidget* option) {
    m_row->insertWidget(2, option);
}

void FindBar::UseTwoLines() {
    m_row->removeWidget(m_found);
    m_row->removeWidget(m_close);
    auto* below = new QHBoxLayout;
    below->setSpacing(Space);
    below->addWidget(m_found, 1);
    below->addWidget(m_close);
    m_lines->addLayout(below);
    m_box->setMaximumWidth(QWIDGETSIZE_MAX); // nothing else wants the room
}

void FindBar::ShowFound(const QString& found) {
    m_found->ShowText(found);
    m_box->setAccessibleDescription(found); // which is told while the box has the focus
}

QString FindBar::CountOf(std::size_t found, std::size_t all) {
    return Text::ToQt(CommonRoutines::WithCommas(found) + " of " + CommonRoutines::WithCommas(all));
}

// The box would let Enter go on to the default button of its window, and take Esc for nothing.
bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& key = dynamic_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            Q_EMIT Entered();
            return true;
        }
        if (key.key() == Qt::Key_Down && m_over->isEnabled()) {
            m_over->setFocus(Qt::OtherFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Close();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace Ui
