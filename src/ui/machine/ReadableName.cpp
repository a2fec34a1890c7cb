#include "ui/machine/ReadableName.h"

#include "ui/Text.h"

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <unistd.h>
#endif

ReadableName::ReadableName(const std::string& path) : m_name(Text::PathToQt(path)) {
#ifdef Q_OS_LINUX
    if (Text::PathFromQt(m_name) == path) {
        return;
    }
    m_handle = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); // what is no file must not be waited for
    if (m_handle >= 0) {
        m_name = QStringLiteral("/proc/self/fd/%1").arg(m_handle);
    }
#endif
}

ReadableName::~ReadableName() {
#ifdef Q_OS_LINUX
    if (m_handle >= 0) {
        close(m_handle);
    }
#endif
}
