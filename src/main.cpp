#include "ui/Form1.h"
#include "ui/QtDesktop.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quexal-editor"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quexal Editor"));
    QtDesktop desktop;
    Form1 form(desktop);
    desktop.SetWindow(&form);
    form.LoadForm();
    form.show();
    return QApplication::exec();
}
