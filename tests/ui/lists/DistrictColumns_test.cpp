#include "file/DistrictList.h"
#include "support/Reading.h"
#include "ui/Text.h"
#include "ui/lists/DistrictColumns.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <fstream>

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
    record.Name = name;
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
