#include "ui/lists/StateWords.h"

#include "ui/Text.h"

namespace Ui {

QString StateInWords(CommonRoutines::VariationState state) {
    const std::string_view words = FactsOf(state).words;
    return words.empty() ? QString() : QStringLiteral(" - ") + Text::ToQt(words);
}

QString ReasonInWords(CommonRoutines::VariationState state, std::string_view reason) {
    const QString words = Text::ToQt(FactsOf(state).words);
    const QString found = Text::ForList(reason);
    const bool saysMore = !words.isEmpty() && !found.isEmpty() && words.compare(found, Qt::CaseInsensitive) != 0;
    return saysMore ? words + QStringLiteral(": ") + found : words;
}

} // namespace Ui
