#include "ui/machine/ReadableName.h"

#include "ui/Text.h"
#include "ui/machine/FileLook.h"

// Every name is text there, and the toolkit knows it.

std::string ReadableName::TruePath(const std::string& path) {
    const QString name = Text::PathToQt(path);
    auto truePath = FileLook::WithoutLinks(name);
    if (!truePath) { // a call may fail once
        truePath = FileLook::WithoutLinks(name);
    }
    return truePath ? Text::PathFromQt(*truePath) : path;
}

ReadableName::ReadableName(const std::string& path) : m_name(Text::PathToQt(path)) {}

ReadableName::~ReadableName() = default;
