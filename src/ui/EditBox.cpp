#include "ui/EditBox.h"

#include "edit/EditPanel.h"
#include "ui/Text.h"

#include <QKeyEvent>

#include <limits>

EditBox::EditBox(QWidget* parent) : QLineEdit(parent) {
    // A text of the file is never cut off, however long it is.
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textEdited, this, &EditBox::ReplaceForeignCharacters);
}

bool EditBox::MayInsert(const QString& typed) const {
    const char16_t code = typed.size() == 1 ? typed.at(0).unicode() : u'\0';
    if (code < u' ' || code > u'|') {
        return true;
    }
    const int caret = hasSelectedText() ? selectionStart() : cursorPosition();
    return CommonRoutines::MayType(static_cast<char>(code), Text::FromQt(text()), static_cast<std::size_t>(caret));
}

void EditBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Undo) && !isUndoAvailable()) {
        Q_EMIT NothingToUndo();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT Entered();
    } else if (event->key() == Qt::Key_Escape) {
        Q_EMIT Escaped();
    } else if (!MayInsert(event->text())) {
        Q_EMIT KeyRefused();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void EditBox::ReplaceForeignCharacters() {
    QString allowed = text();
    allowed.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    allowed.replace(QLatin1Char('\r'), QLatin1Char(' '));
    allowed.replace(QLatin1Char('\n'), QLatin1Char(' '));
    allowed = Text::ToQt(Text::FromQt(allowed));
    if (allowed != text()) {
        const int caret = cursorPosition();
        setText(allowed);
        setCursorPosition(caret);
    }
}
