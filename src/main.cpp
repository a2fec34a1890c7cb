#include "ui/machine/QtDesktop.h"
#include "ui/windows/Form1.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quexal-editor"));
    // No display name is set: the toolkit would append it to the captions of all windows.
    // By this name a desktop finds the menu entry that belongs to the windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("quexal-editor"));
    QGuiApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("quexal-editor"), QIcon(QStringLiteral(":/quexal-editor.png"))));
    Ui::QtDesktop desktop;
    Ui::Form1 form(desktop);
    desktop.SetWindow(&form);
    form.LoadForm();
    form.show();
    form.MendFiles();
    return QApplication::exec();
}
