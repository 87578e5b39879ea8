// A features page from its load to its close, against in-process simulated
// cameras: what the load logs and from where, a camera without features,
// a camera that goes away while the tree loads, and a page closed while its
// workers wait on the camera.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include <arv.h>
#include "CSingletonOwner.h"
#include "FakeCameraRig.h"
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "CAravisCamera.h"
#include "CCommandParamDoneStatusThread.h"
#include "CPropertyFeaturesForm.h"
#include "CUpdateParamThread.h"
#include "CWriteParamThread.h"
#include "FeatureTestSupport.h"
#include "QtPushButtonFactory.h"
#include "qtpropertymanager.h"

class TestFeaturesLifecycle : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void loadIsLoggedByThePage();
    void cameraWithoutFeatures();
    void cameraGoneWhileLoading();
    void closingNeverWaitsForTheCamera();

private:
    // A page of the device whose messages are collected; null when its tree
    // was not shown.
    CPropertyFeaturesForm* loadedForm(const CTavDevicePtr& device);

    FakeCameraRig m_rig;
    QTemporaryDir m_dir;
    int m_cam = -1;
    std::unique_ptr<CSingletonOwner> m_owner;
    CTavDevicePtr m_device, m_empty;
    QStringList m_messages;
};

void TestFeaturesLifecycle::initTestCase()
{
    m_owner.reset(new CSingletonOwner);
    QVERIFY(m_dir.isValid());
    m_cam = m_rig.start("127.0.0.1", "LUMLIFE1", std::string(), 320, 240, "Mono8");
    if (m_cam < 0)
        QFAIL(qPrintable(QString("simulated camera did not start: %1").arg(m_rig.lastError().c_str())));
    // The same camera with nothing under "Root".
    QFile full(QString::fromStdString(FakeCameraRig::defaultXmlPath()));
    QVERIFY2(full.open(QIODevice::ReadOnly), "the simulated camera's description cannot be read");
    QString xml = QString::fromUtf8(full.readAll());
    const int root = xml.indexOf("<Category Name=\"Root\"");
    const int rootEnd = xml.indexOf("</Category>", root);
    QVERIFY(root >= 0 && rootEnd > root);
    xml.replace(root, rootEnd - root, xml.mid(root, rootEnd - root).remove(QRegularExpression("<pFeature>[^<]*</pFeature>")));
    const QString emptyXml = m_dir.filePath("EmptyRoot.xml");
    QFile out(emptyXml);
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(xml.toUtf8()) > 0);
    out.close();
    if (m_rig.start("127.0.0.2", "LUMEMPTY1", emptyXml.toStdString()) < 0)
        QFAIL(qPrintable(QString("simulated camera did not start: %1").arg(m_rig.lastError().c_str())));

    m_device = waitForDevice("LUMLIFE1");
    m_empty = waitForDevice("LUMEMPTY1");
    QVERIFY2(m_device && m_empty, "the simulated cameras were not discovered");
    QVERIFY(m_device->openDevice(true));
    QVERIFY(m_empty->openDevice(true));
}

void TestFeaturesLifecycle::cleanupTestCase()
{
    for (CTavDevicePtr* d : {&m_device, &m_empty})
    {
        if (*d)
            (*d)->closeDevice(true);
        d->reset();
    }
    m_owner.reset();
}

CPropertyFeaturesForm* TestFeaturesLifecycle::loadedForm(const CTavDevicePtr& device)
{
    auto* form = new CPropertyFeaturesForm(device);
    form->setMessageHandler([this](const QString& text, QMessageBox::StandardButtons, QMessageBox::Icon) {
        m_messages.append(text);
        return int(QMessageBox::Ok);
    });
    QSignalSpy shown(form, &CPropertyFeaturesForm::showGenParamFinish);
    if (!shown.wait(20000))
    {
        delete form;
        return nullptr;
    }
    return form;
}

void TestFeaturesLifecycle::loadIsLoggedByThePage()
{
    LogCapture log;
    std::unique_ptr<CPropertyFeaturesForm> form(loadedForm(m_device));
    QVERIFY(form);
    QVERIFY(form->featureNames().size() > 300);
    // Each line of the load comes from the page's own source, in order.
    int at = 0;
    for (const char* text : {"] begin getProperty", "] Start to load properties.", "] end getProperty",
                             "] begin showGenParam", "] end showGenParam"})
    {
        at = log.find("CPropertyFeaturesForm", text, at);
        QVERIFY2(at >= 0, qPrintable(QString("%1 not logged by CPropertyFeaturesForm in:\n%2")
                                         .arg(text, log.lines().join('\n'))));
    }
    QVERIFY(!log.contains("SubParams is empty!"));
    QVERIFY(!log.contains("Get children params failed!"));
}

