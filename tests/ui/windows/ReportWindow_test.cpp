// The report window.

#include "ui/windows/ReportWindowTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace CommonRoutines;
using namespace Ui;

namespace {

// Counts how often the list asks for the size or the look of a row.
class CountingDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        ++count;
        QStyledItemDelegate::paint(painter, option, index);
    }
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        ++count;
        return QStyledItemDelegate::sizeHint(option, index);
    }

    mutable int count = 0;
};

} // namespace

TEST_F(ReportWindowTest, ShowsTheLinesUnderItsCaption) {
    Show();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Duplicate Check"));
    const QAbstractItemModel& model = *List().model();
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("First finding"));
    EXPECT_EQ(model.index(1, 0).data().toString(), QStringLiteral("Second finding"));
    EXPECT_EQ(CaptionOf("cbPrint"), QStringLiteral("Print"));
    EXPECT_EQ(CaptionOf("cbSave"), QStringLiteral("Save List"));
    EXPECT_EQ(CaptionOf("cbClose"), QStringLiteral("Close"));
    EXPECT_FALSE(List().accessibleName().isEmpty());
}

TEST_F(ReportWindowTest, ItsButtonsAreOnTheSmallestScreen) {
    const auto screens = QGuiApplication::screens();
    QScreen* smallest = *std::min_element(screens.begin(), screens.end(), [](const QScreen* a, const QScreen* b) {
        return a->size().height() < b->size().height();
    });
    ASSERT_LT(smallest->size().height(), 420);
    QWidget form;
    form.setScreen(smallest);
    form.move(smallest->geometry().topLeft());
    const VarCheck onSmallest(report, desktop, &form);
    EXPECT_LT(onSmallest.height(), smallest->availableGeometry().height());
    EXPECT_LT(onSmallest.width(), smallest->availableGeometry().width());
}

TEST_F(ReportWindowTest, AReportOnlyToReadHasNoPrintAndNoSave) {
    report.caption = "Read File Results";
    report.canPrintAndSave = false;
    Show();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Read File Results"));
    EXPECT_FALSE(Find("cbPrint").isVisible());
    EXPECT_FALSE(Find("cbSave").isVisible());
    EXPECT_TRUE(Find("cbClose").isVisible());
}

TEST_F(ReportWindowTest, PrintPrintsTheHeadingAndTheLines) {
    Show();
    Click("cbPrint");
    EXPECT_EQ(desktop.printed, output);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ReportWindowTest, WithoutAPrinterAMessageSaysSo) {
    desktop.hasPrinter = false;
    desktop.ExpectBox("The list cannot be printed: there is no printer, or it did not accept the job.  "
                      "Save List keeps it in a file.",
                      BoxIcon::Exclamation);
    Show();
    Click("cbPrint");
}

TEST_F(ReportWindowTest, SaveListProposesANameInTheProgramsFolder) {
    Show();
    desktop.ExpectSave(std::nullopt);
    Click("cbSave");
    EXPECT_EQ(desktop.lastRequest.fileName, "Dupe_north.txt");
    EXPECT_EQ(desktop.lastRequest.folder, "/program");
    EXPECT_EQ(desktop.lastRequest.defaultExtension, "txt");
    EXPECT_TRUE(desktop.files.empty());
}

TEST_F(ReportWindowTest, SaveListWritesWhatPrintPrintsWithoutAMessage) {
    desktop.files["/data/list.txt"] = "old";
    Show();
    desktop.ExpectSave("/data/list.txt");
    Click("cbSave");
    std::string content;
    for (const std::string& line : output) {
        content += line + "\r\n";
    }
    EXPECT_EQ(desktop.files["/data/list.txt"], content);
}

TEST_F(ReportWindowTest, AListThatCannotBeSavedCanBeSavedElsewhere) {
    Show();
    desktop.canWrite = false;
    desktop.ExpectSave("/full/list.txt");
    Click("cbSave");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(List().model()->rowCount(), 3);
    desktop.canWrite = true;
    desktop.ExpectSave("/data/list.txt");
    Click("cbSave");
    EXPECT_TRUE(desktop.files["/data/list.txt"].ends_with("Third\r\n"));
    EXPECT_FALSE(desktop.files.contains("/full/list.txt"));
}

TEST_F(ReportWindowTest, TheReportStaysAboutTheFileItWasFirstUsedFor) {
    Show();
    Click("cbPrint");
    sDataFileName = "/other/file.txt";
    Click("cbPrint");
    EXPECT_EQ(desktop.printed, output);
}

TEST_F(ReportWindowTest, EscAndCloseCloseTheWindow) {
    Show();
    Key("List1", Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    Show();
    Click("cbClose");
    EXPECT_FALSE(window->isVisible());
    Show();
    Key("cbClose", Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ReportWindowTest, F1ShowsTheGuideAndLeavesTheReportOpen) {
    Show();
    Activate(*window);
    Key("List1", Qt::Key_F1);
    EXPECT_EQ(desktop.shownDocuments, std::vector<std::string>{"/program/guide/user-guide.html"});
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ReportWindowTest, CtrlCCopiesTheSelectedLines) {
    Show();
    Key("List1", Qt::Key_Home);
    Key("List1", Qt::Key_Down, Qt::ShiftModifier);
    Key("List1", Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("First finding\nSecond finding"));
    Key("List1", Qt::Key_A, Qt::ControlModifier);
    Key("List1", Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("First finding\nSecond finding\nThird"));
}

TEST_F(ReportWindowTest, OfALongReportOnlyTheVisibleLinesAreLookedAt) {
    report.items = std::vector<std::string>(100000, "District Alpha has duplicate variations.");
    window = std::make_unique<VarCheck>(report, desktop, nullptr);
    CountingDelegate delegate;
    List().setItemDelegate(&delegate);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    Key("List1", Qt::Key_End);
    window->grab();
    List().resizeColumnToContents(0);
    EXPECT_EQ(List().SelectedRows(), std::vector<int>{99999});
    EXPECT_GT(delegate.count, 10);
    EXPECT_LT(delegate.count, 2000);
    List().setItemDelegate(nullptr);
}
