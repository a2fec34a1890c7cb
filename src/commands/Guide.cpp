#include "commands/Guide.h"

#include "commands/Session.h"
#include "core/Desktop.h"
#include "core/Wording.h"

#include <string>

using namespace CommonRoutines;

namespace Commands {

void ShowGuide(Desktop& desktop) {
    // A viewer may be kept from folders that only lead to documents, but not from those of the documents.
    const std::string guide = desktop.TruePath(desktop.ProgramFolder() + "/guide/user-guide.html");
    if (!desktop.ShowDocument(guide)) {
        desktop.MsgBox("The user guide could not be shown. This is its file:\r\n" + Wording::OfPath(guide),
                       BoxIcon::Exclamation);
    }
}

void ShowGuide(Session& session) {
    ShowGuide(session.desktop);
}

} // namespace Commands
