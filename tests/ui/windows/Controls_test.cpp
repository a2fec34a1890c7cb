// Every control of the main window: that it is there, what it says, and where it belongs.

#include "ui/windows/FormTest.h"

#include "ui/Text.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <map>

using namespace Ui;

namespace {

QString CaptionOfControl(const QWidget& control) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        return button->text();
    }
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label == nullptr ? QString() : label->text();
}

QStringList Headings(const QAbstractItemView& list) {
    QStringList headings;
    for (int column = 0; column < list.model()->columnCount(); ++column) {
        headings.append(list.model()->headerData(column, Qt::Horizontal).toString());
    }
    return headings;
}

} // namespace

TEST_F(FormTest, EveryControlHasItsCaptionAndANameForScreenReaders) {
    const std::map<const char*, const char*> captions{
        {"Label1", "Districts"},
        {"Label2", "Variations"},
        {"Label3", "Change File"},
        {"lvAlpha", ""},
        {"lvVariations", ""},
        {"LvChanges", ""},
        {"lvComments", ""},
        {"lbComments", ""},
        {"Frame1", ""},
        {"Frame2", ""},
        {"Frame3", ""},
        {"Frame4", ""},
        {"Frame5", ""},
        {"Frame6", ""},
        {"cbVariation", "Variation"},
        {"cbSpelling", "Spelling Mistake"},
        {"cbValidinyears", "Only valid in year"},
        {"cbVNF", "Only if Volume matches"},
        {"tbEdit", ""},
        {"cbOk", "Ok"},
        {"cbCancel", "Cancel"},
        {"lbStatus", ""},
        {"lbDoing", ""},
        {"cbAdd", "Add"},
        {"cbDelete", "Delete"},
        {"cbEditSel", "Edit"},
        {"cbShriek", "Add !"},
        {"cbDate", "Add Date%"},
        {"cbSaveVariations", "Save Selected Variations"},
        {"cbOpen", "Open File"},
        {"cbSave", "Save"},
        {"btnProcess", "Process File"},
        {"cbApplySelected", "Apply Selected"},
        {"cbApplyAll", "Apply All"},
        {"cbApplySelSpell", "as Spelling"},
        {"cbApplyAllSpell", "as Spelling"},
        {"cbClearSel", "Clear"},
        {"cbCompleteCheck", "Complete Variation Check"},
        {"cbUndo", "Undo"},
        {"lbUndo", ""},
        {"lbSelectCount", ""},
        {"lbWhyError", ""},
        {"lbApplyTo", ""},
    };
    for (const auto& [name, caption] : captions) {
        SCOPED_TRACE(name);
        const auto& control = Find<QWidget>(name);
        EXPECT_EQ(CaptionOfControl(control), QString::fromLatin1(caption));
        EXPECT_FALSE(control.accessibleName().isEmpty());
        EXPECT_TRUE(control.isVisible());
    }
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Quexal Editor"));
}

TEST_F(FormTest, ControlsAreOfTheirKind) {
    for (const char* name : {"cbVariation", "cbSpelling", "cbValidinyears", "cbVNF"}) {
        Find<QCheckBox>(name);
    }
    for (const char* name : {"cbOk", "cbCancel", "cbAdd", "cbDelete", "cbEditSel", "cbShriek", "cbDate",
                             "cbSaveVariations", "cbOpen", "cbSave", "btnProcess", "cbApplySelected", "cbApplyAll",
                             "cbApplySelSpell", "cbApplyAllSpell", "cbClearSel", "cbCompleteCheck", "cbUndo"}) {
        Find<QPushButton>(name);
    }
    for (const char* name : {"lbStatus", "lbUndo", "lbSelectCount", "lbWhyError", "lbApplyTo"}) {
        EXPECT_EQ(Find<QLabel>(name).textFormat(), Qt::PlainText) << name;
    }
    Find<QLineEdit>("tbEdit");
}

TEST_F(FormTest, ButtonsWithTheSameCaptionHaveNamesOfTheirOwn) {
    EXPECT_NE(Find<QWidget>("cbApplySelSpell").accessibleName(), Find<QWidget>("cbApplyAllSpell").accessibleName());
}

TEST_F(FormTest, ControlsStandInTheirGroups) {
    const std::map<const char*, std::vector<const char*>> groups{
        {"Frame1", {"cbVNF", "cbValidinyears", "cbOk", "cbCancel", "tbEdit", "cbSpelling", "cbVariation", "lbStatus"}},
        {"Frame2", {"lbSelectCount"}},
        {"Frame3", {"cbUndo", "lbUndo"}},
        {"Frame4", {"cbOpen", "cbSave", "btnProcess", "cbCompleteCheck"}},
        {"Frame5", {"cbDelete", "cbAdd", "cbShriek", "cbDate", "cbSaveVariations"}},
        {"Frame6", {"cbApplySelected", "cbApplyAll", "cbClearSel", "cbApplyAllSpell", "cbApplySelSpell", "cbEditSel"}},
    };
    for (const auto& [group, controls] : groups) {
        const auto& frame = Find<QFrame>(group);
        for (const char* control : controls) {
            EXPECT_TRUE(frame.isAncestorOf(&Find<QWidget>(control))) << control << " in " << group;
        }
    }
}

