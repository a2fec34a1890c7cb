#pragma once

#include "ui/widgets/PlainLabel.h"

namespace Ui {

// A label on a coloured ground, whose text can be chosen and copied by mouse and keys. Where the colour of the text
// is hard to read on the ground, a white or black field lies behind the lines.
class ProblemLabel : public PlainLabel {
public:
    explicit ProblemLabel(QWidget* parent = nullptr);

    void ShowProblem(const QString& text, const QColor& ink, const QColor& ground);

    // What takes the focus.
    [[nodiscard]] QWidget* TextBox() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class Lines;

    Lines* m_lines;
};

} // namespace Ui
