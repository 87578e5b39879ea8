// The features page against an in-process simulated camera: the rows the
// builders make and their tooltips, writes with their checks and read-back,
// commands held by the camera, camera-side updates, re-labelling without
// rebuilding, and the search and level.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include <arv.h>
#include "FakeCameraRig.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

#include "CCommandParamDoneStatusThread.h"
#include "CSingletonOwner.h"
#include "CConfiguration.h"
#include "CUpdateParamThread.h"
#include "CFeatureTreeBuilder.h"
#include "CPropertyFeaturesForm.h"
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

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    CPropertyFeaturesForm* newForm();
    QtProperty* row(const QString& name) const { return m_form->findProperty(name); }
    bool rowShown(const QString& name) const;
    bool waitWrite(const QString& name);
    // Reads the feature again and waits until its row shows it.
    bool refreshRow(const QString& name);
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
    m_device = waitForDevice("LUMPROP1");
    if (!m_device)
        QFAIL("the simulated camera was not discovered");
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

// Whether the spy saw the signal for the feature (its first argument).
static bool seen(const QSignalSpy& spy, const QString& name)
{
    for (const QList<QVariant>& args : spy)
        if (args.at(0).toString() == name)
            return true;
    return false;
}

bool TestFeaturesForm::waitWrite(const QString& name)
{
    QSignalSpy spy(m_form, &CPropertyFeaturesForm::writeFinished);
    return QTest::qWaitFor([&]() { return seen(spy, name); }, 10000);
}

bool TestFeaturesForm::refreshRow(const QString& name)
{
    QSignalSpy spy(m_form, &CPropertyFeaturesForm::rowRefreshed);
    m_form->UpdateParameter(name);
    return QTest::qWaitFor([&]() { return seen(spy, name); }, 10000);
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
    QVERIFY2(tip.startsWith(bold("Width") + "<br>" + normal("Width of the image provided by the device in pixels.")),
             qPrintable(tip));
    const QStringList order = {"<br><br>" + normal("Feature Name: ") + bold("Width"),
                               "<br>" + normal("Type: ") + bold("Integer"),
                               "<br>" + normal("Min: ") + bold("16"),
                               "<br>" + normal("Max: "),
                               "<br>" + normal("Increment: ") + bold("2"),
                               "<br>" + normal("Name Space: ") + bold("Standard"),
                               "<br>" + normal("Visibility: ") + bold("Beginner"),
                               "<br>" + normal("Streamable: ")};
    int at = 0;
    for (const QString& piece : order)
    {
        const int found = tip.indexOf(piece, at);
        QVERIFY2(found >= at, qPrintable(piece + " in " + tip));
        at = found;
    }
    QCOMPARE(width->txtTag(), tip);
    QCOMPARE(width->GetType(), 0);

    // Float with a unit: decorated, the unit itself as suffix, 5 decimals,
    // no increment line.
    QtProperty* gain = row("Gain");
    QCOMPARE(gain->propertyManager(), static_cast<QtAbstractPropertyManager*>(m.decFloating));
    QCOMPARE(m.decFloating->suffix(gain), QString("dB"));
    QCOMPARE(m.decFloating->decimals(gain), 5);
    QVERIFY2(gain->valueText().endsWith("0dB"), qPrintable(gain->valueText()));
    QtTreePropertyBrowser* browser = m_form->browser();
    browser->setCurrentItem(browser->items(gain).first());
    auto* editor = browser->treeWidget()->viewport()->findChild<QDoubleSpinBox*>();
    QVERIFY(editor);
    QCOMPARE(editor->suffix(), QString("dB"));
    browser->setCurrentItem(nullptr);
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
    QVERIFY(pixel->toolTip().contains(normal("Enum Entry Name: ") + bold("BayerRG8") + "<br>" +
                                      normal("Enum Entry Value: ") + bold("17301513")));
    // Invisible entries are not offered.
    QVERIFY(!m.enumeration->enumNames(row("DeviceScanType")).contains("Linescan"));

    // String with its length limit; read-only string greyed.
    QtProperty* userId = row("DeviceUserID");
    QCOMPARE(userId->getMaxLength(), 16);
    QVERIFY(userId->toolTip().contains(normal("Max Length: ") + bold("16 bytes")));
    QVERIFY(!row("DeviceVendorName")->isEnabled());

    // Command, register, category.
    QtProperty* hold = row("TestHoldCommand");
    QCOMPARE(hold->propertyManager(), static_cast<QtAbstractPropertyManager*>(m.command));
    QVERIFY(hold->isCommandType());
    QCOMPARE(hold->valueText(), QString("{Command}"));
    QCOMPARE(hold->GetType(), 2);
    QtProperty* reg = row("TestRegister");
    QCOMPARE(reg->valueText(), QString("{Register}"));
    QVERIFY(reg->toolTip().contains(normal("Length:") + bold("16 Bytes")));
    QtProperty* category = row("ImageFormatControl");
    QVERIFY(!category->hasValue());
    QVERIFY(category->toolTip().contains(normal("Category Name: ") + bold("ImageFormatControl")));
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
    QVERIFY(refreshRow("BinningHorizontal"));
    QtProperty* binning = row("BinningHorizontal");
    QCOMPARE(m_form->managers().integer->value(binning), 9.0);
    QCOMPARE(binning->displayMode(), QtProperty::DisplayIcon);
    QCOMPARE(binning->toolTip(), QString("Parameter out of range"));
    QVERIFY(binning->txtTag().contains(normal("Feature Name: ") + bold("BinningHorizontal")));
    QVERIFY(m_rig.writeRegister(m_cam, 0x108, 1));
    QVERIFY(refreshRow("BinningHorizontal"));
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
    QCOMPARE(m_form->commandThread()->pendingNames(), 1);
    QVERIFY(finished.isEmpty());

    // The camera completes it.
    const guint32 zero = 0;
    arv_fake_camera_write_memory(m_rig.fake(m_cam), 0x4000, 4, &zero);
    QVERIFY(finished.wait(5000));
    QCOMPARE(finished.first().at(0).toString(), QString("TestHoldCommand"));
    QVERIFY(hold->isDone());
    QTRY_COMPARE_WITH_TIMEOUT(m_form->commandThread()->pendingNames(), 0, 5000);

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

QTEST_MAIN(TestFeaturesForm)
#include "test_features_form.moc"
