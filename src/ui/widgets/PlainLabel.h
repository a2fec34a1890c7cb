#pragma once

#include <QLabel>

namespace Ui {

// A label for texts from the data, which are always plain text. It is wrapped within its own width (a word that
// is too long is broken) and ended by an ellipsis where it does not fit. Its size never follows its text, so
// that nothing around it moves.
class PlainLabel : public QLabel {
public:
    explicit PlainLabel(QWidget* parent = nullptr);

    // What the label is for. Screen readers read that and the text together.
    void SetPurpose(const QString& purpose);

    // Shows a text. Where it does not fit, the tooltip has it whole.
    void ShowText(const QString& text);

    // Room for this many lines.
    void SetLineCount(int lines);

    // Colours of its own, whatever the palette of the window.
    void SetTextColour(const QColor& colour);
    void SetBackground(const QColor& colour);

    // Height of the whole text, wrapped to a width, in pixels.
    [[nodiscard]] int WrappedHeight(int width) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void SetColour(QPalette::ColorRole role, const QColor& colour);
    // Puts a text into the tooltip and the accessible name.
    void Describe(const QString& text);

    QString m_purpose;
    int m_lines = 1;
};

} // namespace Ui
