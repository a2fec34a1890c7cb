#pragma once

#include "driver/WindowDriver.h"
#include "ui/windows/Form1.h"

namespace Ui {

// The main window on a real desktop of this kind, shown and active.
template <typename DesktopKind>
class DrivenForm : public WindowDriver {
public:
    DrivenForm() : m_form(desktop) {
        desktop.SetWindow(&m_form);
        m_form.LoadForm();
        m_form.show();
        Activate(m_form);
        m_form.MendFiles();
    }

    DesktopKind desktop;

protected:
    QWidget& Window() override { return m_form; }

private:
    Form1 m_form;
};

} // namespace Ui
