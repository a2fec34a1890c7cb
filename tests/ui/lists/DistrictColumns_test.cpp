#include "file/DistrictList.h"
#include "support/Reading.h"
#include "support/Table.h"
#include "ui/Text.h"
#include "ui/lists/DistrictColumns.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <fstream>
#include <random>

using namespace CommonRoutines;
using namespace Ui;

namespace {

int Measure(const QFont& font, const std::string& text) {
    return qRound(QFontMetricsF(font).horizontalAdvance(Text::ForList(text)));
}

using Widths = std::array<int, DistrictColumnTable.size()>;

// The rule carried out plainly: every heading and every cell is measured.
Widths WidthsByTheRule(const QFont& font, const std::vector<DistrictRecord>& records) {
    Widths widths{};
    for (std::size_t column = 0; column < widths.size(); ++column) {
        const std::string padding = column == 0 ? "W" : "WW";
        widths[column] = Measure(font, "WW" + std::string(DistrictColumnTable[column].heading));
        for (const DistrictRecord& record : records) {
            widths[column] = std::max(widths[column], Measure(font, DistrictCell(record, column) + padding));
        }
    }
    return widths;
}

void ExpectTheRule(const QFont& font, const std::vector<DistrictRecord>& records) {
    DistrictColumns columns(font);
    for (const DistrictRecord& record : records) {
        columns.AddDistrictRow(record);
    }
    const Widths expected = WidthsByTheRule(font, records);
    for (std::size_t column = 0; column < expected.size(); ++column) {
        EXPECT_EQ(columns.Width(column), expected[column]) << DistrictColumnTable[column].heading;
    }
}

DistrictRecord Named(const std::string& name) {
    DistrictRecord record;
    record.Line = name;
    return record;
}

std::vector<DistrictRecord> Gazetteer() {
    ResetState();
    std::ifstream file(QUEXAL_DATA_DIR "/gazetteer-gb.txt", std::ios::binary);
    ScriptedDesktop desktop;
    desktop.recordReports = true;
    ReadText(desktop, {std::istreambuf_iterator<char>(file), {}});
    std::vector<DistrictRecord> records;
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        if (IsDistrict(i)) {
            records.push_back(Districts[static_cast<std::size_t>(i)]);
        }
    }
    return records;
}

// Letters that are added up, letters beyond those, and what stands above another letter or on two places.
const std::vector<std::string> Characters{
    "a",        "W",         "V.",        "ffi",          "\xC5\xB5",         "\xC5\xB4",
    "\xC5\xB7", "\xC3\xA9",  "T\xC5\x8D", "\xD0\x96",     "\xD1\x8E",         "\xCE\xA9",
    "\xCE\xAC", "w\xCC\x82", "\xCC\x81",  "\xE1\xBA\x84", "\xF0\x9F\x98\x80", " "};

class Utf8ColumnsTest : public StateTest {
protected:
    Utf8ColumnsTest() { eFileEncoding = Encoding::Utf8; }
};

} // namespace

TEST(DistrictColumnsTest, WithoutDistrictsTheColumnsAreAsWideAsTheirHeadings) {
    ExpectTheRule(QApplication::font(), {});
}

TEST(DistrictColumnsTest, EmptyTextsNarrowNoColumn) {
    ExpectTheRule(QApplication::font(), {DistrictRecord()});
}

TEST(DistrictColumnsTest, AnExtremeYearWidensItsColumn) {
    DistrictRecord record;
    record.QtrF = -32768;
    QFont wide = QApplication::font();
    ExpectTheRule(wide, {record});
    EXPECT_GT(Measure(wide, "-32768WW"), Measure(wide, "QtrFWW"));
}

TEST(DistrictColumnsTest, OfTheGazetteerTheColumnsAreAsIfEveryCellHadBeenMeasured) {
    const std::vector<DistrictRecord> records = Gazetteer();
    ASSERT_GT(records.size(), 5000U);
    ExpectTheRule(QApplication::font(), records);
}

TEST(DistrictColumnsTest, EveryNameThatIsALittleWiderThanTheLastWidensTheColumn) {
    // Ever wider names: one that is judged by its letters alone to be narrower would be missed.
    std::string name;
    DistrictColumns columns(QApplication::font());
    int expected = columns.Width(0);
    for (const std::string letters :
         {"AVAVAVAVAVAVAVAV", "ToToToToToToToTo", "fififififffififi", "WAWAWAWA", "Ty.Ty.Ty.", "\xC9\xE9\x80"}) {
        for (const char letter : letters) {
            name += letter;
            columns.AddDistrictRow(Named(name));
            expected = std::max(expected, Measure(QApplication::font(), name + "W"));
            EXPECT_EQ(columns.Width(0), expected) << name;
        }
    }
}

TEST(DistrictColumnsTest, MeasuringAppliesTheMinimum) {
    const DistrictColumns columns(QApplication::font());
    const int width = Measure(QApplication::font(), "Alpha");
    EXPECT_EQ(columns.MeasureTextWidth("Alpha", 0), width);
    EXPECT_EQ(columns.MeasureTextWidth("Alpha", width + 1), width + 1);
    EXPECT_EQ(columns.MeasureTextWidth("Alpha", width - 1), width);
}

TEST_F(Utf8ColumnsTest, TheColumnsAreAsIfEveryCellHadBeenMeasured) {
    std::mt19937 random(7);
    for (int round = 0; round < 60; ++round) {
        std::vector<DistrictRecord> records;
        for (int i = 0; i < 8; ++i) {
            std::string name;
            std::string county;
            for (auto length = 1 + random() % 20; length > 0; --length) {
                name += Characters[random() % Characters.size()];
                county += Characters[random() % Characters.size()];
            }
            records.emplace_back().Line = name + "+1+" + county;
        }
        ExpectTheRule(QApplication::font(), records);
    }
}

TEST_F(Utf8ColumnsTest, EveryCharacterMoreWidensTheColumnUpToThreeHundred) {
    std::mt19937 random(8);
    std::string name;
    DistrictColumns columns(QApplication::font());
    int expected = columns.Width(0);
    for (int count = 0; count < 300; ++count) {
        name += Characters[random() % Characters.size()];
        columns.AddDistrictRow(Named(name));
        expected = std::max(expected, Measure(QApplication::font(), std::string(Ansi::Trim(name)) + "W"));
        ASSERT_EQ(columns.Width(0), expected) << name;
    }
}
