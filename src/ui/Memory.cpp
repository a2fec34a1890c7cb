#include "ui/Memory.h"

#include "core/Desktop.h"

#include <QFile>

#include <new>
#include <optional>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace Memory {

namespace {

#ifdef Q_OS_LINUX

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

// What the machine has left, in bytes.
std::optional<rlim_t> Left() {
    constexpr rlim_t kilobyte = 1024;
    bool ok = false;
    const QByteArrayList words = WordsOf(QStringLiteral("/proc/meminfo"));
    const qsizetype label = words.indexOf("MemAvailable:");
    const auto kilobytes = label < 0 ? 0 : words.value(label + 1).toULongLong(&ok);
    return ok ? std::optional<rlim_t>(kilobytes * kilobyte) : std::nullopt;
}

#endif

} // namespace

void LimitToWhatIsLeft() {
#ifdef Q_OS_LINUX
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
#endif
}

void Run(Desktop& desktop, const std::function<void()>& command) {
    try {
        command();
    } catch (const std::bad_alloc&) {
        desktop.ShowBusy(false);
        desktop.MsgBox("There is not enough memory for that.", BoxIcon::Critical);
    }
}

} // namespace Memory
