#include "CDeviceRowButtons.h"

#include <QToolButton>
#include <QTreeWidget>

#include "CDeviceListModel.h"
#include "CDeviceManager.h"
#include "CDiscoveryButtonsForm.h"
#include "DeviceStateReader.h"

namespace {
const int kButtonsColumn = 1;
} // namespace

CDeviceRowButtons::CDeviceRowButtons(QTreeWidget* tree, CDeviceListModel* model, QObject* parent)
    : QObject(parent), m_tree(tree), m_model(model)
{
}

CDiscoveryButtonsForm* CDeviceRowButtons::buttonsOf(QTreeWidgetItem* item) const
{
    return item ? qobject_cast<CDiscoveryButtonsForm*>(m_tree->itemWidget(item, kButtonsColumn)) : nullptr;
}

void CDeviceRowButtons::enterRow(QTreeWidgetItem* item)
{
    removeAllItemWidgetExceptCurrentItem(item);
    if (!buttonsOf(item)) {
        auto* form = new CDiscoveryButtonsForm(m_tree);
        m_tree->setItemWidget(item, kButtonsColumn, form);
        connect(form->getConnectBtn(), &QToolButton::clicked, this, &CDeviceRowButtons::connectClicked);
        connect(form->getDisconnectBtn(), &QToolButton::clicked, this, &CDeviceRowButtons::disconnectClicked);
        connect(form->getForceIPBtn(), &QToolButton::clicked, this, &CDeviceRowButtons::forceIpClicked);
    }
    refleshItemButtons(item);
}

void CDeviceRowButtons::refleshItemButtons(QTreeWidgetItem* item)
{
    CDiscoveryButtonsForm* form = buttonsOf(item);
    if (!form)
        return;
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(CDeviceListModel::getDeviceKey(item));
    if (device)
        form->applyState(inlineButtonsState(readDeviceState(device, deviceCameraType(item->type()))));
    else
        form->disableAll();
}

void CDeviceRowButtons::removeButtonInItem(QTreeWidgetItem* item)
{
    if (item && m_tree->itemWidget(item, kButtonsColumn))
        m_tree->removeItemWidget(item, kButtonsColumn);
}

void CDeviceRowButtons::removeAllItemWidgetExceptCurrentItem(QTreeWidgetItem* keep)
{
    for (QTreeWidgetItem* item : m_model->deviceItems())
        if (item != m_model->currentItem() && item != keep)
            removeButtonInItem(item);
}

void CDeviceRowButtons::disableBtns(QTreeWidgetItem* item)
{
    if (CDiscoveryButtonsForm* form = buttonsOf(item))
        form->disableAll();
}
