#include "ui/widgets/ProgressPanel.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace Ui {

namespace {

constexpr int Width = 40; // in average characters
constexpr int Margin = 16;
constexpr int Steps = 100;

} // namespace

ProgressPanel::ProgressPanel(QWidget* window)
    : QFrame(window), m_doing(new QLabel(this)), m_bar(new QProgressBar(this)) {
    setObjectName(QStringLiteral("ProgressPanel"));
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setForegroundRole(QPalette::Mid); // of the frame
    setAutoFillBackground(true);
    m_doing->setTextFormat(Qt::PlainText);
    m_bar->setRange(0, Steps);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(m_doing);
    layout->addWidget(m_bar);
    setFixedWidth(Width * fontMetrics().averageCharWidth() + 2 * Margin);
}

void ProgressPanel::Show(const QString& doing, double part) {
    m_doing->setText(doing);
    m_bar->setAccessibleName(doing);
    m_bar->setValue(static_cast<int>(Steps * part));
    adjustSize();
    const QPoint middle = parentWidget()->rect().center();
    move(middle.x() - width() / 2, middle.y() - height() / 2);
    show();
    raise();
}

} // namespace Ui
