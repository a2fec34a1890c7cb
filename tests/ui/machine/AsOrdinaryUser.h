#pragma once

#include <QFile>
#include <QString>

#include <gtest/gtest.h>

// To the superuser no file is read-only. Meanwhile the tests ask as somebody else.
class AsOrdinaryUser {
public:
    AsOrdinaryUser();
    ~AsOrdinaryUser();
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

    // Makes a file read-only. False where that holds nobody up: Wine lets root write it.
    static bool MakeReadOnly(const QString& path) {
        EXPECT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
        const AsOrdinaryUser user;
        return !QFile(path).open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
    }
    // A temporary folder is closed to this one.
    static bool LetIn(const QString& folder) {
        return QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                                 QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                                                 QFile::WriteOther | QFile::ExeOther);
    }
};
