#pragma once
// The inline buttons of the device tree: a CDiscoveryButtonsForm in column 1
// of the row under the mouse, while the current row keeps its own. What
// they show follows the row's device (inlineButtonsState); their clicks go
// out as signals.
#include <QObject>

class QTreeWidget;
class QTreeWidgetItem;
class CDeviceListModel;
class CDiscoveryButtonsForm;

class CDeviceRowButtons : public QObject
{
    Q_OBJECT
public:
    CDeviceRowButtons(QTreeWidget* tree, CDeviceListModel* model, QObject* parent = nullptr);

    CDiscoveryButtonsForm* buttonsOf(QTreeWidgetItem* item) const;
    // The mouse entered a device row: it gets buttons (made once), every
    // other row but the current one loses its own.
    void enterRow(QTreeWidgetItem* item);
    void refleshItemButtons(QTreeWidgetItem* item);
    void removeButtonInItem(QTreeWidgetItem* item);
    // Also spares keep (the row under the mouse).
    void removeAllItemWidgetExceptCurrentItem(QTreeWidgetItem* keep = nullptr);
    // All of the row's buttons disabled while a connection or disconnection is under way.
    void disableBtns(QTreeWidgetItem* item);

signals:
    void connectClicked();
    void disconnectClicked();
    void forceIpClicked();

private:
    QTreeWidget* m_tree;
    CDeviceListModel* m_model;
};
