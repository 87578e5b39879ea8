#include "CFeatureTreeNavigator.h"

#include <QTreeWidget>

#include "qttreepropertybrowser.h"

void CFeatureTreeNavigator::show(QtProperty* root, int level)
{
    if (!root)
        return;
    m_browser->setUpdatesEnabled(false);
    if (m_browser->properties().isEmpty())
    {
        for (QtProperty* top : root->subProperties())
            m_browser->addProperty(top);
        openTopLevelOnly();
    }
    m_browser->setShowType(level);
    m_browser->setUpdatesEnabled(true);
}

void CFeatureTreeNavigator::setKey(const QString& key)
{
    QTreeWidget* tree = m_browser->treeWidget();
    tree->setUpdatesEnabled(false);
    m_browser->setShowKey(key);
    if (key.isEmpty())
        openTopLevelOnly();
    else
        tree->expandAll();
    tree->setUpdatesEnabled(true);
}

void CFeatureTreeNavigator::openTopLevelOnly()
{
    for (QtBrowserItem* item : m_browser->topLevelItems())
    {
        m_browser->setExpanded(item, true);
        collapseChildren(item);
    }
}

void CFeatureTreeNavigator::expandChildren(QtBrowserItem* item)
{
    if (!item)
        return;
    m_browser->setExpanded(item, true);
    for (QtBrowserItem* child : item->children())
        expandChildren(child);
}

void CFeatureTreeNavigator::collapseChildren(QtBrowserItem* item)
{
    if (!item)
        return;
    for (QtBrowserItem* child : item->children())
    {
        if (child->children().isEmpty())
            continue;
        m_browser->setExpanded(child, false);
        collapseChildren(child);
    }
}

void CFeatureTreeNavigator::expandAll()
{
    m_browser->treeWidget()->expandAll();
    m_bExpanded = true;
}

void CFeatureTreeNavigator::collapseAll()
{
    m_browser->treeWidget()->collapseAll();
    m_bExpanded = false;
}
