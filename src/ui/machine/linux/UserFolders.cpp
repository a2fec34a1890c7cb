#include "ui/machine/UserFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace UserFolders {

// The toolkit knows where states are kept (XDG_STATE_HOME) only from version 6.7 on.
QString State() {
    QString states = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(states)) {
        states = QDir::homePath() + QStringLiteral("/.local/state");
    }
    return states + QStringLiteral("/quexal-editor");
}

// The usual folder for what is temporary is often itself in memory.
QString Large() {
    return QStringLiteral("/var/tmp");
}

void CloseToOthers(const QString& folder) {
    if (!QFileInfo(folder).isSymLink()) {
        QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }
}

} // namespace UserFolders
