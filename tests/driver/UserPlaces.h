#pragma once

#include <QString>

#include <memory>

// As long as it lives, the program finds no settings and no state folder, and what it makes of them goes with it. What
// the user has of them is neither seen nor touched. One that is made while another one lives takes its turn.
class UserPlaces {
public:
    UserPlaces();
    ~UserPlaces();
    UserPlaces(const UserPlaces&) = delete;
    UserPlaces& operator=(const UserPlaces&) = delete;

    // The folder in which the program makes its state folder.
    [[nodiscard]] static QString States();
    // That folder itself, which need not be there.
    [[nodiscard]] static QString StateFolder() { return States() + QStringLiteral("/quexal-editor"); }

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
