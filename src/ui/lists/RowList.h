#pragma once

#include "ui/lists/RowDrawing.h"

#include <QElapsedTimer>
#include <QTreeView>

#include <vector>

namespace Ui {

// A report list: rows under column headings, nothing edited in place, whole rows selected. Rows are
// all of one height, so that a million of them cost what is visible. What the mouse does to the columns,
// keys do to the column at hand, whose heading is underlined while the list has the focus.
class RowList : public QTreeView {
    Q_OBJECT

public:
    explicit RowList(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* newModel) override;

    // Of all columns, in pixels.
    void SetColumnWidths(const std::vector<int>& widths);

    // The numbers of the selected rows, in list order.
    [[nodiscard]] std::vector<int> SelectedRows() const;

    // Selects these rows, as the program's own doing: nothing is announced. A single row is scrolled to. Nothing
    // happens when they are selected already.
    void ShowSelection(const std::vector<int>& rows);

    // Whether commands work on the chosen rows. Otherwise they only stay chosen, and look like it.
    void ShowAsInHand(bool inHand);
    [[nodiscard]] bool AreInHand() const { return m_inHand; }

    // What an empty list says, in grey: what to do next.
    void SetHint(const QString& hint);
    [[nodiscard]] const QString& Hint() const { return m_hint; }
    // What a screen reader says of a list that is not empty.
    void SetDescription(const QString& description);

    // Where an index is shown, also outside of what is visible.
    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;

    // A row that comes to the middle keeps its place sideways, also where it is wider than the list.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

    // Selects the next row whose first cell begins with what is typed.
    void keyboardSearch(const QString& search) override;

    // Whether its own tooltip also comes up over rows that have nothing to say.
    void SetToolTipOverRows(bool over) { m_toolTipOverRows = over; }

    // What is to be said of a row, and the text of a cell that is not seen whole. What can be read is not repeated.
    [[nodiscard]] QString ToolTipOf(const QModelIndex& index) const;

    // Copies the selected rows as lines, their cells separated by tabs.
    void CopySelection() const;

Q_SIGNALS:
    // The user has changed the selection, or has clicked on a row that was selected already.
    void Chosen();
    // Space or Enter was pressed on what is selected already.
    void TakenUp();
    void Resized();

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Announce();
    [[nodiscard]] bool HandleColumnKey(const QKeyEvent& event);
    [[nodiscard]] bool HandleChoosingKey(QKeyEvent& event);
    [[nodiscard]] bool IsLookingFor() const;
    void MarkColumn(int column);
    void UpdateFocusMarks();
    void UpdateRows(const QModelIndex& first, const QModelIndex& last);
    [[nodiscard]] bool IsEmpty() const { return model() != nullptr && model()->rowCount() == 0; }
    void Describe();

    RowHeader* m_header;
    ChosenLook m_chosenLook;
    int m_column = 0; // at hand
    QString m_typed;  // of the row that is looked for, as long as the next letter comes in time
    QElapsedTimer m_lastTyped;
    QString m_hint;
    QString m_description;
    bool m_announced = false; // since the mouse was pressed
    bool m_quiet = false;
    bool m_toolTipOverRows = false;
    bool m_inHand = true;
};

} // namespace Ui
