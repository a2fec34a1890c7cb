#include "file/DistrictFileWriter.h"

#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/Paths.h"
#include "core/State.h"

namespace CommonRoutines {

std::string DistrictFileContent() {
    std::string content;
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        const DistrictRecord& record = RecordOf(i);
        content += record.HeaderText;
        for (std::int32_t k = 1; k <= record.lVariationCount; ++k) {
            const VariationRecord& variation = record.Variations[static_cast<std::size_t>(k)];
            if (!variation.IsDeleted()) {
                content += '|';
                content += variation.Text;
            }
        }
        content += "\r\n";
    }
    return content;
}

void SaveDistrictFile(Desktop& desktop) {
    FileRequest request;
    request.sFolder = Paths::FolderOf(sDataFileName);
    request.sFileName = Paths::NameOf(sDataFileName);
    const auto path = desktop.ChooseFileToSave(request);
    if (path && desktop.ReplaceFile(*path, DistrictFileContent())) {
        desktop.MsgBox("File Saved to " + Ansi::FromUtf8(*path), BoxIcon::Information);
    }
}

} // namespace CommonRoutines
