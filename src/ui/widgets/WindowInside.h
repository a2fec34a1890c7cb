#pragma once

#include <QScrollArea>

namespace Ui {

// What a window holds. In a window that is too small for it, it is scrolled, and what gets the focus comes
// into view.
class WindowInside : public QScrollArea {
public:
    // Fills the window with what `inside` holds.
    WindowInside(QWidget* window, QWidget* inside);
};

} // namespace Ui
