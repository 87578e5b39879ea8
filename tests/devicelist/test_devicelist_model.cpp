// The device list's parts that need widgets but no camera: the rows model
// (roots, the in-place merge of discovery passes, remembered items, icons),
// the information sections, the context menus and the inline buttons form.
#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

#include "CDeviceInfoSections.h"
#include "CDeviceListMenus.h"
#include "CDeviceListModel.h"
#include "CDiscoveryButtonsForm.h"
#include "CDiscoveryRootForm.h"

namespace {
SDeviceRow row(int type, const char* key, const QByteArray& name = QByteArray())
{
    return SDeviceRow{type, QString::fromLatin1(key), name.isEmpty() ? QByteArray("Cam ") + key : name};
}

QStringList keysUnder(QTreeWidgetItem* root)
{
    QStringList keys;
    for (int i = 0; i < root->childCount(); ++i)
        keys << CDeviceListModel::getDeviceKey(root->child(i));
    return keys;
}
} // namespace

class TestDeviceListModel : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void roots();
    void mergeKeepsItemsAtTheirPlace();
    void removedItemsAreForgotten();
    void namesAndIcons();
    void informationSections();
    void menus();
    void inlineButtonsForm();

private:
    QTreeWidget* m_tree = nullptr;
    CDeviceListModel* m_model = nullptr;
};

void TestDeviceListModel::init()
{
    m_tree = new QTreeWidget;
    m_tree->setColumnCount(2);
    m_model = new CDeviceListModel(m_tree, m_tree);
    m_model->createRootItem(cameraTypeGigE);
    m_model->createRootItem(cameraTypeUsb);
    m_tree->show();
}

void TestDeviceListModel::cleanup()
{
    delete m_tree;
}

void TestDeviceListModel::roots()
{
    QTreeWidgetItem* gige = m_model->getRootItem(0);
    QCOMPARE(gige->type(), 1001);
    QCOMPARE(m_model->getRootItem(1)->type(), 1002);
    QVERIFY(gige->isFirstColumnSpanned());
    QCOMPARE(m_tree->itemWidget(gige, 0), static_cast<QWidget*>(m_model->rootForm(0)));
    QVERIFY(m_model->rootForm(0)->isChecked() && !m_model->rootForm(0)->isCheckBoxVisible());
    // Only GigE and USB exist; other types are ignored or refused.
    QVERIFY(m_model->isCreatedRootItem(0) && m_model->isCreatedRootItem(1));
    QVERIFY(!m_model->isCreatedRootItem(2) && !m_model->isCreatedRootItem(5) && !m_model->isCreatedRootItem(300));
    QVERIFY(!m_model->createRootItem(2) && !m_model->createRootItem(3) && !m_model->createRootItem(4) &&
            !m_model->createRootItem(5) && !m_model->createRootItem(9));
    QCOMPARE(m_model->createRootItem(0), gige);   // a second creation changes nothing
    QCOMPARE(m_tree->topLevelItemCount(), 2);
    QVERIFY(!m_model->getRootItem(5) && !m_model->getRootItem(256) && !m_model->rootForm(7));
    QVERIFY(m_model->isGigERootItem(gige) && !m_model->isGigERootItem(m_model->getRootItem(1)));
    QVERIFY(m_model->isRootItem(m_model->getRootItem(1)) && !m_model->isRootItem(nullptr));

    // A camera of a kind without a root is not shown.
    m_model->merge({row(2, "CL"), row(3, "PCIe"), row(5, "TL"), row(9, "bad")});
    QVERIFY(m_model->deviceItems().isEmpty());
}

