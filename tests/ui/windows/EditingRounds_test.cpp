// The random rounds of editing, played once through the commands and once, by mouse and keys, through the
// window, which must show after every step what the commands end with.

#include "commands/Wandering.h"
#include "driver/WindowDriver.h"
#include "ui/Text.h"
#include "ui/lists/DistrictModel.h"
#include "ui/lists/StateColours.h"
#include "ui/windows/Form1.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QShortcut>
#include <QTest>
#include <QTextDocumentFragment>

using namespace CommonRoutines;
using namespace Ui;

namespace {

std::string Back(QString shown) {
    shown.replace(QChar(0x21E5), QLatin1Char('\t')); // a list shows it so
    return Text::FromQt(shown.replace(QLatin1Char('\n'), QStringLiteral("\r\n")));
}

// What a tooltip says behind the kind; all of it where the kind is the reason.
std::string ReasonIn(const QString& toolTip) {
    const QString behind = QStringLiteral(": ");
    const qsizetype at = toolTip.indexOf(behind);
    return at >= 0 ? Back(toolTip.mid(at + behind.size())) : toolTip == u"unusual capitals" ? "Unusual Capitals" : "";
}

// The number of the state that has a colour.
std::string StateOf(const QColor& colour, QColor (*colourOf)(VariationState)) {
    for (int state = 0; state < static_cast<int>(VariationStateCount); ++state) {
        if (colourOf(static_cast<VariationState>(state)) == colour) {
            return std::to_string(state);
        }
    }
    return colour.name().toStdString();
}

QColor InList(VariationState state) {
    return StateColours::InList(state, QGuiApplication::palette());
}

class WindowPlayer : public EditingPlayer, private WindowDriver {
public:
    WindowPlayer() : m_form(desktop) {
        m_form.LoadForm();
        m_form.show();
        Activate(m_form);
    }
    ~WindowPlayer() override { bChanged = false; }

    void ChooseDistrict(std::int32_t line) override {
        ClickRow("lvAlpha", dynamic_cast<DistrictModel*>(List("lvAlpha").model())->RowOf(line));
    }
    void Select(const std::vector<int>& rows) override {
        if (rows.empty()) {
            ClickBelowRows("lvVariations");
        }
        for (const int row : rows) {
            ClickRow("lvVariations", row, row == rows.front() ? Qt::NoModifier : Qt::ControlModifier);
        }
    }
    void TakeUp() override { QTest::keyClick(&List("lvVariations"), Qt::Key_Space); }
    void ChooseType(int row) override { ClickRow("lbComments", row); }
    void ClickTick(int row) override { ClickRow("LvChanges", row); }
    void ClickProposal(int row) override {
        constexpr int onText = 40;
        ClickRow("LvChanges", row, Qt::NoModifier, onText);
    }
    void Enter(const std::string& text) override {
        auto& box = Find<QLineEdit>("tbEdit");
        box.selectAll();
        if (text.empty()) {
            QTest::keyClick(&box, Qt::Key_Delete);
        } else {
            box.insert(Text::ToQt(text));
        }
    }
    void Press(Commands::Control button) override { Click(std::string(Commands::CommandOf(button).name).c_str()); }
    bool Close() override {
        const bool isClosed = m_form.close();
        EXPECT_EQ(m_form.isVisible(), !isClosed);
        return isClosed;
    }
    [[nodiscard]] bool IsEnabled(Commands::Control control) const override {
        const QString name = Text::ToQt(Commands::CommandOf(control).name);
        const auto* widget = m_form.findChild<QWidget*>(name);
        return widget != nullptr ? widget->isEnabled() : m_form.findChild<QShortcut*>(name)->isEnabled();
    }

