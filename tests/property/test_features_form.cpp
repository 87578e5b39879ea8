// The features page against in-process simulated cameras: the rows the
// builders make and their tooltips, writes with their checks and read-back,
// commands held by the camera, camera-side updates, the search and level,
// re-labelling without rebuilding; and a page from its load to its close:
// what the load logs and from where, a camera without features, a camera
// that goes away while the tree loads, a page closed while its workers wait
// on the camera.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include <memory>
#include <arv.h>
#include "FakeCameraRig.h"
#include "CSingletonOwner.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>

#include "CAravisCamera.h"
#include "CCommandParamDoneStatusThread.h"
#include "CConfiguration.h"
#include "CPropertyFeaturesForm.h"
#include "CUpdateParamThread.h"
#include "CWriteParamThread.h"
#include "FeatureTestSupport.h"
#include "ParamTransTables.h"
#include "DecoratedDoublePropertyManager.h"
#include "QtPushButtonFactory.h"
#include "qtpropertymanager.h"
#include "qttreepropertybrowser.h"

using namespace Vorlen::GenICam;

// The tooltip's two kinds of text, as the rows must write them.
static QString bold(const QString& text)
{
    return "<b><font color='#FFFFFF'>" + text + "</font></b>";
}
static QString normal(const QString& text)
{
    return "<font color = '#BCBCBC'>" + text + "</font>";
}

// Whether the spy saw the signal for the feature (its first argument).
static bool seen(const QSignalSpy& spy, const QString& name)
{
    for (const QList<QVariant>& args : spy)
        if (args.at(0).toString() == name)
            return true;
    return false;
}

class TestFeaturesForm : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init() { m_messages.clear(); }
    void rowsPerNodeKind();
    void rangeWarningAndUnavailableRows();
    void writesAreCheckedAndReadBack();
    void commandExecutingUntilCameraReleasesIt();
    void cameraSideChangesRefreshRows();
    void searchAndSharedLevel();
    void relabelWithoutRebuilding();
    void loadIsLoggedByThePage();
    void cameraGoneWhileLoading();
    void closingNeverWaitsForTheCamera();

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    // A page of the device whose messages are collected; loaded: once its
    // tree is shown (null when it was not).
    CPropertyFeaturesForm* newForm(const CTavDevicePtr& device, bool loaded);
    QtProperty* row(const QString& name) const { return m_form->findProperty(name); }
    bool rowShown(const QString& name) const
    {
        QtProperty* p = row(name);
        const QList<QtBrowserItem*> items = p ? m_form->browser()->items(p) : QList<QtBrowserItem*>();
        return !items.isEmpty() && m_form->browser()->isItemVisible(items.first());
    }
    bool waitWrite(const QString& name)
    {
        QSignalSpy spy(m_form, &CPropertyFeaturesForm::writeFinished);
        return QTest::qWaitFor([&]() { return seen(spy, name); }, 10000);
    }
    // Reads the feature again and waits until its row shows it.
    bool refreshRow(const QString& name)
    {
        QSignalSpy spy(m_form, &CPropertyFeaturesForm::rowRefreshed);
        m_form->UpdateParameter(name);
        return QTest::qWaitFor([&]() { return seen(spy, name); }, 10000);
    }
    QString deviceValue(const char* name)
    {
        CInternalParameterNode node(m_device->getDevice(), name);
        Vorlen::Infra::CString s;
        node.getValueAsString(s);
        return QString::fromLocal8Bit(s.c_str());
    }

    FakeCameraRig m_rig;
    QTemporaryDir m_dir;
    int m_cam = -1;
    CTavDevicePtr m_device, m_empty;
    CPropertyFeaturesForm* m_form = nullptr;
    struct SMessage
    {
        QString text;
        int icon;
    };
    QList<SMessage> m_messages;
};

CPropertyFeaturesForm* TestFeaturesForm::newForm(const CTavDevicePtr& device, bool loaded)
{
    auto* form = new CPropertyFeaturesForm(device);
    form->setMessageHandler([this](const QString& text, QMessageBox::StandardButtons, QMessageBox::Icon icon) {
        m_messages.append({text, int(icon)});
        return int(QMessageBox::Ok);
    });
    QSignalSpy shown(form, &CPropertyFeaturesForm::showGenParamFinish);
    if (loaded && !shown.wait(20000)) {
        delete form;
        return nullptr;
    }
    return form;
}

