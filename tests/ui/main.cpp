#include "driver/OffscreenPlatform.h"
#include "driver/UserPlaces.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSize>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// The screens that people have, from the largest one, on which windows open, to a small one at twice its size.
void DescribeScreens(const QString& path) {
    QFile file(path);
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
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(QJsonDocument(QJsonObject{{QStringLiteral("screens"), screens}}).toJson()) < 0) {
        qFatal("the screens cannot be described");
    }
}

// What the toolkit is told of a platform ends at a colon, which is why it is given no path.
void ChoosePlatform(const QTemporaryDir& folder) {
    const QString screens = QStringLiteral("screens.json");
    DescribeScreens(folder.filePath(screens));
    QDir::setCurrent(folder.path());
    UseOffscreenPlatform("configfile=" + screens.toUtf8());
}

// One look on every machine that can have it.
void ChooseLook() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    for (const QString& family : {QStringLiteral("DejaVu Sans"), QStringLiteral("Segoe UI")}) {
        if (QFontDatabase::hasFamily(family)) {
            constexpr int points = 9;
            QApplication::setFont(QFont(family, points));
            return;
        }
    }
}

} // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    const UserPlaces places;
    const QString folder = QDir::currentPath();
    const QTemporaryDir screens;
    ChoosePlatform(screens);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QDir::setCurrent(folder); // or the other one could not be removed
    ChooseLook();
    return RUN_ALL_TESTS();
}
