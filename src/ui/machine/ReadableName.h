#pragma once

#include <QString>

#include <string>

// A name by which the toolkit can read and overwrite a file. It knows names in UTF-8 alone; a file with another one is
// opened by its bytes, and goes by the number of its handle as long as this lives.
class ReadableName {
public:
    explicit ReadableName(const std::string& path);
    ~ReadableName();
    ReadableName(const ReadableName&) = delete;
    ReadableName& operator=(const ReadableName&) = delete;

    [[nodiscard]] const QString& ForToolkit() const { return m_name; }
    // The path without links in it; the path itself when nothing is there.
    [[nodiscard]] static std::string TruePath(const std::string& path);
    // Whether it is the number of a handle.
    [[nodiscard]] bool IsStandIn() const { return m_handle >= 0; }

private:
    int m_handle = -1;
    QString m_name;
};
