#pragma once

#include <QByteArray>

// Lets the toolkit paint where no screen is needed, on every system. To be called before the application is made; what
// is given goes to the platform, such as "configfile=screens.json".
void UseOffscreenPlatform(const QByteArray& options = {});
