// The features page against an in-process simulated camera: the rows the
// builders make, writes with their checks and read-back, commands held by
// the camera, camera-side updates, re-labelling without rebuilding, the
// search and level, a camera that goes away while the tree loads, and a
// page closed while its workers wait on the camera.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include <arv.h>
#include "FakeCameraRig.h"
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

#include "CAravisCamera.h"
#include "CCommandParamDoneStatusThread.h"
#include "CWriteParamThread.h"
#include "CSingletonOwner.h"
#include "CConfiguration.h"
#include "CUpdateParamThread.h"
#include "CDeviceManager.h"
#include "CFeatureTreeBuilder.h"
#include "CPropertyFeaturesForm.h"
#include "CTavDevice.h"
#include "ParamTransTables.h"
#include "DecoratedDoublePropertyManager.h"
#include "QtPushButtonFactory.h"
#include "qtpropertymanager.h"
#include "qttreepropertybrowser.h"

static const bool g_ownHome = []() {
    if (qEnvironmentVariableIsEmpty("LUMIDOR_HOME"))
        qputenv("LUMIDOR_HOME", qgetenv("HOME"));
    return true;
}();

using namespace Vorlen::GenICam;

struct Message
{
    QString text;
    int icon;
};

class TestFeaturesForm : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void rowsPerNodeKind();
    void rangeWarningAndUnavailableRows();
    void writesAreCheckedAndReadBack();
    void commandExecutingUntilCameraReleasesIt();
    void cameraSideChangesRefreshRows();
    void searchAndSharedLevel();
    void relabelWithoutRebuilding();
    void cameraGoneWhileLoading();
    void closingNeverWaitsForTheCamera();

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    CPropertyFeaturesForm* newForm();
    QtProperty* row(const QString& name) const { return m_form->findProperty(name); }
    bool rowShown(const QString& name) const;
    bool waitWrite(const QString& name);
    QString deviceValue(const char* name);

    FakeCameraRig m_rig;
    int m_cam = -1;
    CTavDevicePtr m_device;
    CPropertyFeaturesForm* m_form = nullptr;
    QList<Message> m_messages;
};

CPropertyFeaturesForm* TestFeaturesForm::newForm()
{
    auto* form = new CPropertyFeaturesForm(m_device);
    form->setMessageHandler([this](const QString& text, QMessageBox::StandardButtons, QMessageBox::Icon icon) {
        m_messages.append({text, int(icon)});
        return int(QMessageBox::Ok);
    });
    return form;
}

void TestFeaturesForm::initTestCase()
{
    m_owner.reset(new CSingletonOwner);
    m_cam = m_rig.start("127.0.0.1", "LUMPROP1", std::string(), 320, 240, "Mono8");
    if (m_cam < 0)
        QFAIL("the simulated camera cannot start on 127.0.0.1 (run inside a network namespace with lo up)");
    CDeviceManager* manager = CDeviceManager::getInstance();
    auto find = [&]() {
        const QMap<QString, CTavDevicePtr> devices = manager->getAllDevices();
        for (const CTavDevicePtr& d : devices)
            if (d->getDevice() && QString::fromLocal8Bit(d->getDevice()->getSerialNumber().c_str()) == "LUMPROP1")
                return d;
        return CTavDevicePtr();
    };
    if (!QTest::qWaitFor([&]() { return find() != nullptr; }, 20000))
        QFAIL("the simulated camera was not discovered");
    m_device = find();
    QVERIFY(m_device->openDevice(true));
    QVERIFY(m_device->isConnected());

    m_form = newForm();
    QSignalSpy finished(m_form, &CPropertyFeaturesForm::showGenParamFinish);
    QVERIFY(m_form->isLoadingGenParams());
    QVERIFY(finished.wait(20000));
    QVERIFY(!m_form->isLoadingGenParams());
    QVERIFY(m_form->isLoaded());
    m_form->resize(600, 800);
    m_form->show();
}

