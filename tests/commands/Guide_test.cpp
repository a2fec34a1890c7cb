#include "commands/Guide.h"

#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace CommonRoutines;

namespace {

class Linked : public ScriptedDesktop {
public:
    std::string target = "/documents/user-guide.html";
    std::string TruePath(const std::string& path) override {
        return path == "/program/guide/user-guide.html" ? target : path;
    }
};

} // namespace

TEST(GuideTest, ItIsShownFromWhereTheLinkBesideTheProgramLeads) {
    Linked desktop;
    Commands::ShowGuide(desktop);
    EXPECT_EQ(desktop.shownDocuments, std::vector<std::string>{"/documents/user-guide.html"});
}

TEST(GuideTest, WhereNothingCanShowItAMessageNamesTheFile) {
    ScriptedDesktop desktop;
    desktop.hasViewer = false;
    desktop.ExpectBox("The user guide could not be shown. This is its file:\r\n/program/guide/user-guide.html",
                      BoxIcon::Exclamation);
    Commands::ShowGuide(desktop);
    desktop.CheckDone();
}

TEST(GuideTest, TheMessageNamesTheFileAsItIs) {
    Linked desktop;
    desktop.hasViewer = false;
    desktop.target = "/documents/\xC4\x8D.html";
    desktop.ExpectBox("The user guide could not be shown. This is its file:\r\n" + Wording::OfPath(desktop.target),
                      BoxIcon::Exclamation);
    Commands::ShowGuide(desktop);
}
