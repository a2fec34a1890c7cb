// Measures one thing that a user does with the real window, offscreen, and prints what it took:
//   quexal-bench-window open|session|typing|editing|lists|find FILE
//   quexal-bench-window apply FILE PROPOSALS
// or only brings up the window, or an empty one of the toolkit, and ends when it has been painted:
//   quexal-bench-window start|empty

#include "Scenarios.h"
#include "driver/OffscreenPlatform.h"
#include "driver/UserPlaces.h"

#include <QApplication>

#include <filesystem>
#include <iostream>
#include <map>
#include <string>
#include <vector>

using namespace Bench;

namespace {

int Measure(const std::string& scenario, const std::vector<std::string>& files) {
    using Scenario = void (*)(const std::string&);
    const std::map<std::string, Scenario> scenarios{{"open", MeasureOpening},  {"session", MeasureSession},
                                                    {"typing", MeasureTyping}, {"editing", MeasureEditing},
                                                    {"lists", MeasureLists},   {"find", MeasureFinding}};
    if (scenario == "apply" && files.size() == 2) {
        MeasureApplying(files[0], files[1]);
        return 0;
    }
    if (files.empty() && (scenario == "start" || scenario == "empty")) {
        scenario == "start" ? ShowWindow() : ShowEmptyWindow();
        return 0;
    }
    const auto found = scenarios.find(scenario);
    if (found == scenarios.end() || files.size() != 1) {
        std::cerr << "usage: quexal-bench-window open|session|typing|editing|lists|find FILE\n"
                     "       quexal-bench-window apply FILE PROPOSALS\n"
                     "       quexal-bench-window start|empty\n";
        return 2;
    }
    found->second(files[0]);
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    UseOffscreenPlatform();
    // The platform's own pause before it paints is no work of the program's.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    const UserPlaces places; // unsaved changes go on a real disk, but not among the user's own
    QApplication application(argc, argv);
    std::vector<std::string> files;
    for (int i = 2; i < argc; ++i) {
        // The program makes its own folder the current one.
        files.push_back(std::filesystem::absolute(argv[i]).string());
    }
    return Measure(argc > 1 ? argv[1] : "", files);
}
