// Opens a data file in the real window, offscreen, and prints how long each round took from the click
// on "Open File" to the painted list and from the click on "Complete Variation Check" to its report,
// and the peak memory: quexal-bench-open FILE [ROUNDS].

#include "AnsweringDesktop.h"

#include "core/State.h"
#include "ui/Form1.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

int main(int argc, char* argv[]) {
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("usage: quexal-bench-open FILE [ROUNDS]\n", stderr);
        return 2;
    }
    AnsweringDesktop desktop(argv[1]);
    Form1 form(desktop);
    desktop.SetWindow(&form);
    form.LoadForm();
    form.show();
    QApplication::processEvents();
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 1;
    const auto secondsFor = [&](const char* button) {
        QElapsedTimer clock;
        clock.start();
        form.findChild<QPushButton*>(QString::fromLatin1(button))->click();
        QApplication::processEvents();
        return static_cast<double>(clock.nsecsElapsed()) / 1e9;
    };
    for (int round = 0; round < rounds; ++round) {
        CommonRoutines::bChanged = false;
        const double open = secondsFor("cbOpen");
        rusage afterOpening{};
        getrusage(RUSAGE_SELF, &afterOpening);
        const double check = argc > 3 ? 0 : secondsFor("cbCompleteCheck");
        std::printf("open %.3f s, %d lines, peak %.1f MB; check %.3f s, %zu findings\n", open,
                    CommonRoutines::lLineCount, static_cast<double>(afterOpening.ru_maxrss) / 1024, check,
                    desktop.reportLines);
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak memory %.1f MB\n", static_cast<double>(usage.ru_maxrss) / 1024);
    return 0;
}
