// The complete check against one that follows its description step by step: the order of equal
// spellings decides which lines there are, so the lines must be identical.

#include "checks/CompleteCheck.h"
#include "core/Ansi.h"
#include "rules/SlowMatching.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

struct Entry {
    std::string text;
    std::string key;
    std::string districtName;
    std::int32_t district = 0;
};
using Entries = std::vector<Entry>;

class SlowCheck {
public:
    std::vector<std::string> Lines() {
        m_entries.assign(1, {});
        for (std::int32_t i = 1; i <= lLineCount; ++i) {
            if (!DistrictAt(i).bRetained) {
                AddDistrictEntries(i);
            }
        }
        const int count = static_cast<int>(m_entries.size()) - 1;
        Slow::Sort(m_entries, 1, count, [](const Entry& a, const Entry& b) { return a.key < b.key; });
        std::vector<std::string> lines;
        for (int j = 1; j <= count - 1; ++j) {
            if (Slow::Same(At(j).text, At(j + 1).text, At(j).district, At(j + 1).district)) {
                lines.push_back(Line(At(j), At(j + 1)));
            }
        }
        return lines.empty() ? std::vector<std::string>{"No duplicates found"} : lines;
    }

private:
    Entry& At(int index) { return m_entries[static_cast<std::size_t>(index)]; }

    void AddDistrictEntries(std::int32_t i) {
        const std::string name(DistrictAt(i).Name());
        m_entries.push_back({Ansi::Upper(name), Ansi::Upper(name), name, i});
        for (std::int32_t k = 1; k <= DistrictAt(i).lVariationCount; ++k) {
            const std::string text = VariationAt(i, k).Text;
            m_entries.push_back({text, Ansi::Upper(Slow::SplitAtMarkers(text).base), name, i});
        }
    }

    static std::string Line(const Entry& a, const Entry& b) {
        return a.districtName == b.districtName
                   ? a.districtName + " contains a duplicate variation - " + a.text
                   : a.districtName + " and " + b.districtName + " both use the variation " + a.text;
    }

    Entries m_entries;
};

// Texts that often repeat each other, with markers, volumes and deleted slots among them.
class RandomTable {
public:
    explicit RandomTable(unsigned seed) : m_random(seed) {
        for (auto lines = m_random() % 12; lines > 0; --lines) {
            if (m_random() % 8 == 0) {
                AddRetained(Name());
            } else {
                AddRandomDistrict();
            }
        }
    }

private:
    template <std::size_t Count>
    const char* OneOf(const char* const (&texts)[Count]) {
        return texts[m_random() % Count];
    }
    std::string Name() {
        return OneOf({"Elm", "elm", "ELM", "Oak", "oak", "\xC9lan", "\xE9lan", "Ash Tree", "!Yew", "Yew"});
    }
    std::string Variation() {
        if (m_random() % 10 == 0) {
            return OneOf({"\t", "", "%", " "});
        }
        return std::string(OneOf({"", "", "", "!", "%", "!%", "! "})) + Name() +
               OneOf({"", "", "", "%12", "%13", "%a", "%A", " ", " %12"});
    }
    void AddRandomDistrict() {
        std::vector<std::string> variations(m_random() % 9);
        for (std::string& variation : variations) {
            variation = Variation();
        }
        DistrictRecord& record = DistrictAt(AddDistrict(Name(), variations));
        const auto founded = 1850 + m_random() % 4;
        record.Founded = static_cast<std::int16_t>(founded);
        record.Abolished = static_cast<std::int16_t>(founded + m_random() % 3);
        record.QtrF = static_cast<std::int16_t>(m_random() % 4);
        record.QtrA = static_cast<std::int16_t>(m_random() % 4);
    }

    std::mt19937 m_random;
};

class CompleteCheckReference : public StateTest {
protected:
    ScriptedDesktop desktop;
};

} // namespace

TEST_F(CompleteCheckReference, AgreesLineByLineOnRandomTables) {
    std::size_t found = 0;
    for (unsigned seed = 0; seed < 4000; ++seed) {
        ResetEverything();
        const RandomTable table(seed);
        const std::vector<std::string> lines = CompleteVariationCheck(desktop).items.All();
        ASSERT_EQ(lines, SlowCheck().Lines()) << "seed " << seed;
        found += lines.size();
    }
    EXPECT_GT(found, 20000U);
}

TEST_F(CompleteCheckReference, AgreesLineByLineOnLongTextsThatShareTheirBeginnings) {
    std::mt19937 random(29);
    std::size_t found = 0;
    for (int round = 0; round < 300; ++round) {
        ResetEverything();
        for (auto districts = 1 + random() % 6; districts > 0; --districts) {
            std::vector<std::string> variations(random() % 40);
            for (std::string& variation : variations) {
                variation = Slow::SimilarText(random);
            }
            AddDistrict(Slow::SimilarText(random), variations);
        }
        const std::vector<std::string> lines = CompleteVariationCheck(desktop).items.All();
        ASSERT_EQ(lines, SlowCheck().Lines()) << "round " << round;
        found += lines.size();
    }
    EXPECT_GT(found, 1000U);
}

TEST_F(CompleteCheckReference, AgreesLineByLineOnALargeTable) {
    std::mt19937 random(3);
    for (int i = 0; i < 300; ++i) {
        std::vector<std::string> variations(random() % 20);
        for (std::string& variation : variations) {
            variation = "V" + std::to_string(random() % 900);
        }
        AddDistrict("D" + std::to_string(i), variations);
    }
    const std::vector<std::string> lines = CompleteVariationCheck(desktop).items.All();
    EXPECT_GT(lines.size(), 1000U);
    EXPECT_EQ(lines, SlowCheck().Lines());
}
