#pragma once

#include "ui/Colours.h"

#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QWidget>

// What can be seen in a picture of a widget.
namespace Rendered {

inline QImage Of(QWidget& widget, const QRect& part = QRect()) {
    return widget.grab(part.isValid() ? part : widget.rect()).toImage();
}

inline int Count(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

// The colour that stands out most from a ground: that of the text, where its strokes are whole pixels.
inline QColor Ink(const QImage& image, const QColor& ground) {
    QColor ink = ground;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (Colours::Contrast(pixel, ground) > Colours::Contrast(ink, ground)) {
                ink = pixel;
            }
        }
    }
    return ink;
}

// The leftmost pixel that stands out, or -1.
inline int LeftEdge(const QImage& image, const QColor& ground) {
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (Colours::Contrast(image.pixelColor(x, y), ground) > 2) {
                return x;
            }
        }
    }
    return -1;
}

// The colours of a light and of a dark desktop.
inline QPalette Light() {
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    return palette;
}

inline QPalette Dark() {
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
    }
    return palette;
}

} // namespace Rendered