void TestFeaturesForm::cleanupTestCase()
{
    delete m_form;
    m_form = nullptr;
    if (m_device)
        m_device->closeDevice(true);
    m_device.reset();
    m_owner.reset();
}

void TestFeaturesForm::init()
{
    m_messages.clear();
}

bool TestFeaturesForm::rowShown(const QString& name) const
{
    QtProperty* p = row(name);
    if (!p)
        return false;
    const QList<QtBrowserItem*> items = m_form->browser()->items(p);
    return !items.isEmpty() && m_form->browser()->isItemVisible(items.first());
}

bool TestFeaturesForm::waitWrite(const QString& name)
{
    QSignalSpy spy(m_form, &CPropertyFeaturesForm::writeFinished);
    return QTest::qWaitFor(
        [&]() {
            for (const QList<QVariant>& args : spy)
                if (args.at(0).toString() == name)
                    return true;
            return false;
        },
        10000);
}

QString TestFeaturesForm::deviceValue(const char* name)
{
    CInternalParameterNode node(m_device->getDevice(), name);
    Vorlen::Infra::CString s;
    node.getValueAsString(s);
    return QString::fromLocal8Bit(s.c_str());
}

void TestFeaturesForm::rowsPerNodeKind()
{
    const auto& m = m_form->managers();
    // Integer: double manager of its own, 0 decimals, increment as step.
    QtProperty* width = row("Width");
    QVERIFY(width);
    QCOMPARE(width->propertyManager(), static_cast<QtAbstractPropertyManager*>(m.integer));
    QCOMPARE(width->propertyName(), QString("Width"));
    QCOMPARE(m.integer->decimals(width), 0);
    QCOMPARE(m.integer->singleStep(width), 2.0);
    QCOMPARE(m.integer->minimum(width), 16.0);
    QCOMPARE(m.integer->value(width), 320.0);
    QCOMPARE(width->valueText(), QString("320"));
    const QString tip = width->toolTip();
    QVERIFY(tip.startsWith("<b>Width</b><br>"));
    const QStringList order = {"Width of the image", "Feature Name: ", "Type: ", "<b>Integer</b>", "Min: ",
                               "Max: ", "Increment: ", "<b>2</b>", "Name Space: ", "<b>Standard</b>",
                               "Visibility: ", "<b>Beginner</b>", "Streamable: "};
    int at = 0;
    for (const QString& piece : order)
    {
        const int found = tip.indexOf(piece, at);
        QVERIFY2(found >= at, qPrintable(piece + " in " + tip));
        at = found;
    }
    QCOMPARE(width->txtTag(), tip);
    QCOMPARE(width->GetType(), 0);

    // Float with a unit: decorated, 5 decimals, no increment line.
    QtProperty* gain = row("Gain");
    QCOMPARE(gain->propertyManager(), static_cast<QtAbstractPropertyManager*>(m.decFloating));
    QCOMPARE(m.decFloating->suffix(gain), QString(" dB"));
    QCOMPARE(m.decFloating->decimals(gain), 5);
    QVERIFY(gain->valueText().endsWith(" dB"));
    QVERIFY(!gain->toolTip().contains("Increment: "));
    QVERIFY(gain->toolTip().contains("Max: "));
    // Float without a unit: the plain float manager.
    QCOMPARE(row("Gamma")->propertyManager(), static_cast<QtAbstractPropertyManager*>(m.floating));

    // IPv4 integer edited as text; MAC as hexadecimal text.
    QtProperty* ip = row("GevCurrentIPAddress");
    QCOMPARE(ip->propertyManager(), static_cast<QtAbstractPropertyManager*>(m.string));
    QCOMPARE(ip->valueText(), QString("127.0.0.1"));
    QVERIFY(!ip->isEnabled());
    QtProperty* mac = row("GevMACAddress");
    QCOMPARE(mac->valueText().size(), 12);

    // Boolean: exactly False, True.
    QtProperty* reverse = row("ReverseX");
    QCOMPARE(reverse->propertyManager(), static_cast<QtAbstractPropertyManager*>(m.boolean));
    QCOMPARE(m.boolean->enumNames(reverse), QStringList({"False", "True"}));
    QCOMPARE(m.boolean->value(reverse), 0);

    // Enumeration: entries in order, current one selected, entries in the tooltip.
    QtProperty* pixel = row("PixelFormat");
    QCOMPARE(m.enumeration->enumNames(pixel).first(), QString("Mono8"));
    QCOMPARE(pixel->valueText(), QString("Mono8"));
    QVERIFY(pixel->toolTip().contains("Enum Entry Name: <b>BayerRG8</b><br>Enum Entry Value: <b>17301513</b>"));
    // Invisible entries are not offered.
    QVERIFY(!m.enumeration->enumNames(row("DeviceScanType")).contains("Linescan"));

    // String with its length limit; read-only string greyed.
    QtProperty* userId = row("DeviceUserID");
    QCOMPARE(userId->getMaxLength(), 16);
    QVERIFY(userId->toolTip().contains("Max Length: <b>16 bytes</b>"));
    QVERIFY(!row("DeviceVendorName")->isEnabled());

    // Command, register, category.
    QtProperty* hold = row("TestHoldCommand");
    QCOMPARE(hold->propertyManager(), static_cast<QtAbstractPropertyManager*>(m.command));
    QVERIFY(hold->isCommandType());
    QCOMPARE(hold->valueText(), QString("{Command}"));
    QCOMPARE(hold->GetType(), 2);
    QtProperty* reg = row("TestRegister");
    QCOMPARE(reg->valueText(), QString("{Register}"));
    QVERIFY(reg->toolTip().contains("Length:<b>16 Bytes</b>"));
    QtProperty* category = row("ImageFormatControl");
    QVERIFY(!category->hasValue());
    QVERIFY(category->toolTip().contains("Category Name: <b>ImageFormatControl</b>"));
    QVERIFY(category->subProperties().contains(width));

    // Invisible nodes never become rows.
    QVERIFY(!row("TestInvisibleValue"));
    QVERIFY(!row("GainRaw"));
    // Whole tree: every row is findable by feature name.
    QVERIFY(m_form->featureNames().size() > 300);
}

