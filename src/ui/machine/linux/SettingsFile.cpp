#include "ui/machine/SettingsFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>

namespace SettingsFile {

namespace {

constexpr qint64 LargestFile = qint64{1} << 20;

QString ConfigFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QString OwnFolder() {
    return ConfigFolder() + QStringLiteral("/Quexal");
}

// By its name alone the toolkit would also read the settings of all programs of the organisation.
QString Path() {
    return OwnFolder() + QStringLiteral("/QXEdit.conf");
}

bool IsReadable(const QString& path) {
    const QFileInfo file(path);
    return file.isFile() && file.size() <= LargestFile;
}

bool IsMissing(const QString& path) {
    return !QFileInfo::exists(path);
}

// The toolkit waits for its lock as long as it takes.
bool IsUnlocked(const QString& path) {
    const QString lockPath = path + QStringLiteral(".lock");
    if (!IsMissing(lockPath) && !QFileInfo(lockPath).isFile()) {
        return false;
    }
    QLockFile lock(lockPath);
    return lock.tryLock(0) || lock.error() != QLockFile::LockFailedError;
}

} // namespace

QString Value(const QString& name) {
    const QString path = Path();
    return IsReadable(path) ? QSettings(path, QSettings::NativeFormat).value(name).toString() : QString();
}

void SetValue(const QString& name, const QString& value) {
    const QString path = Path();
    if ((IsReadable(path) || IsMissing(path)) && QDir().mkpath(OwnFolder()) && IsUnlocked(path)) {
        QSettings(path, QSettings::NativeFormat).setValue(name, value);
    }
}

void KeepToolkitFromWaiting() {
    const QString path = ConfigFolder() + QStringLiteral("/QtProject.conf");
    if (!(IsReadable(path) || IsMissing(path)) || !IsUnlocked(path)) {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, OwnFolder());
    }
}

} // namespace SettingsFile
