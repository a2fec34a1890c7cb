#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace Ui {

// What is made meanwhile is for nobody else, from the moment that it is made.
class OnlyForTheUser {
public:
#ifdef Q_OS_UNIX
    OnlyForTheUser() : m_before(umask(S_IRWXG | S_IRWXO)) {}
    ~OnlyForTheUser() {
        umask(m_before);
    }
#else
    OnlyForTheUser() = default; // the folder lies among what is the user's alone
    ~OnlyForTheUser() = default;
#endif
    OnlyForTheUser(const OnlyForTheUser&) = delete;
    OnlyForTheUser& operator=(const OnlyForTheUser&) = delete;

private:
#ifdef Q_OS_UNIX
    mode_t m_before;
#endif
};

} // namespace Ui
