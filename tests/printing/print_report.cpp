// Prints a report on the default printer, as the report window does: quexal-print-report COUNT. The
// items are numbered lines, every tenth one too long for a line of the paper.

#include "checks/ReportOutput.h"
#include "driver/AnsweringDesktop.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

using namespace CommonRoutines;
using namespace Ui;

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const int count = argc == 2 ? std::atoi(argv[1]) : 0;
    std::vector<std::string> items;
    for (int i = 1; i <= count; ++i) {
        std::string item = "Item " + std::to_string(i) + " says that District <b>A</b> contains a duplicate";
        if (i % 10 == 0) {
            item += " - " + std::string(150, 'x') + " end" + std::to_string(i);
        }
        items.push_back(item);
    }
    AnsweringDesktop desktop;
    desktop.onBox = [](std::string_view text) { std::printf("%.*s\n", static_cast<int>(text.size()), text.data()); };
    CommonRoutines::PrintReport({"Duplicate Check", std::move(items)}, "/data/north.txt", desktop);
    return 0;
}
