// Drives the real window through the main job on the sample data, as a user would, and leaves a
// screenshot of every station: quexal-tour FOLDER [dark]. Needs no display (QT_QPA_PLATFORM=offscreen); with
// QT_SCALE_FACTOR the pictures are those of a finer screen.

#include "DialogueGuide.h"

#include "ui/lists/RowList.h"
#include "ui/machine/QtDesktop.h"
#include "ui/windows/Form1.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <string_view>

using namespace Ui;

namespace {

class Tour {
public:
    explicit Tour(const QString& folder) : m_folder(folder), m_form(m_desktop) {
        m_desktop.SetWindow(&m_form);
        m_form.LoadForm();
        m_form.show();
        m_form.activateWindow();
        if (!QTest::qWaitForWindowActive(&m_form)) {
            qWarning("the window does not get the focus");
        }
    }

    // Returns false when a station was not reached.
    bool Play();

private:
    template <typename Control>
    Control& Find(const char* name) {
        return *m_form.findChild<Control*>(QString::fromLatin1(name));
    }
    void Click(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }
    void ClickRow(const char* list, const QString& text);
    void Picture(QWidget& widget, const QString& name);

    void OpenPracticeFile();
    void ShowDistrict();
    void EditVariations();
    void ApplyProposals();
    void CheckWholeFile();
    void Filter();
    void Save();