void TestFeaturesForm::initTestCase()
{
    m_owner.reset(new CSingletonOwner);
    // The second camera is the first with nothing under "Root".
    QFile full(QString::fromStdString(FakeCameraRig::defaultXmlPath()));
    QVERIFY2(full.open(QIODevice::ReadOnly), "the simulated camera's description cannot be read");
    QString xml = QString::fromUtf8(full.readAll());
    const int root = xml.indexOf("<Category Name=\"Root\"");
    const int rootEnd = xml.indexOf("</Category>", root);
    QVERIFY(root >= 0 && rootEnd > root);
    xml.replace(root, rootEnd - root,
                xml.mid(root, rootEnd - root).remove(QRegularExpression("<pFeature>[^<]*</pFeature>")));
    QFile empty(m_dir.filePath("EmptyRoot.xml"));
    QVERIFY(m_dir.isValid() && empty.open(QIODevice::WriteOnly) && empty.write(xml.toUtf8()) > 0);
    empty.close();
    m_cam = m_rig.start("127.0.0.1", "LUMPROP1", std::string(), 320, 240, "Mono8");
    if (m_cam < 0 || m_rig.start("127.0.0.2", "LUMEMPTY1", empty.fileName().toStdString()) < 0)
        QFAIL(qPrintable(QString("simulated camera did not start (run inside a network namespace with lo up): %1")
                             .arg(m_rig.lastError().c_str())));
    m_device = waitForDevice("LUMPROP1");
    m_empty = waitForDevice("LUMEMPTY1");
    QVERIFY2(m_device && m_empty, "the simulated cameras were not discovered");
    QVERIFY(m_device->openDevice(true) && m_device->isConnected() && m_empty->openDevice(true));

    m_form = newForm(m_device, false);
    QSignalSpy finished(m_form, &CPropertyFeaturesForm::showGenParamFinish);
    QVERIFY(m_form->isLoadingGenParams() && finished.wait(20000));
    QVERIFY(!m_form->isLoadingGenParams() && m_form->isLoaded());
    m_form->resize(600, 800);
    m_form->show();
}

void TestFeaturesForm::cleanupTestCase()
{
    delete m_form;
    for (CTavDevicePtr* d : {&m_device, &m_empty}) {
        if (*d)
            (*d)->closeDevice(true);
        d->reset();
    }
    m_owner.reset();
}

