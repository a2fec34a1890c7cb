#pragma once

#include <QLineEdit>

// The box in which a variation is typed. It refuses typed characters where they have no place, makes
// line breaks in inserted texts blanks, and replaces characters that the data file cannot hold.
class EditBox : public QLineEdit {
    Q_OBJECT

public:
    explicit EditBox(QWidget* parent = nullptr);

Q_SIGNALS:
    void KeyRefused();
    void Entered();       // Enter was pressed
    void Escaped();       // Esc was pressed
    void NothingToUndo(); // undo was asked for, but there is no typing to take back

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] bool MayInsert(const QString& typed) const;
    void ReplaceForeignCharacters();

    QString m_lastText; // the text before the edit being handled
};
