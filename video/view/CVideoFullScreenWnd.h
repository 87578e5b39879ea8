#pragma once
// A frameless full-screen window that borrows a widget and gives it back:
// Esc (or exitFullScreen()) ends it.
#include <QPointer>
#include <QWidget>

class QLayout;
class QVBoxLayout;

class CVideoFullScreenWnd : public QWidget
{
    Q_OBJECT
public:
    explicit CVideoFullScreenWnd(QWidget* parent = nullptr);

    // Moves the content into this window, shown full screen. The content
    // goes back to homeLayout at index when the full screen ends.
    void enter(QWidget* content, QLayout* homeLayout, int index);
    bool isActive() const { return !m_content.isNull(); }

public slots:
    void exitFullScreen();

signals:
    void exited();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QVBoxLayout* m_layout;
    QPointer<QWidget> m_content;
    QPointer<QLayout> m_home;
    int m_index = 0;
};
