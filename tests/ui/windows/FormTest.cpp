#include "ui/windows/FormTest.h"

using namespace CommonRoutines;
using namespace Ui;

FormTest::FormTest() {
    ResetEverything();
    desktop.files["/program/qx_lower.txt"] = "of,the,upon\r\n";
    desktop.recordReports = true;
    ShowForm();
}

FormTest::~FormTest() {
    CommonRoutines::bChanged = false;
}

void FormTest::ShowForm() {
    form = std::make_unique<Form1>(desktop);
    form->LoadForm();
    form->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(form.get()));
}

void FormTest::ExpectFile(const std::string& content, const std::string& path) {
    desktop.files[path] = content;
    desktop.ExpectOpen(path);
}

void FormTest::OpenContent(const std::string& content, const std::string& path) {
    ExpectFile(content, path);
    Click("cbOpen");
}

void FormTest::OpenNullVariation(const std::string& answer) {
    ExpectFile(HeaderOf("Alpha") + "|%\r\n" + HeaderOf("Beta") + "\r\n");
    desktop.ExpectChoice("District Alpha has a null variation.\r\n"
                         "The invalid dependency is % and it is variation #1\r\n"
                         " As it is the only variation it can only be removed or replaced.\r\nRemove\r\n"
                         "Type = Type a complete replacement for this variation\r\n"
                         "Quit = Stop processing this file\r\n\r\n",
                         {"Remove", "Type", "Quit"}, answer);
    Click("cbOpen");
}

void FormTest::ExpectLooseChanges(BoxAnswer answer) {
    desktop.ExpectBox("This will loose your changes.\r\nAre you sure you want to do this?", BoxIcon::Question,
                      BoxButtons::YesNoDefaultNo, answer);
}
