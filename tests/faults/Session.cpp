#include "Session.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace {

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// Everything that a session knows of the machine, so that nothing of the user's is touched.
std::vector<std::string> Environment(const Workplace& place, const Fault& fault) {
    std::string folders;
    for (const auto& folder : place.watched) {
        folders += (folders.empty() ? "" : ":") + folder.string();
    }
    const char* path = std::getenv("PATH");
    return {
        "PATH=" + std::string(path == nullptr ? "" : path),
        "HOME=" + place.home.string(),
        "XDG_RUNTIME_DIR=" + place.home.string(),
        "LANG=C.UTF-8",
        "QT_QPA_PLATFORM=offscreen",
        "LD_PRELOAD=" QUEXAL_FAULTY_CALLS,
        std::string("QUEXAL_FAULT_FAMILY=") + (fault.isOfLooks ? "looks" : "changes"),
        "QUEXAL_FAULT_FOLDERS=" + folders,
        "QUEXAL_FAULT_LOG=" + place.callLog.string(),
        "QUEXAL_FAULT_ACTION=" + fault.action,
        "QUEXAL_FAULT_CALL=" + std::to_string(fault.call),
        "QUEXAL_FAULT_ERROR=" + std::to_string(fault.error),
        "QUEXAL_FAULT_NAMED=" + std::to_string(fault.namedFilesOnly ? 1 : 0),
    };
}

// In the new process: becomes the session.
[[noreturn]] void BecomeSession(char* const* arguments, char* const* environment, int output) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(output, STDOUT_FILENO);
    execve(arguments[0], arguments, environment);
    _exit(127);
}

} // namespace

Steps operator+(Steps steps, const Steps& more) {
    steps.insert(steps.end(), more.begin(), more.end());
    return steps;
}

std::string Fault::Description() const {
    return (action.empty() ? "no fault" : action) + (isOfLooks ? " at look " : " at call ") + std::to_string(call) +
           (error == 0 ? "" : std::string(", ") + std::strerror(error)) +
           (namedFilesOnly ? ", files with names only" : "");
}

Session::Session(const Workplace& place, const Steps& steps, const Fault& fault) : m_callLog(place.callLog) {
    std::filesystem::remove(m_callLog);
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    std::vector<std::string> command{QUEXAL_FAULT_SESSION};
    command.insert(command.end(), steps.begin(), steps.end());
    std::vector<std::string> environment = Environment(place, fault);
    const std::vector<char*> arguments = Pointers(command);
    const std::vector<char*> variables = Pointers(environment);
    m_process = fork();
    if (m_process == 0) {
        BecomeSession(arguments.data(), variables.data(), ends[1]);
    }
    close(ends[1]);
    m_output = ends[0];
}

bool Session::ReadMore() {
    std::array<char, 4096> buffer{};
    const ssize_t length = read(m_output, buffer.data(), buffer.size());
    if (length <= 0) {
        return false;
    }
    m_unfinishedLine.append(buffer.data(), static_cast<std::size_t>(length));
    for (std::size_t end = 0; (end = m_unfinishedLine.find('\n')) != std::string::npos;) {
        m_milestones.push_back(m_unfinishedLine.substr(0, end));
        m_unfinishedLine.erase(0, end + 1);
    }
    return true;
}

void Session::ReadWhatIsThere() {
    pollfd waiting{m_output, POLLIN, 0};
    while (poll(&waiting, 1, 0) > 0 && ReadMore()) {
    }
}

bool Session::WaitFor(std::string_view milestone) {
    while (!Reached(milestone)) {
        if (!ReadMore()) {
            Finish();
            return Reached(milestone);
        }
    }
    return true;
}

bool Session::WaitForStop() {
    if (m_ended) {
        return false;
    }
    waitpid(m_process, &m_status, WUNTRACED);
    ReadWhatIsThere();
    m_ended = !WIFSTOPPED(m_status);
    return !m_ended;
}

void Session::Continue() {
    kill(m_process, SIGCONT);
}

void Session::Finish() {
    while (ReadMore()) {
    }
    if (!m_ended) {
        waitpid(m_process, &m_status, 0);
        m_ended = true;
    }
    if (m_output >= 0) {
        close(m_output);
        m_output = -1;
    }
}

void Session::Kill() {
    if (!m_ended) {
        kill(m_process, SIGKILL);
    }
    Finish();
}

bool Session::Reached(std::string_view milestone) const {
    return std::find(m_milestones.begin(), m_milestones.end(), milestone) != m_milestones.end();
}

int Session::LastEdit() const {
    return LastEditBefore("");
}

int Session::LastEditBefore(std::string_view wanted) const {
    constexpr std::string_view edit = "edit ";
    int last = 0;
    for (const std::string& milestone : m_milestones) {
        if (milestone == wanted) {
            break;
        }
        last = milestone.starts_with(edit) ? std::stoi(milestone.substr(edit.size())) : last;
    }
    return last;
}

std::string Session::Said() const {
    std::string said;
    for (const std::string& milestone : m_milestones) {
        said += milestone + "\n";
    }
    return said;
}

bool Session::WasKilled() const {
    return m_ended && WIFSIGNALED(m_status) && WTERMSIG(m_status) == SIGKILL;
}

std::vector<Call> Session::Calls() const {
    constexpr std::string_view failed = " failed";
    std::vector<Call> calls;
    std::ifstream log(m_callLog);
    for (std::string line; std::getline(log, line);) {
        Call call;
        call.failed = line.ends_with(failed);
        line.resize(line.size() - (call.failed ? failed.size() : 0));
        std::istringstream fields(line);
        int number = 0;
        fields >> number >> call.kind >> std::ws;
        std::getline(fields, call.path);
        calls.push_back(call);
    }
    return calls;
}

bool RunProgram(const std::vector<std::string>& command) {
    std::vector<std::string> texts = command;
    const std::vector<char*> arguments = Pointers(texts);
    const pid_t process = fork();
    if (process == 0) {
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = -1;
    return waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
