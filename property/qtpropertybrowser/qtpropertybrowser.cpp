#include "qtpropertybrowser.h"

// ---------------------------------------------------------------- QtProperty

QtProperty::QtProperty(QtAbstractPropertyManager* manager) : m_manager(manager) {}

QtProperty::~QtProperty()
{
    // Leave every parent, telling the browsers that show it there.
    const QList<QtProperty*> parents = m_parents;
    for (QtProperty* parent : parents)
    {
        parent->m_children.removeAll(this);
        emit parent->m_manager->propertyRemoved(this, parent);
    }
    if (m_manager)
        m_manager->forgetProperty(this);
    for (QtProperty* child : m_children)
        child->m_parents.removeAll(this);
}

bool QtProperty::hasValue() const
{
    return m_manager->hasValue(this);
}

QIcon QtProperty::valueIcon() const
{
    return m_manager->valueIcon(this);
}

QString QtProperty::valueText() const
{
    return m_manager->valueText(this);
}

void QtProperty::propertyChanged()
{
    emit m_manager->propertyChanged(this);
}

template <class T>
void QtProperty::changeTo(T& field, const T& value)
{
    if (field == value)
        return;
    field = value;
    propertyChanged();
}

void QtProperty::setToolTip(const QString& text)
{
    changeTo(m_toolTip, text);
}

void QtProperty::setStatusTip(const QString& text)
{
    changeTo(m_statusTip, text);
}

void QtProperty::setWhatsThis(const QString& text)
{
    changeTo(m_whatsThis, text);
}

void QtProperty::setPropertyName(const QString& text)
{
    changeTo(m_name, text);
}

void QtProperty::setEnabled(bool enable)
{
    changeTo(m_enabled, enable);
}

void QtProperty::setModified(bool modified)
{
    changeTo(m_modified, modified);
}

void QtProperty::setAvailable(bool available)
{
    changeTo(m_available, available);
}

void QtProperty::setNotAvailableText(const QString& text)
{
    if (m_notAvailableText == text)
        return;
    m_notAvailableText = text;
    if (!m_available)
        propertyChanged();
}

void QtProperty::setCommandType(bool command)
{
    m_commandType = command;
}

void QtProperty::SetType(int type)
{
    if (m_type == type)
        return;
    m_type = type;
    m_typeChanged = true;
}

void QtProperty::setDisplayIcon(const QIcon& icon)
{
    m_displayIcon = icon;
    if (m_displayMode != DisplayNormal)
        propertyChanged();
}

void QtProperty::setDisplayMode(EDisplayMode mode)
{
    changeTo(m_displayMode, mode);
}

void QtProperty::addSubProperty(QtProperty* property)
{
    QtProperty* after = m_children.isEmpty() ? nullptr : m_children.last();
    insertSubProperty(property, after);
}

void QtProperty::insertSubProperty(QtProperty* property, QtProperty* afterProperty)
{
    if (!property || property == this)
        return;
    // A property never becomes its own descendant.
    QList<QtProperty*> pending = property->m_children;
    while (!pending.isEmpty())
    {
        QtProperty* p = pending.takeFirst();
        if (p == this)
            return;
        pending += p->m_children;
    }
    if (m_children.contains(property))
        return;
    int pos = afterProperty ? m_children.indexOf(afterProperty) + 1 : 0;
    if (afterProperty && pos == 0)
        return;   // afterProperty is not a child
    m_children.insert(pos, property);
    property->m_parents.append(this);
    emit m_manager->propertyInserted(property, this, afterProperty);
}

void QtProperty::removeSubProperty(QtProperty* property)
{
    if (!m_children.removeOne(property))
        return;
    property->m_parents.removeAll(this);
    emit m_manager->propertyRemoved(property, this);
}

// ------------------------------------------------ QtAbstractPropertyManager

QtAbstractPropertyManager::QtAbstractPropertyManager(QObject* parent) : QObject(parent) {}

QtAbstractPropertyManager::~QtAbstractPropertyManager()
{
    clear();
}

void QtAbstractPropertyManager::clear() const
{
    while (!m_properties.isEmpty())
        delete *m_properties.cbegin();
}

QtProperty* QtAbstractPropertyManager::addProperty(const QString& name)
{
    QtProperty* property = createProperty();
    if (!property)
        return nullptr;
    property->m_name = name;
    m_properties.insert(property);
    initializeProperty(property);
    return property;
}

