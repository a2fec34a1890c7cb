#pragma once

#include "ui/windows/FormTest.h"

#include "support/Table.h"

#include <QCheckBox>
#include <QLineEdit>

// The main window with a district chosen and a change file to be processed.
class ProposalsTest : public FormTest {
protected:
    // Opens a file with the districts Alpha, which has these variations, and Beta, and chooses Alpha.
    void OpenDistrict(const std::string& variations = "|Alfa|Betta") {
        OpenContent(HeaderOf("Alpha") + variations + "\r\n#QX_NOTE\r\n" + HeaderOf("Beta") + "\r\n");
        ClickRow("lvAlpha", QStringLiteral("Alpha"));
    }
    void Process(const std::string& content, const std::string& path = "/changes/new.txt") {
        desktop.files[path] = content;
        desktop.ExpectOpen(path);
        Click("btnProcess");
    }

    // Clicks on the check box of a proposal, or on its text.
    void ClickBox(const QString& proposal) { ClickRow("LvChanges", proposal); }
    void ClickText(const QString& proposal) { ClickRow("LvChanges", RowOf("LvChanges", proposal), Qt::NoModifier, 40); }
    QStringList Ticked() {
        const QAbstractItemModel& model = *List("LvChanges").model();
        QStringList ticked;
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked) {
                ticked.append(model.index(row, 0).data().toString());
            }
        }
        return ticked;
    }
    bool BoxTicked(const char* box) { return Find<QCheckBox>(box).isChecked(); }
    // Clicks on the box itself, not beside it.
    void ClickOption(const char* box) {
        auto& option = Find<QCheckBox>(box);
        QTest::mouseClick(&option, Qt::LeftButton, Qt::NoModifier, QPoint(8, option.height() / 2));
    }

    // Of the controls that follow the mode, exactly these must be enabled.
    void ExpectEnabled(const char* enabled) {
        QStringList found;
        for (const char* name :
             {"cbAdd", "cbCancel", "cbDelete", "cbSaveVariations", "cbOk", "cbOpen", "cbSave", "tbEdit", "btnProcess",
              "cbApplySelected", "cbApplyAll", "cbApplyAllSpell", "cbApplySelSpell", "cbClearSel", "cbCompleteCheck",
              "cbShriek", "cbDate", "lbComments", "cbEditSel"}) {
            if (Enabled(name)) {
                found.append(QString::fromLatin1(name));
            }
        }
        EXPECT_EQ(found.join(QLatin1Char(' ')).toStdString(), enabled);
    }
};