void TestFeaturesForm::rangeWarningAndUnavailableRows()
{
    // Unavailable until the gate is set: "{Not Available}" instead of the value.
    QtProperty* gated = row("TestGatedValue");
    QVERIFY(!gated->isAvailable());
    QCOMPARE(gated->notAvailableText(), QString("{Not Available}"));
    QTreeWidgetItem* item = m_form->browser()->treeItem(m_form->browser()->items(gated).first());
    QCOMPARE(item->text(1), QString("{Not Available}"));

    // A value outside its range (written behind the camera's back) is shown
    // with the warning, not clamped, and txtTag keeps the information.
    QVERIFY(m_rig.writeRegister(m_cam, 0x108, 9));   // BinningHorizontal, range 1..4
    QSignalSpy refreshed(m_form, &CPropertyFeaturesForm::rowRefreshed);
    m_form->updateThread()->appendPropertyList({"BinningHorizontal"});
    QVERIFY(refreshed.wait(5000));
    QtProperty* binning = row("BinningHorizontal");
    QCOMPARE(m_form->managers().integer->value(binning), 9.0);
    QCOMPARE(binning->displayMode(), QtProperty::DisplayIcon);
    QCOMPARE(binning->toolTip(), QString("Parameter out of range"));
    QVERIFY(binning->txtTag().contains("Feature Name: <b>BinningHorizontal</b>"));
    QVERIFY(m_rig.writeRegister(m_cam, 0x108, 1));
    refreshed.clear();
    m_form->updateThread()->appendPropertyList({"BinningHorizontal"});
    QVERIFY(refreshed.wait(5000));
    QCOMPARE(binning->displayMode(), QtProperty::DisplayNormal);
    QCOMPARE(binning->toolTip(), binning->txtTag());
}

