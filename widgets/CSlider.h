#pragma once
// QSlider in the house style: the wheel acts only when focused, and a click
// on the groove jumps straight to the clicked value instead of stepping a page.
#include <QSlider>

class CSlider : public QSlider
{
    Q_OBJECT
public:
    explicit CSlider(Qt::Orientation orientation = Qt::Horizontal, QWidget* parent = nullptr);

    // The value a click at pos (widget coordinates) stands for.
    int valueAt(const QPoint& pos) const;

protected:
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};
