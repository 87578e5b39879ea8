#include "CDeviceListModel.h"

#include <QTreeWidget>

#include "CDiscoveryRootForm.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace {
const char* const kIconFiles[iconCount] = {
    ":/Pic/Icon_DevList_DeviceStatus_Error.png", ":/Pic/Icon_DevList_DeviceStatus_Connected.png",
    ":/Pic/Icon_DevList_DeviceStatus_Normal.png", ":/Pic/Icon_DevList_DeviceStatus_Acquisition.png",
    ":/Pic/Icon_DevList_DeviceStatus_Warn.png"};
const int kIconIndexRole = Qt::UserRole + 1;

QTreeWidgetItem* newDeviceItem(int itemType, const QString& text, const QString& key)
{
    auto* item = new QTreeWidgetItem(itemType);
    item->setText(0, text);
    item->setToolTip(0, text);
    item->setData(0, Qt::UserRole, key);
    return item;
}
} // namespace

CDeviceListModel::CDeviceListModel(QTreeWidget* tree, QObject* parent) : QObject(parent), m_tree(tree)
{
    for (int i = 0; i < iconCount; ++i)
        m_icons[i] = QIcon(QLatin1String(kIconFiles[i]));
}

void CDeviceListModel::setItemIcon(QTreeWidgetItem* item, int icon)
{
    item->setIcon(0, m_icons[icon]);
    item->setData(0, kIconIndexRole, icon + 1);
}

int CDeviceListModel::itemIconIndex(QTreeWidgetItem* item)
{
    return item ? item->data(0, kIconIndexRole).toInt() - 1 : -1;
}

QSize CDeviceListModel::iconSize() const
{
    return m_icons[iconNormal].availableSizes().value(0, QSize(16, 16));
}

QTreeWidgetItem* CDeviceListModel::createRootItem(unsigned int type)
{
    if (type > 3 && type != 5) {
        LOG_ERROR("param nInterfaceType %d is invalid!", int(type));
        return nullptr;
    }
    if (type == 2 || type == 3 || type == 5)
        return nullptr;
    SRootRecord& root = m_roots[type];
    if (root.created) {
        LOG_WARN("this type has been created!");
        return root.item;
    }
    root.item = new QTreeWidgetItem(m_tree, treeItemType(int(type), true));
    root.item->setFirstColumnSpanned(true);
    root.form = new CDiscoveryRootForm(m_tree);
    root.form->setChecked(true);
    root.form->setCheckBoxVisible(false);
    m_tree->setItemWidget(root.item, 0, root.form);
    root.created = true;
    return root.item;
}

CDiscoveryRootForm* CDeviceListModel::rootForm(unsigned int type) const
{
    return type < unsigned(cameraTypeCount) ? m_roots[type].form : nullptr;
}

QTreeWidgetItem* CDeviceListModel::getRootItem(unsigned int type) const
{
    if (type > 255) {
        LOG_ERROR("param nInterfaceType %d is invalid!", int(type));
        return nullptr;
    }
    return type < unsigned(cameraTypeCount) ? m_roots[type].item : nullptr;
}

bool CDeviceListModel::isCreatedRootItem(unsigned int type) const
{
    if (type > 255) {
        LOG_ERROR("param nDeviceType %d is invalid!", int(type));
        return false;
    }
    return type < unsigned(cameraTypeCount) && m_roots[type].created;
}

bool CDeviceListModel::isRootItem(QTreeWidgetItem* item) const
{
    if (!item)
        return false;
    for (const SRootRecord& root : m_roots)
        if (root.item == item)
            return true;
    return false;
}

bool CDeviceListModel::isGigERootItem(QTreeWidgetItem* item) const
{
    return item && item == m_roots[cameraTypeGigE].item;
}

QString CDeviceListModel::getDeviceKey(QTreeWidgetItem* item)
{
    return item ? item->data(0, Qt::UserRole).toString() : QString();
}

QTreeWidgetItem* CDeviceListModel::getItemByKey(const QString& key) const
{
    if (key.isEmpty())
        return nullptr;
    for (QTreeWidgetItem* item : deviceItems())
        if (getDeviceKey(item) == key)
            return item;
    return nullptr;
}

QList<QTreeWidgetItem*> CDeviceListModel::deviceItems() const
{
    QList<QTreeWidgetItem*> items;
    for (const SRootRecord& root : m_roots)
        for (int i = 0; root.item && i < root.item->childCount(); ++i)
            items.append(root.item->child(i));
    return items;
}

void CDeviceListModel::setCurrentItem(QTreeWidgetItem* item)
{
    m_pCurrentItem = item;
    m_tree->setCurrentItem(item);
}

void CDeviceListModel::merge(const QList<SDeviceRow>& rows)
{
    int counters[cameraTypeCount] = {0, 0, 0, 0, 0, 0};
    for (const SDeviceRow& row : rows) {
        if (row.cameraType < 0 || row.cameraType >= cameraTypeCount)
            continue;
        insertCamera(row.cameraType, counters[row.cameraType], row.name, row.key, treeItemType(row.cameraType, false));
    }
    for (int type = 0; type < cameraTypeCount; ++type) {
        SRootRecord& root = m_roots[type];
        if (!root.created)
            continue;
        while (root.item->childCount() > counters[type]) {
            forgetItem(root.item->child(counters[type]));
            delete root.item->takeChild(counters[type]);
        }
        root.form->setCheckBoxVisible(root.item->childCount() > 0);
        root.form->setChecked(true);
    }
}

void CDeviceListModel::insertCamera(int cameraType, int& counter, const QByteArray& name, const QString& key,
                                    int itemType)
{
    QTreeWidgetItem* root = m_roots[cameraType].item;
    if (!root)
        return;
    // New items take the name as Latin-1 text, updated ones as UTF-8.
    if (counter >= root->childCount()) {
        root->addChild(newDeviceItem(itemType, QString::fromLatin1(name), key));
        root->child(counter)->setFirstColumnSpanned(true);   // takes effect once the item is in the tree
    } else if (getDeviceKey(root->child(counter)) == key) {
        QTreeWidgetItem* item = root->child(counter);
        const QString text = QString::fromUtf8(name);
        if (item->text(0) != text)
            item->setText(0, text);
        if (item->toolTip(0) != text)
            item->setToolTip(0, text);
    } else {
        root->insertChild(counter, newDeviceItem(itemType, QString::fromLatin1(name), key));
        root->child(counter)->setFirstColumnSpanned(true);
    }
    ++counter;
}

void CDeviceListModel::forgetItem(QTreeWidgetItem* item)
{
    if (m_pHoverItem == item)
        m_pHoverItem = nullptr;
    if (m_pCurrentItem == item) {
        m_pCurrentItem = nullptr;
        emit currentItemRemoved();
    }
    if (m_pContextItem == item) {
        m_pContextItem = nullptr;
        emit contextItemRemoved();
    }
}
