#include <QApplication>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    // One look on every machine, and never the user's own settings.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    qputenv("XDG_STATE_HOME", settings.path().toUtf8());
    return RUN_ALL_TESTS();
}
