#include "ui/machine/FileLook.h"

#include "ui/machine/windows/Native.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace FileLook {

namespace {

using Native::Handle;

constexpr std::size_t LongestName = 32768;

std::error_code ErrorOf(DWORD error) {
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_DIRECTORY:
    case ERROR_FILENAME_EXCED_RANGE:
        return std::make_error_code(std::errc::no_such_file_or_directory);
    default:
        return {static_cast<int>(error), std::system_category()};
    }
}

std::filesystem::file_type TypeOf(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION info{};
    if (GetFileType(file) != FILE_TYPE_DISK) {
        return std::filesystem::file_type::unknown;
    }
    if (GetFileInformationByHandle(file, &info) == 0) {
        return std::filesystem::file_type::none;
    }
    return (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? std::filesystem::file_type::directory
                                                                   : std::filesystem::file_type::regular;
}

std::optional<QString> FinalName(HANDLE file, DWORD kind) {
    std::wstring name(LongestName, L'\0');
    const DWORD size = GetFinalPathNameByHandleW(file, name.data(), static_cast<DWORD>(name.size()), kind);
    if (size == 0 || size >= name.size()) {
        return std::nullopt;
    }
    name.resize(size);
    return Native::PathOf(name);
}

// Some disks know no final names. Without a link at its end, a name is still good for putting a file there.
std::optional<QString> LongName(const QString& path) {
    const Handle file(Native::Open(path, FILE_READ_ATTRIBUTES, FILE_FLAG_OPEN_REPARSE_POINT));
    BY_HANDLE_FILE_INFORMATION info{};
    std::wstring name(LongestName, L'\0');
    if (!file.IsOpen() || GetFileInformationByHandle(file.Get(), &info) == 0 ||
        (info.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        return std::nullopt;
    }
    const DWORD size = GetLongPathNameW(Native::NameOf(path).c_str(), name.data(), static_cast<DWORD>(name.size()));
    name.resize(size < name.size() ? size : 0);
    return name.empty() ? std::nullopt : std::optional(Native::PathOf(name));
}

// Of a folder this means something else.
bool IsReadOnly(const QString& path) {
    const DWORD attributes = GetFileAttributesW(Native::NameOf(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0 &&
           (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// The names that are devices in every folder, with any ending.
bool IsDevice(const QString& name) {
    static const QStringList devices{QStringLiteral("CON"), QStringLiteral("PRN"),    QStringLiteral("AUX"),
                                     QStringLiteral("NUL"), QStringLiteral("CONIN$"), QStringLiteral("CONOUT$"),
                                     QStringLiteral("COM"), QStringLiteral("LPT")};
    static const QString numbers = QStringLiteral("0123456789\u00B9\u00B2\u00B3");
    const QString stem = name.section(QLatin1Char('.'), 0, 0).trimmed();
    const bool isNumbered = stem.size() == 4 && numbers.contains(stem.back()); // as COM1
    const QString kind = isNumbered ? stem.chopped(1) : stem;
    return devices.contains(kind, Qt::CaseInsensitive) &&
           isNumbered == (devices.indexOf(kind.toUpper()) >= devices.indexOf(QStringLiteral("COM")));
}

} // namespace

std::filesystem::file_status StatusOf(const QString& path) {
    const Handle file(Native::Open(path));
    if (file.IsOpen()) {
        return std::filesystem::file_status(TypeOf(file.Get()));
    }
    return std::filesystem::file_status(IsMissing(ErrorOf(GetLastError())) ? std::filesystem::file_type::not_found
                                                                           : std::filesystem::file_type::none);
}

// With its letters in the case in which they are on the disk, and its long names: there, too, a file has one name
// alone.
std::optional<QString> WithoutLinks(const QString& path) {
    const Handle file(Native::Open(path));
    if (!file.IsOpen()) {
        return std::nullopt;
    }
    auto name = FinalName(file.Get(), FILE_NAME_NORMALIZED);
    name = name ? name : FinalName(file.Get(), FILE_NAME_OPENED); // where a folder above may not be read
    return name ? name : LongName(path);
}

std::uintmax_t SizeOf(const QString& path, std::error_code& error) {
    const Handle file(Native::Open(path));
    LARGE_INTEGER size{};
    error.clear();
    if (!file.IsOpen() || GetFileSizeEx(file.Get(), &size) == 0) {
        error = ErrorOf(GetLastError());
    } else if (TypeOf(file.Get()) != std::filesystem::file_type::regular) {
        error = std::make_error_code(std::errc::is_a_directory);
    }
    return error ? static_cast<std::uintmax_t>(-1) : static_cast<std::uintmax_t>(size.QuadPart);
}

bool IsMissing(const std::error_code& error) {
    return error == std::make_error_code(std::errc::no_such_file_or_directory);
}

// The toolkit knows no other time than that of the content.
std::string TimesOf(const QString& path) {
    const Handle file(Native::Open(path));
    FILE_BASIC_INFO info{};
    if (!file.IsOpen() || GetFileInformationByHandleEx(file.Get(), FileBasicInfo, &info, sizeof info) == 0) {
        static int unknown = 0;
        return " unknown " + std::to_string(++unknown); // like no other
    }
    return ' ' + std::to_string(info.LastWriteTime.QuadPart) + ' ' + std::to_string(info.ChangeTime.QuadPart);
}

bool AreOne(const QString& a, const QString& b) {
    const Handle fileOfA(Native::Open(a));
    const Handle fileOfB(Native::Open(b));
    return fileOfA.IsOpen() && fileOfB.IsOpen() && Native::AreOne(fileOfA.Get(), fileOfB.Get());
}

bool IsGone(const QString& path) {
    const Handle file(Native::Open(path, FILE_READ_ATTRIBUTES, FILE_FLAG_OPEN_REPARSE_POINT));
    return !file.IsOpen() && IsMissing(ErrorOf(GetLastError()));
}

std::vector<std::string> NamesIn(const QString& folder, std::error_code& error) {
    std::vector<std::string> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileExW(Native::NameOf(folder + QStringLiteral("/*")).c_str(), FindExInfoBasic,
                                           &found, FindExSearchNameMatch, nullptr, 0);
    error.clear();
    if (search == INVALID_HANDLE_VALUE) {
        error = ErrorOf(GetLastError());
        return names;
    }
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            names.push_back(QString::fromWCharArray(&found.cFileName[0]).toStdString());
        }
    } while (FindNextFileW(search, &found) != 0);
    if (const DWORD last = GetLastError(); last != ERROR_NO_MORE_FILES) {
        error = ErrorOf(last);
    }
    FindClose(search);
    return names;
}

QString Message(const std::error_code& error) {
    return error.category() == std::system_category() ? qt_error_string(error.value())
                                                      : QString::fromStdString(error.message());
}

// Who has it open now does not count. Of a folder, the same right is that to make files in it.
bool MayWrite(const QString& path) {
    const Handle file(Native::Open(path, FILE_WRITE_DATA));
    if (!file.IsOpen()) {
        const DWORD error = GetLastError();
        return error == ERROR_SHARING_VIOLATION;
    }
    return (Native::VolumeOf(file.Get()).value_or(0) & FILE_READ_ONLY_VOLUME) == 0 && !IsReadOnly(path);
}

bool MayMakeFilesIn(const QString& folder) {
    return StatusOf(folder).type() == std::filesystem::file_type::directory && MayWrite(folder);
}

bool MayBeNamed(const QString& path) {
    const QString native = QDir::fromNativeSeparators(path);
    const QString name = native.section(QLatin1Char('/'), -1);
    const auto isNone = [](QChar c) { return c.unicode() < ' ' || QStringLiteral("<>:\"|?*").contains(c); };
    return !name.isEmpty() && !name.endsWith(QLatin1Char('.')) && !name.endsWith(QLatin1Char(' ')) &&
           std::none_of(name.begin(), name.end(), isNone) && !IsDevice(name);
}

// A drive alone would mean the folder that is its current one.
QString FolderLeft(const QString& beginning) {
    const bool isDrive = beginning.size() == 2 && beginning.back() == QLatin1Char(':');
    return isDrive ? beginning + QLatin1Char('/') : beginning;
}

} // namespace FileLook
