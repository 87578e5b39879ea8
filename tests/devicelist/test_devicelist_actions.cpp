// What the device list does to a camera beyond connecting, against two
// simulated cameras: the copied information, the user ID, the persistent IP
// worker, the GenICam XML, and both languages with the application's look.
#include "DeviceListRig.h"
#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTranslator>
#include <QTreeWidget>

#include "CSetDevUserIDDlg.h"
#include "CSetIpThread.h"
#include "QueuedSignalSpy.h"
#include "StyleSheet.h"

class TestDeviceListActions : public DeviceListRigTest
{
    Q_OBJECT
private slots:
    void copyDeviceInfo();
    void userIdShownAfterRefresh();
    void persistentIpWrittenToCamera();
    void saveGenICamXml();
    void languageSwitchAndLook();
};

void TestDeviceListActions::copyDeviceInfo()
{
    QTreeWidgetItem* item = m_rig.itemOf(0);
    m_form->on_deviceList_itemClicked(item, 0);
    QApplication::clipboard()->clear();
    m_form->onActionCopyinfo();
    const QString text = QApplication::clipboard()->text();
    const QStringList lines = text.split('\n');
    // Header, 4 interface rows, blank, header, 12 device rows, and the final newline.
    QCOMPARE(lines.size(), 1 + 4 + 1 + 1 + 12 + 1);
    QCOMPARE(lines.at(0), QString("Interface Info"));
    QCOMPARE(lines.at(5), QString());
    QCOMPARE(lines.at(6), QString("Device Info"));
    QCOMPARE(lines.last(), QString());
    QCOMPARE(lines.at(1).left(26), QString("Description               "));
    QCOMPARE(lines.at(2).left(26), QString("IP Address                "));
    QCOMPARE(lines.at(7), QString("IP Address                127.0.0.3"));
    QCOMPARE(lines.at(10), QString("Vendor                    Lumidor"));
    QCOMPARE(lines.at(11), QString("Model                     SimCam"));
    QCOMPARE(lines.at(14), QString("Serial Number             LUMDL001"));
    QCOMPARE(lines.at(15), QString("Protocol Version          2.0"));
    QCOMPARE(lines.at(16), QString("Valid                     True"));
    QVERIFY(lines.at(18).startsWith("Access Status             "));
    QStringList labels;
    for (int i = 7; i < 19; ++i)
        labels << lines.at(i).left(25).trimmed();
    QCOMPARE(labels, QStringList({"IP Address", "Subnet Mask", "Gateway", "Vendor", "Model", "Manufacture", "Version",
                                  "Serial Number", "Protocol Version", "Valid", "IP Configuration",
                                  "Access Status"}));
    // The same rows as the information tree.
    const auto rows = m_form->infoRows(true);
    QCOMPARE(rows.size(), 12);
    QCOMPARE(rows.at(7).second, QString("LUMDL001"));
}

