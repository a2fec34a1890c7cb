#include "find/Finder.h"

#include "find/PlainFind.h"

using namespace CommonRoutines;

namespace {

class FinderTest : public StateTest {
protected:
    FinderTest() { m_desktop.recordReports = true; }

    void Read(const std::string& content) { ReadText(m_desktop, content); }

    // The hits, found in steps of this many variations.
    static std::vector<Hit> Found(const std::string& sought, FindBy by = FindBy::Part, std::size_t step = 1) {
        Finder finder(sought, by);
        while (!finder.Step(step)) {
        }
        return PlainFind::AllOf(*finder.Found());
    }

    std::string RandomText(const std::vector<std::string>& pieces, std::size_t most) {
        std::string text;
        for (auto length = m_random() % (most + 1); length > 0; --length) {
            text += pieces[m_random() % pieces.size()];
        }
        return text;
    }

    std::string RandomFile(const std::vector<std::string>& pieces) {
        std::string file;
        for (auto line = m_random() % 12; line > 0; --line) {
            const auto kind = m_random() % 5;
            if (kind == 0) {
                file += "#QX_" + RandomText(pieces, 4) + "\r\n";
            } else if (kind == 1) {
                file += "# " + RandomText(pieces, 4) + " #qx_" + RandomText(pieces, 3) + "\r\n";
            } else {
                file += "N" + RandomText(pieces, 3) + "+" + RandomText(pieces, 1) + "+" + RandomText(pieces, 2) +
                        "+1837+3+9999+0+x+y";
                for (auto count = m_random() % 12; count > 0; --count) {
                    file += "|" + RandomText(pieces, 3) + "x";
                }
                file += "\r\n";
            }
        }
        return file;
    }

    void ChangeSomething(const std::vector<std::string>& pieces) {
        const auto line =
            static_cast<std::int32_t>(1 + m_random() % static_cast<std::uint32_t>(std::max(lLineCount, 1)));
        if (!IsDistrict(line)) {
            return;
        }
        const std::int32_t count = RecordOf(line).lVariationCount;
        const auto slot = static_cast<std::int32_t>(1 + m_random() % static_cast<std::uint32_t>(std::max(count, 1)));
        switch (m_random() % 3) {
        case 0:
            AddSlot(line, RandomText(pieces, 3));
            break;
        case 1:
            if (count > 0) {
                StoreText(line, slot, DeletedText);
            }
            break;
        default:
            if (count > 0) {
                StoreText(line, slot, RandomText(pieces, 3));
            }
            break;
        }
    }

    // Random files that are changed at random; after every change something is sought.
    void ExpectTheSameAsAPlainLoop(const std::vector<std::string>& pieces, int rounds) {
        for (int round = 0; round < rounds; ++round) {
            if (round % 10 == 0) {
                ResetEverything();
                Read(RandomFile(pieces));
            }
            ChangeSomething(pieces);
            const std::string sought = RandomText(pieces, 2);
            for (const FindBy by : {FindBy::Part, FindBy::WholeSpelling}) {
                const auto expected = PlainFind::Find(sought, by);
                m_hitCount += expected.size();
                ASSERT_EQ(Found(sought, by, 1 + m_random() % 30), expected) << sought << " in round " << round;
            }
        }
        EXPECT_GT(m_hitCount, static_cast<std::size_t>(rounds)) << "hardly anything is found";
    }

    ScriptedDesktop m_desktop;
    std::mt19937 m_random{17};
    std::size_t m_hitCount = 0;
};

} // namespace

TEST_F(FinderTest, FindsEachKindInTheOrderOfTheFile) {
    Read("#QX_NOTE ash trees\r\n" + HeaderOf("Stoke Ash") + "|Elm|Mashton|ASH\r\n" + HeaderOf("Yew") + "|%Ash\r\n");
    EXPECT_EQ(Found("ash"), (std::vector<Hit>{{HitKind::District, 2, 0},
                                              {HitKind::Variation, 2, 2},
                                              {HitKind::Variation, 2, 3},
                                              {HitKind::Variation, 3, 1},
                                              {HitKind::Comment, 1, 0}}));
}

TEST_F(FinderTest, ADistrictIsFoundByItsVolumeAndItsCountyAndByNothingElseOfItsHeader) {
    Read("Ash+12b+Kent+1837+3+9999+0+x+y\r\n");
    const std::vector<Hit> it{{HitKind::District, 1, 0}};
    EXPECT_EQ(Found("2B"), it);
    EXPECT_EQ(Found("ken"), it);
    EXPECT_EQ(Found("1837"), std::vector<Hit>());
    EXPECT_EQ(Found("h+1"), std::vector<Hit>()) << "no part of a header goes beyond its end";
}

TEST_F(FinderTest, MarkersBelongToAVariation) {
    Read(HeaderOf("Yew") + "|!%Ash|Ash%5b\r\n");
    EXPECT_EQ(Found("!%a"), (std::vector<Hit>{{HitKind::Variation, 1, 1}}));
    EXPECT_EQ(Found("%5"), (std::vector<Hit>{{HitKind::Variation, 1, 2}}));
}

