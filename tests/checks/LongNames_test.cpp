// Findings that repeat a long text for every short one: all lines together are many times what the file is. In a
// process of its own, that may take little memory, they are found, shown, printed and saved.

#include "changes/ApplyChanges.h"
#include "checks/CompleteCheck.h"
#include "checks/ReportOutput.h"
#include "core/State.h"
#include "support/LittleMemory.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

#include <functional>

using namespace CommonRoutines;

namespace {

constexpr std::size_t Length = 80'000;
constexpr std::size_t Count = 40'000;

// Takes a report as its window and a printer do, a line at a time.
class TakingDesktop : public QuietDesktop {
public:
    std::optional<ReportPlace> ShowReport(const Report& report) override {
        lines = report.items.size();
        first = report.items[0];
        last = report.items[lines - 1];
        PrintReport(report, "/data/north.txt", *this);
        SaveReport(report, "/data/north.txt", *this);
        return std::nullopt;
    }
    std::optional<std::string> ChooseFileToSave(const FileRequest& /*request*/) override { return "/data/list.txt"; }
    bool PutTogether(const PieceSource& pieces, const std::function<bool(std::string_view)>& /*use*/) override {
        for (auto piece = pieces(); piece; piece = pieces()) {
            saved += piece->size();
        }
        return true;
    }
    bool Print(const LineSource& source) override {
        for (auto line = source(); line; line = source()) {
            printed += line->Parts().empty() ? 0 : line->Parts().front().text.size();
        }
        return true;
    }

    std::size_t lines = 0;
    std::size_t printed = 0;
    std::size_t saved = 0;
    std::string first;
    std::string last;
};

class LongNamesTest : public StateTest {
protected:
    // 3 GB are listed.
    static void Within(const std::function<void()>& work) {
        constexpr std::size_t megabytes512 = 512UL << 20U;
        DoWithin(megabytes512, work);
    }
    static void ExpectTaken(const TakingDesktop& desktop, std::size_t lines, const std::string& line) {
        EXPECT_EQ(desktop.lines, lines);
        EXPECT_TRUE(desktop.first == line);
        EXPECT_TRUE(desktop.last == line);
        EXPECT_GT(desktop.printed, lines * line.size());
        EXPECT_GT(desktop.saved, lines * line.size());
    }
};

} // namespace

TEST_F(LongNamesTest, TheCheckListsALongNameWithEachOfManyVariations) {
    Within([] {
        const std::string name(Length, 'N');
        AddDistrict(name, std::vector<std::string>(Count, "x"));
        TakingDesktop desktop;
        desktop.ShowReport(CompleteVariationCheck(desktop));
        ExpectTaken(desktop, Count - 1, name + " contains a duplicate variation - x");
    });
}

TEST_F(LongNamesTest, ApplyingListsALongVariationWithEachOfManyProposals) {
    Within([] {
        const std::string present = "x%" + std::string(Length, '1');
        lCurrentDistrict = AddDistrict("Alpha", {present});
        const std::vector<Proposal> proposals(Count, {"x", Proposal::Valid});
        TakingDesktop desktop;
        const auto applied = ApplyChanges(proposals, false, false, desktop);
        ASSERT_TRUE(applied);
        ReportAppliedProposals(*applied, desktop);
        ExpectTaken(desktop, Count, "Variation x duplicates " + present);
    });
}
