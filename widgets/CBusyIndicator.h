#pragma once
// A spinning arc that shows work is in progress. It animates only while
// visible, so a hidden indicator costs nothing. The animation clock is a
// plain QTimer; tests step it with advance() instead of waiting.
#include <QTimer>
#include <QWidget>

class CBusyIndicator : public QWidget
{
    Q_OBJECT
public:
    explicit CBusyIndicator(QWidget* parent = nullptr);

    // Angle of the arc in degrees, 0..359.
    int angle() const { return m_angle; }
    bool isAnimating() const { return m_timer.isActive(); }
    // One animation step, as the timer does.
    void advance();

    QSize sizeHint() const override { return QSize(36, 36); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QTimer m_timer;
    int m_angle = 0;
};
