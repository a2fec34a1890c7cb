// A session with the real window, offscreen, step by step: quexal-fault-session STEP...
//   open PATH            opens a data file
//   edits FIRST LAST     makes the edits with these numbers
//   save PATH            saves, where there is something to save; cancels the dialogue when the path is empty
//   check                runs the complete check
//   close                closes the window, but keeps what that would lose
//   pause                stops until it is continued
//   largest SIZE         from now on, no file may grow beyond this size
//   memory SIZE          from now on, no more memory may be taken than this, nor what lies free in large blocks
//   handles COUNT        from now on, no more than so many further files may be open at a time
//   unlimited            takes these limits back
//   defaults             from now on, questions are answered as the return key does
//   agree                from now on, they are answered with Yes again
//   refuse               from now on, unsaved changes of an earlier session are not wanted
//   postpone             from now on, the question about them is left with Esc
// What is reached is printed, a line each: "opened", "edit NUMBER", "saving", "saved" when the program said so,
// "nothing to save", "checked", "closed" or "still open", "box TEXT" for every box, and "finished" after the last step.

#include "SessionWindow.h"

#include <QApplication>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

namespace {

class Steps {
public:
    Steps(int count, char* const* texts) : m_count(count), m_texts(texts) {}

    [[nodiscard]] bool AtEnd() const { return m_next == m_count; }
    std::string Next() {
        if (AtEnd()) {
            qFatal("the last step is not complete");
        }
        return m_texts[m_next++];
    }

private:
    int m_count;
    char* const* m_texts;
    int m_next = 1;
};

// The toolkit warns of what an offscreen window in an empty home lacks; what ends the program is said.
void SayWhatIsFatal(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "quexal-fault-session: %s\n", qUtf8Printable(text));
    }
}

void MakeEdits(SessionWindow& window, int first, int last) {
    for (int number = first; number <= last; ++number) {
        window.MakeEdit(number);
        Milestone("edit " + std::to_string(number));
    }
}

rlim_t MemoryTaken() {
    rlim_t pages = 0;
    std::ifstream file("/proc/self/statm");
    for (int number = 0; number < 6; ++number) {
        file >> pages;
    }
    return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

// As far as it may be raised again.
void Limit(__rlimit_resource resource, rlim_t most) {
    rlimit limit{};
    getrlimit(resource, &limit);
    limit.rlim_cur = std::min(most, limit.rlim_max);
    setrlimit(resource, &limit);
}

rlim_t FirstFreeHandle() {
    const int handle = dup(STDOUT_FILENO);
    close(handle);
    return static_cast<rlim_t>(handle);
}

// What has been given back may lie ready for the next one who asks.
void OccupyLargeBlocks() {
    constexpr std::size_t large = std::size_t{512} << 10; // smaller ones are for the toolkit, which ends without any
    while (std::malloc(large) != nullptr) {
    }
}

void Play(SessionWindow& window, Steps& steps) {
    const std::string step = steps.Next();
    if (step == "open") {
        window.Open(steps.Next());
        Milestone("opened");
    } else if (step == "edits") {
        const int first = std::stoi(steps.Next());
        MakeEdits(window, first, std::stoi(steps.Next()));
    } else if (step == "save") {
        window.Save(steps.Next());
    } else if (step == "check") {
        window.Check();
        Milestone("checked");
    } else if (step == "close") {
        Milestone(window.Close() ? "closed" : "still open");
    } else if (step == "pause") {
        std::raise(SIGSTOP);
    } else if (step == "largest") {
        Limit(RLIMIT_FSIZE, std::stoul(steps.Next()));
    } else if (step == "memory") {
        Limit(RLIMIT_DATA, MemoryTaken() + std::stoul(steps.Next()));
        OccupyLargeBlocks();
    } else if (step == "handles") {
        Limit(RLIMIT_NOFILE, FirstFreeHandle() + std::stoul(steps.Next()));
    } else if (step == "unlimited") {
        Limit(RLIMIT_FSIZE, RLIM_INFINITY);
        Limit(RLIMIT_NOFILE, RLIM_INFINITY);
        Limit(RLIMIT_DATA, RLIM_INFINITY);
    } else if (step == "defaults" || step == "agree") {
        window.desktop.takesDefaults = step == "defaults";
    } else if (step == "refuse" || step == "postpone") {
        using CommonRoutines::BoxAnswer;
        window.desktop.aboutUnsavedChanges = step == "refuse" ? BoxAnswer::No : BoxAnswer::Cancel;
    } else {
        qFatal("no step is called %s", step.c_str());
    }
}

} // namespace

int main(int argc, char* argv[]) {
    qInstallMessageHandler(SayWhatIsFatal);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quexal-editor"));
    SessionWindow window;
    Steps steps(argc, argv);
    while (!steps.AtEnd()) {
        Play(window, steps);
    }
    Milestone("finished");
    // The window is not closed: a user who is asked about changes there would keep or drop them knowingly.
    _exit(0);
}
