#pragma once

#include <QObject>

// As long as it lives, message boxes that the toolkit itself brings up show their text as it is: there may be names of
// files in it, and a name may look like markup.
class PlainBoxes : public QObject {
public:
    PlainBoxes();

    bool eventFilter(QObject* watched, QEvent* event) override;
};