    [[nodiscard]] ShownWindow Shown() const override {
        WindowPlayer& self = Self();
        ShownWindow shown;
        for (const QString& district : self.Column("lvAlpha")) {
            shown.districts.push_back(Back(district));
        }
        shown.chosenDistricts = self.List("lvAlpha").SelectedRows();
        const QAbstractItemModel& variations = *self.List("lvVariations").model();
        for (int row = 0; row < variations.rowCount(); ++row) {
            const QModelIndex index = variations.index(row, 0);
            shown.variations.push_back(Back(index.data().toString()) + " " +
                                       StateOf(index.data(Qt::ForegroundRole).value<QColor>(), InList));
            shown.reasons.push_back(ReasonIn(index.data(Qt::ToolTipRole).toString()));
        }
        shown.chosenVariations = self.List("lvVariations").SelectedRows();
        shown.commentTypes = static_cast<std::size_t>(self.List("lbComments").model()->rowCount());
        const QAbstractItemModel& proposals = *self.List("LvChanges").model();
        for (int row = 0; row < proposals.rowCount(); ++row) {
            const QModelIndex index = proposals.index(row, 0);
            const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            shown.proposals.push_back(Back(index.data().toString()) + (ticked ? " ticked" : ""));
        }
        shown.labels = self.Labels();
        shown.box = Text::FromQt(self.Find<QLineEdit>("tbEdit").text());
        shown.options = self.Options();
        for (const Commands::Command& command : Commands::AllCommands()) {
            shown.enabled += IsEnabled(command.control) ? std::string(command.name) + ' ' : "";
        }
        for (const char* list : {"lvAlpha", "lvVariations", "LvChanges", "lvComments"}) {
            shown.hints.push_back(self.List(list).Hint().toStdString());
        }
        for (const Commands::Command& command : Commands::AllCommands()) {
            if (!HasKeyAlone(command)) {
                shown.obstacles.push_back(ObstacleTo(command.control));
            }
        }
        shown.variationsInHand = self.List("lvVariations").AreInHand();
        const QWidget* focus = m_form.focusWidget();
        shown.focus = focus == nullptr ? "nowhere" : focus->objectName().toStdString();
        return shown;
    }

protected:
    QWidget& Window() override { return m_form; }

private:
    // The driver may change what it drives, and so does not know constants.
    [[nodiscard]] WindowPlayer& Self() const { return const_cast<WindowPlayer&>(*this); }

    std::vector<std::string> Labels() {
        return {Back(TextOf("lbStatus")),
                Back(TextOf("lbUndo")),
                Back(TextOf("lbWhyError")),
                PaperOf("lbWhyError") == StateColours::BlueGreen ? "warns" : "",
                StateOf(InkOf("lbWhyError"), StateColours::OnLight),
                Back(TextOf("lbApplyTo")),
                CaptionOf("cbShriek").toStdString(),
                CaptionOf("cbDate").toStdString(),
                Back(TextOf("lbDoing")),
                TextOf("lbSelectCount").toStdString()};
    }
    // What the tooltip says behind what the control does.
    [[nodiscard]] std::string ObstacleTo(Commands::Control control) const {
        const auto* widget = m_form.findChild<QWidget*>(Text::ToQt(Commands::CommandOf(control).name));
        const QString hint = QTextDocumentFragment::fromHtml(widget->toolTip()).toPlainText();
        const QString behind = QStringLiteral(" - ");
        const qsizetype at = hint.indexOf(behind);
        return at < 0 ? std::string() : Back(hint.mid(at + behind.size()));
    }
    std::string Options() {
        std::string ticked;
        for (const auto& [name, word] : {std::pair{"cbSpelling", "spelling "}, std::pair{"cbVariation", "variation "},
                                         std::pair{"cbValidinyears", "years "}, std::pair{"cbVNF", "volume "}}) {
            ticked += Find<QCheckBox>(name).isChecked() ? word : "";
        }
        return ticked;
    }

