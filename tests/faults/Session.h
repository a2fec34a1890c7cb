#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

// Where a session works. Its calls are watched in the folders named; what it is and has of its own, settings
// included, is below its home.
struct Workplace {
    std::filesystem::path file; // the data file
    std::filesystem::path home;
    std::filesystem::path callLog;
    std::vector<std::filesystem::path> watched;
};

// What happens to a session's calls to the system (FaultyCalls.cpp).
struct Fault {
    std::string action; // none when it is empty
    int call = 0;
    int error = 0;
    bool namedFilesOnly = false; // as if the file system knew no files without a name
    bool isOfLooks = false;      // at the calls that only look at the disk, in place of those that change it

    [[nodiscard]] std::string Description() const;
};

// A call to the system that a session made in a watched folder.
struct Call {
    std::string kind;
    std::string path;
    bool failed = false;
};

using Steps = std::vector<std::string>;
Steps operator+(Steps steps, const Steps& more);

// A session with the real window in a process of its own (session.cpp), which ends with its owner.
class Session {
public:
    Session(const Workplace& place, const Steps& steps, const Fault& fault = {});
    ~Session() { Kill(); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Waits for a milestone. False when the session ended without it.
    bool WaitFor(std::string_view milestone);
    // Waits until the session stops at a call. False when it has ended.
    bool WaitForStop();
    void Continue();
    // Waits for the end.
    void Finish();
    void Kill();

    [[nodiscard]] bool Reached(std::string_view milestone) const;
    // Whether the session came to its end by itself, with every step made.
    [[nodiscard]] bool Finished() const { return Reached("finished"); }
    [[nodiscard]] bool WasKilled() const;
    // The number of the last edit made; 0 when there is none.
    [[nodiscard]] int LastEdit() const;
    // The number of the last edit made before a milestone.
    [[nodiscard]] int LastEditBefore(std::string_view milestone) const;
    // All milestones, a line each.
    [[nodiscard]] std::string Said() const;
    // The calls made so far.
    [[nodiscard]] std::vector<Call> Calls() const;

private:
    bool ReadMore();
    void ReadWhatIsThere();

    std::filesystem::path m_callLog;
    pid_t m_process = -1;
    int m_output = -1;
    bool m_ended = false;
    int m_status = 0;
    std::string m_unfinishedLine;
    std::vector<std::string> m_milestones;
};

// Runs a program of the machine with its output thrown away. True when it says that all went well.
bool RunProgram(const std::vector<std::string>& command);
