#pragma once

#include <QDialog>
#include <QIcon>

#include <functional>
#include <span>
#include <string>

namespace MessageBoxLayout {
struct Layout;
}

namespace Ui {

class PlainLabel;

// The message box whose buttons carry captions chosen by the caller. It can only be left through one
// of them.
class frmCustomMessageBox : public QDialog {
public:
    // `showCopy` is called when the prompt is wanted in a standard message box, where it can be
    // copied: the left button with Ctrl and Shift.
    frmCustomMessageBox(const std::string& prompt, QIcon icon, const QString& title,
                        std::span<const std::string> captions, std::function<void()> showCopy, QWidget* parent);

    // The caption of the button pressed; empty until then.
    [[nodiscard]] const std::string& Result() const { return m_result; }

    void reject() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] MessageBoxLayout::Layout ArrangeTexts(const std::string& prompt,
                                                        std::span<const std::string> captions) const;
    void BuildButtons(const MessageBoxLayout::Layout& layout, std::span<const std::string> captions, int top);

    PlainLabel* lblCaption = nullptr;
    QIcon m_icon;
    std::function<void()> m_showCopy;
    std::string m_result;
    class QPushButton* m_cancelButton = nullptr; // pressed by Esc
};

} // namespace Ui
