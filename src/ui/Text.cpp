#include "ui/Text.h"

#include "core/Ansi.h"
#include "core/Lines.h"
#include "core/State.h"
#include "core/Wording.h"

#include <QDir>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace Text {

namespace {

constexpr QChar Ellipsis(0x2026);

// What is shown for a tab and for the other control characters. (Unicode has a symbol for each of them,
// but few fonts do.)
constexpr QChar TabSymbol(0x21E5);
constexpr QChar ControlSymbol(0xFFFD);

QString Shortened(std::string_view text) {
    const std::string_view shown = Ansi::FirstCharacters(text, LongestShown);
    return shown.size() == text.size() ? ToQt(text) : ToQt(shown) + Ellipsis;
}

QString WithVisibleControls(QString text) {
    for (QChar& c : text) {
        if (c == QLatin1Char('\t')) {
            c = TabSymbol;
        } else if (c.unicode() < 0x20 || c.unicode() == 0x7F) {
            c = ControlSymbol;
        }
    }
    return text;
}

// Each part by its kind.
QString Joined(const CommonRoutines::Wording& wording, QString (*shownText)(std::string_view)) {
    QString result;
    for (const CommonRoutines::Wording::Part& part : wording.Parts()) {
        result += part.isPath ? ShownPath(part.text) : shownText(part.text);
    }
    return result;
}

} // namespace

QString ToQt(std::string_view text) {
    if (CommonRoutines::TextsAreUtf8()) {
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(), [](char c) { return QChar(Ansi::ToUnicode(c)); });
    return result;
}

std::string FromQt(const QString& text) {
    if (CommonRoutines::TextsAreUtf8()) {
        return text.toUtf8().toStdString();
    }
    std::string result;
    for (const uint codePoint : text.toUcs4()) {
        result += Ansi::FromUnicode(codePoint);
    }
    return result;
}

QString ForBox(std::string_view text) {
    QString result;
    CommonRoutines::Lines lines(text);
    for (auto line = lines.Next(); line; line = lines.Next()) {
        result += Shortened(*line) + QLatin1Char('\n');
    }
    if (!text.ends_with('\n')) {
        result.chop(1);
    }
    return result;
}

QString ForList(std::string_view text) {
    QString result = Shortened(text);
    if (result.contains(QLatin1Char('\r'))) {
        result.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    }
    return WithVisibleControls(std::move(result));
}

QString ForToolTip(const QString& text) {
    // What the toolkit may wrap, it wraps at a fraction of the screen.
    constexpr qsizetype longestUnwrapped = 100;
    const QString wrapping = text.size() > longestUnwrapped ? QStringLiteral("pre-wrap") : QStringLiteral("pre");
    return QStringLiteral("<div style=\"white-space:%1\">").arg(wrapping) + text.toHtmlEscaped() +
           QStringLiteral("</div>");
}

QString PathToQt(const std::string& path) {
    return QString::fromStdString(path);
}

std::string PathFromQt(const QString& path) {
    return path.toStdString();
}

std::string PathFromUrl(const QUrl& url) {
    // Decoded by the toolkit, bytes that are no characters would be lost. What is text, it knows as the system's path.
    const std::string bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
    const bool isText = PathFromQt(PathToQt(bytes)) == bytes;
    return url.host().isEmpty() && !isText ? bytes : PathFromQt(url.toLocalFile());
}

QString ShownPath(const std::string& path) {
    return WithVisibleControls(QDir::toNativeSeparators(PathToQt(path)));
}

QString WordingToQt(const CommonRoutines::Wording& wording) {
    return Joined(wording, &ToQt);
}

QString WordingForBox(const CommonRoutines::Wording& wording) {
    return Joined(wording, &ForBox);
}

} // namespace Text
