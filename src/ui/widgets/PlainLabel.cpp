#include "ui/widgets/PlainLabel.h"

#include "ui/Text.h"

#include <QEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

namespace Ui {

namespace {

// One line of a wrapped text: where it begins and how long it is.
struct Line {
    qsizetype from;
    qsizetype length;
};

QList<Line> Wrap(const QString& text, const QFont& font, int width) {
    QList<Line> lines;
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    qsizetype from = 0;
    for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines.append({from + line.textStart(), line.textLength()});
        }
        layout.endLayout();
        from += paragraph.size() + 1;
    }
    return lines;
}

} // namespace

PlainLabel::PlainLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void PlainLabel::SetPurpose(const QString& purpose) {
    m_purpose = purpose;
    Describe(text());
}

void PlainLabel::ShowText(const QString& text) {
    // Labels are cleared at every keystroke.
    if (text != this->text()) {
        setText(text);
        Describe(text);
    }
}

void PlainLabel::Describe(const QString& text) {
    setToolTip(text.isEmpty() ? QString() : Text::ForToolTip(text));
    setAccessibleDescription(m_purpose); // otherwise the tooltip is read out, with its mark-up
    setAccessibleName(text.isEmpty() ? m_purpose : m_purpose + QStringLiteral(": ") + text);
}

void PlainLabel::SetLineCount(int lines) {
    m_lines = lines;
    updateGeometry();
}

void PlainLabel::SetTextColour(const QColor& colour) {
    SetColour(QPalette::WindowText, colour);
}

void PlainLabel::SetBackground(const QColor& colour) {
    SetColour(QPalette::Window, colour);
    setAutoFillBackground(true);
}

void PlainLabel::SetColour(QPalette::ColorRole role, const QColor& colour) {
    QPalette colours = palette();
    colours.setColor(role, colour);
    setPalette(colours);
}

int PlainLabel::WrappedHeight(int width) const {
    return static_cast<int>(Wrap(text(), font(), width).size()) * fontMetrics().lineSpacing();
}

QSize PlainLabel::sizeHint() const {
    const QMargins margins = contentsMargins();
    return {0, m_lines * fontMetrics().lineSpacing() + margins.top() + margins.bottom()};
}

QSize PlainLabel::minimumSizeHint() const {
    return sizeHint();
}

// What can be read is not repeated.
bool PlainLabel::event(QEvent* event) {
    const QSize room = contentsRect().size();
    if (event->type() == QEvent::ToolTip && WrappedHeight(room.width()) <= room.height()) {
        QToolTip::hideText();
        event->ignore();
        return true;
    }
    return QLabel::event(event);
}

void PlainLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawFrame(&painter);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));

    const QRect room = contentsRect();
    const int lineHeight = fontMetrics().lineSpacing();
    const QList<Line> lines = Wrap(text(), font(), room.width());
    const qsizetype shown = std::min<qsizetype>(lines.size(), std::max(1, room.height() / lineHeight));
    int top = room.top();
    if ((alignment() & Qt::AlignVCenter) != 0) {
        top += (room.height() - static_cast<int>(shown) * lineHeight) / 2;
    }
    for (qsizetype i = 0; i < shown; ++i) {
        const bool cutOff = i + 1 == shown && shown < lines.size();
        const QString line =
            cutOff ? fontMetrics().elidedText(text().mid(lines[i].from).replace(QLatin1Char('\n'), QLatin1Char(' ')),
                                              Qt::ElideRight, room.width())
                   : text().mid(lines[i].from, lines[i].length);
        painter.drawText(
            QRect(room.left(), top, room.width(), lineHeight),
            static_cast<int>((alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter | Qt::TextSingleLine), line);
        top += lineHeight;
    }
}

} // namespace Ui