void TestDeviceListActions::userIdShownAfterRefresh()
{
    QTreeWidgetItem* item = m_rig.itemOf(1);
    CTavDevicePtr device = m_rig.deviceOf(1);
    QVERIFY(m_rig.connectByButton(1));
    m_form->on_deviceList_itemClicked(item, 0);

    int maxLength = -1;
    QSignalSpy done(m_form, &CDiscoveryDevicesForm::cameraTaskFinished);
    BoxAnswerer answerer;
    // A name longer in bytes than the edit allows is refused, the dialog stays.
    onDialog<CSetDevUserIDDlg>([&](CSetDevUserIDDlg* dialog) {
        maxLength = dialog->lineEdit()->maxLength();
        dialog->lineEdit()->setText(QString(maxLength, QChar(0x00E9)));   // two bytes each in UTF-8
        dialog->okButton()->click();   // returns once the refusal has been answered
        QVERIFY(dialog->isVisible());
        dialog->lineEdit()->setText("Line A");
        dialog->okButton()->click();
    });
    m_form->onActionSetDevUserIDTriggered();
    QVERIFY(done.wait(15000));
    QCOMPARE(maxLength, 15);   // the feature's 16 bytes, less one
    if (QTextCodec::codecForLocale()->mibEnum() == 106)
        QCOMPARE(answerer.texts, QStringList({"The length of DeviceUserID can not be longer than 15."}));

    QSignalSpy finished(m_form, &CDiscoveryDevicesForm::discoveryDevicesFinished);
    m_form->on_reflesh_clicked();
    QVERIFY(finished.wait(20000));
    QTRY_COMPARE(m_rig.itemOf(1)->text(0), QString("Line A (LUMDL002)"));
    QCOMPARE(m_rig.itemOf(1), item);

    // Cancel writes nothing.
    done.clear();
    onDialog<CSetDevUserIDDlg>([&](CSetDevUserIDDlg* dialog) {
        QCOMPARE(dialog->getEditValue(), QString("Line A"));
        dialog->lineEdit()->setText("Other");
        dialog->cancelButton()->click();
    });
    m_form->onActionSetDevUserIDTriggered();
    QVERIFY(done.wait(15000));
    QString value;
    int length = 0;
    QVERIFY(device->getParaStringValue("DeviceUserID", value, length));
    QCOMPARE(value, QString("Line A"));

    // A name outside ASCII: a new row reads the camera's bytes as Latin-1, a
    // row that is only updated reads them as UTF-8 (kept as it has always been).
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QVERIFY(device->setParaStringValue("DeviceUserID", QString::fromUtf8("Kamera é")));
    QMap<QString, CTavDevicePtr> none;
    m_form->updateDeviceList(none);
    QVERIFY(!m_form->getItemByKey(device->getDeviceKey()));
    QMap<QString, CTavDevicePtr> all = CDeviceManager::getInstance()->getAllDevices();
    m_form->updateDeviceList(all);
    QCOMPARE(m_rig.itemOf(1)->text(0), QString::fromLatin1("Kamera \xC3\xA9 (LUMDL002)"));
    m_form->updateDeviceList(all);
    QCOMPARE(m_rig.itemOf(1)->text(0), QString::fromUtf8("Kamera é (LUMDL002)"));
    QVERIFY(device->setParaStringValue("DeviceUserID", QString()));
    QVERIFY(m_rig.closeDevice(1));
}

void TestDeviceListActions::persistentIpWrittenToCamera()
{
    const QString tool = QStandardPaths::findExecutable("arv-tool-0.8");
    if (tool.isEmpty())
        QFAIL("arv-tool-0.8 is missing (package aravis-tools): it reads the written values back");
    CTavDevicePtr device = m_rig.deviceOf(1);
    CSetIpThread worker;
    QueuedSignalSpy ended(&worker, &CSetIpThread::signalSetIpEnd);
    worker.startSetIp(device->getDeviceKey(), "192.168.7.20", "255.255.255.0", "192.168.7.1");
    QVERIFY(ended.wait(15000));
    QCOMPARE(ended.first().first().toBool(), true);

    auto read = [&](const QString& feature) {
        QProcess p;
        p.start(tool, {"-a", m_rig.address[1], "control", feature});
        if (!p.waitForFinished(20000))
            return QString("(arv-tool did not finish)");
        return QString::fromLocal8Bit(p.readAllStandardOutput()).trimmed();
    };
    const QString ip = read("GevPersistentIPAddress");
    const QString mask = read("GevPersistentSubnetMask");
    const QString gateway = read("GevPersistentDefaultGateway");
    const QString enabled = read("GevCurrentIPConfigurationPersistentIP");
    QVERIFY2(ip.contains(QString::number(0xC0A80714u)) || ip.contains("192.168.7.20"), qPrintable(ip));
    QVERIFY2(mask.contains(QString::number(0xFFFFFF00u)) || mask.contains("255.255.255.0"), qPrintable(mask));
    QVERIFY2(gateway.contains(QString::number(0xC0A80701u)) || gateway.contains("192.168.7.1"), qPrintable(gateway));
    QVERIFY2(enabled.contains("true", Qt::CaseInsensitive) || enabled.endsWith("1"), qPrintable(enabled));
}

