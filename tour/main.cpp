// Drives the real window through the main job on the sample data, as a user would, and leaves a
// picture of every station: quexal-tour FOLDER [dark]. Needs no display (QT_QPA_PLATFORM=offscreen); with
// QT_SCALE_FACTOR the pictures are those of a finer screen. Those of a dark desktop are named so.

#include "Picture.h"
#include "driver/DialogueGuide.h"
#include "driver/DrivenForm.h"
#include "driver/UserPlaces.h"
#include "ui/machine/QtDesktop.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cstdio>
#include <span>
#include <string_view>
#include <utility>

using namespace Ui;

namespace {

using At = NumberedPart::At;

// What the user guide explains by number, in its order.
const std::array PartsOfWindow{
    NumberedPart{{QStringLiteral("cbOpen"), QStringLiteral("cbCompleteCheck")}},
    NumberedPart{{QStringLiteral("cbUndo"), QStringLiteral("lbUndo")}, At::Left},
    NumberedPart{{QStringLiteral("lvAlpha")}},
    NumberedPart{{QStringLiteral("lvVariations")}},
    NumberedPart{{QStringLiteral("cbAdd"), QStringLiteral("cbSaveVariations")}},
    NumberedPart{{QStringLiteral("Frame1")}},
    NumberedPart{{QStringLiteral("LvChanges")}},
    NumberedPart{{QStringLiteral("Frame6")}},
    NumberedPart{{QStringLiteral("lbComments")}},
    NumberedPart{{QStringLiteral("lvComments")}},
    NumberedPart{{QStringLiteral("lbApplyTo"), QStringLiteral("lbWhyError")}},
};
const std::array PartsOfEditPanel{
    NumberedPart{{QStringLiteral("cbVariation"), QStringLiteral("cbVNF")}},
    NumberedPart{{QStringLiteral("tbEdit")}},
    NumberedPart{{QStringLiteral("cbOk"), QStringLiteral("cbCancel")}},
    NumberedPart{{QStringLiteral("lbStatus")}},
};
const std::array PartsForProposals{
    NumberedPart{{QStringLiteral("LvChanges")}, At::Left},
    NumberedPart{{QStringLiteral("lbSelectCount")}, At::Top},
    NumberedPart{{QStringLiteral("cbApplySelected"), QStringLiteral("cbApplySelSpell")}, At::Left},
    NumberedPart{{QStringLiteral("cbApplyAll"), QStringLiteral("cbApplyAllSpell")}, At::Left},
    NumberedPart{{QStringLiteral("cbEditSel")}, At::Left},
    NumberedPart{{QStringLiteral("cbClearSel")}, At::Left},
    NumberedPart{{QStringLiteral("lbApplyTo")}},
};

class Tour : public DrivenForm<QtDesktop> {
public:
    Tour(const QString& folder, QString prefix) : m_folder(folder), m_prefix(std::move(prefix)) {}

    // Returns false when a station was not reached.
    bool Play();

private:
    void Picture(QWidget& widget, const QString& name, std::span<const NumberedPart> parts = {});

    void OpenPracticeFile();
    void ShowDistrict();
    void EditVariations();
    void ApplyProposals();
    void CheckWholeFile();
    void Filter();
    void FindInFile();
    void Save();

    QDir m_folder;
    QString m_prefix; // of the names of the pictures
    QTemporaryDir m_work;
    DialogueGuide m_guide;
};

void Tour::Picture(QWidget& widget, const QString& name, std::span<const NumberedPart> parts) {
    widget.activateWindow();
    QTest::qWait(50);
    const QString path = m_folder.filePath(m_prefix + name + QStringLiteral(".png"));
    if (!PictureOf(widget, parts).save(path)) {
        qFatal("no picture could be written to %s", qUtf8Printable(path));
    }
    std::printf("  %s\n", qUtf8Printable(path));
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
    Picture(Window(), QStringLiteral("open"), PartsOfWindow);
}

void Tour::ShowDistrict() {
    ClickRow("lvAlpha", QStringLiteral("Dunmore Sands"));
    Picture(Window(), QStringLiteral("district"));
}

void Tour::EditVariations() {
    ClickRow("lvAlpha", QStringLiteral("Coldharbour Fen"));
    Click("cbAdd");
    Type(QStringLiteral("!Cold harbour fen"));
    Picture(Window(), QStringLiteral("refused"), PartsOfEditPanel);
    Type(QStringLiteral("s"));
    Picture(Window(), QStringLiteral("adding"));
    Key("tbEdit", Qt::Key_Return);
    ClickRow("lvVariations", QStringLiteral("!Cold harbour Fen"));
    Picture(Window(), QStringLiteral("selected"));
    Click("cbShriek");
    Picture(Window(), QStringLiteral("marked"));
    Click("cbUndo");
    Click("cbUndo");
    Picture(Window(), QStringLiteral("undone"));
}

void Tour::ApplyProposals() {
    const QString proposals = QCoreApplication::applicationDirPath() + QStringLiteral("/proposals.txt");
    ClickRow("lvAlpha", QStringLiteral("Coldharbour Fen"));
    m_guide.Next([=](QWidget& dialogue) { DialogueGuide::ChooseFile(dialogue, proposals.toStdString()); });
    Click("btnProcess");
    ClickRow("LvChanges", QStringLiteral("Coldharbor Fen"));
    Picture(Window(), QStringLiteral("proposals"), PartsForProposals);
    Click("cbClearSel");
    m_guide.Next([](QWidget& dialogue) { DialogueGuide::Press(dialogue, "OK"); });
    m_guide.Next([this](QWidget& dialogue) {
        Picture(dialogue, QStringLiteral("ignored"));
        DialogueGuide::Press(dialogue, "Close");
    });
    Click("cbApplyAll");
    Picture(Window(), QStringLiteral("applied"));
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
    Picture(Window(), QStringLiteral("filter"));
    ClickRow("lbComments", QStringLiteral(" All"));
}

void Tour::FindInFile() {
    Key("lvAlpha", Qt::Key_F, Qt::ControlModifier);
    Type("tbFind", QStringLiteral("ashc"));
    Key("tbFind", Qt::Key_Return);
    Key("lvAlpha", Qt::Key_F3);
    Picture(Window(), QStringLiteral("find"));
    Key("lvVariations", Qt::Key_Escape);
    Key("lvAlpha", Qt::Key_F, Qt::ControlModifier);
    Key("tbFind", Qt::Key_Escape);
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
    Picture(Window(), QStringLiteral("empty"));
    OpenPracticeFile();
    ShowDistrict();
    EditVariations();
    ApplyProposals();
    CheckWholeFile();
    Filter();
    FindInFile();
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
    const UserPlaces places;
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    const bool isDark = argc == 3 && std::string_view(argv[2]) == "dark";
    if ((argc != 2 && !isDark) || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: quexal-tour FOLDER [dark]\n", stderr);
        return 2;
    }
    QApplication::setCursorFlashTime(0); // so that a picture does not depend on the moment
    if (isDark) {
        QApplication::setPalette(DarkPalette());
    }
    // Made absolute before the editor makes its own folder the current one.
    Tour tour(QDir(QString::fromLocal8Bit(argv[1])).absolutePath(), isDark ? QStringLiteral("dark-") : QString());
    return tour.Play() ? 0 : 1;
}
