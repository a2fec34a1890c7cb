#pragma once

#include "PaintWatch.h"
#include "driver/AnsweringDesktop.h"
#include "driver/DrivenForm.h"

#include <QSize>

#include <cstdint>
#include <functional>
#include <string>

namespace Bench {

constexpr QSize WindowSize(1240, 680);

// The main window as a user sees it, and what a user does to it. What is done is timed from the click
// or the key to the painted result, in milliseconds.
class BenchWindow : public Ui::DrivenForm<Ui::AnsweringDesktop> {
public:
    BenchWindow();

    void ScrollTo(const char* list, int row);

    // The time from `action` until `result` is painted and everything else with it; a list is painted
    // where its rows are.
    double TimeOf(const std::function<void()>& action, QWidget& result);
    double TimeOf(const std::function<void()>& action, const char* list) {
        return TimeOf(action, *List(list).viewport());
    }
    double TimeOfClick(const char* button, const char* list) {
        return TimeOf([&] { Click(button); }, list);
    }
    // The time of a click that is answered by a dialogue instead of a painted result.
    double TimeOfClick(const char* button);
    // The time from a click to the painted report, which is then closed; leaves the number of its lines.
    double TimeToReport(const char* button, std::size_t& lines);

    // Waits until there is nothing left to paint.
    void Settle();

    double Open(const std::string& path);
    // Chooses the district with the most variations and returns how many they are.
    std::int32_t ChooseBiggestDistrict();

private:
    void ShowReport(const CommonRoutines::Report& report, const std::function<void()>& onPainted);

    PaintWatch m_paints;
};

} // namespace Bench
