#include "ui/machine/BoxText.h"

#include <QFont>
#include <QFontMetricsF>
#include <QRect>
#include <QScreen>
#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>

namespace Ui::BoxText {

namespace {

QString Broken(const QString& word, const QFont& font, double room) {
    QTextLayout layout(word, font);
    QTextOption anywhere;
    anywhere.setWrapMode(QTextOption::WrapAnywhere);
    layout.setTextOption(anywhere);
    layout.beginLayout();
    QStringList rows;
    for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
        row.setLineWidth(room);
        rows.append(word.mid(row.textStart(), row.textLength()));
    }
    layout.endLayout();
    return rows.join(QLatin1Char('\n'));
}

} // namespace

// The toolkit lets a box be as wide as a small screen, but leaves much of a large one free.
double RoomOn(const QScreen& screen) {
    constexpr int smallScreen = 1024;
    constexpr int leftFree = 480;
    constexpr int widestBox = 1000;
    constexpr int besideText = 120; // the icon and the margins
    const int width = screen.availableGeometry().width();
    return (width <= smallScreen ? width : std::min(width - leftFree, widestBox)) - besideText;
}

QString WithBrokenWords(const QString& text, const QFont& font, double room) {
    const QFontMetricsF metrics(font);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    QString result;
    qsizetype begin = 0;
    for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        const QString word = text.mid(begin, end - begin);
        result += metrics.horizontalAdvance(word) > room ? Broken(word, font, room) : word;
        begin = end;
    }
    return result;
}

} // namespace Ui::BoxText
