#pragma once

#include "ui/lists/RowList.h"

#include <QColor>
#include <QStringList>
#include <QWidget>

namespace Ui {

// Drives a window as a user does, by mouse and keys. Controls are found by their names. One that is not
// there, or that cannot be used, throws, as does a row that is missing: nothing could be learnt then.
class WindowDriver {
public:
    WindowDriver() = default;
    WindowDriver(const WindowDriver&) = delete;
    WindowDriver& operator=(const WindowDriver&) = delete;
    virtual ~WindowDriver() = default;

    template <typename Control = QWidget>
    Control& Find(const char* name) {
        auto* control = Window().findChild<Control*>(QString::fromLatin1(name));
        if (control == nullptr) {
            Fail(name, "is not there");
        }
        return *control;
    }
    [[nodiscard]] RowList& List(const char* name) { return Find<RowList>(name); }
    // The row with this text in its first column.
    [[nodiscard]] int RowOf(const char* list, const QString& text);

    void Click(const char* button);
    // Clicks on a row, so many pixels from its left end: it may be wider than the list.
    void ClickRow(const char* list, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int inside = InsideRow);
    void ClickRow(const char* list, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Clicks where the list has no row any more.
    void ClickBelowRows(const char* list);
    // The same, where a control must be disabled, to show that nothing comes of it.
    void ClickDisabled(const char* button);
    void ClickDisabledRow(const char* list, const QString& text);
    void Key(const char* control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Types key by key.
    void Type(const char* control, const QString& text);
    void Type(const QString& text) { Type("tbEdit", text); }

    // The texts of a column of a list, and of its selected rows.
    [[nodiscard]] QStringList Column(const char* list, int column = 0);
    [[nodiscard]] QStringList Selected(const char* list);
    // The colour in which the row with this text is written.
    [[nodiscard]] QColor RowColour(const char* list, const QString& text);
    [[nodiscard]] QString TextOf(const char* label);
    // The colours of a label's text and of its background.
    [[nodiscard]] QColor InkOf(const char* label);
    [[nodiscard]] QColor PaperOf(const char* label);
    [[nodiscard]] QString CaptionOf(const char* button);
    [[nodiscard]] QString EditText();
    [[nodiscard]] bool Enabled(const char* control) { return Find(control).isEnabled(); }

    // Makes a window the active one, so that keys reach it.
    static void Activate(QWidget& window);

protected:
    virtual QWidget& Window() = 0;

private:
    template <typename Control>
    Control& Usable(const char* name, bool usable = true) {
        auto& control = Find<Control>(name);
        if (control.isEnabled() != usable) {
            Fail(name, usable ? "is disabled" : "is enabled");
        }
        return control;
    }
    static void ClickIn(RowList& rows, int row, Qt::KeyboardModifiers modifiers, int inside);
    static constexpr int InsideRow = 12; // on its box, where it has one
    [[noreturn]] static void Fail(const char* name, const char* what);
};

} // namespace Ui
