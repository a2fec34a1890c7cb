#include "ui/Text.h"

#include "core/Ansi.h"

#include <QFile>

#include <algorithm>

namespace Text {

namespace {

constexpr std::size_t LongestShown = 4000;
constexpr QChar Ellipsis(0x2026);

// Unicode has a visible symbol for each control character.
constexpr char16_t ControlPictures = 0x2400;
constexpr char16_t DeletePicture = 0x2421;

QString Shortened(std::string_view text) {
    return text.size() <= LongestShown ? ToQt(text) : ToQt(text.substr(0, LongestShown)) + Ellipsis;
}

} // namespace

QString ToQt(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(), [](char c) { return QChar(Ansi::ToUnicode(c)); });
    return result;
}

std::string FromQt(const QString& text) {
    std::string result;
    for (const uint codePoint : text.toUcs4()) {
        result += Ansi::FromUnicode(codePoint);
    }
    return result;
}

QString ForBox(std::string_view text) {
    return Shortened(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString ForList(std::string_view text) {
    QString result = Shortened(text).replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    for (QChar& c : result) {
        if (c.unicode() < 0x20) {
            c = QChar(static_cast<char16_t>(ControlPictures + c.unicode()));
        } else if (c.unicode() == 0x7F) {
            c = QChar(DeletePicture);
        }
    }
    return result;
}

QString ForToolTip(const QString& text) {
    return QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>");
}

QString PathToQt(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}

std::string PathFromQt(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

} // namespace Text
