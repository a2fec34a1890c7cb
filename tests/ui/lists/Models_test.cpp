// The models keep the rules that the views rely on.

#include "core/State.h"
#include "file/CommentTypes.h"
#include "file/DistrictList.h"
#include "support/Reading.h"
#include "support/Table.h"
#include "ui/lists/CommentModels.h"
#include "ui/lists/DistrictModel.h"
#include "ui/lists/ProposalModel.h"
#include "ui/lists/ReportModel.h"
#include "ui/lists/VariationModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <random>

using namespace CommonRoutines;
using namespace Ui;

namespace {

// The tester reports as log messages whatever a model does wrong; here they fail the test.
class ModelsTest : public StateTest {
protected:
    ModelsTest() { m_before = qInstallMessageHandler(&Report); }
    ~ModelsTest() override { qInstallMessageHandler(m_before); }

    static std::unique_ptr<QAbstractItemModelTester> Tester(QAbstractItemModel& model) {
        return std::make_unique<QAbstractItemModelTester>(&model,
                                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    }

private:
    static void Report(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
        ADD_FAILURE() << text.toStdString();
    }
    QtMessageHandler m_before = nullptr;
};

template <typename Row>
Commands::ListView<Row> ListOf(std::vector<Row> rows) {
    Commands::ListView<Row> list;
    list.Fill(std::move(rows));
    return list;
}

// Compares what typing leads to, from every row, with what a look at one row after the other leads to.
void ExpectTypingFinds(const std::vector<std::string>& characters, const std::vector<const char*>& allTyped) {
    const Encoding encoding = eFileEncoding;
    std::mt19937 random(41);
    for (int round = 0; round < 40; ++round) {
        ResetState();
        eFileEncoding = encoding;
        for (auto count = random() % 30; count > 0; --count) {
            std::string name;
            for (auto length = 1 + random() % 4; length > 0; --length) {
                name += characters[random() % characters.size()];
            }
            AddDistrict(name);
        }
        DistrictModel model;
        model.Show(ListOf(LinesOf(DistrictsByName())), 0);
        for (const char* typed : allTyped) {
            for (int row = 0; row < model.rowCount(); ++row) {
                const auto start = model.index(row, 0);
                const auto flags = Qt::MatchStartsWith | Qt::MatchWrap;
                const QVariant text = QString::fromUtf8(typed);
                ASSERT_EQ(model.match(start, Qt::DisplayRole, text, 1, flags),
                          model.QAbstractTableModel::match(start, Qt::DisplayRole, text, 1, flags))
                    << round << ' ' << typed << ' ' << row;
            }
        }
    }
}

QVariant Cell(const QAbstractItemModel& model, int row, int column = 0, int role = Qt::DisplayRole) {
    return model.index(row, column).data(role);
}

} // namespace

TEST_F(ModelsTest, TheDistrictModelKeepsTheRules) {
    const std::int32_t alpha = AddDistrict("Alpha");
    const std::int32_t beta = AddDistrict("Beta");
    DistrictModel model;
    const auto tester = Tester(model);
    model.Show(ListOf<std::int32_t>({beta, alpha}), 0);
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.columnCount(), 7);
    EXPECT_EQ(Cell(model, 0), QStringLiteral("Beta"));
    EXPECT_EQ(model.DistrictAt(0), beta);
    EXPECT_EQ(model.RowOf(alpha), 1);
    EXPECT_EQ(model.RowOf(99), -1);
    model.Show(ListOf<std::int32_t>({}), 0);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ModelsTest, ADistrictsRowIsAnnouncedWhenItsStateHasChanged) {
    const std::int32_t alpha = AddDistrict("Alpha");
    const std::int32_t beta = AddDistrict("Beta");
    DistrictModel model;
    auto list = ListOf<std::int32_t>({beta, alpha});
    model.Show(list, 0);
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.Show(list, alpha); // which has not changed
    EXPECT_EQ(changed.size(), 0);
    ++list.touched;
    model.Show(list, alpha);
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex(), model.index(1, 0));
    EXPECT_EQ(changed[0][1].toModelIndex(), model.index(1, 6));
    ++list.touched;
    model.Show(list, 99); // filtered out
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(ModelsTest, TheVariationModelKeepsTheRules) {
    const std::int32_t alpha = AddDistrict("Alpha", {"One", "Two"});
    VariationModel model;
    const auto tester = Tester(model);
    auto list = ListOf<VariationRow>({{2, VariationState::Plain}, {1, VariationState::Invalid}});
    model.Show(list, alpha);
    EXPECT_EQ(Cell(model, 0), QStringLiteral("Two"));
    EXPECT_EQ(Cell(model, 1), QStringLiteral("One"));
    EXPECT_EQ(Cell(model, 1, 0, Qt::ForegroundRole).value<QColor>(), QColor(236, 0, 0));
    VariationAt(alpha, 2).Text = "Changed";
    EXPECT_EQ(Cell(model, 0), QStringLiteral("Changed"));
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    ++list.touched;
    model.Show(list, alpha);
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][1].toModelIndex(), model.index(1, 0));
    model.Show(ListOf<VariationRow>({}), 0);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ModelsTest, TheCommentModelKeepsTheRules) {
    CommentModel model;
    const auto tester = Tester(model);
    model.SetRows({{"SEAT", "of the county"}, {" ", "and more"}});
    EXPECT_EQ(model.columnCount(), 2);
    EXPECT_EQ(Cell(model, 0, 0), QStringLiteral("SEAT"));
    EXPECT_EQ(Cell(model, 1, 1), QStringLiteral("and more"));
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Type"));
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Comment"));
}

