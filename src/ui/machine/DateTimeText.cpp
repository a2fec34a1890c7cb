#include "ui/machine/DateTimeText.h"

#include "ui/Text.h"

#include <QLocale>

namespace DateTimeText {

std::string Day(const QDate& day) {
    return Text::FromQt(QLocale::c().toString(day, QStringLiteral("dd MMM yyyy")));
}

std::string ShortTime(const QTime& time) {
    constexpr QChar narrowNoBreakSpace(0x202F);
    const QString format = QLocale().timeFormat(QLocale::ShortFormat);
    const std::string text =
        Text::FromQt(QLocale().toString(time, format).replace(narrowNoBreakSpace, QLatin1Char(' ')));
    // Where no country is set the format has seconds, and not every country's can be written in the code page.
    const bool isShort = !format.contains(QLatin1Char('s')) && text.find('?') == std::string::npos;
    return isShort ? text : Text::FromQt(time.toString(QStringLiteral("HH:mm")));
}

} // namespace DateTimeText
