#include "DecoratedDoublePropertyManager.h"

DecoratedDoublePropertyManager::DecoratedDoublePropertyManager(QObject* parent) : QtDoublePropertyManager(parent) {}

DecoratedDoublePropertyManager::~DecoratedDoublePropertyManager()
{
    clear();
}

QString DecoratedDoublePropertyManager::prefix(const QtProperty* property) const
{
    return m_values.value(property).prefix;
}

QString DecoratedDoublePropertyManager::suffix(const QtProperty* property) const
{
    return m_values.value(property).suffix;
}

void DecoratedDoublePropertyManager::setPrefix(QtProperty* property, const QString& prefix)
{
    auto it = m_values.find(property);
    if (it == m_values.end() || it->prefix == prefix)
        return;
    it->prefix = prefix;
    emit propertyChanged(property);
    emit prefixChanged(property, prefix);
}

void DecoratedDoublePropertyManager::setSuffix(QtProperty* property, const QString& suffix)
{
    auto it = m_values.find(property);
    if (it == m_values.end() || it->suffix == suffix)
        return;
    it->suffix = suffix;
    emit propertyChanged(property);
    emit suffixChanged(property, suffix);
}

QString DecoratedDoublePropertyManager::valueText(const QtProperty* property) const
{
    auto it = m_values.constFind(property);
    const QString text = QtDoublePropertyManager::valueText(property);
    if (it == m_values.constEnd())
        return text;
    return it->prefix + text + it->suffix;
}

void DecoratedDoublePropertyManager::initializeProperty(QtProperty* property)
{
    m_values.insert(property, Data());
    QtDoublePropertyManager::initializeProperty(property);
}

void DecoratedDoublePropertyManager::uninitializeProperty(QtProperty* property)
{
    m_values.remove(property);
    QtDoublePropertyManager::uninitializeProperty(property);
}

// ------------------------------------------------ DecoratedDoubleSpinBoxFactory

DecoratedDoubleSpinBoxFactory::DecoratedDoubleSpinBoxFactory(QObject* parent)
    : QtAbstractEditorFactory(parent), m_originalFactory(new QtDoubleSpinBoxFactory(this))
{
}

DecoratedDoubleSpinBoxFactory::~DecoratedDoubleSpinBoxFactory() = default;

void DecoratedDoubleSpinBoxFactory::connectPropertyManager(DecoratedDoublePropertyManager* manager)
{
    m_originalFactory->addPropertyManager(manager);
    connect(manager, &DecoratedDoublePropertyManager::prefixChanged, this,
            &DecoratedDoubleSpinBoxFactory::slotPrefixChanged);
    connect(manager, &DecoratedDoublePropertyManager::suffixChanged, this,
            &DecoratedDoubleSpinBoxFactory::slotSuffixChanged);
}

void DecoratedDoubleSpinBoxFactory::disconnectPropertyManager(DecoratedDoublePropertyManager* manager)
{
    m_originalFactory->removePropertyManager(manager);
    disconnect(manager, &DecoratedDoublePropertyManager::prefixChanged, this,
               &DecoratedDoubleSpinBoxFactory::slotPrefixChanged);
    disconnect(manager, &DecoratedDoublePropertyManager::suffixChanged, this,
               &DecoratedDoubleSpinBoxFactory::slotSuffixChanged);
}

QWidget* DecoratedDoubleSpinBoxFactory::createEditor(DecoratedDoublePropertyManager* manager, QtProperty* property,
                                                     QWidget* parent)
{
    QtAbstractEditorFactoryBase* base = m_originalFactory;
    QWidget* widget = base->createEditor(property, parent);
    auto* spinBox = qobject_cast<QDoubleSpinBox*>(widget);
    if (!spinBox)
        return widget;
    spinBox->setPrefix(manager->prefix(property));
    spinBox->setSuffix(manager->suffix(property));
    m_createdEditors[property].append(spinBox);
    m_editorToProperty.insert(spinBox, property);
    connect(spinBox, &QObject::destroyed, this, &DecoratedDoubleSpinBoxFactory::slotEditorDestroyed);
    return spinBox;
}

void DecoratedDoubleSpinBoxFactory::slotPrefixChanged(QtProperty* property, const QString& prefix)
{
    for (QDoubleSpinBox* editor : m_createdEditors.value(property))
        editor->setPrefix(prefix);
}

void DecoratedDoubleSpinBoxFactory::slotSuffixChanged(QtProperty* property, const QString& suffix)
{
    for (QDoubleSpinBox* editor : m_createdEditors.value(property))
        editor->setSuffix(suffix);
}

void DecoratedDoubleSpinBoxFactory::slotEditorDestroyed(QObject* object)
{
    for (auto it = m_editorToProperty.begin(); it != m_editorToProperty.end(); ++it)
    {
        if (it.key() != object)
            continue;
        QtProperty* property = it.value();
        m_createdEditors[property].removeAll(it.key());
        if (m_createdEditors[property].isEmpty())
            m_createdEditors.remove(property);
        m_editorToProperty.erase(it);
        return;
    }
}