TEST_F(FinderTest, NothingIsFoundAcrossTheEndOfAVariation) {
    Read(HeaderOf("Yew") + "|Ash|Elm\r\n");
    EXPECT_EQ(Found("h|E"), std::vector<Hit>());
    EXPECT_EQ(Found("|"), std::vector<Hit>());
    EXPECT_EQ(Found("hE"), std::vector<Hit>());
}

TEST_F(FinderTest, DeletedSlotsAndLinesThatAreOnlyRetainedAreNotFound) {
    m_desktop.ExpectBox("Line 1 is incomplete but has been retained in the file.  It will not be available for "
                        "editing.\r\nAsh+5",
                        BoxIcon::Exclamation);
    Read("Ash+5\r\n# ash\r\n" + HeaderOf("Yew") + "|Ash\r\n#QX_NOTE ash that belongs to no district\r\n");
    StoreText(3, 1, DeletedText);
    EXPECT_EQ(Found("ash"), std::vector<Hit>());
    EXPECT_EQ(Found("\t"), std::vector<Hit>());
}

TEST_F(FinderTest, WholeSpellingsAreComparedAsThoseOfTwoDistricts) {
    Read(HeaderOf("ash") + "|!ASH|%Ash|Ash%5b|Ash%6|Ashes|Ash Tree\r\n");
    const auto slots = [&](const std::string& sought) {
        std::vector<std::int32_t> found;
        for (const Hit& hit : Found(sought, FindBy::WholeSpelling)) {
            found.push_back(hit.slot);
        }
        return found;
    };
    EXPECT_EQ(slots(" Ash "), (std::vector<std::int32_t>{0, 1}));
    EXPECT_EQ(slots("!ash"), (std::vector<std::int32_t>{0, 1}));
    EXPECT_EQ(slots("%ASH"), (std::vector<std::int32_t>{2}));
    EXPECT_EQ(slots("ash%5b"), (std::vector<std::int32_t>{3}));
    EXPECT_EQ(slots("As"), std::vector<std::int32_t>());
}

TEST_F(FinderTest, NothingIsFoundWithoutATextOrATable) {
    EXPECT_EQ(Found("ash"), std::vector<Hit>());
    Read(HeaderOf("Ash") + "|Ash\r\n");
    EXPECT_EQ(Found(""), std::vector<Hit>());
    EXPECT_EQ(Found("", FindBy::WholeSpelling), std::vector<Hit>());
}

TEST_F(FinderTest, HostileTextsAreTextsLikeOthers) {
    Read(HeaderOf("Ash") + "|Stoke Ash|a.*h\r\n");
    EXPECT_EQ(Found(" "), (std::vector<Hit>{{HitKind::Variation, 1, 1}}));
    EXPECT_EQ(Found(".*"), (std::vector<Hit>{{HitKind::Variation, 1, 2}}));
    for (const std::string& sought :
         {std::string(100'000, 'a'), std::string("<b>Ash</b>"), std::string("[a-z]+"), std::string("A\0h", 3)}) {
        EXPECT_EQ(Found(sought), std::vector<Hit>());
        EXPECT_EQ(Found(sought, FindBy::WholeSpelling), std::vector<Hit>());
    }
}

TEST_F(FinderTest, HitsAreThoseOfAPlainLoopAfterAnyChange) {
    ExpectTheSameAsAPlainLoop({"a", "A", "b", " ", "%", "!", "\xE9", "\xC9", "ash", "5b"}, 3'000);
}

TEST_F(FinderTest, HitsInUtf8AreThoseOfAPlainLoopAfterAnyChange) {
    ExpectTheSameAsAPlainLoop({"a", "A", "b", " ", "%", "!", "é", "É", "Ⱥ", "ⱥ", "жа"}, 3'000);
}

TEST_F(FinderTest, AHitIsInTheRowThatItIsFoundBy) {
    Read("#QX_NOTE a\r\n" + HeaderOf("Ash") + "|a|b|ca\r\n" + HeaderOf("Bay") + "|da\r\n");
    Finder finder("a", FindBy::Part);
    while (!finder.Step(100)) {
    }
    const Hits& hits = *finder.Found();
    for (std::size_t row = 0; row < hits.Count(); ++row) {
        EXPECT_EQ(hits.RowOf(hits.At(row)), row);
    }
    EXPECT_EQ(hits.RowOf({HitKind::Variation, 2, 2}), std::nullopt);
    EXPECT_EQ(hits.RowFrom({HitKind::Variation, 2, 2}), 3U) << "the next one of its kind";
    EXPECT_EQ(hits.RowFrom({HitKind::Comment, 2, 0}), hits.Count());
    EXPECT_EQ(DistrictOf({HitKind::Comment, 1, 0}), 2);
}
