#include "ui/widgets/ProblemLabel.h"

#include "ui/Colours.h"

#include <QPainter>
#include <QScrollBar>
#include <QTextEdit>
#include <QVBoxLayout>

namespace Ui {

namespace {

constexpr int FieldPadding = 4;

// Nothing where the ink is read with ease as it is.
QColor FieldBehind(const QColor& ink, const QColor& ground) {
    constexpr double easy = 7;
    if (Colours::Contrast(ink, ground) >= easy) {
        return {};
    }
    return Colours::Contrast(ink, Qt::white) >= Colours::Contrast(ink, Qt::black) ? Qt::white : Qt::black;
}

} // namespace

class ProblemLabel::Lines : public QTextEdit {
public:
    explicit Lines(QWidget* parent) : QTextEdit(parent) {
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        setFrameShape(NoFrame);
        setTabChangesFocus(true);
        setAcceptDrops(false);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        document()->setDocumentMargin(FieldPadding);
        viewport()->setAutoFillBackground(false);
        viewport()->setCursor(Qt::IBeamCursor);
    }

    void Show(const QString& text, const QColor& ink, const QColor& field) {
        QPalette colours = palette();
        colours.setColor(QPalette::Text, ink);
        setPalette(colours);
        m_field = field;
        setPlainText(text);
        viewport()->update();
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        {
            QPainter painter(viewport());
            if (m_field.isValid() && !document()->isEmpty()) {
                constexpr int radius = 3;
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(Qt::NoPen);
                painter.setBrush(m_field);
                painter.drawRoundedRect(Field(), radius, radius);
            }
            if (hasFocus()) {
                painter.setRenderHint(QPainter::Antialiasing, false);
                painter.setBrush(Qt::NoBrush);
                painter.setPen(palette().color(QPalette::Highlight));
                painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
            }
        }
        QTextEdit::paintEvent(event);
    }

private:
    // Around all lines.
    [[nodiscard]] QRectF Field() const {
        return {0.0, -static_cast<double>(verticalScrollBar()->value()), document()->idealWidth(),
                document()->size().height()};
    }

    QColor m_field; // behind the lines, if valid
};

ProblemLabel::ProblemLabel(QWidget* parent) : PlainLabel(parent), m_lines(new Lines(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_lines);
}

void ProblemLabel::ShowProblem(const QString& text, const QColor& ink, const QColor& ground) {
    SetTextColour(ink);
    SetBackground(ground);
    ShowText(text);
    m_lines->Show(text, ink, FieldBehind(ink, ground));
    m_lines->setAccessibleName(accessibleName());
}

QWidget* ProblemLabel::TextBox() const {
    return m_lines;
}

void ProblemLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawFrame(&painter); // the text is its box's
}

} // namespace Ui
