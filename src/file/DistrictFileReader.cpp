#include "file/DistrictFileReader.h"

#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/Lines.h"
#include "core/Progress.h"
#include "core/State.h"
#include "edit/Variations.h"
#include "file/CommentTypes.h"
#include "file/DistrictLine.h"
#include "file/FileKind.h"
#include "recovery/OpenFile.h"
#include "recovery/UnsavedChanges.h"
#include "repair/RepairNullVariation.h"
#include "rules/Capitals.h"
#include "rules/Duplicates.h"
#include "rules/Validation.h"

#include <algorithm>
#include <new>

namespace CommonRoutines {

namespace {

constexpr std::size_t InitialUpperBound = 20;
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

    // `lineCount` is about how many lines the content has.
    void Run(std::string_view content, std::size_t lineCount);

private:
    DistrictRecord& AddRecord();
    void ReadLine(std::string_view line);
    void ReadComment(std::string_view line, DistrictRecord& record);
    void ReadDistrict(std::string_view line, DistrictRecord& record);
    void ReadLineWithoutHeader(std::string_view line, DistrictRecord& record);
    void ReadVariations(DistrictRecord& record);
    void ReadVariation(DistrictRecord& record, std::int32_t k);
    void RepairVariation(DistrictRecord& record, std::int32_t k);
    void SetField(std::int32_t k, std::string text);
    void ReportLine();
    void ShowReport();

    std::string_view& Field(std::int32_t k) { return m_fields[static_cast<std::size_t>(k)]; }
    void Complain(const Wording& text) { m_desktop.MsgBox(text, BoxIcon::Exclamation); }

    Desktop& m_desktop;
    // The fields of the line being read, as parts of the file's content; once a repair has changed one
    // of them, as parts of texts of their own.
    std::vector<std::string_view> m_fields;
    std::vector<std::string> m_repairedFields; // empty until then
    std::vector<std::string> m_messages;
    bool m_hasMessages = false;
    bool m_stopped = false; // the user quit the repair dialogue
    std::int32_t m_warningCount = 0;
    std::int32_t m_blankCount = 0;
    std::int32_t m_capsCount = 0;
};

VariationRecord DeletedSlot() {
    VariationRecord slot;
    slot.Text = DeletedText;
    return slot;
}

DistrictRecord& FileRead::AddRecord() {
    ++lLineCount;
    if (lLineCount >= std::ssize(Districts)) {
        Districts.resize(static_cast<std::size_t>(lLineCount) + TableStep + 1);
    }
    return RecordOf(lLineCount);
}

void FileRead::Run(std::string_view content, std::size_t lineCount) {
    Progress progress(m_desktop, "Checking the lines of the file", lineCount);
    Lines lines(content);
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
        Retain(record, line);
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
        ReportLine();
    }
}

void FileRead::ReadComment(std::string_view line, DistrictRecord& record) {
    Retain(record, line);
    if (Ansi::EqualIgnoringCase(line.substr(0, CommentMarker.size()), CommentMarker)) {
        AddCommentType(line);
    }
}

