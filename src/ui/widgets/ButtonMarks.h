#pragma once

class QWidget;

namespace Ui {

// Draws the buttons of a window, as they are now, so that two things are seen and told apart: the button that
// Enter presses has a tinted ground, and the one with the focus a coloured edge, however it got there.
void MarkButtons(QWidget& window);

} // namespace Ui
