#include "core/Wording.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

const std::string Path = "/data/\xC4\x8D"
                         "aj\xE2\x82\xAC.txt"; // of these two, Windows-1252 has the euro sign

} // namespace

TEST(WordingTest, PlainTextIsOneAsItIs) {
    const Wording wording = std::string("Caf\xE9") + " of Alpha";
    EXPECT_EQ(wording.AsText(), "Caf\xE9 of Alpha");
    EXPECT_EQ(wording.Utf8(), "Caf\xC3\xA9 of Alpha");
    EXPECT_EQ(wording.Parts().size(), 1U);
}

TEST(WordingTest, APathKeepsItsCharacters) {
    const Wording wording = "Caf\xE9 in " + Wording::OfPath(Path) + "\r\nWhere?";
    EXPECT_EQ(wording.Utf8(), "Caf\xC3\xA9 in " + Path + "\r\nWhere?");
}

TEST(WordingTest, InTheCodePageAPathIsAsNearAsCanBe) {
    EXPECT_EQ(("Caf\xE9 in " + Wording::OfPath(Path)).AsText(), "Caf\xE9 in /data/?aj\x80.txt");
}

TEST(WordingTest, OfAPathThatIsNoUtf8EveryByteStays) {
    const Wording wording = Wording::OfPath("/data/caf\xE9\xC3") + "\x80";
    EXPECT_EQ(wording.Utf8(), "/data/caf\xE9\xC3\xE2\x82\xAC");
    EXPECT_EQ(wording.AsText(), "/data/caf??\x80");
}

TEST(WordingTest, ThePartsStandInTheirOrder) {
    const Wording wording = std::string("a") + (Wording("b") + Wording::OfPath("c") + Wording::OfPath("d") + "") + "e";
    ASSERT_EQ(wording.Parts().size(), 3U);
    EXPECT_EQ(wording.Parts()[0].text, "ab");
    EXPECT_EQ(wording.Parts()[1].text, "cd");
    EXPECT_TRUE(wording.Parts()[1].isPath);
    EXPECT_EQ(wording.Parts()[2].text, "e");
    EXPECT_FALSE(wording.Parts()[2].isPath);
}

TEST(WordingTest, NothingSaysNothing) {
    EXPECT_EQ(Wording("").Utf8(), "");
    EXPECT_EQ(Wording::OfPath("").AsText(), "");
}