void QtAbstractPropertyManager::forgetProperty(QtProperty* property)
{
    if (!m_properties.remove(property))
        return;
    emit propertyDestroyed(property);
    uninitializeProperty(property);
}

bool QtAbstractPropertyManager::hasValue(const QtProperty*) const
{
    return true;
}

QIcon QtAbstractPropertyManager::valueIcon(const QtProperty*) const
{
    return QIcon();
}

QString QtAbstractPropertyManager::valueText(const QtProperty*) const
{
    return QString();
}

void QtAbstractPropertyManager::uninitializeProperty(QtProperty*) {}

QtProperty* QtAbstractPropertyManager::createProperty()
{
    return new QtProperty(this);
}

// ------------------------------------------------ QtAbstractPropertyBrowser

QtAbstractPropertyBrowser::QtAbstractPropertyBrowser(QWidget* parent) : QWidget(parent) {}

QtAbstractPropertyBrowser::~QtAbstractPropertyBrowser()
{
    // Items are plain records; the properties belong to their managers.
    const QList<QtBrowserItem*> tops = m_topItems;
    for (QtBrowserItem* item : tops)
    {
        QList<QtBrowserItem*> pending{item};
        while (!pending.isEmpty())
        {
            QtBrowserItem* i = pending.takeFirst();
            pending += i->m_children;
            delete i;
        }
    }
    for (auto it = m_managerUse.constBegin(); it != m_managerUse.constEnd(); ++it)
        disconnect(it.key(), nullptr, this, nullptr);
}

QtBrowserItem* QtAbstractPropertyBrowser::topLevelItem(QtProperty* property) const
{
    for (QtBrowserItem* item : m_topItems)
        if (item->property() == property)
            return item;
    return nullptr;
}

void QtAbstractPropertyBrowser::clear()
{
    const QList<QtProperty*> tops = m_topProperties;
    for (int i = tops.size() - 1; i >= 0; --i)
        removeProperty(tops.at(i));
}

void QtAbstractPropertyBrowser::unsetFactoryForManager(QtAbstractPropertyManager* manager)
{
    QtAbstractEditorFactoryBase* factory = m_managerToFactory.take(manager);
    if (factory)
        factory->breakConnection(manager);
}

QtAbstractEditorFactoryBase* QtAbstractPropertyBrowser::factoryFor(QtProperty* property) const
{
    return property ? m_managerToFactory.value(property->propertyManager()) : nullptr;
}

QWidget* QtAbstractPropertyBrowser::createEditor(QtProperty* property, QWidget* parent)
{
    QtAbstractEditorFactoryBase* factory = factoryFor(property);
    return factory ? factory->createEditor(property, parent) : nullptr;
}

void QtAbstractPropertyBrowser::setCurrentItem(QtBrowserItem* item)
{
    if (m_currentItem == item)
        return;
    m_currentItem = item;
    emit currentItemChanged(item);
}

QtBrowserItem* QtAbstractPropertyBrowser::addProperty(QtProperty* property)
{
    QtProperty* after = m_topProperties.isEmpty() ? nullptr : m_topProperties.last();
    return insertProperty(property, after);
}

QtBrowserItem* QtAbstractPropertyBrowser::insertProperty(QtProperty* property, QtProperty* afterProperty)
{
    if (!property || m_topProperties.contains(property))
        return nullptr;
    int pos = 0;
    QtBrowserItem* afterItem = nullptr;
    if (afterProperty)
    {
        pos = m_topProperties.indexOf(afterProperty) + 1;
        if (pos == 0)
            return nullptr;
        afterItem = topLevelItem(afterProperty);
    }
    m_topProperties.insert(pos, property);
    insertItems(property, nullptr, afterItem);
    return topLevelItem(property);
}

void QtAbstractPropertyBrowser::removeProperty(QtProperty* property)
{
    const int pos = m_topProperties.indexOf(property);
    if (pos < 0)
        return;
    m_topProperties.removeAt(pos);
    if (QtBrowserItem* item = topLevelItem(property))
        removeBrowserItem(item);
}

