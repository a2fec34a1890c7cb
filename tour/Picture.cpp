#include "Picture.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace {

constexpr int Border = 1;
constexpr int BarHeight = 30;
constexpr int Radius = 10;  // of a numbered circle
constexpr int Gap = 3;      // between a part and the frame around it
constexpr int Outwards = 6; // that a number stands beside the middle of a side

// The colours of what is drawn around and over a window, so that they are none of the window's own.
struct Inks {
    QColor bar;
    QColor caption;
    QColor border;
    QColor mark;
    QColor number;
};

Inks InksFor(const QWidget& window) {
    if (window.palette().color(QPalette::Window).lightness() < 128) {
        return {QColor(32, 32, 32), QColor(230, 230, 230), QColor(110, 110, 110), QColor(206, 147, 216), Qt::black};
    }
    return {QColor(218, 218, 218), QColor(40, 40, 40), QColor(140, 140, 140), QColor(123, 31, 162), Qt::white};
}

QFont BoldFont() {
    QFont font = QApplication::font();
    font.setBold(true);
    return font;
}

void DrawBar(QPainter& painter, const QRect& bar, const QString& caption, const Inks& inks) {
    painter.fillRect(bar, inks.bar);
    painter.setFont(BoldFont());
    painter.setPen(inks.caption);
    painter.drawText(bar, Qt::AlignCenter, caption);
    // The cross that closes a window.
    const QPoint centre(bar.right() - BarHeight / 2, bar.center().y());
    painter.setPen(QPen(inks.caption, 1.5));
    painter.drawLine(centre + QPoint(-4, -4), centre + QPoint(4, 4));
    painter.drawLine(centre + QPoint(-4, 4), centre + QPoint(4, -4));
}

QRect PlaceOf(const QWidget& window, const NumberedPart& part) {
    QRect place;
    for (const QString& name : part.controls) {
        const auto* control = window.findChild<QWidget*>(name);
        if (control == nullptr) {
            qFatal("no control %s to be numbered", qUtf8Printable(name));
        }
        place |= QRect(control->mapTo(&window, QPoint()), control->size());
    }
    return place;
}

// The middle of the number, which is whole also where its part reaches the edge of the picture.
QPoint NumberPlace(const QRect& around, NumberedPart::At at, const QSize& picture) {
    QPoint place = around.topRight();
    if (at == NumberedPart::At::Left) {
        place = {around.left() - Outwards, around.center().y()};
    } else if (at == NumberedPart::At::Top) {
        place = {around.center().x(), around.top() - Outwards};
    }
    constexpr int room = Radius + Border + 1;
    return {std::clamp(place.x(), room, picture.width() - room), std::clamp(place.y(), room, picture.height() - room)};
}

void DrawNumber(QPainter& painter, const QPoint& place, int number, const Inks& inks) {
    const QRect circle(place - QPoint(Radius, Radius), QSize(2 * Radius, 2 * Radius));
    painter.setPen(QPen(inks.mark, 2));
    painter.setBrush(inks.mark);
    painter.drawEllipse(circle);
    painter.setFont(BoldFont());
    painter.setPen(inks.number);
    painter.drawText(circle, Qt::AlignCenter, QString::number(number));
}

// The frames first: none may run through a number.
void DrawNumbers(QPainter& painter, const QWidget& window, const QRect& inside, std::span<const NumberedPart> parts) {
    const Inks inks = InksFor(window);
    std::vector<QPoint> places;
    painter.setPen(QPen(inks.mark, 2));
    for (const NumberedPart& part : parts) {
        const QRect around = PlaceOf(window, part).translated(inside.topLeft()).adjusted(-Gap, -Gap, Gap, Gap);
        painter.drawRoundedRect(around, 4, 4);
        places.push_back(NumberPlace(around, part.at, inside.size()));
    }
    int number = 0;
    for (const QPoint& place : places) {
        DrawNumber(painter, place, ++number, inks);
    }
}

} // namespace

QImage PictureOf(QWidget& window, std::span<const NumberedPart> parts) {
    const QPixmap content = window.grab();
    const QRect inside(QPoint(Border, Border + BarHeight), window.size());
    const QSize whole(inside.right() + 1 + Border, inside.bottom() + 1 + Border);
    QImage picture(whole * content.devicePixelRatio(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(content.devicePixelRatio());

    const Inks inks = InksFor(window);
    picture.fill(inks.border);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawBar(painter, QRect(Border, Border, window.width(), BarHeight), window.windowTitle(), inks);
    painter.drawPixmap(inside.topLeft(), content);
    DrawNumbers(painter, window, inside, parts);
    return picture;
}
