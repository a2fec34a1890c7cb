// The user guide: its pages as they are built, and how the desktop shows a document.

#include "ui/machine/QtDesktop.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QUrl>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>

using namespace Ui;

namespace {

// What a page offers to links, and what it links to itself. A page that is not well-formed fails the test.
struct GuidePage {
    QSet<QString> names;
    QStringList links;
    QStringList pictures;
    QString title;
    QString language;
};

GuidePage Read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader reader(&file);
    GuidePage page;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const auto attribute = [&](QLatin1String name) { return reader.attributes().value(name).toString(); };
        if (const QString name = attribute(QLatin1String("id")); !name.isEmpty()) {
            EXPECT_FALSE(page.names.contains(name)) << name.toStdString() << " is there twice";
            page.names.insert(name);
        }
        if (reader.name() == QLatin1String("a")) {
            page.links.append(attribute(QLatin1String("href")));
        } else if (reader.name() == QLatin1String("img")) {
            page.pictures.append(attribute(QLatin1String("src")));
            EXPECT_FALSE(attribute(QLatin1String("alt")).isEmpty()) << page.pictures.back().toStdString();
        } else if (reader.name() == QLatin1String("html")) {
            page.language = attribute(QLatin1String("lang"));
        } else if (reader.name() == QLatin1String("title")) {
            page.title = reader.readElementText();
        }
    }
    EXPECT_FALSE(reader.hasError()) << path.toStdString() << ": " << reader.errorString().toStdString() << ", line "
                                    << reader.lineNumber();
    return page;
}

const QDir Guide(QString::fromUtf8(QUEXAL_GUIDE_DIR));

std::map<QString, GuidePage> ReadAll() {
    std::map<QString, GuidePage> pages;
    for (const QString& name : Guide.entryList({QStringLiteral("*.html")})) {
        pages[name] = Read(Guide.filePath(name));
    }
    return pages;
}

// Stands for the desktop's viewer.
class Viewer : public QTextBrowser {
public:
    Viewer() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "setSource"); }
    ~Viewer() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
};

} // namespace

TEST(GuideTest, EveryPageHasATitleAndALanguage) {
    const auto pages = ReadAll();
    EXPECT_EQ(pages.size(), 5u);
    for (const auto& [name, page] : pages) {
        EXPECT_TRUE(page.title.endsWith(QStringLiteral(" - Quexal Editor"))) << name.toStdString();
        EXPECT_EQ(page.language, QStringLiteral("en-GB")) << name.toStdString();
    }
}

TEST(GuideTest, EveryLinkLeadsToAPageAndAPlaceInIt) {
    const auto pages = ReadAll();
    int checked = 0;
    for (const auto& [name, page] : pages) {
        for (const QString& link : page.links) {
            if (QUrl(link).isRelative()) {
                const QString target = link.section(QLatin1Char('#'), 0, 0);
                const auto found = pages.find(target.isEmpty() ? name : target);
                ASSERT_NE(found, pages.end()) << name.toStdString() << " links to " << link.toStdString();
                const QString place = link.section(QLatin1Char('#'), 1);
                EXPECT_TRUE(place.isEmpty() || found->second.names.contains(place)) << link.toStdString();
                ++checked;
            }
        }
    }
    EXPECT_GT(checked, 25);
}

TEST(GuideTest, EveryPictureIsThere) {
    int checked = 0;
    for (const auto& [name, page] : ReadAll()) {
        for (const QString& picture : page.pictures) {
            EXPECT_TRUE(QFile::exists(Guide.filePath(picture))) << name.toStdString() << ": " << picture.toStdString();
            ++checked;
        }
    }
    EXPECT_GT(checked, 8);
}

TEST(GuideTest, ADocumentIsGivenToTheViewerOfTheDesktop) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a page #1.html"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    Viewer viewer;
    QtDesktop desktop;
    EXPECT_TRUE(desktop.ShowDocument(path.toStdString()));
    EXPECT_EQ(viewer.source(), QUrl::fromLocalFile(path));
}

TEST(GuideTest, ADocumentThatIsMissingIsNotGivenToTheViewer) {
    Viewer viewer;
    QtDesktop desktop;
    EXPECT_FALSE(desktop.ShowDocument("/no/such/page.html"));
    EXPECT_TRUE(viewer.source().isEmpty());
}

TEST(GuideTest, WithoutAViewerNothingIsShown) {
    QtDesktop desktop;
    EXPECT_FALSE(desktop.ShowDocument(Guide.filePath(QStringLiteral("user-guide.html")).toStdString()));
}