void TestFeaturesForm::writesAreCheckedAndReadBack()
{
    const auto& m = m_form->managers();
    // Off the increment: refused with the message, camera value back in the row.
    QtProperty* width = row("Width");
    m.integer->setValue(width, 321);
    QVERIFY(waitWrite("Width"));
    QCOMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.first().text, QString("set value failed, please check increment value"));
    QCOMPARE(m.integer->value(width), 320.0);
    QCOMPARE(deviceValue("Width"), QString("320"));

    // A good value reaches the camera.
    m_messages.clear();
    m.integer->setValue(width, 256);
    QVERIFY(waitWrite("Width"));
    QVERIFY(m_messages.isEmpty());
    QCOMPARE(deviceValue("Width"), QString("256"));
    QCOMPARE(m.integer->value(width), 256.0);

    // Out of range: the camera refuses, its error is shown, the row goes back.
    m.integer->setValue(width, 100000);
    QVERIFY(waitWrite("Width"));
    QCOMPARE(m_messages.size(), 1);
    QVERIFY(!m_messages.first().text.isEmpty());
    QCOMPARE(m_messages.first().icon, int(QMessageBox::Critical));
    QCOMPARE(m.integer->value(width), 256.0);

    // Bad IPv4 text: refused with the address message, value read back.
    m_messages.clear();
    QtProperty* persistent = row("GevPersistentIPAddress");
    const QString before = persistent->valueText();
    m.string->setValue(persistent, "not.an.address");
    QVERIFY(waitWrite("GevPersistentIPAddress"));
    QCOMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.first().text, QString("please enter invalid IP Address"));
    QCOMPARE(persistent->valueText(), before);
    m_messages.clear();
    m.string->setValue(persistent, "192.168.7.9");
    QVERIFY(waitWrite("GevPersistentIPAddress"));
    QVERIFY(m_messages.isEmpty());
    QCOMPARE(persistent->valueText(), QString("192.168.7.9"));

    // Enumeration by its shown text; boolean announces itself.
    QtProperty* mode = row("AcquisitionMode");
    m.enumeration->setValue(mode, m.enumeration->enumNames(mode).indexOf("SingleFrame"));
    QVERIFY(waitWrite("AcquisitionMode"));
    QCOMPARE(deviceValue("AcquisitionMode"), QString("SingleFrame"));
    QSignalSpy boolSpy(m_form, &CPropertyFeaturesForm::signalBoolPropertyChanged);
    m.boolean->setValue(row("ReverseY"), 1);
    QVERIFY(waitWrite("ReverseY"));
    QCOMPARE(boolSpy.count(), 1);
    QCOMPARE(boolSpy.first().at(0).toString(), QString("ReverseY"));
    QVERIFY(boolSpy.first().at(1).toBool());

    // Float within range.
    m.decFloating->setValue(row("Gain"), 6.0);
    QVERIFY(waitWrite("Gain"));
    QCOMPARE(m.decFloating->value(row("Gain")), 6.0);
    QVERIFY(m_messages.isEmpty());
}

void TestFeaturesForm::commandExecutingUntilCameraReleasesIt()
{
    QtProperty* hold = row("TestHoldCommand");
    QSignalSpy finished(m_form, &CPropertyFeaturesForm::commandFinished);
    m_form->managers().command->click(hold, false);
    QTRY_VERIFY_WITH_TIMEOUT(!hold->isDone(), 5000);
    QCOMPARE(m_form->commandThread()->pendingCount(), 1);
    // A second press while it runs leaves one entry.
    m_form->managers().command->click(hold, false);
    QTest::qWait(200);
    QCOMPARE(m_form->commandThread()->pendingCount(), 1);
    QVERIFY(finished.isEmpty());

    // The camera completes it.
    const guint32 zero = 0;
    arv_fake_camera_write_memory(m_rig.fake(m_cam), 0x4000, 4, &zero);
    QVERIFY(finished.wait(5000));
    QCOMPARE(finished.first().at(0).toString(), QString("TestHoldCommand"));
    QVERIFY(hold->isDone());
    QTRY_COMPARE_WITH_TIMEOUT(m_form->commandThread()->pendingCount(), 0, 5000);

    // A command that finishes at once never enters the executing state.
    finished.clear();
    m_form->managers().command->click(row("TestHoldRelease"), false);
    QVERIFY(finished.wait(5000));
    QVERIFY(row("TestHoldRelease")->isDone());
    QVERIFY(m_messages.isEmpty());
}

