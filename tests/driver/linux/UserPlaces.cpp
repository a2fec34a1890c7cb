#include "driver/UserPlaces.h"

#include <QByteArray>
#include <QTemporaryDir>

namespace {

constexpr const char* Settings = "XDG_CONFIG_HOME";
constexpr const char* StatesHome = "XDG_STATE_HOME";

} // namespace

struct UserPlaces::Impl {
    QByteArray settingsBefore = qgetenv(Settings);
    QByteArray statesBefore = qgetenv(StatesHome);
    QTemporaryDir settings;
    QTemporaryDir states;
};

UserPlaces::UserPlaces() : m_impl(std::make_unique<Impl>()) {
    qputenv(Settings, m_impl->settings.path().toUtf8());
    qputenv(StatesHome, m_impl->states.path().toUtf8());
}

UserPlaces::~UserPlaces() {
    qputenv(Settings, m_impl->settingsBefore);
    qputenv(StatesHome, m_impl->statesBefore);
}

QString UserPlaces::States() {
    return qEnvironmentVariable(StatesHome);
}
