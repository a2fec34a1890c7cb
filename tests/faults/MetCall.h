#pragma once

// What is preloaded into a program makes its calls to the system fail, or stops or kills it at them. Only calls on what
// is in the folders named count, and only those of one family. The environment says what happens:
//   QUEXAL_FAULT_FAMILY   looks for the calls that only look at the disk, otherwise those count that change it
//   QUEXAL_FAULT_FOLDERS  the folders, separated by ":", without symbolic links in their paths
//   QUEXAL_FAULT_LOG      a file that gets a line "NUMBER KIND PATH" for every call met, and " failed" behind it
//                         when the call is made to fail
//   QUEXAL_FAULT_ACTION   fail         the call fails and does nothing
//                         fail-on      so do all calls after it
//                         short        a write takes half of what it is given, or one byte of one
//                         pretend      every call that has data put on the disk succeeds and does nothing
//                         kill-before  the program is killed before the call
//                         kill-after   the program is killed when the call has been made
//                         tear         a write takes nine tenths, and the program is killed
//                         stop         the program is stopped before every call
//   QUEXAL_FAULT_CALL     the number of the call, from 1 on
//   QUEXAL_FAULT_ERROR    the number of the error with which it fails
//   QUEXAL_FAULT_NAMED    1 for a file system that knows no files without a name
// The system is called directly, so that nothing that this file does is met by itself.

#include <cstddef>
#include <string>
#include <string_view>

enum class Family { Changes, Looks };

// Whether calls of this family count.
bool Counts(Family family);
// Whether the file system is to know no files without a name, where this one is.
bool IsNamedOnly(const std::string& path);

// The path of what is open.
std::string PathOf(int handle);
// The path that a call gets, relative to a folder that it gets too, as a whole.
std::string PathOf(int folder, const char* path);

// A call that has been met: how it is to go.
class Met {
public:
    Met(Family family, const char* kind, const std::string& path);
    Met(const Met&) = delete;
    Met& operator=(const Met&) = delete;
    ~Met();

    // Sets the error of the call, too.
    [[nodiscard]] bool Fails() const;
    [[nodiscard]] bool Pretends() const;
    // How much of what it is given a write takes.
    [[nodiscard]] std::size_t Shortened(std::size_t size) const;

private:
    // Whether this is the call that the action is for.
    [[nodiscard]] bool Is(std::string_view action) const;

    bool m_watched = false;
    bool m_fails = false;
    int m_number = 0;
};