void QtAbstractPropertyBrowser::insertItems(QtProperty* property, QtBrowserItem* parentItem, QtBrowserItem* afterItem)
{
    auto* item = new QtBrowserItem(this, property, parentItem);
    QList<QtBrowserItem*>& siblings = parentItem ? parentItem->m_children : m_topItems;
    const int pos = afterItem ? siblings.indexOf(afterItem) + 1 : 0;
    siblings.insert(pos, item);
    m_propertyToItems[property].append(item);
    addPropertyUse(property);
    itemInserted(item, afterItem);

    QtBrowserItem* previous = nullptr;
    for (QtProperty* child : property->subProperties())
    {
        insertItems(child, item, previous);
        previous = item->m_children.isEmpty() ? nullptr : item->m_children.last();
    }
}

void QtAbstractPropertyBrowser::removeBrowserItem(QtBrowserItem* item)
{
    // Children first, last to first, so every removal sees a settled tree.
    const QList<QtBrowserItem*> children = item->m_children;
    for (int i = children.size() - 1; i >= 0; --i)
        removeBrowserItem(children.at(i));

    if (m_currentItem == item)
        setCurrentItem(nullptr);
    itemRemoved(item);
    QList<QtBrowserItem*>& siblings = item->m_parent ? item->m_parent->m_children : m_topItems;
    siblings.removeAll(item);
    QtProperty* property = item->property();
    auto it = m_propertyToItems.find(property);
    if (it != m_propertyToItems.end())
    {
        it.value().removeAll(item);
        if (it.value().isEmpty())
            m_propertyToItems.erase(it);
    }
    removePropertyUse(property);
    delete item;
}

void QtAbstractPropertyBrowser::addPropertyUse(QtProperty* property)
{
    if (m_propertyUse[property]++ > 0)
        return;
    QtAbstractPropertyManager* manager = property->propertyManager();
    if (m_managerUse[manager]++ > 0)
        return;
    connect(manager, &QtAbstractPropertyManager::propertyInserted, this,
            &QtAbstractPropertyBrowser::slotPropertyInserted);
    connect(manager, &QtAbstractPropertyManager::propertyRemoved, this, &QtAbstractPropertyBrowser::slotPropertyRemoved);
    connect(manager, &QtAbstractPropertyManager::propertyDestroyed, this,
            &QtAbstractPropertyBrowser::slotPropertyDestroyed);
    connect(manager, &QtAbstractPropertyManager::propertyChanged, this,
            &QtAbstractPropertyBrowser::slotPropertyDataChanged);
}

void QtAbstractPropertyBrowser::removePropertyUse(QtProperty* property)
{
    auto it = m_propertyUse.find(property);
    if (it == m_propertyUse.end() || --it.value() > 0)
        return;
    m_propertyUse.erase(it);
    QtAbstractPropertyManager* manager = property->propertyManager();
    auto mit = m_managerUse.find(manager);
    if (mit == m_managerUse.end() || --mit.value() > 0)
        return;
    m_managerUse.erase(mit);
    disconnect(manager, nullptr, this, nullptr);
}

void QtAbstractPropertyBrowser::slotPropertyInserted(QtProperty* property, QtProperty* parent, QtProperty* after)
{
    const QList<QtBrowserItem*> parentItems = m_propertyToItems.value(parent);
    for (QtBrowserItem* parentItem : parentItems)
    {
        QtBrowserItem* afterItem = nullptr;
        if (after)
            for (QtBrowserItem* child : parentItem->m_children)
                if (child->property() == after)
                {
                    afterItem = child;
                    break;
                }
        insertItems(property, parentItem, afterItem);
    }
}

void QtAbstractPropertyBrowser::slotPropertyRemoved(QtProperty* property, QtProperty* parent)
{
    const QList<QtBrowserItem*> parentItems = m_propertyToItems.value(parent);
    for (QtBrowserItem* parentItem : parentItems)
    {
        const QList<QtBrowserItem*> children = parentItem->m_children;
        for (QtBrowserItem* child : children)
            if (child->property() == property)
            {
                removeBrowserItem(child);
                break;
            }
    }
}

void QtAbstractPropertyBrowser::slotPropertyDestroyed(QtProperty* property)
{
    if (m_topProperties.contains(property))
        removeProperty(property);
}

void QtAbstractPropertyBrowser::slotPropertyDataChanged(QtProperty* property)
{
    const QList<QtBrowserItem*> items = m_propertyToItems.value(property);
    for (QtBrowserItem* item : items)
        itemChanged(item);
}
