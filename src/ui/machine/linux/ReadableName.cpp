#include "ui/machine/ReadableName.h"

#include "ui/Text.h"

#include <QFileInfo>

#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace {

// The toolkit may know another file by the name that it makes of this one.
bool IsText(const std::string& path) {
    return Text::PathFromQt(Text::PathToQt(path)) == path;
}

} // namespace

std::string ReadableName::TruePath(const std::string& path) {
    const auto name = IsText(path) ? QFileInfo(Text::PathToQt(path)).filesystemFilePath() : std::filesystem::path(path);
    std::error_code error;
    auto truePath = std::filesystem::canonical(name, error);
    if (error && error != std::errc::no_such_file_or_directory) { // a call may fail once
        truePath = std::filesystem::canonical(name, error);
    }
    if (error) {
        return path;
    }
    return IsText(path) ? Text::PathFromQt(QFileInfo(truePath).filePath()) : truePath.string();
}

ReadableName::ReadableName(const std::string& path) : m_name(Text::PathToQt(path)) {
    if (IsText(path)) {
        return;
    }
    m_handle = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); // what is no file must not be waited for
    if (m_handle >= 0) {
        m_name = QStringLiteral("/proc/self/fd/%1").arg(m_handle);
    }
}

ReadableName::~ReadableName() {
    if (m_handle >= 0) {
        close(m_handle);
    }
}
