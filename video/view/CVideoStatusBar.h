#pragma once
// Status bar of a video view: receive and display frame rates, bandwidth,
// frame count and stream error, and the cursor's image position with the
// pixel value under it.
#include <QRgb>
#include <QWidget>

class QLabel;

struct SVideoStatistics
{
    QString receiveFps;
    QString displayFps;
    QString bandwidth;      // Mbps
    unsigned long long frames = 0;
    QString error;
    unsigned long long errorCount = 0;
};

class CVideoStatusBar : public QWidget
{
    Q_OBJECT
public:
    explicit CVideoStatusBar(QWidget* parent = nullptr);

    void setStatistics(const SVideoStatistics& statistics);
    void clearStatistics();
    // No pixel: the cursor is off the image.
    void setCursorInfo(const QPoint& pixel, const QString& raw, QRgb rgb, bool rgbValid);
    void clearCursorInfo();
    // A one-line notice in the error field (a failed start, say); empty clears it.
    void setNotice(const QString& text);

    QString statisticsText() const;
    QString cursorText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    SVideoStatistics m_stats;
    bool m_hasStats = false;
    QLabel* m_lblStats;
    QLabel* m_lblError;
    QLabel* m_lblCursor;
    QPoint m_pixel;
    QString m_raw;
    QRgb m_rgb = 0;
    bool m_rgbValid = false;
    bool m_hasCursor = false;
    QString m_notice;
};
