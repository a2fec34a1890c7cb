// Starting, opening a file, and what is asked before changes are lost.

#include "rules/Capitals.h"
#include "ui/windows/FormTest.h"

#include <QLabel>
#include <QLineEdit>

using namespace CommonRoutines;
using namespace Ui;

namespace {

const std::string TwoDistricts = HeaderOf("Beta") + "|Betta\r\n" + HeaderOf("Alpha") + "|Alfa\r\n";
const QStringList AlphaAndBeta{QStringLiteral("Alpha"), QStringLiteral("Beta")};
const QStringList OnlyAll{QStringLiteral(" All")};

} // namespace

TEST_F(FormTest, AtTheStartNothingIsOpen) {
    EXPECT_EQ(iEditMode, NothingOpen);
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(LowerCaseWords().count, 3);
    for (const char* list : {"lvAlpha", "lvVariations", "LvChanges", "lvComments"}) {
        EXPECT_EQ(Column(list), QStringList()) << list;
    }
    for (const char* label : {"lbStatus", "lbUndo", "lbSelectCount", "lbWhyError", "lbApplyTo"}) {
        EXPECT_EQ(TextOf(label), QString()) << label;
    }
}

TEST_F(FormTest, OpeningListsTheDistrictsByName) {
    OpenContent(TwoDistricts);
    EXPECT_EQ(Column("lvAlpha"), AlphaAndBeta);
    EXPECT_EQ(iEditMode, FileOpen);
    EXPECT_EQ(sDataFileName, "/data/districts.txt");
    EXPECT_TRUE(desktop.reports.empty());
}

TEST_F(FormTest, DistrictsAreSortedByUpperCaseNameAndCharacterCode) {
    OpenContent(HeaderOf("Zeta") + "\r\n" + HeaderOf("\xC9zeta") + "\r\n" + HeaderOf("\xE9" + std::string("beta")) +
                "\r\n" + HeaderOf("alpha") + "\r\n" + HeaderOf("Alpha Two") + "\r\n" + HeaderOf("Al_pha") + "\r\n");
    EXPECT_EQ(Column("lvAlpha"),
              (QStringList{QStringLiteral("alpha"), QStringLiteral("Alpha Two"), QStringLiteral("Al_pha"),
                           QStringLiteral("Zeta"), QStringLiteral("\u00E9beta"), QStringLiteral("\u00C9zeta")}));
}

TEST_F(FormTest, ADistrictsRowShowsItsSevenFields) {
    OpenContent("Alpha+XIV+Kent+1837+3+1901+2+A+B\r\n");
    QStringList cells;
    for (int column = 0; column < 7; ++column) {
        cells += Column("lvAlpha", column);
    }
    EXPECT_EQ(cells.join(QLatin1Char('/')), QStringLiteral("Alpha/XIV/Kent/1837/3/1901/2"));
}

TEST_F(FormTest, RetainedLinesAreNotListed) {
    OpenContent("# a comment\r\n\r\n#QX_SEAT of the county\r\n" + HeaderOf("Alpha") + "\r\n");
    EXPECT_EQ(lLineCount, 4);
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Alpha")});
}

TEST_F(FormTest, TheDialogueStartsInTheProgramsFolderUntilAFolderIsRemembered) {
    OpenContent(TwoDistricts, "/home/user/files/a.txt");
    EXPECT_EQ(desktop.lastRequest.folder, "/program");
    EXPECT_EQ(desktop.lastRequest.fileName, "");
    EXPECT_EQ(desktop.settings["Paths/InFile"], "/home/user/files");
    OpenContent(TwoDistricts, "/home/user/files/b.txt");
    EXPECT_EQ(desktop.lastRequest.folder, "/home/user/files");
}

TEST_F(FormTest, AFileAtTheRootOfADriveLeavesTheDriveAsTheRememberedFolder) {
    OpenContent(TwoDistricts, "C:\\districts.txt");
    EXPECT_EQ(desktop.settings["Paths/InFile"], "C:");
}

TEST_F(FormTest, AFileWithoutAFolderIsNotRemembered) {
    desktop.settings["Paths/InFile"] = "/before";
    OpenContent(TwoDistricts, "/districts.txt");
    EXPECT_EQ(desktop.settings["Paths/InFile"], "/before");
}