TEST_F(ModelsTest, TheCommentTypeModelKeepsTheRules) {
    CommentTypes.Reset();
    CommentTypeModel model;
    const auto tester = Tester(model);
    CommentTypes.Add("SEAT");
    model.Show({2, {}, 1});
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(Cell(model, 0), QStringLiteral(" All"));
    EXPECT_EQ(Cell(model, 1), QStringLiteral("SEAT"));
    CommentTypes.Reset();
    model.Show({1, {}, 2});
    EXPECT_EQ(model.rowCount(), 1);
}

TEST_F(ModelsTest, TheProposalModelKeepsTheRules) {
    ProposalModel model;
    const auto tester = Tester(model);
    model.Show(ListOf<Proposal>({{"Good"}, {"Bad", Proposal::Invalid}, {"Odd", Proposal::Valid, true}}));
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(Cell(model, 1, 0, Qt::ForegroundRole).value<QColor>(), QColor(236, 0, 0));
    EXPECT_EQ(Cell(model, 2, 0, Qt::ForegroundRole).value<QColor>(), QColor(204, 102, 0));
    EXPECT_FALSE(model.flags(model.index(0, 0)).testFlag(Qt::ItemIsEditable));
}

TEST_F(ModelsTest, ATickIsOnlyAskedForAndShownWhenItIsThere) {
    ProposalModel model;
    auto list = ListOf<Proposal>({{"One"}, {"Two"}});
    model.Show(list);
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy wanted(&model, &ProposalModel::TickWanted);
    EXPECT_FALSE(model.setData(model.index(1, 0), Qt::Checked, Qt::CheckStateRole)); // nobody has done it
    ASSERT_EQ(wanted.size(), 1);
    EXPECT_EQ(wanted[0], (QVariantList{1, true}));
    QObject::connect(&model, &ProposalModel::TickWanted, [&](int row, bool ticked) {
        (*list.rows)[static_cast<std::size_t>(row)].ticked = ticked;
        ++list.touched;
        model.Show(list);
    });
    EXPECT_TRUE(model.setData(model.index(1, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(Cell(model, 1, 0, Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(model.setData(model.index(1, 0), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_EQ(Cell(model, 1, 0, Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_FALSE(model.setData(model.index(1, 0), QStringLiteral("typed"), Qt::EditRole));
    EXPECT_EQ(Cell(model, 1), QStringLiteral("Two"));
}

TEST_F(ModelsTest, TheReportModelKeepsTheRules) {
    const std::vector<std::string> items{"One", "Two\r\nlines"};
    ReportModel model(items);
    const auto tester = Tester(model);
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(Cell(model, 1), QStringLiteral("Two lines"));
}

// The rows that typing leads to, as the toolkit finds them by looking at one after the other.
TEST_F(ModelsTest, TypingFindsTheDistrictThatALookAtEveryRowFinds) {
    ExpectTypingFinds({"A", "B", "a", "b", "\xE9", "\xC9", " ", "z"},
                      {"a", "B", "ab", "\xC3\xA9", "a ", "z", "zz", "abab", "c"});
}

TEST_F(ModelsTest, SoItDoesAmongNamesInUtf8) {
    eFileEncoding = Encoding::Utf8;
    ExpectTypingFinds({"a", "B", "\xC5\xB5", "\xC5\xB4", "\xC5\xB7", "\xC5\xB6", "\xC3\xA9", "\xD0\x96", "\xD0\xB6",
                       "\xF0\x9F\x98\x80"},
                      {"a", "\xC5\xB5", "\xC5\xB4", "\xC5\xB5\xC5\xB7", "\xC5\xB4\xC5\xB7",
                       "\xC5\xB5"
                       "a",
                       "\xC3\x89", "\xD0\xB6\xD0\x96", "\xF0\x9F\x98\x80", "b\xF0\x9F\x98\x80", "\xC3\xBF"});
}

TEST_F(ModelsTest, OtherSearchesAmongDistrictsAreThoseOfTheToolkit) {
    const std::int32_t alpha = AddDistrict("Alpha");
    DistrictAt(alpha).Line = "Alpha+1+Kent+";
    DistrictModel model;
    model.Show(ListOf<std::int32_t>({alpha}), 0);
    const auto beginning = Qt::MatchStartsWith | Qt::MatchWrap;
    EXPECT_EQ(model.match(model.index(0, 2), Qt::DisplayRole, QStringLiteral("ke"), 1, beginning).size(), 1);
    EXPECT_EQ(model.match(model.index(0, 0), Qt::DisplayRole, QStringLiteral("ph"), 1, Qt::MatchContains).size(), 1);
    EXPECT_TRUE(model.match({}, Qt::DisplayRole, QStringLiteral("a"), 1, beginning).isEmpty());
}
