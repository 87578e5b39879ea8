// How long the GUI thread spends merging a discovery result into the device
// list, for 16, 64 and 256 cameras: an unchanged list (the common refresh),
// one camera gone at the front (every row below shifts), and it back again.
// Stand-in cameras: no network, no camera round trip, so the figures are the
// panel's own work.
#include <QApplication>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include "CSingletonOwner.h"
#include "CDeviceManager.h"
#include "CDiscoveryDevicesForm.h"
#include "CDiscoveryDevicesThread.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;

namespace {

class StandInCamera : public CInternalCamera
{
public:
    explicit StandInCamera(int n) : m_serial(QString("SN%1").arg(n, 5, 10, QChar('0')).toStdString()) {}
    CString getKey() const override { return CString("Bench:Cam:") + CString(m_serial); }
    CString getName() const override { return "BenchCam"; }
    CString getSerialNumber() const override { return m_serial; }
    CString getVendorName() const override { return "Bench"; }
    EInterfaceType getType() const override { return typeGigEVision; }
    bool isConnected() const override { return false; }
    bool connect(ECameraAccessPermission) override { return false; }
    bool disConnect() override { return true; }
    bool isDriverInstalled(bool& installed) const override { return installed = true; }
    bool setAnswerTimeout(unsigned short) override { return true; }
    bool setHeartbeatIntervel(unsigned short) override { return true; }
    bool forceIpAddress(const char*, const char*, const char*) override { return false; }
    bool downLoadGenICamXML(const char*) override { return false; }
    CString getDefXMLFilename() const override { return CString(); }

private:
    std::string m_serial;
};

class StandInSystem : public IDiscoverySystem
{
public:
    bool discovery(CameraPtrVector&, EInterfaceType) override { return true; }
    bool discoveryEx(CameraPtrVector&, EDiscoveryMode, CSystem::_DiscoveryModeInfo) override { return false; }
    bool getCameraPtrAll(CameraPtrVector& cameras) override
    {
        QMutexLocker lock(&mutex);
        cameras = registry;
        return true;
    }
    QMutex mutex;
    CameraPtrVector registry;
};

double mergeMs(CDiscoveryDevicesForm& form, int repeats)
{
    QMap<QString, CTavDevicePtr> devices = CDeviceManager::getInstance()->getAllDevices();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < repeats; ++i)
        form.updateDeviceList(devices);
    return double(timer.nsecsElapsed()) / 1e6 / repeats;
}

bool discover()
{
    QSignalSpy done(CDeviceManager::getInstance(), &CDeviceManager::discoveryDevicesFinished);
    CDiscoveryDevicesThread* worker = CDiscoveryDevicesThread::getInstance();
    for (int i = 0; i < 200 && worker->isDisconvrying(); ++i)
        QTest::qWait(10);
    CDeviceManager::getInstance()->refreshDeviceMap(QString(), 0);
    return done.wait(10000);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    auto system = std::make_shared<StandInSystem>();
    CDiscoveryDevicesThread::setDefaultSystem(system);

    std::printf("%-8s %-22s %s\n", "cameras", "case", "ms per merge (GUI thread)");
    for (int count : {16, 64, 256}) {
        std::vector<Vorlen::Memory::TSharedPtr<ICamera>> cameras;
        for (int i = 0; i < count; ++i)
            cameras.push_back(Vorlen::Memory::TSharedPtr<ICamera>(std::make_shared<StandInCamera>(i)));
        auto singletons = std::make_unique<CSingletonOwner>();
        {
            QMutexLocker lock(&system->mutex);
            system->registry.clear();
            for (auto& c : cameras)
                system->registry.push_back(c);
        }
        auto* form = new CDiscoveryDevicesForm;
        form->show();
        if (!discover() ||
            !QTest::qWaitFor([&]() { return form->getRootItem(0)->childCount() == count; }, 10000)) {
            std::fprintf(stderr, "discovery of %d stand-in cameras did not reach the tree\n", count);
            return 1;
        }
        const int repeats = count <= 64 ? 50 : 10;
        std::printf("%-8d %-22s %.3f\n", count, "unchanged", mergeMs(*form, repeats));

        {
            QMutexLocker lock(&system->mutex);
            system->registry.erase(system->registry.begin());
        }
        discover();
        QMap<QString, CTavDevicePtr> fewer = CDeviceManager::getInstance()->getAllDevices();
        QMutexLocker relock(&system->mutex);
        system->registry.insert(system->registry.begin(), cameras.front());
        relock.unlock();
        discover();
        QMap<QString, CTavDevicePtr> all = CDeviceManager::getInstance()->getAllDevices();
        QElapsedTimer timer;
        double removeMs = 0, insertMs = 0;
        for (int i = 0; i < repeats; ++i) {
            timer.start();
            form->updateDeviceList(fewer);
            removeMs += double(timer.nsecsElapsed()) / 1e6;
            timer.start();
            form->updateDeviceList(all);
            insertMs += double(timer.nsecsElapsed()) / 1e6;
        }
        std::printf("%-8d %-22s %.3f\n", count, "first camera gone", removeMs / repeats);
        std::printf("%-8d %-22s %.3f\n", count, "first camera back", insertMs / repeats);
        delete form;
        singletons.reset();
    }
    return 0;
}
