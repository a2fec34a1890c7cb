#include "ui/machine/Spool.h"

#include "ui/machine/UserFolders.h"

#include <QTemporaryFile>

namespace Spool {

namespace {

constexpr std::size_t LargestInMemory = std::size_t{32} << 20;

bool Write(QTemporaryFile& file, std::string_view text) {
    const auto size = static_cast<qint64>(text.size());
    return file.write(text.data(), size) == size;
}

} // namespace

bool Use(const CommonRoutines::PieceSource& pieces, const std::function<bool(std::string_view)>& use) {
    std::string content;
    auto piece = pieces();
    for (; piece && content.size() <= LargestInMemory; piece = pieces()) {
        content += *piece;
    }
    if (!piece) {
        return use(content);
    }
    QTemporaryFile file(UserFolders::Large() + QStringLiteral("/quexal-editor-XXXXXX"));
    bool isWritten = file.open() && Write(file, content);
    content = {};
    for (; isWritten && piece; piece = pieces()) {
        isWritten = Write(file, *piece);
    }
    if (!isWritten || !file.flush()) {
        return false;
    }
    const qint64 size = file.size();
    const uchar* bytes = file.map(0, size);
    return bytes != nullptr &&
           use(std::string_view(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)));
}

} // namespace Spool
