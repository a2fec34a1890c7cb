#include "BenchWindow.h"
#include "Figures.h"
#include "Scenarios.h"

#include "core/State.h"

#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

namespace Bench {

using namespace CommonRoutines;

using Figures::Print;

namespace {

// A line of what the system knows about this process, in bytes: "VmRSS" is the resident memory,
// "VmHWM" the most that it has ever been.
std::uint64_t Memory(std::string_view name) {
    constexpr std::uint64_t kilobyte = 1024;
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with(name)) {
            return std::stoull(line.substr(line.find_first_of("0123456789"))) * kilobyte;
        }
    }
    return 0;
}

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
