#include "driver/WindowDriver.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <stdexcept>
#include <string>

namespace Ui {

void WindowDriver::Fail(const char* name, const char* what) {
    throw std::runtime_error(std::string(name) + " " + what);
}

void WindowDriver::Activate(QWidget& window) {
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        Fail("the window", "gets no keys");
    }
}

int WindowDriver::RowOf(const char* list, const QString& text) {
    const QAbstractItemModel& model = *List(list).model();
    const QModelIndexList rows =
        model.match(model.index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (rows.isEmpty()) {
        Fail(list, ("has no row " + text.toStdString()).c_str());
    }
    return rows.constFirst().row();
}

void WindowDriver::Click(const char* button) {
    QTest::mouseClick(&Usable<QPushButton>(button), Qt::LeftButton);
}

void WindowDriver::ClickRow(const char* list, int row, Qt::KeyboardModifiers modifiers, int inside) {
    ClickIn(Usable<RowList>(list), row, modifiers, inside);
}

void WindowDriver::ClickIn(RowList& rows, int row, Qt::KeyboardModifiers modifiers, int inside) {
    const QModelIndex index = rows.model()->index(row, 0);
    if (!index.isValid()) {
        Fail(qUtf8Printable(rows.objectName()), ("has no row " + std::to_string(row)).c_str());
    }
    rows.scrollTo(index);
    const QRect place = rows.visualRect(index);
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, modifiers, QPoint(place.left() + inside, place.center().y()));
}

void WindowDriver::ClickRow(const char* list, const QString& text, Qt::KeyboardModifiers modifiers) {
    ClickRow(list, RowOf(list, text), modifiers);
}

void WindowDriver::ClickDisabled(const char* button) {
    QTest::mouseClick(&Usable<QPushButton>(button, false), Qt::LeftButton);
}

void WindowDriver::ClickDisabledRow(const char* list, const QString& text) {
    ClickIn(Usable<RowList>(list, false), RowOf(list, text), Qt::NoModifier, InsideRow);
}

void WindowDriver::ClickBelowRows(const char* list) {
    QWidget* viewport = Usable<RowList>(list).viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, QPoint(5, viewport->height() - 3));
}

void WindowDriver::Key(const char* control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&Usable<QWidget>(control), key, modifiers);
}

void WindowDriver::Type(const char* control, const QString& text) {
    QTest::keyClicks(&Usable<QWidget>(control), text);
}

QStringList WindowDriver::Column(const char* list, int column) {
    const QAbstractItemModel& model = *List(list).model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, column).data().toString());
    }
    return texts;
}

QStringList WindowDriver::Selected(const char* list) {
    const QStringList all = Column(list);
    QStringList texts;
    for (const int row : List(list).SelectedRows()) {
        texts.append(all.at(row));
    }
    return texts;
}

QColor WindowDriver::RowColour(const char* list, const QString& text) {
    return List(list).model()->index(RowOf(list, text), 0).data(Qt::ForegroundRole).value<QColor>();
}

QString WindowDriver::TextOf(const char* label) {
    return Find<QLabel>(label).text();
}

QColor WindowDriver::InkOf(const char* label) {
    return Find<QLabel>(label).palette().color(QPalette::WindowText);
}

QColor WindowDriver::PaperOf(const char* label) {
    return Find<QLabel>(label).palette().color(QPalette::Window);
}

QString WindowDriver::CaptionOf(const char* button) {
    return Find<QPushButton>(button).text();
}

QString WindowDriver::EditText() {
    return Find<QLineEdit>("tbEdit").text();
}

} // namespace Ui
