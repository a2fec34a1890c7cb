#include "ui/lists/StateWords.h"

#include "ui/Text.h"

namespace Ui {

QString StateInWords(CommonRoutines::VariationState state) {
    const std::string_view words = FactsOf(state).words;
    return words.empty() ? QString() : QStringLiteral(" - ") + Text::ToQt(words);
}

} // namespace Ui
