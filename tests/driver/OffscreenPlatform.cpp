#include "driver/OffscreenPlatform.h"

#include <QtGlobal>

void UseOffscreenPlatform(const QByteArray& options) {
    qputenv("QT_QPA_PLATFORM", options.isEmpty() ? QByteArray("offscreen") : "offscreen:" + options);
    // On Windows that platform does not look for the fonts of the system.
    if (const QByteArray system = qgetenv("SystemRoot"); !system.isEmpty()) {
        qputenv("QT_QPA_FONTDIR", system + "\\Fonts");
    }
}
