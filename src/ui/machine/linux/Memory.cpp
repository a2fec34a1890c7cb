#include "ui/machine/Memory.h"

#include <QFile>

#include <algorithm>
#include <optional>

#include <sys/resource.h>
#include <unistd.h>

namespace Memory {

namespace {

QByteArrayList WordsOf(const QString& systemFile) {
    QFile file(systemFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll().simplified().split(' ') : QByteArrayList();
}

// What the program has been given, in bytes: among the numbers of pages, that of its data is the sixth.
std::optional<rlim_t> Taken() {
    bool ok = false;
    const auto pages = WordsOf(QStringLiteral("/proc/self/statm")).value(5).toULongLong(&ok);
    return ok ? std::optional<rlim_t>(pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE))) : std::nullopt;
}

// What the machine has left, in bytes: of its memory, and of the disk that stands in for it.
std::optional<rlim_t> Left() {
    constexpr rlim_t kilobyte = 1024;
    const QByteArrayList words = WordsOf(QStringLiteral("/proc/meminfo"));
    rlim_t left = 0;
    for (const char* label : {"MemAvailable:", "SwapFree:"}) {
        bool ok = false;
        const qsizetype place = words.indexOf(label);
        left += place < 0 ? 0 : words.value(place + 1).toULongLong(&ok) * kilobyte;
        if (!ok) {
            return std::nullopt;
        }
    }
    return left;
}

} // namespace

void LimitToWhatIsLeft() {
    // The limit that the user has set, if any, is never raised.
    static const rlimit before = [] {
        rlimit limit{RLIM_INFINITY, RLIM_INFINITY};
        getrlimit(RLIMIT_DATA, &limit);
        return limit;
    }();
    const auto taken = Taken();
    const auto left = Left();
    if (taken && left) {
        const rlimit limit{std::min(before.rlim_cur, *taken + *left), before.rlim_max};
        setrlimit(RLIMIT_DATA, &limit);
    }
}

} // namespace Memory