TEST_F(FormTest, TheReportOfReadingCannotBePrintedOrSaved) {
    OpenContent(HeaderOf("Alpha") + "|Alfa|alfa|\r\n");
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports[0].caption, "Read File Results");
    EXPECT_FALSE(desktop.reports[0].canPrintAndSave);
}

TEST_F(FormTest, DuplicatedDistrictsAreReportedUntilCancel) {
    ExpectFile(HeaderOf("Alpha") + "\r\n" + HeaderOf("Beta") + "\r\n" + HeaderOf("beta") + "\r\n" + HeaderOf("ALPHA") +
               "\r\n" + HeaderOf("gamma") + "\r\n" + HeaderOf("Gamma") + "\r\n");
    const auto expectReport = [this](const std::string& name, BoxAnswer answer) {
        desktop.ExpectBox("District " + name + " is duplicated in that file", BoxIcon::Critical, BoxButtons::OkCancel,
                          answer);
    };
    expectReport("Alpha", BoxAnswer::Ok);
    expectReport("Beta", BoxAnswer::Cancel);
    Click("cbOpen");
    EXPECT_EQ(Column("lvAlpha").size(), 6);
    EXPECT_EQ(iEditMode, FileOpen);
}

TEST_F(FormTest, AFileThatCannotBeReadIsSaidSoAndNothingIsListed) {
    desktop.ExpectOpen("/data/missing.txt");
    desktop.ExpectBox("The file cannot be read:\r\n/data/missing.txt", BoxIcon::Exclamation);
    Click("cbOpen");
    EXPECT_EQ(Column("lvAlpha"), QStringList());
    EXPECT_EQ(lLineCount, 0);
    EXPECT_EQ(iEditMode, NothingOpen);
    EXPECT_FALSE(desktop.busy);
}

TEST_F(FormTest, ACancelledDialogueLeavesTheWindowResetAndTheTableInMemory) {
    OpenContent("#QX_SEAT x\r\n" + HeaderOf("Alpha") + "|Al fa|al fa\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ASSERT_NE(TextOf("lbWhyError"), QString());
    ASSERT_EQ(Column("lvComments").size(), 1);
    Find<QLineEdit>("tbEdit").insert(QStringLiteral("Other"));
    Click("cbOk");
    ASSERT_NE(TextOf("lbUndo"), QString());
    ExpectLooseChanges(BoxAnswer::Yes);
    desktop.ExpectOpen(std::nullopt);
    Click("cbOpen");
    for (const char* list : {"lvAlpha", "lvVariations", "lvComments"}) {
        EXPECT_EQ(Column(list), QStringList()) << list;
    }
    for (const char* label : {"lbUndo", "lbWhyError", "lbApplyTo"}) {
        EXPECT_EQ(TextOf(label), QString()) << label;
    }
    EXPECT_EQ(Column("lbComments"), OnlyAll);
    EXPECT_EQ(Selected("lbComments"), OnlyAll);
    EXPECT_EQ(iEditMode, NothingOpen);
    EXPECT_EQ(lCurrentDistrict, 0);
    EXPECT_EQ(lEditIndex, 0);
    EXPECT_EQ(lLineCount, 2);
    EXPECT_EQ(Districts[2].Name(), "Alpha");
    EXPECT_EQ(sDataFileName, "/data/districts.txt");
}

TEST_F(FormTest, OpeningForgetsTheDistrictAndTheVariationChosen) {
    OpenContent(TwoDistricts);
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    ASSERT_EQ(lEditIndex, 1);
    Key("lvAlpha", Qt::Key_Down); // back to a mode in which a file can be opened
    OpenContent(HeaderOf("Gamma") + "\r\n");
    EXPECT_EQ(lCurrentDistrict, 0);
    EXPECT_EQ(lEditIndex, 0);
    EXPECT_EQ(Selected("lvAlpha"), QStringList());
    EXPECT_EQ(TextOf("lbApplyTo"), QString());
}

TEST_F(FormTest, WithoutChangesOpeningAsksNothing) {
    OpenContent(TwoDistricts);
    OpenContent(HeaderOf("Gamma") + "\r\n");
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Gamma")});
}

TEST_F(FormTest, NoToTheLossOfChangesLeavesEverythingAsItWas) {
    OpenContent("#QX_SEAT x\r\n" + HeaderOf("Beta") + "|Betta\r\n" + HeaderOf("Alpha") + "|Al fa|al fa\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ClickRow("lbComments", QStringLiteral(" All"));
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    const QString summary = TextOf("lbWhyError");
    bChanged = true;
    ExpectLooseChanges(BoxAnswer::No);
    Click("cbOpen");
    EXPECT_EQ(Column("lvAlpha"), AlphaAndBeta);
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("Alpha")});
    EXPECT_EQ(Column("lvVariations").size(), 2);
    EXPECT_EQ(Column("lbComments").size(), 2);
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Alpha"));
    EXPECT_EQ(TextOf("lbWhyError"), summary);
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(lCurrentDistrict, 3);
    EXPECT_EQ(lLineCount, 3);
    EXPECT_TRUE(bChanged);
}