void TestFeaturesForm::rowsPerNodeKind()
{
    const auto& m = m_form->managers();
    // Each kind of node on its manager; a float with a unit is decorated,
    // an IPv4 integer is edited as text.
    const QPair<const char*, QtAbstractPropertyManager*> kinds[] = {
        {"Width", m.integer},       {"Gain", m.decFloating},          {"Gamma", m.floating},
        {"ReverseX", m.boolean},    {"PixelFormat", m.enumeration}, {"GevCurrentIPAddress", m.string},
        {"TestHoldCommand", m.command}};
    for (const auto& kind : kinds) {
        QVERIFY2(row(kind.first), kind.first);
        QVERIFY2(row(kind.first)->propertyManager() == kind.second, kind.first);
    }

    // Integer: no decimals, the increment as step; the tooltip holds the
    // name and description, then the facts in this order.
    QtProperty* width = row("Width");
    QVERIFY(m.integer->decimals(width) == 0 && m.integer->singleStep(width) == 2.0);
    QVERIFY(m.integer->minimum(width) == 16.0 && m.integer->value(width) == 320.0);
    QCOMPARE(width->valueText(), QString("320"));
    const QString tip = width->toolTip();
    QVERIFY2(tip.startsWith(bold("Width") + "<br>" + normal("Width of the image provided by the device in pixels.")),
             qPrintable(tip));
    int at = 0;
    for (const QString& piece : {"<br><br>" + normal("Feature Name: ") + bold("Width"),
                                 "<br>" + normal("Type: ") + bold("Integer"), "<br>" + normal("Min: ") + bold("16"),
                                 "<br>" + normal("Max: "), "<br>" + normal("Increment: ") + bold("2"),
                                 "<br>" + normal("Name Space: ") + bold("Standard"),
                                 "<br>" + normal("Visibility: ") + bold("Beginner"), "<br>" + normal("Streamable: ")}) {
        at = tip.indexOf(piece, at);
        QVERIFY2(at >= 0, qPrintable(piece + " in " + tip));
    }
    QCOMPARE(width->txtTag(), tip);

    // Float with a unit: the unit itself as suffix, in the editor too; 5
    // decimals; no increment line.
    QtProperty* gain = row("Gain");
    QVERIFY(m.decFloating->suffix(gain) == "dB" && m.decFloating->decimals(gain) == 5);
    QVERIFY2(gain->valueText().endsWith("0dB"), qPrintable(gain->valueText()));
    QtTreePropertyBrowser* browser = m_form->browser();
    browser->setCurrentItem(browser->items(gain).first());
    auto* editor = browser->treeWidget()->viewport()->findChild<QDoubleSpinBox*>();
    QVERIFY(editor && editor->suffix() == "dB");
    browser->setCurrentItem(nullptr);
    QVERIFY(!gain->toolTip().contains("Increment: ") && gain->toolTip().contains("Max: "));

    QCOMPARE(row("GevCurrentIPAddress")->valueText(), QString("127.0.0.1"));
    QVERIFY(!row("GevCurrentIPAddress")->isEnabled());
    QCOMPARE(row("GevMACAddress")->valueText().size(), 12);   // hexadecimal text
    QCOMPARE(m.boolean->enumNames(row("ReverseX")), QStringList({"False", "True"}));

    // Enumeration: entries in order, the current one selected, entries in
    // the tooltip; invisible entries are not offered.
    QtProperty* pixel = row("PixelFormat");
    QCOMPARE(m.enumeration->enumNames(pixel).first(), QString("Mono8"));
    QCOMPARE(pixel->valueText(), QString("Mono8"));
    QVERIFY(pixel->toolTip().contains(normal("Enum Entry Name: ") + bold("BayerRG8") + "<br>" +
                                      normal("Enum Entry Value: ") + bold("17301513")));   // BayerRG8's code
    QVERIFY(!m.enumeration->enumNames(row("DeviceScanType")).contains("Linescan"));

    // String with its length limit; read-only string greyed.
    QCOMPARE(row("DeviceUserID")->getMaxLength(), 16);
    QVERIFY(row("DeviceUserID")->toolTip().contains(normal("Max Length: ") + bold("16 bytes")));
    QVERIFY(!row("DeviceVendorName")->isEnabled());

    // Command, register, category.
    QVERIFY(row("TestHoldCommand")->isCommandType() && row("TestHoldCommand")->valueText() == "{Command}");
    QCOMPARE(row("TestRegister")->valueText(), QString("{Register}"));
    QVERIFY(row("TestRegister")->toolTip().contains(normal("Length:") + bold("16 Bytes")));
    QtProperty* category = row("ImageFormatControl");
    QVERIFY(!category->hasValue() && category->subProperties().contains(width));
    QVERIFY(category->toolTip().contains(normal("Category Name: ") + bold("ImageFormatControl")));

    // Invisible nodes never become rows; every other row is findable by name.
    QVERIFY(!row("TestInvisibleValue") && !row("GainRaw") && m_form->featureNames().size() > 300);
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
    QVERIFY(refreshRow("BinningHorizontal"));
    QtProperty* binning = row("BinningHorizontal");
    QCOMPARE(m_form->managers().integer->value(binning), 9.0);
    QCOMPARE(binning->displayMode(), QtProperty::DisplayIcon);
    QCOMPARE(binning->toolTip(), QString("Parameter out of range"));
    QVERIFY(binning->txtTag().contains(normal("Feature Name: ") + bold("BinningHorizontal")));
    QVERIFY(m_rig.writeRegister(m_cam, 0x108, 1) && refreshRow("BinningHorizontal"));
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
    QVERIFY(waitWrite("Width") && m_messages.isEmpty());
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
    QVERIFY(waitWrite("GevPersistentIPAddress") && m_messages.isEmpty());
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
    QVERIFY(m_form->commandThread()->pendingNames() == 1 && finished.isEmpty());

    // The camera completes it.
    const guint32 zero = 0;
    arv_fake_camera_write_memory(m_rig.fake(m_cam), 0x4000, 4, &zero);
    QVERIFY(finished.wait(5000) && finished.first().at(0).toString() == "TestHoldCommand" && hold->isDone());
    QTRY_COMPARE_WITH_TIMEOUT(m_form->commandThread()->pendingNames(), 0, 5000);

    // A command that finishes at once never enters the executing state.
    finished.clear();
    m_form->managers().command->click(row("TestHoldRelease"), false);
    QVERIFY(finished.wait(5000) && row("TestHoldRelease")->isDone() && m_messages.isEmpty());
}

