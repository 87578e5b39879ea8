#pragma once
// The drawing signals between a camera's video view and the panels that work
// with it, keyed by the camera's device key: the view reports the ROI drawn
// with the mouse and the pixel under the cursor; the image-format page asks
// the view to start, end or cancel a drawing. One hub per grid of views (the
// multi-view owns it); the main window hands it to the property panel.
// Receivers compare the key with their own device's. GUI thread only.
#include <QObject>
#include <QPoint>
#include <QString>

class CViewSignalHub : public QObject
{
    Q_OBJECT
public:
    explicit CViewSignalHub(QObject* parent = nullptr);

signals:
    void ROIChanged(const QString& key, int x, int y, int width, int height);
    void signalInitROI(const QString& key, int x, int y, int width, int height);
    void signalDrawROI(const QString& key, bool draw);
    void signalCancelDrawROI(const QString& key);
    void signaROIEnable(const QString& key, bool enable);
    void cursorPoint(const QString& key, QPoint point);
};