    Form1 m_form;
};

// What a round shows after each of its steps.
template <typename Player>
std::vector<ShownWindow> Play(std::uint32_t seed) {
    constexpr std::uint32_t longestRound = 40;
    ResetEverything();
    Player player;
    EditingRound round(player, seed, seed % 2 == 0);
    std::vector<ShownWindow> shown{player.Shown()};
    for (std::uint32_t i = 0; i < 1 + seed * 7919 % longestRound && !testing::Test::HasFailure(); ++i) {
        round.DoSomething();
        EXPECT_EQ(round.Shown(), round.Expected()) << "seed " << seed << ", command " << i;
        shown.push_back(player.Shown());
    }
    return shown;
}

template <typename Player>
std::vector<ShownWindow> Wander(std::uint32_t seed) {
    constexpr int steps = 40;
    ResetEverything();
    Player player;
    Wandering wandering(player, seed);
    std::vector<ShownWindow> shown{player.Shown()};
    for (int i = 0; i < steps; ++i) {
        wandering.DoSomething();
        shown.push_back(player.Shown());
    }
    return shown;
}

// How the windows of some rounds were closed.
struct Closings {
    int unasked = 0;
    int refused = 0;
    int confirmed = 0;
};

// A round in which somebody tries to close the window until it goes.
template <typename Player>
std::vector<ShownWindow> PlayUntilClosed(std::uint32_t seed, Closings& closings) {
    ResetEverything();
    Player player;
    EditingRound round(player, seed, seed % 2 == 0);
    std::minstd_rand random(seed);
    std::vector<ShownWindow> shown;
    for (bool isClosed = false; !isClosed && !testing::Test::HasFailure();) {
        for (auto count = random() % 8; count > 0; --count) {
            round.DoSomething();
        }
        const bool givesUp = random() % 4 == 0;
        const auto onDisk = player.desktop.state.storage->files;
        const auto files = player.desktop.files;
        const bool mustAsk = round.WouldLose();
        isClosed = round.Close(givesUp);
        ++(mustAsk ? givesUp ? closings.confirmed : closings.refused : closings.unasked);
        EXPECT_EQ(round.Shown(), round.Expected()) << "seed " << seed;
        EXPECT_EQ(player.desktop.files, files) << "seed " << seed;
        if (isClosed) {
            EXPECT_EQ(player.desktop.state.Kept(), std::vector<std::string>()) << "seed " << seed;
        } else {
            EXPECT_EQ(player.desktop.state.storage->files, onDisk) << "seed " << seed;
        }
        shown.push_back(player.Shown());
    }
    return shown;
}

void ExpectSame(std::vector<ShownWindow> shown, const std::vector<ShownWindow>& expected, std::uint32_t seed) {
    ASSERT_EQ(shown.size(), expected.size());
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (expected[i].focus.empty()) {
            shown[i].focus.clear();
        }
        ASSERT_EQ(shown[i], expected[i]) << "seed " << seed << ", after step " << i;
    }
}

class EditingRounds : public testing::TestWithParam<std::uint32_t> {};

} // namespace

TEST_P(EditingRounds, TheWindowShowsAfterEveryStepWhatTheCommandsEndWith) {
    constexpr std::uint32_t rounds = 60;
    for (std::uint32_t seed = GetParam(); seed < GetParam() + rounds; ++seed) {
        const std::vector<ShownWindow> expected = Play<CommandPlayer>(seed);
        ASSERT_NO_FATAL_FAILURE(ExpectSame(Play<WindowPlayer>(seed), expected, seed));
    }
}

TEST_P(EditingRounds, SoItDoesBehindFiltersCancelledOpeningsAndProposals) {
    constexpr std::uint32_t rounds = 20;
    for (std::uint32_t seed = GetParam(); seed < GetParam() + rounds; ++seed) {
        const std::vector<ShownWindow> expected = Wander<CommandPlayer>(seed);
        ASSERT_NO_FATAL_FAILURE(ExpectSame(Wander<WindowPlayer>(seed), expected, seed));
    }
}

TEST_P(EditingRounds, AWindowGoesUnaskedOnlyWhenNothingIsLostAndKeepsEverythingWhenItStays) {
    constexpr std::uint32_t rounds = 60;
    Closings closings;
    for (std::uint32_t seed = GetParam(); seed < GetParam() + rounds; ++seed) {
        const std::vector<ShownWindow> expected = PlayUntilClosed<CommandPlayer>(seed, closings);
        ASSERT_NO_FATAL_FAILURE(ExpectSame(PlayUntilClosed<WindowPlayer>(seed, closings), expected, seed));
    }
    EXPECT_GT(closings.unasked, 0);
    EXPECT_GT(closings.refused, 0);
    EXPECT_GT(closings.confirmed, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditingRounds, testing::Values(1'000U, 2'000U, 3'000U, 4'000U, 5'000U));
