#pragma once

#include "commands/WindowView.h"

#include <QWidget>

#include <cstdint>
#include <optional>

class QCheckBox;

namespace Ui {

class FindBar;
class HitModel;
class RowList;

// Finds a text in the whole file: a find bar over the list of what was found. Hidden until it is opened.
class FindPanel : public QWidget {
    Q_OBJECT

public:
    explicit FindPanel(QWidget* parent);

    // Opens it where it is not open; the box for the sought text has the focus then.
    void Open();
    // What is sought, and what was found. While nothing can be looked for, the box is disabled.
    void Show(const Commands::FindView& find, bool isEnabled);

Q_SIGNALS:
    void Typed(const QString& text);
    void WholeWanted(bool whole);
    void NextWanted();
    void RowWanted(int row); // it is to be gone to
    void Closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Connect();

    FindBar* m_bar = nullptr;
    QCheckBox* m_whole = nullptr;
    RowList* m_list = nullptr;
    HitModel* m_model = nullptr;
    std::int32_t m_touched = 0; // of the hits that are shown
    std::optional<CommonRoutines::Hit> m_current;
};

} // namespace Ui
