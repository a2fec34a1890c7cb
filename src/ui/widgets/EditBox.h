#pragma once

#include <QLineEdit>

#include <string_view>

namespace Ui {

// The box in which a variation is typed. It refuses typed characters where they have no place, makes
// line breaks in inserted texts blanks, and replaces characters that the data file cannot hold.
class EditBox : public QLineEdit {
    Q_OBJECT

public:
    explicit EditBox(QWidget* parent = nullptr);

    // Shows a text of the data. Of one that is too long to be typed in (each key would lay it out anew) only
    // the beginning is shown, with an ellipsis, and nothing can be typed.
    void ShowText(std::string_view text);
    [[nodiscard]] bool IsCutOff() const { return isReadOnly(); }

Q_SIGNALS:
    void KeyRefused(const QString& reason); // also of the end of an inserted text that is too long
    void Entered();                         // Enter was pressed
    void Escaped();                         // Esc was pressed
    void NothingToUndo();                   // undo was asked for, but there is no typing to take back

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString WhyRefused(const QString& typed) const;
    void ReplaceForeignCharacters();
    void RefuseLength();

    bool m_isShowing = false;
    QString m_lastText; // the text before the edit being handled
};

} // namespace Ui