TEST_F(FormTest, ListsAndTheirLabelsStandOnTheWindowItself) {
    for (const char* name : {"lvAlpha", "lvVariations", "LvChanges", "lvComments", "lbComments", "Label1", "Label2",
                             "Label3", "lbWhyError", "lbApplyTo"}) {
        for (const auto* frame : form->findChildren<QFrame*>(QRegularExpression(QStringLiteral("^Frame[1-6]$")))) {
            EXPECT_FALSE(frame->isAncestorOf(&Find<QWidget>(name)))
                << name << " in " << frame->objectName().toStdString();
        }
    }
}

TEST_F(FormTest, ListsHaveTheirColumnsAndShowTheirHeadings) {
    EXPECT_EQ(Headings(Find<RowList>("lvAlpha")).join(QLatin1Char(' ')),
              QStringLiteral("Name Volume County Founded QtrF Abolished QtrA"));
    EXPECT_EQ(Headings(Find<RowList>("lvComments")).join(QLatin1Char(' ')), QStringLiteral("Type Comment"));
    EXPECT_TRUE(Find<RowList>("lvAlpha").header()->isVisible());
    EXPECT_TRUE(Find<RowList>("lvComments").header()->isVisible());
    for (const char* name : {"lvVariations", "LvChanges", "lbComments"}) {
        EXPECT_EQ(Find<RowList>(name).model()->columnCount(), 1) << name;
    }
}

TEST_F(FormTest, OnlyTheVariationsCanBeSelectedByTheDozen) {
    for (const char* name : {"lvAlpha", "LvChanges", "lvComments", "lbComments"}) {
        EXPECT_EQ(Find<RowList>(name).selectionMode(), QAbstractItemView::SingleSelection) << name;
    }
    EXPECT_EQ(Find<RowList>("lvVariations").selectionMode(), QAbstractItemView::ExtendedSelection);
}

TEST_F(FormTest, NoListIsEditedInPlace) {
    OpenContent("#QX_SEAT of the county\r\n" + HeaderOf("Alpha") + "|Alfa\r\n");
    Key("lvAlpha", Qt::Key_Home);
    for (const char* name : {"lvAlpha", "lvVariations", "lvComments", "lbComments"}) {
        auto& list = Find<RowList>(name);
        const QPoint text = list.visualRect(list.model()->index(0, 0)).topLeft() + QPoint(6, 6);
        list.setCurrentIndex(list.model()->index(0, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, text);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, text);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, text);
        QTest::keyClick(&list, Qt::Key_F2);
        QTest::keyClick(&list, Qt::Key_Enter);
        EXPECT_EQ(list.findChild<QLineEdit*>(), nullptr) << name;
        EXPECT_FALSE(list.isPersistentEditorOpen(list.model()->index(0, 0))) << name;
        EXPECT_FALSE(list.model()->flags(list.model()->index(0, 0)).testFlag(Qt::ItemIsEditable)) << name;
    }
}

TEST_F(FormTest, TabLeadsThroughTheControlsAndOutOfTheLists) {
    Activate(*form);
    OpenContent(HeaderOf("Alpha") + "|Alfa|Betta\r\n" + HeaderOf("Beta") + "\r\n");
    Key("lvAlpha", Qt::Key_Home);
    ASSERT_EQ(form->focusWidget(), &Find<QWidget>("lvAlpha"));
    QStringList visited;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        visited.append(form->focusWidget()->objectName());
    }
    EXPECT_EQ(visited.join(QLatin1Char(' ')),
              QStringLiteral("lvVariations cbAdd cbVariation cbSpelling cbValidinyears cbVNF"));
}

TEST_F(FormTest, AHintIsReadOutOnlyWhileItsListIsEmpty) {
    const auto hint = [&](const char* list) { return Find<RowList>(list).accessibleDescription(); };
    EXPECT_FALSE(hint("lvAlpha").isEmpty());
    OpenContent("#QX_NOTE Of Alpha\r\n" + HeaderOf("Alpha") + "|Alfa\r\n");
    EXPECT_EQ(hint("lvAlpha"), QDir::toNativeSeparators(QString::fromStdString(DataFilePath)));
    EXPECT_EQ(hint("lbComments"), Text::ToQt(Commands::CommandOf(Commands::Control::lbComments).hint));
    for (const char* list : {"lvVariations", "lvComments", "LvChanges"}) {
        EXPECT_EQ(hint(list), Find<RowList>(list).Hint()) << list;
        EXPECT_FALSE(hint(list).isEmpty()) << list;
    }
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_TRUE(hint("lvVariations").isEmpty());
}

TEST_F(FormTest, LabelsAreReadOutWithoutMarkup) {
    OpenContent(HeaderOf("Alpha") + "|Alfa\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    QAccessibleInterface* label = QAccessible::queryAccessibleInterface(&Find<QLabel>("lbApplyTo"));
    EXPECT_EQ(label->text(QAccessible::Name), QStringLiteral("Current district: Alpha"));
    EXPECT_EQ(label->text(QAccessible::Description), QStringLiteral("Current district"));
}

TEST_F(FormTest, TheWindowIsOneToScreenReaders) {
    EXPECT_EQ(QAccessible::queryAccessibleInterface(form.get())->role(), QAccessible::Window);
}
