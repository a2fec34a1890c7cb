#pragma once

#include <QDateTime>

#include <string>

// Days and times as the program writes them.
namespace DateTimeText {

// As "05 Mar 2026", in English everywhere.
[[nodiscard]] std::string Day(const QDate& day);

// Hours and minutes, as the user's country writes them.
[[nodiscard]] std::string ShortTime(const QTime& time);

} // namespace DateTimeText