void TestDeviceListModel::mergeKeepsItemsAtTheirPlace()
{
    m_model->merge({row(0, "A"), row(0, "B"), row(1, "U")});
    QTreeWidgetItem* gige = m_model->getRootItem(0);
    QTreeWidgetItem* usb = m_model->getRootItem(1);
    QCOMPARE(keysUnder(gige), QStringList({"A", "B"}));
    QCOMPARE(keysUnder(usb), QStringList({"U"}));
    QTreeWidgetItem* a = gige->child(0);
    QTreeWidgetItem* b = gige->child(1);
    QCOMPARE(a->type(), 1007);
    QCOMPARE(usb->child(0)->type(), 1008);
    QCOMPARE(a->text(0), QString("Cam A"));
    QCOMPARE(a->toolTip(0), QString("Cam A"));
    QCOMPARE(m_model->getItemByKey("U"), usb->child(0));
    QVERIFY(!m_model->getItemByKey("Z") && !m_model->getItemByKey(QString()));
    QVERIFY(m_model->rootForm(0)->isCheckBoxVisible() && m_model->rootForm(1)->isCheckBoxVisible());
    // Device items, like roots, span their first column over the row.
    for (QTreeWidgetItem* item : m_model->deviceItems())
        QVERIFY2(item->isFirstColumnSpanned(), qPrintable(CDeviceListModel::getDeviceKey(item)));

    // The same pass again: the same items.
    m_model->merge({row(0, "A"), row(0, "B"), row(1, "U")});
    QCOMPARE(gige->child(0), a);
    QCOMPARE(gige->child(1), b);

    // A new device in front: inserted there; the one at its place stays.
    m_model->merge({row(0, "0"), row(0, "A"), row(0, "B")});
    QCOMPARE(keysUnder(gige), QStringList({"0", "A", "B"}));
    QVERIFY(gige->child(0)->isFirstColumnSpanned());
    QCOMPARE(gige->child(2), b);
    QVERIFY(!m_model->rootForm(1)->isCheckBoxVisible());   // the USB root is empty now
    QCOMPARE(usb->childCount(), 0);
    // Appended at the end.
    m_model->merge({row(0, "0"), row(0, "A"), row(0, "B"), row(0, "C")});
    QCOMPARE(keysUnder(gige), QStringList({"0", "A", "B", "C"}));
    QVERIFY(gige->child(3)->isFirstColumnSpanned());
    QCOMPARE(gige->child(2), b);

    // Every root is ticked again after a pass.
    m_model->rootForm(0)->setChecked(false);
    m_model->merge({row(0, "A")});
    QVERIFY(m_model->rootForm(0)->isChecked());
    QCOMPARE(keysUnder(gige), QStringList({"A"}));
}

void TestDeviceListModel::removedItemsAreForgotten()
{
    m_model->merge({row(0, "A"), row(0, "B"), row(0, "C")});
    QTreeWidgetItem* gige = m_model->getRootItem(0);
    QTreeWidgetItem* c = gige->child(2);
    m_model->setHoverItem(gige->child(0));
    m_model->setCurrentItem(gige->child(1));
    m_model->setContextItem(c);
    QCOMPARE(m_tree->currentItem(), gige->child(1));
    QSignalSpy currentGone(m_model, &CDeviceListModel::currentItemRemoved);
    QSignalSpy contextGone(m_model, &CDeviceListModel::contextItemRemoved);

    // C leaves: only the context item goes.
    m_model->merge({row(0, "A"), row(0, "B")});
    QVERIFY(!m_model->contextItem());
    QCOMPARE(contextGone.count(), 1);
    QCOMPARE(currentGone.count(), 0);
    QCOMPARE(m_model->hoverItem(), gige->child(0));
    QCOMPARE(m_model->currentItem(), gige->child(1));

    // A leaves: every row after it is made again at its new place, so the
    // current (B) and hover (A) rows are forgotten.
    m_model->merge({row(0, "B")});
    QCOMPARE(keysUnder(gige), QStringList({"B"}));
    QVERIFY(!m_model->hoverItem() && !m_model->currentItem());
    QCOMPARE(currentGone.count(), 1);
    QCOMPARE(contextGone.count(), 1);

    // An empty pass empties the roots.
    m_model->merge({});
    QVERIFY(m_model->deviceItems().isEmpty());
    QVERIFY(!m_model->rootForm(0)->isCheckBoxVisible());
}

void TestDeviceListModel::namesAndIcons()
{
    // A new row reads the camera's bytes as Latin-1, a row that is only
    // updated reads them as UTF-8 (kept as it has always been).
    const QByteArray utf8 = QString::fromUtf8("Kamera é").toUtf8();
    m_model->merge({row(0, "K", utf8)});
    QTreeWidgetItem* item = m_model->getItemByKey("K");
    QCOMPARE(item->text(0), QString::fromLatin1(utf8));
    m_model->merge({row(0, "K", utf8)});
    QCOMPARE(m_model->getItemByKey("K"), item);
    QCOMPARE(item->text(0), QString::fromUtf8("Kamera é"));
    QCOMPARE(item->toolTip(0), item->text(0));

    QCOMPARE(CDeviceListModel::itemIconIndex(item), -1);
    QCOMPARE(CDeviceListModel::itemIconIndex(nullptr), -1);
    for (int icon = 0; icon < iconCount; ++icon) {
        m_model->setItemIcon(item, icon);
        QCOMPARE(CDeviceListModel::itemIconIndex(item), icon);
        QVERIFY2(!item->icon(0).isNull(), "status icons are missing from the resources");
    }
    QVERIFY(m_model->iconSize().isValid());
}

