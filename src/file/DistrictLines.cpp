#include "file/DistrictLines.h"

#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/Lines.h"
#include "core/Progress.h"
#include "core/State.h"
#include "edit/Variations.h"
#include "file/CommentTypes.h"
#include "file/DistrictLine.h"
#include "recovery/UnsavedChanges.h"
#include "repair/RepairNullVariation.h"
#include "rules/Capitals.h"
#include "rules/Duplicates.h"
#include "rules/OrdinaryText.h"
#include "rules/Validation.h"

#include <algorithm>
#include <string>
#include <vector>

namespace CommonRoutines {

namespace {

constexpr std::size_t TableStep = 10;

constexpr std::string_view NotEditable =
    "The line is incomplete but has been retained in the file.  It will not be available for editing.";

std::string Number(std::int32_t number) {
    return std::to_string(number);
}

// One read of a file, from its first line to its report.
class FileRead {
public:
    explicit FileRead(Desktop& desktop) : m_desktop(desktop) {}

    // Of sTableContent, which has about so many lines.
    void Run(std::size_t lineCount);

private:
    DistrictRecord& AddRecord();
    void ReadLine(std::string_view line);
    void ReadComment(std::string_view line, DistrictRecord& record);
    void ReadDistrict(std::string_view line, DistrictRecord& record);
    void ReadLineWithoutHeader(std::string_view line, DistrictRecord& record);
    void ReadVariations(DistrictRecord& record);
    void ReadVariation(DistrictRecord& record, VariationRecord& variation, std::int32_t k);
    void RepairVariation(DistrictRecord& record, std::int32_t k);
    void SetField(std::int32_t k, std::string text);
    void ReportLine(std::string_view line);
    void ShowReport();

    std::string_view& Field(std::int32_t k) { return m_fields[static_cast<std::size_t>(k)]; }
    // What a repair has put together is no part of the content.
    [[nodiscard]] Ansi::String TextOf(std::string_view field) const {
        return m_repairedFields.empty() ? Ansi::String::PartOf(field) : Ansi::String(field);
    }
    void Complain(const Wording& text) { m_desktop.MsgBox(text, BoxIcon::Exclamation); }