TEST_F(FormTest, YesToTheLossOfChangesOpensTheFile) {
    OpenContent(TwoDistricts);
    bChanged = true;
    ExpectLooseChanges(BoxAnswer::Yes);
    OpenContent(HeaderOf("Gamma") + "\r\n");
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Gamma")});
    EXPECT_FALSE(bChanged);
}

TEST_F(FormTest, ChangesAreStillThereAfterACancelledDialogue) {
    OpenContent(TwoDistricts);
    bChanged = true;
    ExpectLooseChanges(BoxAnswer::Yes);
    desktop.ExpectOpen(std::nullopt);
    Click("cbOpen");
    EXPECT_TRUE(bChanged);
}

TEST_F(FormTest, ARepairedFileHasChangesToSave) {
    OpenNullVariation("Remove");
    EXPECT_TRUE(bChanged);
    EXPECT_TRUE(Enabled("cbSave"));
    EXPECT_EQ(Column("lvAlpha"), AlphaAndBeta);
}

TEST_F(FormTest, QuitInTheRepairLeavesEmptyListsAndNoLines) {
    OpenContent("#QX_SEAT x\r\n" + TwoDistricts);
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    OpenNullVariation("Quit");
    for (const char* list : {"lvAlpha", "lvVariations", "lvComments"}) {
        EXPECT_EQ(Column(list), QStringList()) << list;
    }
    EXPECT_EQ(lLineCount, 0);
    EXPECT_EQ(iEditMode, NothingOpen);
    ClickRow("lbComments", QStringLiteral(" All"));
    EXPECT_EQ(Column("lvAlpha"), QStringList());
}

TEST_F(FormTest, AfterQuitSavingWritesAnEmptyFile) {
    OpenNullVariation("Remove");
    ExpectLooseChanges(BoxAnswer::Yes);
    OpenNullVariation("Quit");
    desktop.ExpectSave("/data/saved.txt");
    desktop.ExpectBox("File Saved to /data/saved.txt", BoxIcon::Information);
    Click("cbSave");
    EXPECT_EQ(desktop.lastRequest.fileName, "");
    ASSERT_TRUE(desktop.files.contains("/data/saved.txt"));
    EXPECT_EQ(desktop.files["/data/saved.txt"], "");
}

TEST_F(FormTest, TheCommentTypesOfTheFileAreListedBehindAll) {
    OpenContent("#QX_SEAT x\r\n#QX_POPULATION 5\r\n" + HeaderOf("Alpha") + "\r\n#qx_seat y\r\n" + HeaderOf("Beta") +
                "\r\n");
    EXPECT_EQ(Column("lbComments"),
              (QStringList{QStringLiteral(" All"), QStringLiteral("SEAT"), QStringLiteral("POPULATION")}));
    EXPECT_EQ(Selected("lbComments"), OnlyAll);
    const QAbstractItemModel& model = *Find<RowList>("lbComments").model();
    EXPECT_EQ(model.index(0, 0).data(Qt::UserRole).toInt(), 0);
    EXPECT_EQ(model.index(1, 0).data(Qt::UserRole).toInt(), 2);
}

TEST_F(FormTest, CtrlOOpensAFile) {
    Activate(*form);
    ExpectFile(TwoDistricts);
    Key("lvAlpha", Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(Column("lvAlpha"), AlphaAndBeta);
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    ASSERT_FALSE(Enabled("cbOpen"));
    Key("lvAlpha", Qt::Key_O, Qt::ControlModifier); // as little as a click on the disabled button
    EXPECT_EQ(Column("lvAlpha"), AlphaAndBeta);
}
