#pragma once
// Two simulated cameras on loopback and the device list panel over them, for
// the tests that drive the panel against cameras, and the base of those
// tests, which sets the rig up and tears it down. Include it first: the
// camera rig's GLib headers come before Qt's.
#include "FakeCameraRig.h"
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>
#include <memory>

#include "CCameraTaskThread.h"
#include "CConfiguration.h"
#include "CSingletonOwner.h"
#include "CDiscoveryButtonsForm.h"
#include "CDiscoveryDevicesForm.h"
#include "CDiscoveryRootForm.h"
#include "CWaitDlg.h"
#include "DeviceListTestSupport.h"

class DeviceListRig
{
public:
    const char* const address[2] = {"127.0.0.3", "127.0.0.4"};
    const char* const serial[2] = {"LUMDL001", "LUMDL002"};

    // Starts both cameras and the panel, and waits until both are listed.
    // Empty when ready, else what is missing.
    QString setUp()
    {
        m_owner.reset(new CSingletonOwner);
        enableLogWhenAsked();
        for (const char* a : address)
            if (!FakeCameraRig::hasAddress(a))
                return QString("%1 is not on the loopback interface: run inside scripts/netns.sh "
                               "(or scripts/loopback.sh as root)")
                    .arg(a);
        for (int i = 0; i < 2; ++i) {
            m_cam[i] = m_rig.start(address[i], serial[i], std::string(), 320, 240, "Mono8");
            if (m_cam[i] < 0)
                return QString::fromStdString(m_rig.lastError());
        }
        CConfiguration::getInstance()->iHeartbeatIval = 500;
        CConfiguration::getInstance()->iAnswerTimeout = 300;
        host = new QWidget;
        host->resize(320, 700);
        form = new CDiscoveryDevicesForm(host);
        form->resize(320, 700);
        host->show();
        // The automatic refresh is driven by hand where a test wants it, never by the clock.
        form->autoRefreshTimer()->stop();
        for (int i = 0; i < 2; ++i)
            if (!waitListed(i) && !(rediscoverWhenIdle() && waitListed(i)))
                return QString("%1 is not listed").arg(serial[i]);
        return QString();
    }

    // The panel goes first; its camera tasks end before the manager does.
    void tearDown()
    {
        delete host;
        form = nullptr;
        QTRY_COMPARE_WITH_TIMEOUT(CCameraTaskThread::liveCount(), 0, 10000);
        m_owner.reset();
    }

    CTavDevicePtr deviceOf(int slot) const { return findDeviceBySerial(serial[slot]); }
    QTreeWidgetItem* itemOf(int slot) const
    {
        CTavDevicePtr device = deviceOf(slot);
        return device ? form->getItemByDevice(device) : nullptr;
    }
    bool waitListed(int slot) const
    {
        return QTest::qWaitFor([&]() { return itemOf(slot) != nullptr; }, 20000);
    }
    bool waitIcon(int slot, int icon) const
    {
        return QTest::qWaitFor([&]() { return itemOf(slot) && form->itemIconIndex(itemOf(slot)) == icon; }, 15000);
    }
    // The inline Connect button of the camera's row, pressed as a user would.
    bool connectByButton(int slot)
    {
        QSignalSpy opened(form, &CDiscoveryDevicesForm::openDeviceSuccess);
        form->setHoverItem(itemOf(slot));
        form->buttonsOf(itemOf(slot))->getConnectBtn()->click();
        return opened.wait(15000) && deviceOf(slot)->isConnected();
    }
    bool closeDevice(int slot)
    {
        QSignalSpy closed(form, &CDiscoveryDevicesForm::closeDeviceSuccess);
        deviceOf(slot)->closeDevice(false);
        return closed.wait(15000);
    }
    void stopCamera(int slot) { m_rig.stop(m_cam[slot]); }

    QWidget* host = nullptr;
    CDiscoveryDevicesForm* form = nullptr;

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    FakeCameraRig m_rig;
    int m_cam[2] = {-1, -1};
};

// Test classes over the rig derive from this; QtTest runs its
// initTestCase and cleanupTestCase around theirs.
class DeviceListRigTest : public QObject
{
    Q_OBJECT
protected:
    DeviceListRig m_rig;
    CDiscoveryDevicesForm* m_form = nullptr;

private slots:
    void initTestCase()
    {
        const QString missing = m_rig.setUp();
        QVERIFY2(missing.isEmpty(), qPrintable(missing));
        m_form = m_rig.form;
    }
    void cleanupTestCase()
    {
        m_rig.tearDown();
        m_form = nullptr;
    }
};
