#pragma once
// Title row for frameless dialogs: the title text on the left, a close button
// on the right, and dragging anywhere on the row moves the dialog.
// Put it at the top of the dialog's layout; the close button calls the
// window's close() (which for a QDialog ends in reject()).
#include <QPoint>

#include "CTitleBar.h"

class CDialogTitleBar : public CTitleBar
{
    Q_OBJECT
public:
    explicit CDialogTitleBar(QWidget* parent = nullptr);

    // The window takes the title too.
    void setTitle(const QString& title) override;
    // Hide the close button for dialogs the user must not dismiss.
    void setCloseButtonVisible(bool visible);
    QToolButton* closeButton() const { return barButton(); }

signals:
    // Emitted before the window is closed by the close button.
    void closeRequested();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void retranslate();

    QPoint m_dragOffset;
    bool m_dragging = false;
};
