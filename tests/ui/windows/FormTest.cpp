#include "ui/windows/FormTest.h"

#include <QLabel>
#include <QPushButton>

using namespace CommonRoutines;
using namespace Ui;

FormTest::FormTest() {
    ResetEverything();
    desktop.files["/program/qx_lower.txt"] = "of,the,upon\r\n";
    desktop.recordReports = true;
    form = std::make_unique<Form1>(desktop);
    form->LoadForm();
    form->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(form.get()));
}

FormTest::~FormTest() {
    CommonRoutines::bChanged = false;
}

void FormTest::Click(const char* button) {
    QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
}

void FormTest::ClickRow(const char* list, const QString& text, Qt::KeyboardModifiers modifiers) {
    auto& rows = Find<RowList>(list);
    const int row = static_cast<int>(Column(list).indexOf(text));
    ASSERT_GE(row, 0) << "no row " << text.toStdString();
    const QModelIndex index = rows.model()->index(row, 0);
    rows.scrollTo(index);
    const QRect place = rows.visualRect(index);
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, modifiers, QPoint(place.left() + 5, place.center().y()));
}

void FormTest::ClickBelowRows(const char* list) {
    QWidget* viewport = Find<RowList>(list).viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, QPoint(5, viewport->height() - 3));
}

void FormTest::Key(const char* control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&Find<QWidget>(control), key, modifiers);
}

QStringList FormTest::Column(const char* list, int column) {
    const QAbstractItemModel& model = *Find<RowList>(list).model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, column).data().toString());
    }
    return texts;
}

QStringList FormTest::Selected(const char* list) {
    const QStringList all = Column(list);
    QStringList texts;
    for (const int row : Find<RowList>(list).SelectedRows()) {
        texts.append(all.at(row));
    }
    return texts;
}

QColor FormTest::RowColour(const char* list, const QString& text) {
    const int row = static_cast<int>(Column(list).indexOf(text));
    EXPECT_GE(row, 0) << "no row " << text.toStdString();
    return Find<RowList>(list).model()->index(row, 0).data(Qt::ForegroundRole).value<QColor>();
}

QString FormTest::TextOf(const char* label) {
    return Find<QLabel>(label).text();
}

QColor FormTest::InkOf(const char* label) {
    return Find<QLabel>(label).palette().color(QPalette::WindowText);
}

QColor FormTest::PaperOf(const char* label) {
    return Find<QLabel>(label).palette().color(QPalette::Window);
}

QString FormTest::CaptionOf(const char* button) {
    return Find<QPushButton>(button).text();
}

bool FormTest::Enabled(const char* control) {
    return Find<QWidget>(control).isEnabled();
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
                      BoxButtons::YesNo, answer);
}
