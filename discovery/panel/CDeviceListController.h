#pragma once
// What the device list does to cameras: the connect flow with its checks and
// questions, starting and stopping acquisition, the Force IP, "Set
// DeviceUserID", "Save GenICam XML" and "Add Remote Camera" actions, and the
// discovery requests. Camera round trips run on its task worker, so the GUI
// thread only shows dialogs and messages; it reports to the view by signals.
#include <QObject>
#include <QString>
#include <functional>

#include "CDiscoveryScheduler.h"
#include "CTavMessage.h"

class QWidget;
class CCameraTaskThread;
class CDeviceListModel;
class CWaitDlg;

class CDeviceListController : public QObject
{
    Q_OBJECT
public:
    // view: where dialogs and messages open.
    CDeviceListController(CDeviceListModel* model, QWidget* view);
    // Retires the task worker: a task under way ends on its own.
    ~CDeviceListController() override;

    // The checks, questions and openDevice for the row of the key (its
    // camera type from its item); true when the device was asked to open.
    bool connectDevice(const QString& key, int cameraType);
    void toggleAcquisition(const CTavDevicePtr& device);
    // The IP dialog for the device ("Device not found." when null); a new
    // discovery pass once it is accepted.
    void modifyIp(const CTavDevicePtr& device);
    void setDeviceUserId(const CTavDevicePtr& device);
    void saveGenICamXml(const CTavDevicePtr& device);
    void addRemoteCamera();
    // A plain discovery pass.
    void refresh();
    // The device manager reported a pass.
    void passFinished();
    // A connection attempt has ended: the wait dialog closes.
    void connectionSettled();

    CWaitDlg* waitDialog() const { return m_pWaitDlg; }
    const CDiscoveryScheduler& scheduler() const { return m_scheduler; }
    // The number of open devices the connection limit counts; the device
    // manager's by default.
    void setOpenedDeviceCounter(std::function<int()> counter);
    // The file name "Save GenICam XML" writes to; a file dialog by default.
    void setXmlFileChooser(std::function<QString(QWidget*, const QString&)> chooser);

signals:
    void deviceSelected(CTavDevicePtr device);
    // "Add Remote Camera" asked for a pass (the refresh button waits for it).
    void remoteDiscoveryRequested();
    // A camera round trip finished (user ID read or written, XML saved).
    void cameraTaskFinished();

private:
    void writeDeviceUserId(const CTavDevicePtr& device, const QString& value, int maxLength);
    bool refuse(const QString& text);

    CDeviceListModel* m_model;
    QWidget* m_view;
    CWaitDlg* m_pWaitDlg;
    CCameraTaskThread* m_pTasks;
    CDiscoveryScheduler m_scheduler;
    std::function<int()> m_openedDeviceCounter;
    std::function<QString(QWidget*, const QString&)> m_xmlFileChooser;
};