void TestDeviceListActions::saveGenICamXml()
{
    CTavDevicePtr device = m_rig.deviceOf(0);
    QVERIFY(m_rig.connectByButton(0));
    m_form->on_deviceList_itemClicked(m_rig.itemOf(0), 0);

    QTemporaryDir dir;
    const QString path = dir.filePath("camera.xml");
    QString suggested;
    m_form->setXmlFileChooser([&](QWidget*, const QString& name) {
        suggested = name;
        return path;
    });
    BoxAnswerer answerer;
    QSignalSpy done(m_form, &CDiscoveryDevicesForm::cameraTaskFinished);
    m_form->onActionSaveGenICamXml();
    QVERIFY(done.wait(15000));
    QCOMPARE(suggested, device->getDeviceSaveName() + ".xml");
    QVERIFY(answerer.texts.isEmpty());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("RegisterDescription"));

    // A place that cannot be written.
    m_form->setXmlFileChooser([](QWidget*, const QString&) { return QString("/proc/no/such/dir/camera.xml"); });
    m_form->onActionSaveGenICamXml();
    QVERIFY(done.wait(15000));
    QCOMPARE(answerer.texts, QStringList({"Download xml file failed."}));
    // A cancelled file dialog starts nothing: the next save, which runs after
    // anything started before it, is the only one to finish.
    m_form->setXmlFileChooser([](QWidget*, const QString&) { return QString(); });
    m_form->onActionSaveGenICamXml();
    m_form->setXmlFileChooser([&](QWidget*, const QString&) { return dir.filePath("again.xml"); });
    done.clear();
    m_form->onActionSaveGenICamXml();
    QVERIFY(done.wait(15000));
    QCOMPARE(done.count(), 1);
    QCOMPARE(answerer.texts.size(), 1);
    QVERIFY(QFile::exists(dir.filePath("again.xml")));
    QVERIFY(m_rig.closeDevice(0));
}

// Two cameras, one streaming, in English and in Chinese: the texts follow a
// language switch at once, and both looks are saved for a person to check
// (LUMIDOR_SCREENSHOT_DIR, else the test's working folder).
void TestDeviceListActions::languageSwitchAndLook()
{
    QTreeWidgetItem* streaming = m_rig.itemOf(0);
    QVERIFY(m_rig.connectByButton(0));
    QVERIFY(m_form->prepareDeviceMenu(streaming));
    m_form->actionPlay()->trigger();
    QVERIFY(m_rig.waitIcon(0, iconAcquisition));
    m_form->on_deviceList_itemClicked(streaming, 0);
    m_form->setHoverItem(m_rig.itemOf(1));

    const QString dir = qEnvironmentVariableIsEmpty("LUMIDOR_SCREENSHOT_DIR")
                            ? QDir::currentPath()
                            : QString::fromLocal8Bit(qgetenv("LUMIDOR_SCREENSHOT_DIR"));
    // In the application's own style.
    const QString sheet = QString::fromLocal8Bit(qgetenv("LUMIDOR_SOURCE_DIR")) + "/res/Skins/Default/Vintrel/style.qss";
    QVERIFY2(setStyleSheet<QApplication>(*qApp, sheet), qPrintable(sheet));
    m_rig.host->resize(340, 720);
    m_form->resize(340, 720);
    QCoreApplication::sendPostedEvents();   // the layouts follow the new size
    QVERIFY(m_form->grab().save(dir + "/devicelist_en.png"));

    QTranslator panel, widgets;
    QVERIFY2(panel.load(":/i18n/discovery_zh_CN.qm"), "the compiled translation is not in the resources");
    widgets.load(":/i18n/widgets_zh_CN.qm");
    QCoreApplication::installTranslator(&panel);
    QCoreApplication::installTranslator(&widgets);
    // The language change reaches the windows as a posted event.
    QTRY_COMPARE(m_form->refreshButton()->text(), QString::fromUtf8("刷新"));
    QCOMPARE(m_form->rootForm(0)->text(), QString("GigE"));
    QVERIFY(m_form->prepareDeviceMenu(streaming));
    QCOMPARE(m_form->actionConnect()->text(), QString::fromUtf8("断开连接"));
    QCOMPARE(m_form->actionPlay()->text(), QString::fromUtf8("停止采集"));
    QCOMPARE(m_form->infoRows(true).at(7).first, QString::fromUtf8("序列号"));
    QCOMPARE(m_form->buttonsOf(m_rig.itemOf(1))->getConnectBtn()->toolTip(), QString::fromUtf8("连接"));
    QVERIFY(m_form->grab().save(dir + "/devicelist_zh.png"));

    QCoreApplication::removeTranslator(&panel);
    QCoreApplication::removeTranslator(&widgets);
    QTRY_COMPARE(m_form->refreshButton()->text(), QString("refresh"));
    QCOMPARE(m_form->infoRows(true).at(7).first, QString("Serial Number"));

    qApp->setStyleSheet(QString());
    m_form->actionPlay()->trigger();
    QVERIFY(m_rig.waitIcon(0, iconConnected));
    QVERIFY(m_rig.closeDevice(0));
}

QTEST_MAIN(TestDeviceListActions)
#include "test_devicelist_actions.moc"
