#pragma once

#include <QPointer>
#include <QWidget>

#include <cstddef>

class QBoxLayout;
class QLineEdit;
class QPushButton;

namespace Ui {

class PlainLabel;

// A row with a box for what is looked for, and what was found. It is hidden until it is opened; Esc or its button
// closes it, and the control outside of its parent that had the focus before has it again, or the list.
class FindBar : public QWidget {
    Q_OBJECT

public:
    // `over` is the list that shows what is found: Down leads there. It stands in the same parent.
    FindBar(const QString& purpose, QWidget* over, QWidget* parent);

    // Shows it; the box has the focus then, and its text is chosen.
    void Open();
    void Close();

    [[nodiscard]] QLineEdit& Box() const { return *m_box; }

    // An option of the search, behind the box.
    void AddOption(QWidget* option);

    // For a narrow place: what was found, and the button, stand below the box.
    void UseTwoLines();

    // What was found, or why nothing can be looked for.
    void ShowFound(const QString& found);
    // As "37 of 154,983".
    [[nodiscard]] static QString CountOf(std::size_t found, std::size_t all);

Q_SIGNALS:
    void Typed(const QString& text);
    void Entered(); // Enter was pressed in the box
    void Closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* m_box;
    PlainLabel* m_found;
    QPushButton* m_close;
    QBoxLayout* m_lines;
    QBoxLayout* m_row;
    QWidget* m_over;
    QPointer<QWidget> m_focusBefore;
};

} // namespace Ui
