// The device list's parts that need widgets but no camera: the rows model
// (roots, the in-place merge of discovery passes, remembered items, icons)
// and the information sections.
#include <QSignalSpy>
#include <QTreeWidget>
#include <QtTest>

#include "CDeviceInfoSections.h"
#include "CDeviceListModel.h"
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
    // Only GigE and USB exist; a second creation changes nothing.
    for (unsigned type : {2u, 3u, 4u, 5u, 9u, 300u})
        QVERIFY(!m_model->createRootItem(type) && !m_model->isCreatedRootItem(type) && !m_model->getRootItem(type));
    QCOMPARE(m_model->createRootItem(0), gige);
    QCOMPARE(m_tree->topLevelItemCount(), 2);
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

    // The same pass again: the same items.
    m_model->merge({row(0, "A"), row(0, "B"), row(1, "U")});
    QVERIFY(gige->child(0) == a && gige->child(1) == b);

    // A new device in front: inserted there; the one at its place stays.
    // Appended at the end. The USB root, empty now, hides its check box.
    m_model->merge({row(0, "0"), row(0, "A"), row(0, "B")});
    QCOMPARE(keysUnder(gige), QStringList({"0", "A", "B"}));
    QCOMPARE(gige->child(2), b);
    QVERIFY(!m_model->rootForm(1)->isCheckBoxVisible() && usb->childCount() == 0);
    m_model->merge({row(0, "0"), row(0, "A"), row(0, "B"), row(0, "C")});
    QCOMPARE(keysUnder(gige), QStringList({"0", "A", "B", "C"}));
    QCOMPARE(gige->child(2), b);
    // Device items, however they came, span their first column over the row.
    for (QTreeWidgetItem* item : m_model->deviceItems())
        QVERIFY2(item->isFirstColumnSpanned(), qPrintable(CDeviceListModel::getDeviceKey(item)));

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
    m_model->setHoverItem(gige->child(0));
    m_model->setCurrentItem(gige->child(1));
    m_model->setContextItem(gige->child(2));
    QCOMPARE(m_tree->currentItem(), gige->child(1));
    QSignalSpy currentGone(m_model, &CDeviceListModel::currentItemRemoved);
    QSignalSpy contextGone(m_model, &CDeviceListModel::contextItemRemoved);

    // C leaves: only the context item goes.
    m_model->merge({row(0, "A"), row(0, "B")});
    QVERIFY(!m_model->contextItem());
    QVERIFY(contextGone.count() == 1 && currentGone.count() == 0);
    QCOMPARE(m_model->hoverItem(), gige->child(0));
    QCOMPARE(m_model->currentItem(), gige->child(1));

    // A leaves: every row after it is made again at its new place, so the
    // current (B) and hover (A) rows are forgotten.
    m_model->merge({row(0, "B")});
    QCOMPARE(keysUnder(gige), QStringList({"B"}));
    QVERIFY(!m_model->hoverItem() && !m_model->currentItem());
    QVERIFY(currentGone.count() == 1 && contextGone.count() == 1);

    // An empty pass empties the roots.
    m_model->merge({});
    QVERIFY(m_model->deviceItems().isEmpty() && !m_model->rootForm(0)->isCheckBoxVisible());
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

    QVERIFY(CDeviceListModel::itemIconIndex(item) == -1 && CDeviceListModel::itemIconIndex(nullptr) == -1);
    for (int icon = 0; icon < iconCount; ++icon) {
        m_model->setItemIcon(item, icon);
        QCOMPARE(CDeviceListModel::itemIconIndex(item), icon);
        QVERIFY2(!item->icon(0).isNull(), "status icons are missing from the resources");
    }
}

void TestDeviceListModel::informationSections()
{
    QTreeWidget tree;
    tree.setColumnCount(2);
    CDeviceInfoSections info(&tree);
    const auto interface = CDeviceInfoSections::interfaceSection;
    const auto device = CDeviceInfoSections::deviceSection;
    info.setTitles("Interface Info", "Device Info");
    QCOMPARE(tree.topLevelItemCount(), 2);
    QCOMPARE(info.form(device)->text(), QString("Device Info"));

    SDeviceInfoRows rows;
    rows.interfaceRows << InfoRow("Description", "eth0");
    rows.deviceRows << InfoRow("Serial Number", "SN1") << InfoRow("Access Status", "Open");
    info.form(interface)->setChecked(false);
    info.setRows(rows);
    QCOMPARE(info.rows(interface), rows.interfaceRows);
    QCOMPARE(info.rows(device), rows.deviceRows);
    QCOMPARE(info.item(device)->child(0)->toolTip(1), QString("SN1"));
    // Each section opens as its check box says.
    QVERIFY(!info.item(interface)->isExpanded() && info.item(device)->isExpanded());

    info.setDeviceValue("Access Status", "Control");
    QCOMPARE(info.rows(device).at(1), InfoRow("Access Status", "Control"));

    // A double click on a section's row flips it; on any other row nothing.
    QVERIFY(info.toggle(info.item(device)));
    QVERIFY(!info.form(device)->isChecked() && !info.item(device)->isExpanded());
    QVERIFY(!info.toggle(info.item(device)->child(0)));

    info.showDevice(CTavDevicePtr());   // a device that has gone
    QVERIFY(info.rows(interface).isEmpty() && info.rows(device).isEmpty());
}

QTEST_MAIN(TestDeviceListModel)
#include "test_devicelist_model.moc"