void TestFeaturesLifecycle::cameraWithoutFeatures()
{
    LogCapture log;
    std::unique_ptr<CPropertyFeaturesForm> form(loadedForm(m_empty));
    QVERIFY2(form, "a camera without features must still show its (empty) tree");
    QVERIFY(form->isLoaded());
    QVERIFY(form->featureNames().isEmpty());
    const int begin = log.find("CPropertyFeaturesForm", "] begin getProperty");
    const int empty = log.find("CPropertyFeaturesForm", "] SubParams is empty!", begin);
    QVERIFY2(begin >= 0 && empty > begin, qPrintable(log.lines().join('\n')));
    QVERIFY(log.find("CPropertyFeaturesForm", "] end getProperty", empty) > empty);
}

void TestFeaturesLifecycle::cameraGoneWhileLoading()
{
    // A page whose load is cut after 30 nodes, as by a lost camera: no
    // tree, nothing announced as shown, workers end cleanly.
    std::unique_ptr<CPropertyFeaturesForm> form(new CPropertyFeaturesForm(m_device));
    QSignalSpy aborted(form.get(), &CPropertyFeaturesForm::propertyLoadAborted);
    QSignalSpy shown(form.get(), &CPropertyFeaturesForm::showGenParamFinish);
    form->setLoadProbe([](int nodes) { return nodes < 30; });
    QVERIFY(QTest::qWaitFor([&]() { return !aborted.isEmpty() || !shown.isEmpty(); }, 20000));
    if (!shown.isEmpty())
        QFAIL("the load was not cut by the probe");
    QVERIFY(!form->isLoaded());
    QVERIFY(!form->isLoadingGenParams());
    QVERIFY(form->featureNames().isEmpty());
}

void TestFeaturesLifecycle::closingNeverWaitsForTheCamera()
{
    Vorlen::GenICam::CAravisCamera* camera = Vorlen::GenICam::toAravisCamera(m_device->getDevice());
    QVERIFY(camera);
    m_messages.clear();

    // A loaded page with every worker busy: a command the camera holds, a
    // refused write stuck behind this thread's hold on the camera, a
    // refresh waiting. Closing returns while this thread holds the camera
    // (any wait for a worker would never end).
    {
        CPropertyFeaturesForm* form = loadedForm(m_device);
        QVERIFY(form);
        QtProperty* hold = form->findProperty("TestHoldCommand");
        QVERIFY(hold);
        form->managers().command->click(hold, false);
        QTRY_VERIFY_WITH_TIMEOUT(!hold->isDone(), 5000);
        QPointer<QThread> workers[] = {form->loadThread(), form->updateThread(), form->commandThread(),
                                       form->writeThread()};
        {
            std::unique_lock<std::recursive_mutex> cameraLock(camera->gcMutex());
            // Width 321 breaks its increment: a delivered result would show a message.
            form->managers().integer->setValue(form->findProperty("Width"), 321);
            QTRY_COMPARE(form->writeThread()->pendingCount(), 0);   // taken, inside the camera call
            QVERIFY(form->writeThread()->isBusy());
            form->updateThread()->appendPropertyList({"Height", "Gain"});
            delete form;
            for (const QPointer<QThread>& worker : workers)
                if (worker)
                    QVERIFY(!worker->parent());
        }
        for (const QPointer<QThread>& worker : workers)
            QTRY_VERIFY_WITH_TIMEOUT(worker.isNull(), 10000);
        // The workers are gone: whatever they had posted is delivered now, or never.
        QCoreApplication::sendPostedEvents();
        QVERIFY2(m_messages.isEmpty(), qPrintable(m_messages.value(0)));
        // Release the command for the pages after this one.
        const guint32 zero = 0;
        arv_fake_camera_write_memory(m_rig.fake(m_cam), 0x4000, 4, &zero);
    }

    // A page closed while its tree loads: the loader stops at the next node
    // once the camera answers again, and no tree is delivered.
    {
        auto nodes = std::make_shared<std::atomic<int>>(0);
        auto* form = new CPropertyFeaturesForm(m_device);
        form->setLoadProbe([nodes](int read) {
            *nodes = read;
            return true;
        });
        QPointer<QThread> loader(form->loadThread());
        QTRY_VERIFY_WITH_TIMEOUT(*nodes > 0, 20000);
        int atClose = 0;
        {
            std::unique_lock<std::recursive_mutex> cameraLock(camera->gcMutex());
            atClose = *nodes;
            delete form;
        }
        QTRY_VERIFY_WITH_TIMEOUT(loader.isNull(), 10000);
        QVERIFY2(*nodes <= atClose + 1, qPrintable(QString("%1 nodes read after closing").arg(*nodes - atClose)));
    }
}

QTEST_MAIN(TestFeaturesLifecycle)
#include "test_features_lifecycle.moc"
