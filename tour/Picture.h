#pragma once

#include <QImage>
#include <QStringList>

#include <span>

class QWidget;

// A part of a window that gets a number: one control or several, by their names, and where on the frame around them
// the number stands so that it covers nothing.
struct NumberedPart {
    enum class At { Corner, Left, Top };

    QStringList controls;
    At at = At::Corner; // the upper right one; otherwise the middle of a side
};

// A window as the documents show it: with a title bar and a border, which no platform without a display draws, and
// with some of its parts numbered from 1 on. A control that is missing ends the program.
QImage PictureOf(QWidget& window, std::span<const NumberedPart> parts = {});