    Desktop& m_desktop;
    // The fields of the line being read, as parts of the file's content; once a repair has changed one
    // of them, as parts of texts of their own.
    std::vector<std::string_view> m_fields;
    std::vector<std::string> m_repairedFields; // empty until then
    std::vector<std::string> m_messages;
    std::vector<ReportPlace> m_places; // of the first messages; the counts behind them name none
    bool m_hasMessages = false;
    bool m_stopped = false; // the user quit the repair dialogue
    std::int32_t m_warningCount = 0;
    std::int32_t m_blankCount = 0;
    std::int32_t m_capsCount = 0;
};

DistrictRecord& FileRead::AddRecord() {
    ++lLineCount;
    if (lLineCount >= std::ssize(Districts)) {
        Districts.resize(static_cast<std::size_t>(lLineCount) + TableStep + 1);
    }
    return RecordOf(lLineCount);
}

void FileRead::Run(std::size_t lineCount) {
    Progress progress(m_desktop, "Checking the lines of the file", lineCount);
    Lines lines(sTableContent);
    while (!m_stopped) {
        const auto line = lines.Next();
        if (!line) {
            break;
        }
        ReadLine(Ansi::Trim(*line));
        progress.Advance(1);
    }
    m_desktop.ShowBusy(false);
    if (iRepairAction != Quit) {
        ShowReport();
    }
}

void FileRead::ReadLine(std::string_view line) {
    DistrictRecord& record = AddRecord();
    if (line.empty()) {
        Retain(record, Ansi::String::PartOf(line));
        return;
    }
    if (line.starts_with('#')) {
        ReadComment(line, record);
    } else if (line.starts_with('|')) {
        ReadLineWithoutHeader(line, record);
    } else {
        ReadDistrict(line, record);
    }
    if (!m_stopped) {
        ReportLine(line);
    }
}

void FileRead::ReadComment(std::string_view line, DistrictRecord& record) {
    Retain(record, Ansi::String::PartOf(line));
    if (Ansi::EqualIgnoringCase(line.substr(0, CommentMarker.size()), CommentMarker)) {
        AddCommentType(line);
    }
}

void FileRead::ReadDistrict(std::string_view line, DistrictRecord& record) {
    Ansi::SplitInto(m_fields, line, '|');
    m_repairedFields.clear();
    if (FillHeader(record, Ansi::String::PartOf(Field(0)), MaxDistrictParts) != HeaderResult::Filled) {
        Complain("Line " + Number(lLineCount) +
                 " is incomplete but has been retained in the file.  It will not be available for editing.\r\n" +
                 std::string(line));
        Retain(record, Ansi::String::PartOf(line));
        return;
    }
    ++lDistrictTotal;
    for (const std::string& complaint : QuarterComplaints(record)) {
        Complain(complaint);
    }
    ReadVariations(record);
}

// A line that begins with "|": its whole text is taken for a header, the "|" becoming part of the name.
void FileRead::ReadLineWithoutHeader(std::string_view line, DistrictRecord& record) {
    Complain("Entry found with no variations at line " + Number(lLineCount) + "\r\n" + std::string(line));
    const HeaderResult header = FillHeader(record, Ansi::String::PartOf(line), MaxPartsWithoutVariations);
    if (header == HeaderResult::Filled) {
        m_desktop.MsgBox("The line will be available for editing.", BoxIcon::Information);
        record.Variations.TakeFrom(TableSlots, 2);
        return;
    }
    Complain(NotEditable);
    Retain(record, Ansi::String::PartOf(line));
    if (header == HeaderResult::WrongPartCount) {
        // Saving is expected to turn such a line into an empty one.
        record.bLosesLine = true;
    }
}

void FileRead::ReadVariations(DistrictRecord& record) {
    record.lVariationCount = static_cast<std::int32_t>(std::ssize(m_fields)) - 1;
    // Even a district without variations has a first slot.
    record.Variations.TakeFrom(TableSlots, static_cast<std::size_t>(std::max(record.lVariationCount, 1)) + 1);
    for (std::int32_t k = 1; k <= record.lVariationCount && !m_stopped; ++k) {
        VariationRecord& variation = record.Variations[static_cast<std::size_t>(k)];
        if (IsOrdinary(Field(k))) {
            variation.Text = TextOf(Field(k));
            bWarning = false;
            sWarningReason.clear();
            ++lCapsOkTotal;
        } else {
            ReadVariation(record, variation, k);
        }
    }
}

void FileRead::ReadVariation(DistrictRecord& record, VariationRecord& variation, std::int32_t k) {
    if (Ansi::Trim(Field(k)).empty()) {
        ++m_blankCount;
        variation.Text = Ansi::String::PartOf(DeletedText);
        return;
    }
    variation.Text = TextOf(Field(k));
    // The rule has nothing to say of a text without the sign, which nearly all are.
    if (Field(k).find('?') != std::string_view::npos && !CheckQuestionMark(Field(k))) {
        ++record.iQuestionCount;
    }
    bool bNullDistrict = false;
    if (!ValidateVariation(Field(k), lLineCount, &bNullDistrict)) {
        ++lInvalidTotal;
        ++record.lInvalidCount;
        if (bNullDistrict) {
            RepairVariation(record, k);
        }
    }
    if (m_stopped) {
        return;
    }
    // The flag is that of the last check that reached its warning stage, also when this variation
    // was refused before.
    if (bWarning) {
        ++record.lWarningCount;
        ++m_warningCount;
    }
    variation.bUnusualCaps = CapitalsAreUnusual(variation.Text);
    ++(variation.bUnusualCaps ? m_capsCount : lCapsOkTotal);
}

void FileRead::RepairVariation(DistrictRecord& record, std::int32_t k) {
    if (m_repairedFields.empty()) {
        m_repairedFields.assign(m_fields.begin(), m_fields.end());
        Unsaved.KeepFields(lLineCount, m_repairedFields);
    }
    if (!RepairNullVariation(record, m_repairedFields, k, lLineCount, m_desktop)) {
        m_stopped = true;
        return;
    }
    SetField(k, m_repairedFields[static_cast<std::size_t>(k)]);
    --record.lInvalidCount;
    switch (iRepairAction) {
    case CombinePrevious:
        StoreText(lLineCount, k - 1, Field(k));
        StoreText(lLineCount, k, DeletedText);
        break;
    case CombineNext:
        SetField(k + 1, std::string(Field(k))); // read again as the next variation
        StoreText(lLineCount, k + 1, Field(k));
        StoreText(lLineCount, k, DeletedText);
        break;
    case Remove:
        StoreText(lLineCount, k, DeletedText);
        break;
    case Type:
        StoreText(lLineCount, k, Field(k));
        break;
    default:
        break;
    }
    Unsaved.Write(m_desktop); // reading may go on for long
}

void FileRead::SetField(std::int32_t k, std::string text) {
    std::string& field = m_repairedFields[static_cast<std::size_t>(k)];
    field = std::move(text);
    Field(k) = field;
}

void FileRead::ReportLine(std::string_view line) {
    const auto name = [&] {
        const DistrictRecord& record = RecordOf(lLineCount);
        return std::string(record.bRetained ? line : record.Name());
    };
    std::string message;
    // The count is the whole file's so far: once a blank variation has been met, every later line
    // repeats the sentence with its own name.
    if (m_blankCount > 0) {
        message = "There were " + Number(m_blankCount) + " blank variations in District " + name() +
                  ".  They have been removed.\r\n";
    }
    if (FindDuplicateVariations(lLineCount)) {
        message += "District " + name() + " has duplicate variations.";
    }
    if (!message.empty()) {
        m_messages.push_back(std::move(message));
        m_places.push_back({IsDistrict(lLineCount) ? lLineCount : 0});
        m_hasMessages = true;
    }
}

void FileRead::ShowReport() {
    if (m_warningCount > 0) {
        m_messages.push_back("There were " + Number(m_warningCount) + " Variations with warnings.\r\n");
    }
    // Warnings alone are no reason to show it.
    if (m_hasMessages || m_capsCount >= 1) {
        m_messages.push_back(Number(m_capsCount) + " variations with capitalisation problems");
        const auto placeOf = [places = std::move(m_places)](std::size_t line) {
            return line < places.size() ? places[line] : ReportPlace{};
        };
        m_desktop.ShowReport({"Read File Results", std::move(m_messages), false, placeOf});
    }
}

} // namespace

void ReadDistrictLines(Desktop& desktop, std::size_t lineCount) {
    FileRead(desktop).Run(lineCount);
}

} // namespace CommonRoutines
