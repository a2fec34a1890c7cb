#include "commands/CheckCommands.h"

#include "checks/CompleteCheck.h"
#include "checks/SaveVariations.h"
#include "commands/Session.h"
#include "commands/VariationCommands.h"
#include "edit/Variations.h"

using namespace CommonRoutines;

namespace Commands {

void CompleteCheck(Session& session) {
    ClearWhyError(session);
    session.desktop.ShowReport(CompleteVariationCheck(session.desktop));
}

void SaveVariations(Session& session) {
    std::vector<std::string> texts;
    for (const VariationRow& row : SelectedVariations(session)) {
        texts.push_back(VariationOf(session.view.variationsOf, row.slot).Text);
    }
    SaveSelectedVariations(texts, session.desktop);
}

} // namespace Commands
