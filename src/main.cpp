#include "ui/Form1.h"
#include "ui/QtDesktop.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quexal-editor"));
    // No display name is set: the toolkit would append it to the captions of all windows.
    QtDesktop desktop;
    Form1 form(desktop);
    desktop.SetWindow(&form);
    form.LoadForm();
    form.show();
    return QApplication::exec();
}
