// Reads any bytes as a data file with any answers to its questions, then looks at everything that the
// window would show of it. What is saved must come back the same when it is read and saved again.

#include "FuzzDesktop.h"
#include "Invariant.h"

#include "checks/CompleteCheck.h"
#include "core/Ansi.h"
#include "core/Encoding.h"
#include "core/Lines.h"
#include "core/State.h"
#include "edit/VariationList.h"
#include "file/CommentTypes.h"
#include "file/DistrictComments.h"
#include "file/DistrictFileReader.h"
#include "file/DistrictFileWriter.h"
#include "file/DistrictList.h"

using namespace CommonRoutines;

namespace {

std::string ReadAndSave(const std::string& content, std::string_view answers) {
    ResetState();
    CommentTypes.Reset();
    FuzzDesktop desktop(content, answers);
    ReadDistrictFile(desktop);
    if (iRepairAction == Quit) {
        lLineCount = 0; // as opening a file does
    }
    return Encoded(DistrictFileContent(), eFileEncoding);
}

// All that a district's record says, as a text.
std::string TableAsText() {
    std::string text;
    for (std::int32_t line = 1; line <= lLineCount; ++line) {
        const DistrictRecord& record = RecordOf(line);
        for (const std::string_view field : {record.Name(), record.HeaderText(), record.County(), record.Volume()}) {
            text += std::string(field) + "\n";
        }
        for (const std::int32_t number :
             {std::int32_t{record.bRetained}, std::int32_t{record.Founded}, std::int32_t{record.QtrF},
              std::int32_t{record.Abolished}, std::int32_t{record.QtrA}, record.iQuestionCount, record.iDuplicateCount,
              record.lInvalidCount, record.lWarningCount, record.lVariationCount}) {
            text += std::to_string(number) + ",";
        }
        for (std::int32_t k = 1; k <= record.lVariationCount; ++k) {
            const VariationRecord& variation = record.Variations[static_cast<std::size_t>(k)];
            text += "|" + variation.Text + (variation.bDuplicate ? "=" + std::to_string(variation.lDuplicateOf) : "");
            text += variation.bUnusualCaps ? "^" : "";
        }
    }
    return text;
}

void LookAtEverything() {
    FuzzDesktop desktop("", "");
    const std::vector<NamedDistrict> byName = DistrictsByName();
    ReportDuplicatedDistricts(byName, desktop);
    const std::vector<std::int32_t> districts = LinesOf(byName);
    for (const CommentType& type : CommentTypes.Items()) {
        static_cast<void>(DistrictsOfType(districts, type.type));
    }
    for (const std::int32_t district : districts) {
        static_cast<void>(
            CommentRows(district, 40, [](std::string_view text) { return static_cast<double>(text.size()); }));
        static_cast<void>(ListVariations(district));
    }
    static_cast<void>(CompleteVariationCheck(desktop));
}

// Whether the next reading takes the bytes just saved for the text that they were saved from.
bool IsReadAsSaved(const std::string& saved) {
    return Decoded(saved, EncodingOf(saved)) == DistrictFileContent();
}

// A line that begins with "|" and has not as many fields as a header is saved as an empty one.
bool IsSavedEmpty(std::string_view line) {
    const std::size_t fields = Ansi::Split(line, '+').size();
    return line.starts_with('|') && (fields < 9 || fields > 11);
}

// The lines that a saved file is expected to have when it is read and saved again. Dropping an empty field at
// the end of a line may leave a blank there, which is trimmed. What was dropped may also have been all that was
// no UTF-8. Then the first line may begin with a byte order mark that was a part of it before, and may be of
// another kind without it.
std::string LinesSavedAgain(const std::string& saved, bool readAsSaved) {
    const Encoding encoding = EncodingOf(saved);
    const std::string text = Decoded(saved, encoding); // a byte order mark is no line
    bool hasNewMark = encoding == Encoding::Utf8WithMark && !readAsSaved;
    std::string expected;
    Lines lines(text);
    while (const auto line = lines.Next()) {
        const std::string_view trimmed = Ansi::Trim(*line);
        expected += std::string(hasNewMark && IsSavedEmpty(trimmed) ? "" : trimmed) + "\r\n";
        hasNewMark = false;
    }
    return Encoded(expected, encoding);
}

// Trimming may make a lone tab of the last variation of a line, which then is a deleted one.
bool SameLines(const std::string& written, const std::string& expected) {
    Lines left(written);
    Lines right(expected);
    for (;;) {
        const auto a = left.Next();
        const auto b = right.Next();
        if (!a || !b) {
            return !a && !b;
        }
        if (*a != *b && std::string(*a) + "|\t" != *b) {
            return false;
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    constexpr std::size_t answerCount = 4;
    if (size < answerCount) {
        return 0;
    }
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    std::string saved = ReadAndSave(std::string(input.substr(answerCount)), input.substr(0, answerCount));
    // Only what was no byte order mark may become one, and only by the first saving.
    bool readAsSaved = IsReadAsSaved(saved);
    Demand(readAsSaved || (eFileEncoding != Encoding::Utf8WithMark && EncodingOf(saved) == Encoding::Utf8WithMark));
    LookAtEverything();
    // What was repaired needs no repair again, and what is saved without a change is soon the same ever after.
    for (std::string again = ReadAndSave(saved, ""); again != saved; again = ReadAndSave(saved, "")) {
        Demand(!bChanged && again.size() < saved.size() && IsReadAsSaved(again));
        Demand(SameLines(again, LinesSavedAgain(saved, readAsSaved)));
        readAsSaved = true;
        saved = std::move(again);
    }
    const std::string table = TableAsText();
    Demand(!bChanged && ReadAndSave(saved, "") == saved && TableAsText() == table);
    return 0;
}
