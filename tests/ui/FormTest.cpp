#include "FormTest.h"

#include <QLabel>
#include <QPushButton>

FormTest::FormTest() {
    CommonRoutines::ResetState();
    CommonRoutines::CommentTypes.Reset();
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

QStringList FormTest::Column(const char* list, int column) {
    const QAbstractItemModel& model = *Find<RowList>(list).model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, column).data().toString());
    }
    return texts;
}

QString FormTest::TextOf(const char* label) {
    return Find<QLabel>(label).text();
}

bool FormTest::Enabled(const char* control) {
    return Find<QWidget>(control).isEnabled();
}

void FormTest::OpenContent(const std::string& content, const std::string& path) {
    desktop.files[path] = content;
    desktop.ExpectOpen(path);
    Click("cbOpen");
}
