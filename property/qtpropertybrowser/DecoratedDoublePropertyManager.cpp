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
    if (changeText(property, &Data::prefix, prefix))
        emit prefixChanged(property, prefix);
}

void DecoratedDoublePropertyManager::setSuffix(QtProperty* property, const QString& suffix)
{
    if (changeText(property, &Data::suffix, suffix))
        emit suffixChanged(property, suffix);
}

bool DecoratedDoublePropertyManager::changeText(QtProperty* property, QString Data::*text, const QString& value)
{
    auto it = m_values.find(property);
    if (it == m_values.end() || (*it).*text == value)
        return false;
    (*it).*text = value;
    emit propertyChanged(property);
    return true;
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
    : QtEditorFactory(parent), m_originalFactory(new QtDoubleSpinBoxFactory(this))
{
}

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
    QtEditorFactory::disconnectPropertyManager(manager);
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
    addEditor(property, spinBox);
    return spinBox;
}

void DecoratedDoubleSpinBoxFactory::slotPrefixChanged(QtProperty* property, const QString& prefix)
{
    for (QDoubleSpinBox* editor : d.editors(property))
        editor->setPrefix(prefix);
}

void DecoratedDoubleSpinBoxFactory::slotSuffixChanged(QtProperty* property, const QString& suffix)
{
    for (QDoubleSpinBox* editor : d.editors(property))
        editor->setSuffix(suffix);
}
