#pragma once

#include <QList>
#include <QSplitter>

#include <span>
#include <vector>

namespace Ui {

// What a part of a splitter wants of its length, in pixels.
struct PartWish {
    int least = 0;
    int enough = 0;
    int turn = 0;   // among the parts that want enough; the lowest comes first
    int weight = 1; // of its share in what is left then
};

// Shares a length out: each part has its least, then one after the other gets enough, then all have a share in the
// rest. The sum is the length, unless that is less than all the least ones.
[[nodiscard]] std::vector<int> ShareOut(int length, std::span<const PartWish> parts);

// Parts beside or above each other, none of which can be hidden. Between them are handles for the mouse and, as
// they take the focus, for the arrow keys. As long as no handle was moved, every length is shared out anew.
class Splitter : public QSplitter {
public:
    Splitter(Qt::Orientation orientation, int gap, QWidget* parent);

    // Adds a part at the end. Its least is its smallest size.
    void AddPart(QWidget* part, PartWish wish);

    // The handles, in their order, once all parts are there.
    [[nodiscard]] QList<QWidget*> Handles() const;

protected:
    QSplitterHandle* createHandle() override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Handle;

    void Share();

    std::vector<PartWish> m_wishes;
    bool m_moved = false;
};

} // namespace Ui
