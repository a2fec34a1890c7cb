#include "BenchWindow.h"
#include "Figures.h"
#include "Scenarios.h"

#include "core/State.h"

#include <cstdint>
#include <string>

namespace Bench {

using namespace CommonRoutines;

using Figures::Memory;
using Figures::Print;

namespace {

std::int64_t VariationCount() {
    std::int64_t count = 0;
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        count += RecordOf(i).lVariationCount;
    }
    return count;
}

void OpenAndPrint(BenchWindow& window, const std::string& file) {
    Print("before_bytes", Memory("VmRSS"));
    const double time = window.Open(file);
    Print("open_ms", time);
    Print("resident_bytes", Memory("VmRSS"));
    Print("peak_bytes", Memory("VmHWM"));
    Print("lines", lLineCount);
    Print("variations", VariationCount());
}

// Something must have changed before the file can be saved.
void MarkOneVariation(BenchWindow& window) {
    window.ChooseBiggestDistrict();
    window.TimeOf([&] { window.ClickRow("lvVariations", 0); }, "lvVariations");
    window.TimeOfClick("cbShriek", "lvVariations");
}

} // namespace

void ShowWindow() {
    BenchWindow window;
}

void ShowEmptyWindow() {
    PaintWatch paints;
    QWidget window;
    window.resize(WindowSize);
    window.show();
    paints.Expect(&window);
    paints.Wait();
}

void MeasureOpening(const std::string& file) {
    BenchWindow window;
    OpenAndPrint(window, file);
}

void MeasureSession(const std::string& file) {
    BenchWindow window;
    OpenAndPrint(window, file);
    std::size_t findings = 0;
    Print("check_ms", window.TimeToReport("cbCompleteCheck", findings));
    Print("findings", findings);
    MarkOneVariation(window);
    window.desktop.fileToSave = file + ".saved";
    Print("save_ms", window.TimeOfClick("cbSave"));
    Figures::Require(!bChanged, "cbSave");
    Print("session_peak_bytes", Memory("VmHWM"));
}

} // namespace Bench
