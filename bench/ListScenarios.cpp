#include "BenchWindow.h"
#include "Figures.h"
#include "Scenarios.h"

#include "core/State.h"

#include <QApplication>

#include <vector>

namespace Bench {

using namespace CommonRoutines;

using Figures::Median;
using Figures::Print;

namespace {

constexpr int Rounds = 21;

using Times = std::vector<double>;

struct ListTimes {
    Times click, down, end, letter, filter, all;
};

// A place in the list of districts; another one every time.
int PlaceOf(BenchWindow& window, int round) {
    constexpr std::int64_t stride = 618'033'989; // steps of the golden section meet no place twice
    constexpr std::int64_t scale = 1'000'000'000;
    return static_cast<int>(round * stride % scale * window.List("lvAlpha").model()->rowCount() / scale);
}

void ChooseOnce(BenchWindow& window, int round, ListTimes& times) {
    const int row = PlaceOf(window, round);
    window.ScrollTo("lvAlpha", row);
    times.click.push_back(window.TimeOf([&] { window.ClickRow("lvAlpha", row); }, "lvVariations"));
    times.down.push_back(window.TimeOf([&] { window.Key("lvAlpha", Qt::Key_Down); }, "lvVariations"));
    times.end.push_back(window.TimeOf([&] { window.Key("lvAlpha", Qt::Key_End); }, "lvVariations"));
    // The first names with a letter from the end of the alphabet, far from where the list begins.
    const auto letter = round % 2 == 0 ? Qt::Key_T : Qt::Key_W;
    times.letter.push_back(window.TimeOf([&] { window.Key("lvAlpha", letter); }, "lvVariations"));
}

void FilterOnce(BenchWindow& window, int round, ListTimes& times) {
    const int types = window.List("lbComments").model()->rowCount() - 1; // " All" is the first row
    const int type = 1 + round % types;
    window.ScrollTo("lbComments", type);
    times.filter.push_back(window.TimeOf([&] { window.ClickRow("lbComments", type); }, "lvAlpha"));
    window.ScrollTo("lbComments", 0);
    times.all.push_back(window.TimeOf([&] { window.ClickRow("lbComments", 0); }, "lvAlpha"));
}

} // namespace

void MeasureLists(const std::string& file) {
    BenchWindow window;
    window.Open(file);
    QApplication::setKeyboardInputInterval(0); // every letter is the first one
    ListTimes times;
    for (int round = 0; round < Rounds; ++round) {
        ChooseOnce(window, round, times);
        FilterOnce(window, round, times);
    }
    Print("districts", lDistrictTotal);
    Print("choose_click_ms", Median(times.click));
    Print("choose_down_ms", Median(times.down));
    Print("end_ms", Median(times.end));
    Print("letter_ms", Median(times.letter));
    Print("filter_ms", Median(times.filter));
    Print("all_ms", Median(times.all));
}

} // namespace Bench
