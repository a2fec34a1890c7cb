#include "BenchWindow.h"
#include "Figures.h"
#include "Scenarios.h"

#include "core/State.h"

#include <QLineEdit>
#include <QTest>

#include <algorithm>
#include <vector>

namespace Bench {

using namespace CommonRoutines;

using Figures::Median;
using Figures::Percentile;
using Figures::Print;
using Figures::Require;

namespace {

constexpr int TypingRounds = 40;
constexpr int EditingRounds = 21;
constexpr int WholeListRounds = 5;
constexpr int ApplyingRounds = 7;
constexpr std::size_t NearlyAll = 95; // percent

// No district has it, so that with every key all variations are looked at.
const QString NewText = QStringLiteral("Quillanderby Wexcomb");

using Times = std::vector<double>;

// A line edit that does nothing but show what is typed, in a window of its own.
class BareEdit {
public:
    explicit BareEdit(const QWidget& like) {
        m_edit.setParent(&m_window);
        m_edit.setFont(like.font());
        m_edit.resize(like.size());
        m_window.resize(like.size());
        m_window.show();
    }
    QLineEdit& Emptied() {
        m_window.activateWindow();
        m_edit.setFocus();
        m_edit.clear();
        return m_edit;
    }

private:
    QWidget m_window;
    QLineEdit m_edit;
};

void TimeKeys(BenchWindow& window, QWidget& edit, Times& times) {
    for (const QChar key : NewText) {
        times.push_back(window.TimeOf([&] { QTest::keyClick(&edit, key.toLatin1()); }, edit));
    }
}

void TypeAnAdd(BenchWindow& window, Times& times) {
    auto& edit = window.Find<QLineEdit>("tbEdit");
    BenchWindow::Activate(*edit.window());
    window.Click("cbAdd");
    TimeKeys(window, edit, times);
    Require(iEditMode == AddingAcceptable && edit.text() == NewText, "typing");
    window.Click("cbCancel");
    window.Settle();
}

// The rows are different ones every time, from all over the list.
int RowOf(BenchWindow& window, int round) {
    constexpr int stride = 9973;
    return static_cast<int>(static_cast<std::int64_t>(round) * stride %
                            window.List("lvVariations").model()->rowCount());
}

// Selects one row; of those that are no spelling mistakes, when they are to be made some.
void SelectRow(BenchWindow& window, int row, bool withoutShriek = false) {
    const QAbstractItemModel& model = *window.List("lvVariations").model();
    while (withoutShriek && model.index(row, 0).data().toString().startsWith(QLatin1Char('!'))) {
        row = (row + 1) % model.rowCount();
    }
    window.ScrollTo("lvVariations", row);
    window.ClickRow("lvVariations", row);
    window.Settle();
}

struct EditingTimes {
    Times add, edit, remove, mark, undo;
};

// Times the click that carries out what has been prepared, and the click that takes it back.
void TimeChange(BenchWindow& window, const char* button, Times& change, Times& undo) {
    window.Settle();
    const QStringList before = window.Column("lvVariations");
    change.push_back(window.TimeOfClick(button, "lvVariations"));
    Require(window.Column("lvVariations") != before, button);
    undo.push_back(window.TimeOfClick("cbUndo", "lvVariations"));
    Require(window.Column("lvVariations") == before, "cbUndo");
}

void EditOnce(BenchWindow& window, int round, EditingTimes& times) {
    window.Click("cbAdd");
    window.Type(NewText);
    TimeChange(window, "cbOk", times.add, times.undo);

    SelectRow(window, RowOf(window, round));
    window.Type(QStringLiteral("ey"));
    TimeChange(window, "cbOk", times.edit, times.undo);

    SelectRow(window, RowOf(window, round));
    TimeChange(window, "cbDelete", times.remove, times.undo);

    SelectRow(window, RowOf(window, round), true);
    TimeChange(window, "cbShriek", times.mark, times.undo);
}

void SelectAllRows(BenchWindow& window) {
    SelectRow(window, 0);
    window.Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    window.Settle();
}

// Only where no row has the marker can it be added to all of them, so it is taken from all before.
double TimeToMarkAll(BenchWindow& window, const std::string& file) {
    window.Open(file);
    window.ChooseBiggestDistrict();
    SelectAllRows(window);
    window.Click("cbShriek");
    SelectAllRows(window);
    const double time = window.TimeOfClick("cbShriek", "lvVariations");
    const QStringList texts = window.Column("lvVariations");
    Require(
        std::all_of(texts.begin(), texts.end(), [](const QString& text) { return text.startsWith(QLatin1Char('!')); }),
        "cbShriek");
    return time;
}

} // namespace

void MeasureTyping(const std::string& file) {
    BenchWindow window;
    window.Open(file);
    Print("variations", window.ChooseBiggestDistrict());
    BareEdit bare(window.Find<QLineEdit>("tbEdit"));
    Times ours;
    Times bares;
    Times warmUp;
    TypeAnAdd(window, warmUp);
    TimeKeys(window, bare.Emptied(), warmUp);
    for (int round = 0; round < TypingRounds; ++round) {
        TypeAnAdd(window, ours);
        TimeKeys(window, bare.Emptied(), bares);
    }
    Print("key_ms", Median(ours));
    Print("key_p95_ms", Percentile(ours, NearlyAll));
    Print("bare_key_ms", Median(bares));
    Print("bare_key_p95_ms", Percentile(bares, NearlyAll));
}

void MeasureEditing(const std::string& file) {
    BenchWindow window;
    window.Open(file);
    Print("variations", window.ChooseBiggestDistrict());
    EditingTimes times;
    for (int round = 0; round < EditingRounds; ++round) {
        EditOnce(window, round, times);
    }
    Times markAll;
    for (int round = 0; round < WholeListRounds; ++round) {
        markAll.push_back(TimeToMarkAll(window, file));
    }
    Print("ok_add_ms", Median(times.add));
    Print("ok_edit_ms", Median(times.edit));
    Print("delete_ms", Median(times.remove));
    Print("mark_ms", Median(times.mark));
    Print("undo_ms", Median(times.undo));
    Print("mark_all_ms", Median(markAll));
}

void MeasureApplying(const std::string& file, const std::string& proposals) {
    BenchWindow window;
    Times times;
    std::size_t ignored = 0;
    window.desktop.onReport = [&](const Report& report) { ignored = report.items.size(); };
    std::int32_t added = 0;
    for (int round = 0; round < ApplyingRounds; ++round) {
        window.Open(file);
        const std::int32_t before = window.ChooseBiggestDistrict();
        window.desktop.fileToOpen = proposals;
        window.Click("btnProcess");
        times.push_back(window.TimeOfClick("cbApplyAll", "lvVariations"));
        added = RecordOf(lCurrentDistrict).lVariationCount - before;
    }
    Print("apply_ms", Median(times));
    Print("added", added);
    Print("report_lines", ignored);
}

} // namespace Bench
