#include "DecoratedDoublePropertyManager.h"

DecoratedDoublePropertyManager::DecoratedDoublePropertyManager(QObject* parent) : QtDoublePropertyManager(parent) {}

void DecoratedDoublePropertyManager::setPrefix(QtProperty* property, const QString& prefix)
{
    if (!changeField(property, &QtDoubleRecord::prefix, prefix))
        return;
    emit propertyChanged(property);
    emit prefixChanged(property, prefix);
}

void DecoratedDoublePropertyManager::setSuffix(QtProperty* property, const QString& suffix)
{
    if (!changeField(property, &QtDoubleRecord::suffix, suffix))
        return;
    emit propertyChanged(property);
    emit suffixChanged(property, suffix);
}

QString DecoratedDoublePropertyManager::valueText(const QtProperty* property) const
{
    const QtDoubleRecord* r = recordOf(property);
    return r ? r->prefix + QtDoublePropertyManager::valueText(property) + r->suffix : QString();
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
