// Files that are dropped on the window, and what its empty lists say.

#include "ui/windows/FormTest.h"

#include "ui/widgets/EditBox.h"

#include <QMimeData>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class DroppingTest : public FormTest {
protected:
    // Drags files over a place of the window and drops them there. False when they were not taken.
    bool Drop(const QStringList& paths, QWidget& on) {
        QList<QUrl> urls;
        for (const QString& dropped : paths) {
            urls.append(QUrl::fromLocalFile(dropped));
        }
        return DropUrls(urls, on);
    }
    static bool DropUrls(const QList<QUrl>& urls, QWidget& on) {
        QMimeData data;
        data.setUrls(urls);
        const QPoint place = on.rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&on, &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&on, &move);
        if (!move.isAccepted()) {
            return false;
        }
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&on, &drop);
        QApplication::processEvents();
        return drop.isAccepted();
    }

    const QString path = QString::fromStdString(DataFilePath);
};

} // namespace

TEST_F(DroppingTest, AFileIsOpened) {
    desktop.files[DataFilePath] = HeaderOf("Alpha") + "|Ash\r\n";
    EXPECT_TRUE(Drop({path}, *form));
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Alpha")});
    EXPECT_EQ(sDataFileName, DataFilePath);
    EXPECT_EQ(desktop.settings["Paths/InFile"], "/data");
}

TEST_F(DroppingTest, AFileOnTheEditBoxIsOpenedToo) {
    OpenContent(HeaderOf("Beta") + "\r\n", "/data/first.txt");
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    desktop.files[DataFilePath] = HeaderOf("Alpha") + "|Ash\r\n";
    EXPECT_TRUE(Drop({path}, Find<EditBox>("tbEdit")));
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Alpha")});
}

TEST_F(DroppingTest, UnsavedChangesAreAskedAbout) {
    OpenContent(HeaderOf("Beta") + "\r\n", "/data/first.txt");
    desktop.files[DataFilePath] = HeaderOf("Alpha") + "|Ash\r\n";
    bChanged = true;
    ExpectLooseChanges(BoxAnswer::No);
    EXPECT_TRUE(Drop({path}, *form));
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Beta")});
    ExpectLooseChanges(BoxAnswer::Yes);
    EXPECT_TRUE(Drop({path}, *form));
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Alpha")});
}

TEST_F(DroppingTest, AFileWhoseNameIsNoUtf8IsOpenedToo) {
    const std::string name = "/data/caf\xE9 100%.txt";
    desktop.files[name] = HeaderOf("Alpha") + "|Ash\r\n";
    EXPECT_TRUE(DropUrls({QUrl::fromEncoded("file:///data/caf%E9%20100%25.txt")}, *form));
    EXPECT_EQ(sDataFileName, name);
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Alpha")});
}

TEST_F(DroppingTest, SeveralFilesAreNotTaken) {
    EXPECT_FALSE(Drop({path, path}, *form));
    EXPECT_FALSE(Drop({}, *form));
}

TEST_F(DroppingTest, NothingIsTakenWhileNothingCanBeOpened) {
    OpenContent(HeaderOf("Beta") + "|Ash\r\n");
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    Click("cbAdd");
    ASSERT_FALSE(Enabled("cbOpen"));
    EXPECT_FALSE(Drop({path}, *form));
}

TEST_F(DroppingTest, OnTheProposalsAFileIsProcessed) {
    OpenContent(HeaderOf("Beta") + "|Ash\r\n");
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    desktop.files["/changes/new.txt"] = "Elm\r\nSmi?h\r\n";
    EXPECT_TRUE(Drop({QStringLiteral("/changes/new.txt")}, *Find<RowList>("LvChanges").viewport()));
    EXPECT_EQ(Column("LvChanges"), (QStringList{QStringLiteral("Elm"), QStringLiteral("Smi?h")}));
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 invalid variations (red). "));
    EXPECT_EQ(desktop.settings["Paths/ProcessFile"], "/changes");
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Beta")});
    EXPECT_EQ(sDataFileName, DataFilePath);
}

TEST_F(DroppingTest, OnTheProposalsNothingIsTakenWhileNothingCanBeProcessed) {
    OpenContent(HeaderOf("Beta") + "|Ash\r\n");
    ASSERT_TRUE(Enabled("cbOpen"));
    EXPECT_FALSE(Drop({path}, *Find<RowList>("LvChanges").viewport()));
    EXPECT_EQ(Column("LvChanges"), QStringList());
}

TEST_F(DroppingTest, AChangeFileThatCannotBeReadIsNamed) {
    OpenContent(HeaderOf("Beta") + "|Ash\r\n");
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    desktop.ExpectBox("The file cannot be read:\r\n/changes/none.txt", BoxIcon::Exclamation);
    EXPECT_TRUE(Drop({QStringLiteral("/changes/none.txt")}, Find<RowList>("LvChanges")));
    EXPECT_EQ(Column("LvChanges"), QStringList());
}

TEST_F(DroppingTest, EmptyListsShowTheHints) {
    EXPECT_EQ(Find<RowList>("lvAlpha").Hint(), QStringLiteral("Open a file, or drop one here, to see its districts"));
    OpenContent(HeaderOf("Beta") + "\r\n");
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    EXPECT_EQ(Find<RowList>("lvVariations").Hint(),
              QStringLiteral("This district has no variations: press Add to enter one"));
    EXPECT_EQ(Find<RowList>("lvComments").Hint(), QStringLiteral("This district has no comments"));
    EXPECT_EQ(Find<RowList>("LvChanges").Hint(), QStringLiteral("Process File shows proposals here"));
}

TEST_F(DroppingTest, AHintIsPaintedOnlyInAnEmptyList) {
    auto& list = Find<RowList>("lvAlpha");
    const auto isBlank = [&] {
        const QImage image = list.viewport()->grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != image.pixelColor(0, image.height() - 1)) {
                    return false;
                }
            }
        }
        return true;
    };
    EXPECT_FALSE(isBlank());
    list.SetHint({});
    EXPECT_TRUE(isBlank());
}
