#include "ui/Text.h"

#include <QDir>
#include <QUrl>

#include <gtest/gtest.h>

TEST(TextTest, TheUrlOfAFileGivesItsPath) {
    for (const char* name : {"a b.txt", "100%25 #1.txt", "\xC4\x85\xC3\xA9.txt"}) {
        const QString path = QDir::temp().absoluteFilePath(QString::fromUtf8(name));
        EXPECT_EQ(Text::PathFromUrl(QUrl::fromLocalFile(path)), Text::PathFromQt(path));
    }
    EXPECT_EQ(Text::PathFromUrl(QUrl(QStringLiteral("file://host/share/a%20b.txt"))), "//host/share/a b.txt");
}

TEST(TextTest, ANameThatIsNoTextKeepsItsBytes) {
    EXPECT_EQ(Text::PathFromUrl(QUrl::fromEncoded("file:///caf%E9%20%25.txt")), "/caf\xE9 %.txt");
}
