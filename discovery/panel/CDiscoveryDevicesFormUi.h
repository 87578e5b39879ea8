#pragma once
// The widgets of the device list panel, built as a form definition would:
// the frame "frame_DevList" with its label, the refresh button "reflesh",
// the collapse button and the tree "deviceList"; the frame "frame_DevInfo"
// with its label and the tree "deviceInfo"; and "btnExpandDevice", shown
// only while the panel is collapsed.
#include <QCoreApplication>

class QFrame;
class QLabel;
class QPushButton;
class QToolButton;
class QTreeWidget;
class QWidget;

class CDiscoveryDevicesFormUi
{
    Q_DECLARE_TR_FUNCTIONS(CDiscoveryDevicesFormUi)
public:
    static const int kCollapsedWidth = 14;

    void setupUi(QWidget* form);
    void retranslateUi();
    // Folds the panel to the strip with the expand button, or back (the
    // expanded panel is 250 to 15000 pixels wide).
    void setCollapsed(QWidget* form, bool collapsed);

    QWidget* contents = nullptr;
    QFrame* frameDevList = nullptr;
    QLabel* lblDevList = nullptr;
    QPushButton* btnRefresh = nullptr;
    QToolButton* btnCollpaseDevice = nullptr;
    QTreeWidget* deviceList = nullptr;
    QFrame* frameDevInfo = nullptr;
    QLabel* lblDevInfo = nullptr;
    QTreeWidget* deviceInfo = nullptr;
    QToolButton* btnExpandDevice = nullptr;
};
