#pragma once
// Title bar of a video view: the device name and the maximise/restore
// button. Dragging the bar onto another view swaps the two views.
#include <QPoint>
#include <QWidget>

class QLabel;
class QToolButton;

class CVideoTitleBar : public QWidget
{
    Q_OBJECT
public:
    // MIME type of a view being dragged; the data is its form id as text.
    static const char* const kDragMimeType;

    CVideoTitleBar(int formId, QWidget* parent = nullptr);
    void setTitle(const QString& title);
    QString title() const;
    void setMaxMode(bool max);

signals:
    void maximizeClicked();
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    int m_formId;
    bool m_maxMode = false;
    QLabel* m_title;
    QToolButton* m_btnMax;
    QPoint m_pressPos;
    bool m_pressed = false;
};
