#include "ui/machine/Printing.h"

#include "ui/Text.h"

#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <vector>

namespace Printing {

using namespace CommonRoutines;

namespace {

constexpr QMarginsF PageMargins(20, 20, 20, 20); // millimetres

// The lines of a text, wrapped where the page ends.
std::vector<QTextLine> Wrapped(QTextLayout& layout, qreal width) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    std::vector<QTextLine> lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
        lines.push_back(line);
    }
    layout.endLayout();
    return lines;
}

// Pages that are filled from their tops.
class Pages {
public:
    explicit Pages(QPrinter& printer) : m_printer(printer), m_size(printer.pageRect(QPrinter::DevicePixel).size()) {}

    [[nodiscard]] bool Begin() { return m_painter.begin(&m_printer); }

    // False when the printer takes no more.
    [[nodiscard]] bool Add(const QString& text) {
        QTextLayout layout(text, QGuiApplication::font(), &m_printer);
        return std::ranges::all_of(Wrapped(layout, m_size.width()),
                                   [this](const QTextLine& line) { return Draw(line); });
    }

    [[nodiscard]] bool End() { return m_painter.end() && m_printer.printerState() != QPrinter::Error; }

private:
    bool Draw(const QTextLine& line) {
        if (m_used > 0 && m_used + line.height() > m_size.height()) {
            if (!m_printer.newPage()) {
                return false;
            }
            m_used = 0;
        }
        line.draw(&m_painter, QPointF(0, m_used - line.y()));
        m_used += line.height();
        return true;
    }

    QPrinter& m_printer;
    QSizeF m_size;
    QPainter m_painter;
    qreal m_used = 0; // of the height of the page
};

} // namespace

bool Print(const LineSource& lines) {
    const QPrinterInfo standard = QPrinterInfo::defaultPrinter();
    const QList<QPrinterInfo> all = QPrinterInfo::availablePrinters();
    if (standard.isNull() && all.isEmpty()) {
        return false;
    }
    QPrinter printer(standard.isNull() ? all.constFirst() : standard, QPrinter::HighResolution);
    printer.setPageMargins(PageMargins, QPageLayout::Millimeter);
    Pages pages(printer);
    if (!pages.Begin()) {
        return false;
    }
    for (auto line = lines(); line; line = lines()) {
        // A line may itself hold line breaks.
        for (const QString& text : Text::WordingToQt(*line).split(QStringLiteral("\r\n"))) {
            if (!pages.Add(text)) {
                printer.abort();
                return false;
            }
        }
    }
    return pages.End() && printer.printerState() != QPrinter::Aborted;
}

} // namespace Printing
