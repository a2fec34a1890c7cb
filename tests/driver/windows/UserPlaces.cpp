#include "driver/UserPlaces.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <string>
#include <windows.h>

namespace {

// What this process takes for the user's part of the registry; nothing while it is that part itself.
HKEY current = nullptr;
int depth = 0;

std::wstring NameOfKey() {
    return (QStringLiteral("Software\\QuexalTests-%1-%2").arg(QCoreApplication::applicationPid()).arg(depth))
        .toStdWString();
}

// Also what a test has put into its place.
void RemoveStateFolder() {
    QDir(UserPlaces::StateFolder()).removeRecursively();
    QFile::remove(UserPlaces::StateFolder());
}

} // namespace

struct UserPlaces::Impl {
    HKEY before = current;
    HKEY key = nullptr;
};

UserPlaces::UserPlaces() : m_impl(std::make_unique<Impl>()) {
    ++depth;
    QStandardPaths::setTestModeEnabled(true);
    if (RegCreateKeyExW(HKEY_CURRENT_USER, NameOfKey().c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                        nullptr, &m_impl->key, nullptr) != ERROR_SUCCESS ||
        RegOverridePredefKey(HKEY_CURRENT_USER, m_impl->key) != ERROR_SUCCESS || States().isEmpty()) {
        qFatal("what the user has cannot be put aside");
    }
    current = m_impl->key;
    RemoveStateFolder();
}

UserPlaces::~UserPlaces() {
    RemoveStateFolder();
    QStandardPaths::setTestModeEnabled(m_impl->before != nullptr);
    current = m_impl->before;
    RegOverridePredefKey(HKEY_CURRENT_USER, current);
    RegCloseKey(m_impl->key);
    RegDeleteTreeW(HKEY_CURRENT_USER, NameOfKey().c_str());
    --depth;
}

QString UserPlaces::States() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}
