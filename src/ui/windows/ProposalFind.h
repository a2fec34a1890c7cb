#pragma once

#include <QObject>

class QString;

namespace Ui {

class FindBar;
class ProposalModel;
class RowList;

// Find among the proposals: its bar above their list, and in the list only the proposals that hold the text in it.
// Ticks, counts and commands stay those of all.
class ProposalFind : public QObject {
public:
    // `list` stands in a column with its buttons; `model` is its model. Both must live as long as this.
    ProposalFind(RowList& list, ProposalModel& model, QObject* parent);

    // Opens the bar where the focus is in that column; otherwise nothing happens, and the answer is false.
    [[nodiscard]] bool OpenWithin();

    // What the list says when there are no proposals.
    void SetHint(const QString& hint);

private:
    void Filter(const QString& text);
    void ShowFound();

    RowList& m_list;
    ProposalModel& m_model;
    FindBar* m_bar;
    QString m_hint;
};

} // namespace Ui
