#include "ui/windows/frmCustomMessageBox.h"

#include "core/Ansi.h"
#include "ui/Text.h"
#include "ui/widgets/ButtonMarks.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/windows/MessageBoxLayout.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

namespace Ui {

namespace {

constexpr int Margin = 10;
constexpr int Gap = 5;
constexpr int IconSize = 32;

int WidestLine(const QFontMetrics& metrics, const QString& text) {
    int widest = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        widest = std::max(widest, metrics.horizontalAdvance(line));
    }
    return widest;
}

} // namespace

frmCustomMessageBox::frmCustomMessageBox(const std::string& prompt, QIcon icon, const QString& title,
                                         std::span<const std::string> captions, std::function<void()> showCopy,
                                         QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), m_icon(std::move(icon)),
      m_showCopy(std::move(showCopy)) {
    setObjectName(QStringLiteral("frmCustomMessageBox"));
    setWindowTitle(title);
    const MessageBoxLayout::Layout layout = ArrangeTexts(prompt, captions);

    lblCaption = new PlainLabel(this);
    lblCaption->setObjectName(QStringLiteral("lblCaption"));
    lblCaption->setText(Text::ForBox(prompt));
    // The press that asks for a copy is meant for the box, wherever in it.
    lblCaption->setAttribute(Qt::WA_TransparentForMouseEvents);
    const int tallest = screen()->availableGeometry().height() * 2 / 3;
    const int labelHeight =
        std::min(std::max(layout.labelHeight, lblCaption->WrappedHeight(layout.labelWidth)), tallest);
    lblCaption->setGeometry(layout.labelLeft, Margin, layout.labelWidth, labelHeight);

    const int iconBottom = m_icon.isNull() ? 0 : Margin + IconSize;
    const int buttonTop = std::max(Margin + labelHeight, iconBottom) + Margin;
    BuildButtons(layout, captions, buttonTop);
    MarkButtons(*this);
    setFixedSize(layout.innerWidth, buttonTop + layout.buttonHeight + Margin);
}

MessageBoxLayout::Layout frmCustomMessageBox::ArrangeTexts(const std::string& prompt,
                                                           std::span<const std::string> captions) const {
    const QFontMetrics metrics = fontMetrics();
    const MessageBoxLayout::TextMeasure measure{
        [&](std::string_view text) { return WidestLine(metrics, Text::ForBox(text)); }, metrics.lineSpacing()};
    const int buttonHeight = QPushButton(QStringLiteral("X")).sizeHint().height();
    return MessageBoxLayout::Arrange(prompt, !m_icon.isNull(), captions, measure, buttonHeight);
}

void frmCustomMessageBox::BuildButtons(const MessageBoxLayout::Layout& layout, std::span<const std::string> captions,
                                       int top) {
    // The row leaves twice the gap free at its right end: moved in by one gap it stands in the middle.
    auto* row = new QWidget(this);
    row->setGeometry(Gap, top, layout.innerWidth - Gap, layout.buttonHeight);
    for (std::size_t i = 0; i < layout.buttons.size(); ++i) {
        const std::string& caption = captions[i];
        QString text = Text::ToQt(layout.buttons[i].text);
        auto* button = new QPushButton(text.replace(QLatin1Char('&'), QStringLiteral("&&")), row);
        button->setObjectName(QStringLiteral("cmdButton%1").arg(i));
        button->setAccessibleName(Text::ToQt(caption));
        button->setGeometry(layout.buttons[i].left, 0, layout.buttonWidth, layout.buttonHeight);
        connect(button, &QPushButton::clicked, this, [this, caption] {
            m_result = caption;
            accept();
        });
        if (Ansi::EqualIgnoringCase(caption, "Cancel")) {
            m_cancelButton = button;
        }
        if (Ansi::EqualIgnoringCase(caption, "Ok") || Ansi::EqualIgnoringCase(caption, "Yes")) {
            button->setDefault(true);
            button->setFocus();
        }
    }
}

void frmCustomMessageBox::reject() {
    if (m_cancelButton != nullptr) {
        m_cancelButton->click();
    }
}

void frmCustomMessageBox::closeEvent(QCloseEvent* event) {
    event->ignore();
}

void frmCustomMessageBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    m_icon.paint(&painter, Margin, Margin, IconSize, IconSize);
}

void frmCustomMessageBox::mousePressEvent(QMouseEvent* event) {
    const bool wantsCopy =
        event->button() == Qt::LeftButton && event->modifiers().testFlags(Qt::ShiftModifier | Qt::ControlModifier);
    if (wantsCopy) {
        m_showCopy();
    }
}

// The key for those who have no mouse.
void frmCustomMessageBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        m_showCopy();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace Ui