void TestFeaturesForm::cameraSideChangesRefreshRows()
{
    // Another writer on the same camera: the update event refreshes the row
    // and the rows that depend on the written feature.
    QSignalSpy refreshed(m_form, &CPropertyFeaturesForm::rowRefreshed);
    CInternalParameterNode gate(m_device->getDevice(), "TestAvailabilityGate");
    QVERIFY(gate.setBoolValue(true));
    QTRY_VERIFY_WITH_TIMEOUT(row("TestGatedValue")->isAvailable(), 5000);
    QTRY_COMPARE_WITH_TIMEOUT(m_form->managers().boolean->value(row("TestAvailabilityGate")), 1, 5000);

    CInternalParameterNode offset(m_device->getDevice(), "OffsetX");
    QVERIFY(offset.setIntValue(16));
    QTRY_COMPARE_WITH_TIMEOUT(m_form->managers().integer->value(row("OffsetX")), 16.0, 5000);
    QVERIFY(gate.setBoolValue(false));
    QTRY_VERIFY_WITH_TIMEOUT(!row("TestGatedValue")->isAvailable(), 5000);
    // None of it went back to the camera as a user write.
    QVERIFY(m_messages.isEmpty());
}

void TestFeaturesForm::searchAndSharedLevel()
{
    QComboBox* level = m_form->visibilityCombo();
    level->setCurrentIndex(0);
    QCOMPARE(CConfiguration::getInstance()->deviceCtrlVisibility, 0);
    QVERIFY(rowShown("Width"));
    QVERIFY(!rowShown("TestHoldCommand"));   // Guru
    QVERIFY(!rowShown("BinningHorizontal"));  // Expert

    // A second page follows the shared level.
    m_form->visibilityCombo()->setCurrentIndex(1);
    QCOMPARE(CConfiguration::getInstance()->deviceCtrlVisibility, 1);
    QVERIFY(rowShown("BinningHorizontal"));

    // Any search text switches to Guru and shows matches with their categories only.
    m_form->keyEdit()->setText("hold comm");   // the shown name, "Test Hold Command"
    QCOMPARE(level->currentIndex(), 2);
    QVERIFY(rowShown("TestHoldCommand"));
    QVERIFY(rowShown("TestControl"));
    QVERIFY(!rowShown("Width"));
    QVERIFY(!rowShown("ImageFormatControl"));
    QVERIFY(!rowShown("TestHoldRelease"));

    // Clearing: top-level rows expanded, everything below collapsed.
    m_form->keyEdit()->clear();
    QVERIFY(rowShown("Width"));
    QtTreePropertyBrowser* browser = m_form->browser();
    QVERIFY(browser->isExpanded(browser->items(row("ExtendedControl")).first()));
    QVERIFY(!browser->isExpanded(browser->items(row("ColorPipeline")).first()));

    // The current row fills the description pane.
    browser->setCurrentItem(browser->items(row("Width")).first());
    QVERIFY(m_form->descriptionPane()->toPlainText().contains("Feature Name: Width"));
}

