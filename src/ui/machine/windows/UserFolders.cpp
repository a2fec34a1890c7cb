#include "ui/machine/UserFolders.h"

#include <QDir>
#include <QStandardPaths>

namespace UserFolders {

// On this machine alone, since a lock holds nowhere else.
QString State() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/quexal-editor");
}

QString Large() {
    return QDir::tempPath();
}

// It lies among what is the user's alone.
void CloseToOthers(const QString& /*folder*/) {}

} // namespace UserFolders
