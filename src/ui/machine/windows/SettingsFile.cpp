#include "ui/machine/SettingsFile.h"

#include <QSettings>

// They are in the registry there, which nobody has to wait for.
namespace SettingsFile {

namespace {

QSettings Own() {
    return {QStringLiteral("HKEY_CURRENT_USER\\Software\\Quexal\\QXEdit"), QSettings::NativeFormat};
}

} // namespace

QString Value(const QString& name) {
    return Own().value(name).toString();
}

void SetValue(const QString& name, const QString& value) {
    Own().setValue(name, value);
}

void KeepToolkitFromWaiting() {}

} // namespace SettingsFile
