#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSize>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace {

// The screens that people have, from the largest one, on which windows open, to a small one at twice its size.
void DescribeScreens(QTemporaryFile& file) {
    QJsonArray screens;
    int left = 0;
    for (const QSize& size :
         {QSize(1920, 1080), QSize(1366, 768), QSize(1280, 720), QSize(1024, 768), QSize(683, 384)}) {
        screens.append(QJsonObject{{QStringLiteral("name"), QString::number(screens.size())},
                                   {QStringLiteral("x"), left},
                                   {QStringLiteral("y"), 0},
                                   {QStringLiteral("width"), size.width()},
                                   {QStringLiteral("height"), size.height()},
                                   {QStringLiteral("logicalDpi"), 96},
                                   {QStringLiteral("logicalBaseDpi"), 96},
                                   {QStringLiteral("dpr"), 1}});
        left += size.width();
    }
    if (!file.open() || file.write(QJsonDocument(QJsonObject{{QStringLiteral("screens"), screens}}).toJson()) < 0) {
        qFatal("the screens cannot be described");
    }
    file.close();
}

} // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    QTemporaryFile screens;
    DescribeScreens(screens);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    const QTemporaryDir settings; // and never the user's own
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    qputenv("XDG_STATE_HOME", settings.path().toUtf8());
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    // One look on every machine.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    return RUN_ALL_TESTS();
}
