#include "driver/DialogueGuide.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QVariant>

namespace Ui {

namespace {

// Marks a dialogue that has been answered but has not gone yet.
constexpr const char* Answered = "answered";

} // namespace

DialogueGuide::DialogueGuide() {
    m_timer.setInterval(10);
    connect(&m_timer, &QTimer::timeout, this, &DialogueGuide::Look);
    m_timer.start();
}

void DialogueGuide::Next(std::function<void(QWidget&)> answer) {
    m_answers.push_back(std::move(answer));
}

void DialogueGuide::Look() {
    QWidget* dialogue = QApplication::activeModalWidget();
    if (dialogue == nullptr || !dialogue->isVisible() || dialogue->property(Answered).toBool()) {
        return;
    }
    dialogue->setProperty(Answered, true);
    if (m_answers.empty()) {
        ++m_surprises;
        const auto* box = qobject_cast<QMessageBox*>(dialogue);
        qWarning("unexpected dialogue: %s", qUtf8Printable(box == nullptr ? dialogue->windowTitle() : box->text()));
        dialogue->close();
        return;
    }
    // Not from here: while a timer's slot runs, the timer is silent, and the answer may itself bring up
    // a dialogue.
    QTimer::singleShot(0, dialogue, [answer = std::move(m_answers.front()), dialogue] { answer(*dialogue); });
    m_answers.pop_front();
}

void DialogueGuide::Press(QWidget& dialogue, const std::string& caption) {
    const QString wanted = QString::fromStdString(caption);
    for (auto* button : dialogue.findChildren<QAbstractButton*>()) {
        const bool named = button->accessibleName() == wanted || button->text().remove(QLatin1Char('&')) == wanted;
        if (named && button->isVisible() && button->isEnabled()) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    qFatal("no button \"%s\" in %s", caption.c_str(), qUtf8Printable(dialogue.windowTitle()));
}

void DialogueGuide::ChooseFile(QWidget& dialogue, const std::string& path) {
    auto* name = dialogue.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name->setText(QString::fromStdString(path));
    QTest::keyClick(name, Qt::Key_Return);
}

} // namespace Ui
