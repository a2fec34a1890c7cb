#pragma once

#include <QFrame>

class QLabel;
class QProgressBar;

namespace Ui {

// What is being done and how far it has come, in the middle of a window, above its controls, which keep
// their places.
class ProgressPanel : public QFrame {
public:
    explicit ProgressPanel(QWidget* window);

    // A part, 0 to 1, of what is being done is over.
    void Show(const QString& doing, double part);

private:
    QLabel* m_doing;
    QProgressBar* m_bar;
};

} // namespace Ui
