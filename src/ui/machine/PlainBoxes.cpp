#include "ui/machine/PlainBoxes.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>

PlainBoxes::PlainBoxes() {
    qApp->installEventFilter(this);
}

bool PlainBoxes::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish) { // which comes before it is shown
        if (auto* box = qobject_cast<QMessageBox*>(watched)) {
            box->setTextFormat(Qt::PlainText);
        }
    }
    return QObject::eventFilter(watched, event);
}