void TestFeaturesForm::relabelWithoutRebuilding()
{
    QtProperty* width = row("Width");
    QtProperty* pixel = row("PixelFormat");
    QtProperty* category = row("ImageFormatControl");
    QCOMPARE(category->propertyName(), QString("Image Format Control"));

    // Translate switch: raw feature names, and back.
    m_form->on_btnTranslate_clicked();
    QVERIFY(!m_form->isTranslated());
    QCOMPARE(category->propertyName(), QString("ImageFormatControl"));
    m_form->on_btnTranslate_clicked();
    QCOMPARE(category->propertyName(), QString("Image Format Control"));

    // A language switch: new tables, same rows re-labelled.
    g_mapNameToDispTrans.insert("Width", QString::fromUtf8("宽度"));
    g_mapNameToDespTrans.insert("Width", QString::fromUtf8("图像宽度。"));
    QMap<QString, QString> pixels;
    pixels.insert("Mono8", QString::fromUtf8("黑白8"));
    g_mapNameToValueTransMap.insert("PixelFormat", pixels);
    QMap<QString, QString> any;
    any.insert("{Command}", QString::fromUtf8("{命令}"));
    any.insert("{Not Available}", QString::fromUtf8("{不可用}"));
    g_mapNameToValueTransMap.insert("Any", any);
    const int rows = m_form->featureNames().size();
    m_form->retranslateUi();
    QCOMPARE(row("Width"), width);
    QCOMPARE(m_form->featureNames().size(), rows);
    QCOMPARE(width->propertyName(), QString::fromUtf8("宽度"));
    QVERIFY(width->toolTip().contains(QString::fromUtf8("图像宽度。")));
    QCOMPARE(pixel->valueText(), QString::fromUtf8("黑白8"));
    QCOMPARE(row("TestHoldCommand")->valueText(), QString::fromUtf8("{命令}"));
    QCOMPARE(row("TestGatedValue")->notAvailableText(), QString::fromUtf8("{不可用}"));

    // Choosing the translated entry writes its symbol.
    m_form->managers().enumeration->setValue(pixel, 1);
    QVERIFY(waitWrite("PixelFormat"));
    m_form->managers().enumeration->setValue(pixel, 0);
    QVERIFY(waitWrite("PixelFormat"));
    QCOMPARE(deviceValue("PixelFormat"), QString("Mono8"));
    QVERIFY(m_messages.isEmpty());

    clearParamTransTables();
    m_form->retranslateUi();
    QCOMPARE(width->propertyName(), QString("Width"));
    QCOMPARE(pixel->valueText(), QString("Mono8"));
}

void TestFeaturesForm::cameraGoneWhileLoading()
{
    // A second page whose load is cut after 30 nodes, as by a lost camera:
    // no tree, nothing announced as shown, workers end cleanly.
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
    form.reset();
}

void TestFeaturesForm::closingNeverWaitsForTheCamera()
{
    Vorlen::GenICam::CAravisCamera* camera = Vorlen::GenICam::toAravisCamera(m_device->getDevice());
    QVERIFY(camera);

    // A loaded page with every worker busy: a command the camera holds, a
    // refused write stuck behind this thread's hold on the camera, a
    // refresh waiting. Closing returns while this thread holds the camera
    // (any wait for a worker would never end).
    {
        CPropertyFeaturesForm* form = newForm();
        QSignalSpy shown(form, &CPropertyFeaturesForm::showGenParamFinish);
        QVERIFY(shown.wait(20000));
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
            form->updateThread()->appendPropertyList({"Height", "Gain"});
            delete form;
            for (const QPointer<QThread>& worker : workers)
                if (worker)
                    QVERIFY(!worker->parent());
        }
        for (const QPointer<QThread>& worker : workers)
            QTRY_VERIFY_WITH_TIMEOUT(worker.isNull(), 10000);
        QTest::qWait(50);   // anything still queued would arrive now
        QVERIFY2(m_messages.isEmpty(), qPrintable(m_messages.value(0).text));
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

    // The first page still works: its own workers were never touched.
    QVERIFY(m_form->isLoaded());
    QVERIFY(m_messages.isEmpty());
}

QTEST_MAIN(TestFeaturesForm)
#include "test_features_form.moc"