void FileRead::ReadDistrict(std::string_view line, DistrictRecord& record) {
    Ansi::SplitInto(m_fields, line, '|');
    m_repairedFields.clear();
    if (FillHeader(record, Field(0), MaxDistrictParts) != HeaderResult::Filled) {
        Complain("Line " + Number(lLineCount) +
                 " is incomplete but has been retained in the file.  It will not be available for editing.\r\n" +
                 std::string(line));
        Retain(record, line);
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
    const HeaderResult header = FillHeader(record, line, MaxPartsWithoutVariations);
    if (header == HeaderResult::Filled) {
        m_desktop.MsgBox("The line will be available for editing.", BoxIcon::Information);
        record.Variations.resize(2);
        return;
    }
    Complain(NotEditable);
    Retain(record, line);
    if (header == HeaderResult::WrongPartCount) {
        // Saving is expected to turn such a line into an empty one.
        record.HeaderText = "";
    }
}

void FileRead::ReadVariations(DistrictRecord& record) {
    record.lVariationCount = static_cast<std::int32_t>(std::ssize(m_fields)) - 1;
    // Even a district without variations has a first slot.
    record.Variations.resize(static_cast<std::size_t>(std::max(record.lVariationCount, 1)) + 1);
    for (std::int32_t k = 1; k <= record.lVariationCount && !m_stopped; ++k) {
        ReadVariation(record, k);
    }
}

void FileRead::ReadVariation(DistrictRecord& record, std::int32_t k) {
    VariationRecord& variation = VariationOf(lLineCount, k);
    if (Ansi::Trim(Field(k)).empty()) {
        ++m_blankCount;
        variation = DeletedSlot();
        return;
    }
    variation.Text = Field(k);
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

void FileRead::ReportLine() {
    const Ansi::String& name = RecordOf(lLineCount).Name;
    std::string message;
    // The count is the whole file's so far: once a blank variation has been met, every later line
    // repeats the sentence with its own name.
    if (m_blankCount > 0) {
        message = "There were " + Number(m_blankCount) + " blank variations in District " + name +
                  ".  They have been removed.\r\n";
    }
    if (FindDuplicateVariations(lLineCount)) {
        message += "District " + name + " has duplicate variations.";
    }
    if (!message.empty()) {
        m_messages.push_back(std::move(message));
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
        m_desktop.ShowReport({"Read File Results", std::move(m_messages), false});
    }
}

// Leaves nothing of a table, above all no memory.
void ForgetTable() {
    Districts = {};
    ++lTableNumber;
    lLineCount = 0;
    lDistrictTotal = lInvalidTotal = lCapsOkTotal = 0;
    bChanged = false;
    iRepairAction = NoRepair;
}

// Any other file would be complained about line by line.
bool IsWanted(Desktop& desktop, std::string_view content) {
    return !IsHardlyADataFile(content) ||
           desktop.MsgBox("This is hardly a data file: none of its lines is a district.\r\n" +
                              Wording::OfPath(sDataFileName) + "\r\nDo you want to open it all the same?",
                          BoxIcon::Question, BoxButtons::YesNoDefaultNo) == BoxAnswer::Yes;
}

enum class Outcome { Read, Unreadable, NotWanted };

Outcome ReadTable(Desktop& desktop, const std::function<void()>& takeEncoding) {
    ForgetTable(); // before the file is read, so that two files are never in memory at once
    TheOpenFile.Close(desktop);
    std::string stamp = desktop.StampOf(sDataFileName); // before reading: what is changed meanwhile is not what is read
    auto content = desktop.ReadFile(sDataFileName);
    if (!content) {
        return Outcome::Unreadable;
    }
    TheOpenFile.BeginReading(desktop, sDataFileName, *content, std::move(stamp));
    eFileEncoding = eEncodingOnDisk = EncodingOf(*content);
    takeEncoding();
    content = Decoded(std::move(*content), eFileEncoding);
    if (!IsWanted(desktop, *content)) {
        return Outcome::NotWanted;
    }
    const auto lineCount = static_cast<std::size_t>(std::count(content->begin(), content->end(), '\n')) + 1;
    Districts.reserve(lineCount + InitialUpperBound);
    Districts.resize(InitialUpperBound + 1);
    FileRead(desktop).Run(*content, lineCount);
    return Outcome::Read;
}

} // namespace

void ForgetDistrictFile(Desktop& desktop) {
    ForgetTable();
    EmptyDupePairs();
    CommentTypes.Reset();
    TheOpenFile.Close(desktop);
    sDataFileName.clear();
}

void ReadDistrictFile(Desktop& desktop, const std::function<void()>& takeEncoding) {
    desktop.ShowBusy(true);
    desktop.EnterProgramFolder();
    std::string_view problem;
    auto outcome = Outcome::Unreadable;
    try {
        outcome = ReadTable(desktop, takeEncoding);
        problem = "The file cannot be read:\r\n";
    } catch (const std::bad_alloc&) {
        // A line end takes a whole record: a file may need a hundred times its size.
        problem = "There is not enough memory for the file:\r\n";
    }
    if (outcome == Outcome::Read) {
        return;
    }
    const std::string path = sDataFileName;
    ForgetDistrictFile(desktop);
    desktop.ShowBusy(false);
    if (outcome == Outcome::Unreadable) {
        desktop.MsgBox(problem + Wording::OfPath(path), BoxIcon::Exclamation);
    }
}

} // namespace CommonRoutines
