#pragma once
// Control bar of a video view: play/stop of acquisition and the zoom
// buttons. extraButtonLayout() is the place, between play and zoom, where
// further buttons of the view (snapshot, record, flip) are added.
#include <QWidget>

class QHBoxLayout;
class QToolButton;

class CVideoControlBar : public QWidget
{
    Q_OBJECT
public:
    explicit CVideoControlBar(QWidget* parent = nullptr);

    // Play shows "start" while stopped and "stop" while streaming; busy
    // disables it until the stream has opened or closed.
    void setStreaming(bool streaming);
    void setBusy(bool busy);
    void setDeviceBound(bool bound);
    bool isStreaming() const { return m_streaming; }
    QToolButton* playButton() const { return m_btnPlay; }
    QHBoxLayout* extraButtonLayout() const { return m_extra; }

signals:
    void playClicked();
    void stopClicked();
    void zoomInClicked();
    void zoomOutClicked();
    void zoomFitClicked();
    void zoom100Clicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    QToolButton* makeButton(const char* name, const char* icon);
    void retranslate();
    void updatePlay();

    bool m_streaming = false;
    bool m_busy = false;
    bool m_bound = false;
    QToolButton* m_btnPlay;
    QToolButton* m_btnZoomIn;
    QToolButton* m_btnZoomOut;
    QToolButton* m_btnZoomFit;
    QToolButton* m_btnZoom100;
    QHBoxLayout* m_extra;
};
