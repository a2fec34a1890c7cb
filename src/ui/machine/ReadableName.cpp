#include "ui/machine/ReadableName.h"

#include "ui/Text.h"

#include <QFileInfo>

#include <filesystem>
#include <system_error>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

// The toolkit may know another file by the name that it makes of this one.
bool IsText(const std::string& path) {
    return Text::PathFromQt(Text::PathToQt(path)) == path;
}

} // namespace

std::string ReadableName::TruePath(const std::string& path) {
    if (!IsText(path)) {
        std::error_code error;
        const auto truePath = std::filesystem::canonical(path, error);
        return error ? path : truePath.string();
    }
    const QString truePath = QFileInfo(Text::PathToQt(path)).canonicalFilePath();
    return truePath.isEmpty() ? path : Text::PathFromQt(truePath);
}

ReadableName::ReadableName(const std::string& path) : m_name(Text::PathToQt(path)) {
#ifdef Q_OS_LINUX
    if (IsText(path)) {
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