void TestDeviceListModel::informationSections()
{
    QTreeWidget tree;
    tree.setColumnCount(2);
    CDeviceInfoSections info(&tree);
    info.setTitles("Interface Info", "Device Info");
    QCOMPARE(tree.topLevelItemCount(), 2);
    QCOMPARE(info.form(CDeviceInfoSections::deviceSection)->text(), QString("Device Info"));
    QVERIFY(info.item(CDeviceInfoSections::interfaceSection)->isFirstColumnSpanned());

    SDeviceInfoRows rows;
    rows.interfaceRows << InfoRow("Description", "eth0");
    rows.deviceRows << InfoRow("Serial Number", "SN1") << InfoRow("Access Status", "Open");
    info.form(CDeviceInfoSections::interfaceSection)->setChecked(false);
    info.setRows(rows);
    QCOMPARE(info.rows(CDeviceInfoSections::interfaceSection), rows.interfaceRows);
    QCOMPARE(info.rows(CDeviceInfoSections::deviceSection), rows.deviceRows);
    QCOMPARE(info.item(CDeviceInfoSections::deviceSection)->child(0)->toolTip(1), QString("SN1"));
    // Each section opens as its check box says.
    QVERIFY(!info.item(CDeviceInfoSections::interfaceSection)->isExpanded());
    QVERIFY(info.item(CDeviceInfoSections::deviceSection)->isExpanded());

    info.setDeviceValue("Access Status", "Control");
    QCOMPARE(info.rows(CDeviceInfoSections::deviceSection).at(1), InfoRow("Access Status", "Control"));

    // A double click on a section's row flips it; on any other row nothing.
    QVERIFY(info.toggle(info.item(CDeviceInfoSections::deviceSection)));
    QVERIFY(!info.form(CDeviceInfoSections::deviceSection)->isChecked());
    QVERIFY(!info.item(CDeviceInfoSections::deviceSection)->isExpanded());
    QVERIFY(!info.toggle(info.item(CDeviceInfoSections::deviceSection)->child(0)));
    info.setExpanded(CDeviceInfoSections::interfaceSection, true);
    QVERIFY(info.item(CDeviceInfoSections::interfaceSection)->isExpanded());

    info.showDevice(CTavDevicePtr());   // a device that has gone
    QVERIFY(info.rows(CDeviceInfoSections::interfaceSection).isEmpty());
    QVERIFY(info.rows(CDeviceInfoSections::deviceSection).isEmpty());
}

void TestDeviceListModel::menus()
{
    QWidget parent;
    CDeviceListMenus menus(&parent);
    const QList<QAction*> entries = menus.deviceMenu()->actions();
    QStringList texts;
    for (QAction* action : entries)
        texts << (action->isSeparator() ? QString("-") : action->text());
    QCOMPARE(texts, QStringList({"Connect", "Open Config", "Save Config", "-", "Start Acquisition", "-", "Force IP",
                                 "Set DeviceUserID", "-", "Save GenICam XML", "Copy Device Info"}));
    QCOMPARE(menus.rootMenu()->actions().size(), 1);
    QCOMPARE(menus.unicastAction()->text(), QString("Add Remote Camera"));

    SDeviceMenuState state;
    state.connectIsDisconnect = true;
    state.playIsStop = true;
    state.playEnabled = true;
    state.forceIpVisible = false;
    state.saveXmlEnabled = true;
    menus.apply(state);
    QCOMPARE(menus.connectAction()->text(), QString("Disconnect"));
    QCOMPARE(menus.playAction()->text(), QString("Stop Acquisition"));
    QVERIFY(menus.playAction()->isEnabled() && menus.saveXmlAction()->isEnabled());
    QVERIFY(!menus.forceIpAction()->isVisible());
    QVERIFY(!menus.openConfigAction()->isEnabled() && !menus.setDevUserIdAction()->isEnabled());
    menus.retranslate();   // the texts keep following the state
    QCOMPARE(menus.connectAction()->text(), QString("Disconnect"));
    menus.apply(SDeviceMenuState());
    QCOMPARE(menus.connectAction()->text(), QString("Connect"));
    QCOMPARE(menus.playAction()->text(), QString("Start Acquisition"));
    QVERIFY(menus.copyInfoAction()->isEnabled());
}

void TestDeviceListModel::inlineButtonsForm()
{
    CDiscoveryButtonsForm form;
    form.show();
    QCOMPARE(form.getConnectBtn()->toolTip(), QString("Connect"));
    QCOMPARE(form.getDisconnectBtn()->toolTip(), QString("Disconnect"));
    QCOMPARE(form.getForceIPBtn()->toolTip(), QString("Force IP"));
    form.applyState(refleshConnectStatInfo());
    QVERIFY(form.getConnectBtn()->isHidden() && form.getForceIPBtn()->isHidden());
    QVERIFY(form.getDisconnectBtn()->isVisible() && form.getDisconnectBtn()->isEnabled());
    form.disableAll();
    QVERIFY(!form.getDisconnectBtn()->isEnabled());
    form.applyState(refleshDisconnectStatInfo(true));
    QVERIFY(form.getConnectBtn()->isVisible() && form.getConnectBtn()->isEnabled());
    QVERIFY(form.getForceIPBtn()->isVisible() && form.getForceIPBtn()->isEnabled());
    QVERIFY(form.getDisconnectBtn()->isHidden());
}

QTEST_MAIN(TestDeviceListModel)
#include "test_devicelist_model.moc"
