#include "ui/widgets/EditBox.h"

#include "edit/EditPanel.h"
#include "ui/Text.h"

#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>

namespace Ui {

namespace {

// The text as the data file can hold it, in one line.
QString Allowed(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return Text::ToQt(Text::FromQt(text));
}

// Where it cuts an inserted text off, the toolkit may leave the first half of a character in front of the caret.
QString WithoutHalf(QString text, qsizetype caret) {
    const bool hasFirst = caret > 0 && text.at(caret - 1).isHighSurrogate();
    const bool hasSecond = caret < text.size() && text.at(caret).isLowSurrogate();
    return hasFirst && !hasSecond ? text.remove(caret - 1, 1) : text;
}

} // namespace

EditBox::EditBox(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(static_cast<int>(CommonRoutines::LongestEditableText));
    setAttribute(Qt::WA_OpaquePaintEvent); // so that a key paints nothing of what stands around the box
    connect(this, &QLineEdit::inputRejected, this, [this] { RefuseLength(); });
    // Not only what is typed: assistive technology sets the text as a whole.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!m_isShowing) {
            ReplaceForeignCharacters();
        }
        m_lastText = text();
    });
}

void EditBox::ShowText(std::string_view text) {
    const bool cutOff = text.size() > CommonRoutines::LongestEditableText;
    setReadOnly(cutOff);
    m_isShowing = true; // a text of the table is shown as it is
    setText(cutOff ? Text::ForList(text) : Text::ToQt(text));
    m_isShowing = false;
}

// A file is for the window, a text for the box.
void EditBox::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) {
        event->ignore();
    } else {
        QLineEdit::dragEnterEvent(event);
    }
}

// The edge of the box leaves its corners free.
void EditBox::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), parentWidget()->palette().window());
    QLineEdit::paintEvent(event);
}

QString EditBox::WhyRefused(const QString& typed) const {
    const char16_t code = typed.size() == 1 ? typed.at(0).unicode() : u'\0';
    if (code < u' ' || code > u'|') {
        return {};
    }
    // A place in the toolkit's text is none in the core's.
    const QString before = text().left(hasSelectedText() ? selectionStart() : cursorPosition());
    return Text::ToQt(
        CommonRoutines::WhyKeyIsRefused(static_cast<char>(code), Text::FromQt(text()), Text::FromQt(before).size()));
}

void EditBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Undo) && !isUndoAvailable()) {
        Q_EMIT NothingToUndo();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT Entered();
    } else if (event->key() == Qt::Key_Escape) {
        Q_EMIT Escaped();
    } else if (const QString reason = WhyRefused(event->text()); !reason.isEmpty()) {
        Q_EMIT KeyRefused(reason);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void EditBox::RefuseLength() {
    Q_EMIT KeyRefused(QStringLiteral("The text is longer than what can be edited here."));
}

void EditBox::ReplaceForeignCharacters() {
    // The toolkit counts characters, of which one may be several bytes.
    const bool isTooLong = Text::FromQt(text()).size() > CommonRoutines::LongestEditableText;
    const QString allowed = isTooLong ? m_lastText : Allowed(WithoutHalf(text(), cursorPosition()));
    if (allowed == text()) {
        return;
    }
    const QString before = text().left(cursorPosition());
    const qsizetype caret = Allowed(WithoutHalf(before, before.size())).size();
    // Setting a text forgets the typing. It is put back in two insertions, so that undo still finds
    // something to take back here and does not reach past the box.
    blockSignals(true);
    setText({});
    insert(m_lastText);
    selectAll();
    blockSignals(false);
    insert(allowed);
    setCursorPosition(static_cast<int>(caret));
    if (isTooLong) {
        RefuseLength();
    }
}

} // namespace Ui
