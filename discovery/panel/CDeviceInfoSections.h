#pragma once
// The two sections of the information tree, "Interface Info" and "Device
// Info": each is a top-level row showing a CDiscoveryRootForm, whose check
// box expands or collapses it, with the label / value rows of one camera
// below.
#include <QList>
#include <QString>

#include "CDeviceInfoRows.h"
#include "CTavMessage.h"

class QTreeWidget;
class QTreeWidgetItem;
class CDiscoveryRootForm;

class CDeviceInfoSections
{
public:
    enum ESection
    {
        interfaceSection = 0,
        deviceSection = 1
    };

    explicit CDeviceInfoSections(QTreeWidget* tree);

    void setTitles(const QString& interfaceTitle, const QString& deviceTitle);
    // Replaces the rows of both sections; each section is expanded as its
    // check box says.
    void setRows(const SDeviceInfoRows& rows);
    void clear();
    // The rows of the device (cleared, and the reason logged, when it or
    // its camera is missing).
    void showDevice(const CTavDevicePtr& device);
    QList<InfoRow> rows(ESection section) const;
    // Rewrites the value of every row of the device section with this label.
    void setDeviceValue(const QString& label, const QString& value);

    void setExpanded(ESection section, bool expanded);
    // A double click on a section's row flips its check box and expansion;
    // false for any other row.
    bool toggle(QTreeWidgetItem* item);

    QTreeWidgetItem* item(ESection section) const { return m_items[section]; }
    CDiscoveryRootForm* form(ESection section) const { return m_forms[section]; }

private:
    QTreeWidget* m_tree;
    QTreeWidgetItem* m_items[2];
    CDiscoveryRootForm* m_forms[2];
};
