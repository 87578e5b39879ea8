#include "CDeviceInfoSections.h"

#include <QTreeWidget>

#include "CDiscoveryRootForm.h"
#include "Tavlog4cpp/TavLogMacros.h"

CDeviceInfoSections::CDeviceInfoSections(QTreeWidget* tree) : m_tree(tree)
{
    for (int section : {interfaceSection, deviceSection}) {
        m_items[section] = new QTreeWidgetItem(tree);
        m_items[section]->setFirstColumnSpanned(true);
        m_forms[section] = new CDiscoveryRootForm(tree);
        m_forms[section]->setChecked(true);
        tree->setItemWidget(m_items[section], 0, m_forms[section]);
    }
}

void CDeviceInfoSections::setTitles(const QString& interfaceTitle, const QString& deviceTitle)
{
    m_forms[interfaceSection]->setText(interfaceTitle);
    m_forms[deviceSection]->setText(deviceTitle);
}

void CDeviceInfoSections::setRows(const SDeviceInfoRows& rows)
{
    const QList<InfoRow>* sectionRows[2] = {&rows.interfaceRows, &rows.deviceRows};
    for (int section : {interfaceSection, deviceSection}) {
        qDeleteAll(m_items[section]->takeChildren());
        for (const InfoRow& row : *sectionRows[section]) {
            auto* item = new QTreeWidgetItem(m_items[section]);
            item->setText(0, row.first);
            item->setText(1, row.second);
            item->setToolTip(1, row.second);
        }
        m_items[section]->setExpanded(m_forms[section]->isChecked());
    }
    m_tree->resizeColumnToContents(0);
}

void CDeviceInfoSections::clear()
{
    for (QTreeWidgetItem* section : m_items)
        qDeleteAll(section->takeChildren());
}

void CDeviceInfoSections::showDevice(const CTavDevicePtr& device)
{
    SDeviceInfoRows rows;
    if (!device)
        LOG_ERROR("refleshDeviceInfo getDeviceByKey failed.");
    else if (!CDeviceInfoRows::build(device, rows))
        LOG_ERROR("refleshDeviceInfo getCamera by Key failed.");
    else
        return setRows(rows);
    clear();
}

QList<InfoRow> CDeviceInfoSections::rows(ESection section) const
{
    QList<InfoRow> out;
    for (int i = 0; i < m_items[section]->childCount(); ++i)
        out << InfoRow(m_items[section]->child(i)->text(0), m_items[section]->child(i)->text(1));
    return out;
}

void CDeviceInfoSections::setDeviceValue(const QString& label, const QString& value)
{
    for (int i = 0; i < m_items[deviceSection]->childCount(); ++i) {
        QTreeWidgetItem* row = m_items[deviceSection]->child(i);
        if (row->text(0) == label)
            row->setText(1, value);
    }
}

void CDeviceInfoSections::setExpanded(ESection section, bool expanded)
{
    m_items[section]->setExpanded(expanded);
}

bool CDeviceInfoSections::toggle(QTreeWidgetItem* item)
{
    for (int section : {interfaceSection, deviceSection}) {
        if (item != m_items[section])
            continue;
        CDiscoveryRootForm* form = m_forms[section];
        form->setChecked(!form->isChecked());
        item->setExpanded(form->isChecked());
        return true;
    }
    return false;
}
