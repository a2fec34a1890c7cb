// The complete check, and the saving of selected variations.

#include "ui/windows/FormTest.h"

using namespace CommonRoutines;

namespace {

class WholeFileTest : public FormTest {
protected:
    void OpenTwo() {
        OpenContent(HeaderOf("Alpha") + "|zeta|Alfa|Ma_ge\r\n# note\r\n" + HeaderOf("Beta") + "|ALFA\r\n");
        desktop.reports.clear();
    }
    void ChooseAlpha() {
        OpenTwo();
        ClickRow("lvAlpha", QStringLiteral("Alpha"));
    }
    void Select(const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ClickRow("lvVariations", text, modifiers);
    }
    void ExpectSaved(int count, const std::string& path) {
        desktop.ExpectSave(path);
        desktop.ExpectBox(std::to_string(count) + " Variations Saved to " + path, BoxIcon::Information);
    }
    void ExpectFinding() {
        ASSERT_EQ(desktop.reports.size(), 1U);
        EXPECT_EQ(desktop.reports[0].caption, "Duplicate Check");
        EXPECT_EQ(desktop.reports[0].items.All(),
                  std::vector<std::string>{"Alpha and Beta both use the variation Alfa"});
        EXPECT_TRUE(desktop.reports[0].canPrintAndSave);
        EXPECT_FALSE(desktop.busy);
    }
};

} // namespace

TEST_F(WholeFileTest, TheCheckReportsWhatIsUsedTwice) {
    OpenTwo();
    Click("cbCompleteCheck");
    ExpectFinding();
    EXPECT_EQ(iEditMode, FileOpen);
}

TEST_F(WholeFileTest, TheCheckClearsTheProblemsAndLeavesTheDistrictChosen) {
    ChooseAlpha();
    ASSERT_NE(TextOf("lbWhyError"), QString());
    Click("cbCompleteCheck");
    ExpectFinding();
    EXPECT_EQ(TextOf("lbWhyError"), QString());
    EXPECT_EQ(PaperOf("lbWhyError"), QColor(192, 192, 192));
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Alpha"));
    EXPECT_FALSE(bChanged);
}

TEST_F(WholeFileTest, TheCheckSaysWhenNothingIsUsedTwice) {
    OpenContent(HeaderOf("Alpha") + "\r\n");
    desktop.reports.clear();
    Click("cbCompleteCheck");
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports[0].items.All(), std::vector<std::string>{"No duplicates found"});
}

TEST_F(WholeFileTest, FromALineOfTheCheckTheUserGoesToItsVariation) {
    OpenTwo();
    desktop.lineToGoTo = 0;
    Click("cbCompleteCheck");
    ExpectFinding();
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("Alpha")});
    EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("Alfa")});
    EXPECT_EQ(EditText(), QStringLiteral("Alfa"));
    EXPECT_EQ(iEditMode, OneSelected);
    EXPECT_FALSE(bChanged);
}

TEST_F(WholeFileTest, FromALineOfTheReportOfReadingTheUserGoesToItsDistrict) {
    desktop.lineToGoTo = 0;
    OpenContent("# note\r\n" + HeaderOf("Alpha") + "\r\n" + HeaderOf("Beta") + "|Elm|Oak|ELM\r\n");
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports[0].items[0], "District Beta has duplicate variations.");
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("Beta")});
    EXPECT_EQ(Column("lvVariations").size(), 3);
    EXPECT_EQ(Selected("lvVariations"), QStringList());
    EXPECT_EQ(iEditMode, DistrictIdle);
}

TEST_F(WholeFileTest, FromALineOfACountTheUserGoesNowhere) {
    desktop.lineToGoTo = 1;
    OpenContent(HeaderOf("Beta") + "|Elm|ELM\r\n");
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports[0].items[1], "1 variations with capitalisation problems");
    EXPECT_EQ(Selected("lvAlpha"), QStringList());
    EXPECT_EQ(iEditMode, FileOpen);
}

TEST_F(WholeFileTest, TheSelectedVariationsAreSavedInTheOrderOfTheList) {
    ChooseAlpha();
    Select(QStringLiteral("zeta"));
    Select(QStringLiteral("Alfa"), Qt::ControlModifier);
    ExpectSaved(2, "/data/chosen.txt");
    Click("cbSaveVariations");
    EXPECT_EQ(desktop.files["/data/chosen.txt"], "Alfa\r\nzeta\r\n");
    EXPECT_EQ(desktop.lastRequest.title, "Open Variation Save File");
    EXPECT_EQ(desktop.lastRequest.fileName, "");
    EXPECT_EQ(desktop.lastRequest.defaultExtension, "txt");
    EXPECT_EQ(Selected("lvVariations").size(), 2);
    EXPECT_EQ(iEditMode, SeveralSelected);
}

TEST_F(WholeFileTest, OneSelectedVariationIsSavedAsItIsInTheFile) {
    OpenContent(HeaderOf("Alpha") + "|Caf\xE9 \x80  |Alfa\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    Select(QStringLiteral("Caf\u00E9 \u20AC  "));
    ExpectSaved(1, "/data/chosen.txt");
    Click("cbSaveVariations");
    EXPECT_EQ(desktop.files["/data/chosen.txt"], "Caf\xE9 \x80  \r\n");
}

TEST_F(WholeFileTest, ACancelledDialogueSavesNothing) {
    ChooseAlpha();
    Select(QStringLiteral("zeta"));
    const auto files = desktop.files;
    desktop.ExpectSave(std::nullopt);
    Click("cbSaveVariations");
    EXPECT_EQ(desktop.files, files);
}

TEST_F(WholeFileTest, ASelectionThatCannotBeSavedStays) {
    ChooseAlpha();
    Select(QStringLiteral("zeta"));
    Select(QStringLiteral("Alfa"), Qt::ControlModifier);
    desktop.canWrite = false;
    desktop.ExpectSave("/full/chosen.txt");
    desktop.ExpectBox("The file cannot be written:\r\n/full/chosen.txt", BoxIcon::Exclamation);
    Click("cbSaveVariations");
    EXPECT_EQ(Selected("lvVariations"), (QStringList{QStringLiteral("Alfa"), QStringLiteral("zeta")}));
    desktop.canWrite = true;
    ExpectSaved(2, "/data/chosen.txt");
    Click("cbSaveVariations");
    EXPECT_EQ(desktop.files["/data/chosen.txt"], "Alfa\r\nzeta\r\n");
}

TEST_F(WholeFileTest, WithNothingSelectedAnEmptyFileIsSaved) {
    ChooseAlpha();
    Select(QStringLiteral("zeta"));
    ClickBelowRows("lvVariations");
    ASSERT_EQ(Selected("lvVariations"), QStringList());
    desktop.files["/data/chosen.txt"] = "old";
    ExpectSaved(0, "/data/chosen.txt");
    Click("cbSaveVariations");
    EXPECT_EQ(desktop.files["/data/chosen.txt"], "");
}