    QDir m_folder;
    QTemporaryDir m_work;
    QtDesktop m_desktop;
    Form1 m_form;
    DialogueGuide m_guide;
};

void Tour::Picture(QWidget& widget, const QString& name) {
    widget.activateWindow();
    QTest::qWait(50);
    const QString path = m_folder.filePath(name + QStringLiteral(".png"));
    widget.grab().save(path);
    std::printf("  %s\n", qUtf8Printable(path));
}

void Tour::ClickRow(const char* list, const QString& text) {
    auto& rows = Find<RowList>(list);
    const QModelIndexList found =
        rows.model()->match(rows.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
    if (found.isEmpty()) {
        qWarning("no row \"%s\" in %s", qUtf8Printable(text), list);
        return;
    }
    rows.scrollTo(found.constFirst());
    // The row may be wider than the list: its left end is in sight.
    const QRect place = rows.visualRect(found.constFirst());
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, Qt::NoModifier, {place.left() + 5, place.center().y()});
}

void Tour::OpenPracticeFile() {
    const QString practice = QCoreApplication::applicationDirPath() + QStringLiteral("/practice.txt");
    m_guide.Next([=](QWidget& dialogue) { DialogueGuide::ChooseFile(dialogue, practice.toStdString()); });
    bool inReport = false;
    // The questions of the file, whichever they are, up to the report.
    const std::function<void(QWidget&)> answer = [&](QWidget& dialogue) {
        const QString kind = dialogue.objectName();
        if (kind == QLatin1String("frmCustomMessageBox")) {
            Picture(dialogue, QStringLiteral("repair"));
            m_guide.Next(answer);
            DialogueGuide::Press(dialogue, "Remove");
        } else if (kind == QLatin1String("VarCheck")) {
            inReport = true;
            Picture(dialogue, QStringLiteral("report"));
            m_guide.Next([](QWidget& duplicated) { DialogueGuide::Press(duplicated, "OK"); });
            DialogueGuide::Press(dialogue, "Close");
        } else {
            Picture(dialogue, QStringLiteral("message"));
            m_guide.Next(answer);
            DialogueGuide::Press(dialogue, "OK");
        }
    };
    m_guide.Next(answer);
    Click("cbOpen");
    if (!inReport) {
        qWarning("the report did not come");
    }
    Picture(m_form, QStringLiteral("open"));
}

void Tour::ShowDistrict() {
    ClickRow("lvAlpha", QStringLiteral("Dunmore Sands"));
    Picture(m_form, QStringLiteral("district"));
}

void Tour::EditVariations() {
    ClickRow("lvAlpha", QStringLiteral("Coldharbour Fen"));
    Click("cbAdd");
    auto& box = Find<QLineEdit>("tbEdit");
    QTest::keyClicks(&box, QStringLiteral("!Cold harbour fen"));
    Picture(m_form, QStringLiteral("refused"));
    QTest::keyClicks(&box, QStringLiteral("s"));
    Picture(m_form, QStringLiteral("adding"));
    QTest::keyClick(&box, Qt::Key_Return);
    ClickRow("lvVariations", QStringLiteral("!Cold harbour Fen"));
    Picture(m_form, QStringLiteral("selected"));
    Click("cbShriek");
    Picture(m_form, QStringLiteral("marked"));
    Click("cbUndo");
    Click("cbUndo");
    Picture(m_form, QStringLiteral("undone"));
}

void Tour::ApplyProposals() {
    const QString proposals = QCoreApplication::applicationDirPath() + QStringLiteral("/proposals.txt");
    ClickRow("lvAlpha", QStringLiteral("Coldharbour Fen"));
    m_guide.Next([=](QWidget& dialogue) { DialogueGuide::ChooseFile(dialogue, proposals.toStdString()); });
    Click("btnProcess");
    ClickRow("LvChanges", QStringLiteral("Coldharbor Fen"));
    Picture(m_form, QStringLiteral("proposals"));
    Click("cbCancel");
    Click("cbClearSel");
    m_guide.Next([](QWidget& dialogue) { DialogueGuide::Press(dialogue, "OK"); });
    m_guide.Next([this](QWidget& dialogue) {
        Picture(dialogue, QStringLiteral("ignored"));
        DialogueGuide::Press(dialogue, "Close");
    });
    Click("cbApplyAll");
    Picture(m_form, QStringLiteral("applied"));
}

void Tour::CheckWholeFile() {
    m_guide.Next([this](QWidget& dialogue) {
        Picture(dialogue, QStringLiteral("check"));
        DialogueGuide::Press(dialogue, "Close");
    });
    Click("cbCompleteCheck");
}

void Tour::Filter() {
    ClickRow("lbComments", QStringLiteral("BOUNDARY"));
    Picture(m_form, QStringLiteral("filter"));
    ClickRow("lbComments", QStringLiteral(" All"));
}

void Tour::Save() {
    const QString copy = m_work.filePath(QStringLiteral("saved.txt"));
    m_guide.Next([=](QWidget& dialogue) { DialogueGuide::ChooseFile(dialogue, copy.toStdString()); });
    m_guide.Next([this](QWidget& dialogue) {
        Picture(dialogue, QStringLiteral("saved"));
        DialogueGuide::Press(dialogue, "OK");
    });
    Click("cbSave");
    if (!QFile::exists(copy)) {
        qWarning("the file was not saved");
    }
}

bool Tour::Play() {
    Picture(m_form, QStringLiteral("empty"));
    OpenPracticeFile();
    ShowDistrict();
    EditVariations();
    ApplyProposals();
    CheckWholeFile();
    Filter();
    Save();
    return m_guide.AllAnswered() && m_guide.Surprises() == 0;
}

// The colours of a dark desktop.
QPalette DarkPalette() {
    const QColor ground(53, 53, 53);
    const QColor base(30, 30, 30);
    const QColor disabled(127, 127, 127);
    QPalette palette(ground);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    return palette;
}

} // namespace

int main(int argc, char* argv[]) {
    // The tour must not touch the user's own settings and unsaved changes.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    qputenv("XDG_STATE_HOME", settings.path().toUtf8());
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    const bool isDark = argc == 3 && std::string_view(argv[2]) == "dark";
    if ((argc != 2 && !isDark) || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: quexal-tour FOLDER [dark]\n", stderr);
        return 2;
    }
    if (isDark) {
        QApplication::setPalette(DarkPalette());
    }
    // Made absolute before the editor makes its own folder the current one.
    Tour tour(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
    return tour.Play() ? 0 : 1;
}
