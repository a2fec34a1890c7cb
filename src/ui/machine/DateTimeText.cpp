#include "ui/machine/DateTimeText.h"

#include "ui/Text.h"

#include <QLocale>

namespace DateTimeText {

std::string Day(const QDate& day) {
    return Text::FromQt(QLocale::c().toString(day, QStringLiteral("dd MMM yyyy")));
}

std::string ShortTime(const QTime& time) {
    constexpr QChar narrowNoBreakSpace(0x202F);
    const std::string text =
        Text::FromQt(QLocale().toString(time, QLocale::ShortFormat).replace(narrowNoBreakSpace, QLatin1Char(' ')));
    // Not every country's time can be written in the code page.
    return text.find('?') == std::string::npos ? text : Text::FromQt(time.toString(QStringLiteral("HH:mm")));
}

} // namespace DateTimeText
