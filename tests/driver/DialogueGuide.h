#pragma once

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <string>

class QWidget;

namespace Ui {

// Answers modal dialogues as they come up. A dialogue runs its own event loop inside the click that
// opened it, so the answers are given beforehand, in the order in which the dialogues will appear.
class DialogueGuide : public QObject {
public:
    DialogueGuide();

    // The next dialogue, whatever it is, is given to `answer`, which must close it.
    void Next(std::function<void(QWidget&)> answer);

    // Ready-made answers: a button by its caption, a file for a file dialogue. Without the button the program ends.
    static void Press(QWidget& dialogue, const std::string& caption);
    static void ChooseFile(QWidget& dialogue, const std::string& path);

    [[nodiscard]] bool AllAnswered() const { return m_answers.empty(); }
    // Dialogues that came up when none was expected any more; they have been closed.
    [[nodiscard]] int Surprises() const { return m_surprises; }

private:
    void Look();

    std::deque<std::function<void(QWidget&)>> m_answers;
    QTimer m_timer;
    int m_surprises = 0;
};

} // namespace Ui
