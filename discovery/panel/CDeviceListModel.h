#pragma once
// The rows of the device tree: one root item per interface kind and the
// device items under it, merged in place from every discovery pass, and the
// items the panel remembers (the one under the mouse, the current one, the
// one the context menu was opened on). An item keeps its identity, and so
// its selection and inline buttons, as long as its key stays at its place.
#include <QByteArray>
#include <QIcon>
#include <QList>
#include <QObject>
#include <QString>

#include "DeviceListRules.h"
#include "DiscoveryItemTypes.h"

class QTreeWidget;
class QTreeWidgetItem;
class CDiscoveryRootForm;

// One device of a discovery pass as the tree shows it.
struct SDeviceRow
{
    int cameraType = -1;
    QString key;
    QByteArray name;   // the camera's bytes: a user ID may come in any encoding
};

class CDeviceListModel : public QObject
{
    Q_OBJECT
public:
    explicit CDeviceListModel(QTreeWidget* tree, QObject* parent = nullptr);

    // Only GigE (0) and USB (1) roots are made, each with its
    // CDiscoveryRootForm (ticked, check box hidden); 2, 3 and 5 are ignored
    // and anything else refused. A second creation returns the existing root.
    QTreeWidgetItem* createRootItem(unsigned int type);
    QTreeWidgetItem* getRootItem(unsigned int type) const;
    CDiscoveryRootForm* rootForm(unsigned int type) const;
    bool isCreatedRootItem(unsigned int type) const;
    bool isRootItem(QTreeWidgetItem* item) const;
    bool isGigERootItem(QTreeWidgetItem* item) const;

    static QString getDeviceKey(QTreeWidgetItem* item);
    QTreeWidgetItem* getItemByKey(const QString& key) const;
    // Every device item, root by root.
    QList<QTreeWidgetItem*> deviceItems() const;

    // Merges a pass, rows in the device manager's key order: an item whose
    // key is at its place is updated, others are inserted, and what is left
    // below the last row of a root is deleted. Then a root shows its check
    // box only when it has rows, and every root is ticked.
    void merge(const QList<SDeviceRow>& rows);

    // The status icon of a device row (EStatusIcon), shown and recorded;
    // itemIconIndex is -1 while a row has none.
    void setItemIcon(QTreeWidgetItem* item, int icon);
    static int itemIconIndex(QTreeWidgetItem* item);
    // The size the status icons are drawn at.
    QSize iconSize() const;

    QTreeWidgetItem* hoverItem() const { return m_pHoverItem; }
    QTreeWidgetItem* currentItem() const { return m_pCurrentItem; }
    QTreeWidgetItem* contextItem() const { return m_pContextItem; }
    void setHoverItem(QTreeWidgetItem* item) { m_pHoverItem = item; }
    // Also makes it the tree's current item.
    void setCurrentItem(QTreeWidgetItem* item);
    void setContextItem(QTreeWidgetItem* item) { m_pContextItem = item; }

signals:
    // The current or the context item is being deleted; its pointer is
    // already cleared.
    void currentItemRemoved();
    void contextItemRemoved();

private:
    struct SRootRecord
    {
        bool created = false;
        QTreeWidgetItem* item = nullptr;
        CDiscoveryRootForm* form = nullptr;
    };

    void insertCamera(int cameraType, int& counter, const QByteArray& name, const QString& key, int itemType);
    void forgetItem(QTreeWidgetItem* item);

    QTreeWidget* m_tree;
    QIcon m_icons[iconCount];
    SRootRecord m_roots[cameraTypeCount];
    QTreeWidgetItem* m_pHoverItem = nullptr;
    QTreeWidgetItem* m_pCurrentItem = nullptr;
    QTreeWidgetItem* m_pContextItem = nullptr;
};
