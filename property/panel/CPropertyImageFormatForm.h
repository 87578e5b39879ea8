#pragma once
// The image-format page of the property panel: size, offsets, binning and
// pixel format, and the region of interest drawn with the mouse on the
// device's video view. Changes apply only while the camera is not grabbing.
//
// Drawing: "Draw ROI" sends signalInitROI (the current region) and
// signalDrawROI(true) through the views' signal hub to the device's view;
// the view answers with ROIChanged(key, x, y, width, height) in the
// coordinates of the picture it
// shows, which the page turns into camera offsets and sizes on the
// increment grid and writes. cancelROI() ends a drawing without applying it.
#include <QPointer>

#include "CFeatureControlPage.h"

class CViewSignalHub;
class QPushButton;

class CPropertyImageFormatForm : public CFeatureControlPage
{
    Q_OBJECT
public:
    // viewSignals: the hub of the video views (none: nothing is drawn).
    explicit CPropertyImageFormatForm(CTavDevicePtr device, QWidget* parent = nullptr,
                                      CViewSignalHub* viewSignals = nullptr);
    ~CPropertyImageFormatForm() override;

    bool isDrawingROI() const { return m_bDrawing; }
    // Ends a drawing in progress (leaving the tab, the device going away).
    void cancelROI();
    QPushButton* drawButton() const { return m_btnDraw; }
    QPushButton* fullFrameButton() const { return m_btnFull; }

public slots:
    void onROIChanged(int x, int y, int width, int height);

protected:
    bool mayWrite(const QString& name, QString& refusal) override;
    void onDeviceMessage(const CTavMessagePtr& msg) override;
    void retranslateExtra() override;

private:
    void onDrawToggled(bool on);
    // The drawing ends: the button pops up and the view stops drawing;
    // cancelled tells the view to drop the region.
    void endDrawing(bool cancelled);
    void onFullFrame();
    // Writes a region: offsets to 0 first so that the new size always fits,
    // then the size, then the offsets.
    void applyRegion(qint64 x, qint64 y, qint64 width, qint64 height);

    QPointer<CViewSignalHub> m_viewSignals;
    QPushButton* m_btnDraw = nullptr;
    QPushButton* m_btnFull = nullptr;
    bool m_bDrawing = false;
};