void TestFeaturesForm::cameraSideChangesRefreshRows()
{
    // Another writer on the same camera: the update event refreshes the row
    // and the rows that depend on the written feature.
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
    QVERIFY(rowShown("Width") && !rowShown("TestHoldCommand") && !rowShown("BinningHorizontal"));   // Guru, Expert

    // A second page follows the shared level.
    m_form->visibilityCombo()->setCurrentIndex(1);
    QCOMPARE(CConfiguration::getInstance()->deviceCtrlVisibility, 1);
    QVERIFY(rowShown("BinningHorizontal"));

    // Any search text switches to Guru and shows matches with their categories only.
    m_form->keyEdit()->setText("hold comm");   // the shown name, "Test Hold Command"
    QCOMPARE(level->currentIndex(), 2);
    QVERIFY(rowShown("TestHoldCommand") && rowShown("TestControl"));
    QVERIFY(!rowShown("Width") && !rowShown("ImageFormatControl") && !rowShown("TestHoldRelease"));

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
    QTreeWidgetItem* widthItem = m_form->browser()->treeItem(m_form->browser()->items(width).first());
    QVERIFY(widthItem->text(0) == width->propertyName() && widthItem->toolTip(0) == width->toolTip());
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

void TestFeaturesForm::loadIsLoggedByThePage()
{
    // Each line of the load comes from the page's own source, in order; a
    // camera without features says so and still shows its (empty) tree.
    const struct
    {
        CTavDevicePtr device;
        QStringList lines;
    } loads[] = {{m_device, {"] begin getProperty", "] Start to load properties.", "] end getProperty",
                             "] begin showGenParam", "] end showGenParam"}},
                 {m_empty, {"] begin getProperty", "] SubParams is empty!", "] end getProperty"}}};
    for (const auto& load : loads) {
        LogCapture log;
        std::unique_ptr<CPropertyFeaturesForm> form(newForm(load.device, true));
        QVERIFY(form && form->isLoaded());
        QCOMPARE(form->featureNames().isEmpty(), load.device == m_empty);
        int at = 0;
        for (const QString& text : load.lines) {
            at = log.find("CPropertyFeaturesForm", text, at);
            QVERIFY2(at >= 0, qPrintable(text + " not logged by CPropertyFeaturesForm in:\n" + log.lines().join('\n')));
        }
        QVERIFY(log.lines().filter("Get children params failed!").isEmpty());
        QCOMPARE(log.find("CPropertyFeaturesForm", "SubParams is empty!") >= 0, load.device == m_empty);
    }
}

void TestFeaturesForm::cameraGoneWhileLoading()
{
    // A load cut after 30 nodes, as by a lost camera: no tree, nothing
    // announced as shown, workers end cleanly.
    std::unique_ptr<CPropertyFeaturesForm> form(newForm(m_device, false));
    QSignalSpy aborted(form.get(), &CPropertyFeaturesForm::propertyLoadAborted);
    QSignalSpy shown(form.get(), &CPropertyFeaturesForm::showGenParamFinish);
    form->setLoadProbe([](int nodes) { return nodes < 30; });
    QVERIFY(QTest::qWaitFor([&]() { return !aborted.isEmpty() || !shown.isEmpty(); }, 20000));
    QVERIFY2(shown.isEmpty(), "the load was not cut by the probe");
    QVERIFY(!form->isLoaded() && !form->isLoadingGenParams() && form->featureNames().isEmpty());
}

void TestFeaturesForm::closingNeverWaitsForTheCamera()
{
    CAravisCamera* camera = toAravisCamera(m_device->getDevice());
    QVERIFY(camera);

    // A loaded page with every worker busy: a command the camera holds, a
    // refused write stuck behind this thread's hold on the camera, a
    // refresh waiting. Closing returns while this thread holds the camera
    // (any wait for a worker would never end).
    {
        CPropertyFeaturesForm* form = newForm(m_device, true);
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
}

QTEST_MAIN(TestFeaturesForm)
#include "test_features_form.moc"
