#include "ui/machine/ReadableName.h"

#include "ui/Text.h"

#include <QFileInfo>

// Every name is text there, and the toolkit knows it.

std::string ReadableName::TruePath(const std::string& path) {
    const QString truePath = QFileInfo(Text::PathToQt(path)).canonicalFilePath();
    return truePath.isEmpty() ? path : Text::PathFromQt(truePath);
}

ReadableName::ReadableName(const std::string& path) : m_name(Text::PathToQt(path)) {}

ReadableName::~ReadableName() = default;
