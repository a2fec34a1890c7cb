#include "checks/SaveVariations.h"

#include "core/Desktop.h"
#include "core/Encoding.h"
#include "core/State.h"
#include "recovery/SaveCopy.h"

#include <utility>

namespace CommonRoutines {

void SaveSelectedVariations(std::span<const std::string> variations, Desktop& desktop) {
    FileRequest request;
    request.title = "Open Variation Save File";
    request.defaultExtension = "txt";
    const auto path = desktop.ChooseFileToSave(request);
    if (!path) {
        return;
    }
    std::string content;
    for (const std::string& variation : variations) {
        content += variation + "\r\n";
    }
    if (!content.empty()) { // of nothing, nothing is written
        content = Encoded(std::move(content), eFileEncoding);
    }
    const Wording name = Wording::OfPath(*path);
    if (WriteFile(desktop, *path, content)) {
        desktop.MsgBox(std::to_string(variations.size()) + " Variations Saved to " + name, BoxIcon::Information);
    } else {
        desktop.MsgBox("The file cannot be written:\r\n" + name, BoxIcon::Exclamation);
    }
}

} // namespace CommonRoutines
