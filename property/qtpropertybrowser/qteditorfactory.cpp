#include "qteditorfactory.h"

#include <QRegExpValidator>
#include <QSignalBlocker>

// ---------------------------------------------------- QtDoubleSpinBoxFactory

QtDoubleSpinBoxFactory::QtDoubleSpinBoxFactory(QObject* parent) : QtAbstractEditorFactory(parent) {}

QtDoubleSpinBoxFactory::~QtDoubleSpinBoxFactory()
{
    qDeleteAll(d.m_editorToProperty.keys());
}

void QtDoubleSpinBoxFactory::connectPropertyManager(QtDoublePropertyManager* manager)
{
    connect(manager, &QtDoublePropertyManager::valueChanged, this, &QtDoubleSpinBoxFactory::slotPropertyChanged);
    connect(manager, &QtDoublePropertyManager::rangeChanged, this, &QtDoubleSpinBoxFactory::slotRangeChanged);
    connect(manager, &QtDoublePropertyManager::singleStepChanged, this,
            &QtDoubleSpinBoxFactory::slotSingleStepChanged);
    connect(manager, &QtDoublePropertyManager::decimalsChanged, this, &QtDoubleSpinBoxFactory::slotDecimalsChanged);
}

void QtDoubleSpinBoxFactory::disconnectPropertyManager(QtDoublePropertyManager* manager)
{
    disconnect(manager, nullptr, this, nullptr);
}

QWidget* QtDoubleSpinBoxFactory::createEditor(QtDoublePropertyManager* manager, QtProperty* property,
                                              QWidget* parent)
{
    auto* editor = new QDoubleSpinBox(parent);
    d.initializeEditor(property, editor);
    // A camera write per finished entry, not per keystroke.
    editor->setKeyboardTracking(false);
    editor->setDecimals(manager->decimals(property));
    editor->setRange(manager->minimum(property), manager->maximum(property));
    editor->setSingleStep(manager->singleStep(property));
    editor->setValue(manager->value(property));
    editor->setFrame(false);
    connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &QtDoubleSpinBoxFactory::slotSetValue);
    connect(editor, &QObject::destroyed, this, &QtDoubleSpinBoxFactory::slotEditorDestroyed);
    return editor;
}

void QtDoubleSpinBoxFactory::slotPropertyChanged(QtProperty* property, double value)
{
    for (QDoubleSpinBox* editor : d.editors(property))
    {
        if (editor->value() == value)
            continue;
        const QSignalBlocker block(editor);
        editor->setValue(value);
    }
}

void QtDoubleSpinBoxFactory::slotRangeChanged(QtProperty* property, double minVal, double maxVal)
{
    QtDoublePropertyManager* manager = propertyManager(property);
    if (!manager)
        return;
    for (QDoubleSpinBox* editor : d.editors(property))
    {
        const QSignalBlocker block(editor);
        editor->setRange(minVal, maxVal);
        editor->setValue(manager->value(property));
    }
}

void QtDoubleSpinBoxFactory::slotSingleStepChanged(QtProperty* property, double step)
{
    for (QDoubleSpinBox* editor : d.editors(property))
    {
        const QSignalBlocker block(editor);
        editor->setSingleStep(step);
    }
}

void QtDoubleSpinBoxFactory::slotDecimalsChanged(QtProperty* property, int prec)
{
    QtDoublePropertyManager* manager = propertyManager(property);
    if (!manager)
        return;
    for (QDoubleSpinBox* editor : d.editors(property))
    {
        const QSignalBlocker block(editor);
        editor->setDecimals(prec);
        editor->setValue(manager->value(property));
    }
}

void QtDoubleSpinBoxFactory::slotSetValue(double value)
{
    QtProperty* property = d.propertyOf(sender());
    if (!property)
        return;
    if (QtDoublePropertyManager* manager = propertyManager(property))
        manager->setValue(property, value);
}

void QtDoubleSpinBoxFactory::slotEditorDestroyed(QObject* object)
{
    d.slotEditorDestroyed(object);
}

// ------------------------------------------------------- QtEnumEditorFactory

QtEnumEditorFactory::QtEnumEditorFactory(QObject* parent) : QtAbstractEditorFactory(parent) {}

QtEnumEditorFactory::~QtEnumEditorFactory()
{
    qDeleteAll(d.m_editorToProperty.keys());
}

void QtEnumEditorFactory::connectPropertyManager(QtEnumPropertyManager* manager)
{
    connect(manager, &QtEnumPropertyManager::valueChanged, this, &QtEnumEditorFactory::slotPropertyChanged);
    connect(manager, &QtEnumPropertyManager::enumNamesChanged, this, &QtEnumEditorFactory::slotEnumNamesChanged);
}

void QtEnumEditorFactory::disconnectPropertyManager(QtEnumPropertyManager* manager)
{
    disconnect(manager, nullptr, this, nullptr);
}

QWidget* QtEnumEditorFactory::createEditor(QtEnumPropertyManager* manager, QtProperty* property, QWidget* parent)
{
    auto* editor = new CComboBoxEx(parent);
    d.initializeEditor(property, editor);
    editor->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    editor->setMinimumContentsLength(1);
    editor->addItems(manager->enumNames(property));
    editor->setCurrentIndex(manager->value(property));
    connect(editor, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &QtEnumEditorFactory::slotSetValue);
    connect(editor, &QObject::destroyed, this, &QtEnumEditorFactory::slotEditorDestroyed);
    return editor;
}

void QtEnumEditorFactory::slotPropertyChanged(QtProperty* property, int value)
{
    for (CComboBoxEx* editor : d.editors(property))
    {
        const QSignalBlocker block(editor);
        editor->setCurrentIndex(value);
    }
}

void QtEnumEditorFactory::slotEnumNamesChanged(QtProperty* property, const QStringList& names)
{
    QtEnumPropertyManager* manager = propertyManager(property);
    if (!manager)
        return;
    for (CComboBoxEx* editor : d.editors(property))
    {
        const QSignalBlocker block(editor);
        editor->clear();
        editor->addItems(names);
        editor->setCurrentIndex(manager->value(property));
    }
}

void QtEnumEditorFactory::slotSetValue(int value)
{
    QtProperty* property = d.propertyOf(sender());
    if (!property)
        return;
    if (QtEnumPropertyManager* manager = propertyManager(property))
        manager->setValue(property, value);
}

void QtEnumEditorFactory::slotEditorDestroyed(QObject* object)
{
    d.slotEditorDestroyed(object);
}

// --------------------------------------------------------- QtLineEditFactory

QtLineEditFactory::QtLineEditFactory(QObject* parent) : QtAbstractEditorFactory(parent) {}

QtLineEditFactory::~QtLineEditFactory()
{
    qDeleteAll(d.m_editorToProperty.keys());
}

void QtLineEditFactory::connectPropertyManager(QtStringPropertyManager* manager)
{
    connect(manager, &QtStringPropertyManager::valueChanged, this, &QtLineEditFactory::slotPropertyChanged);
    connect(manager, &QtStringPropertyManager::regExpChanged, this, &QtLineEditFactory::slotRegExpChanged);
}

void QtLineEditFactory::disconnectPropertyManager(QtStringPropertyManager* manager)
{
    disconnect(manager, nullptr, this, nullptr);
}

QWidget* QtLineEditFactory::createEditor(QtStringPropertyManager* manager, QtProperty* property, QWidget* parent)
{
    auto* editor = new QLineEdit(parent);
    d.initializeEditor(property, editor);
    const QRegExp regExp = manager->regExp(property);
    if (regExp.isValid() && !regExp.isEmpty())
        editor->setValidator(new QRegExpValidator(regExp, editor));
    if (property->getMaxLength() > 0)
        editor->setMaxLength(property->getMaxLength());
    editor->setText(manager->value(property));
    editor->setFrame(false);
    // The text reaches the camera once the user is done with it.
    connect(editor, &QLineEdit::editingFinished, this, &QtLineEditFactory::slotEditingFinished);
    connect(editor, &QObject::destroyed, this, &QtLineEditFactory::slotEditorDestroyed);
    return editor;
}

void QtLineEditFactory::slotPropertyChanged(QtProperty* property, const QString& value)
{
    for (QLineEdit* editor : d.editors(property))
    {
        if (editor->text() == value)
            continue;
        const QSignalBlocker block(editor);
        editor->setText(value);
    }
}

void QtLineEditFactory::slotRegExpChanged(QtProperty* property, const QRegExp& regExp)
{
    for (QLineEdit* editor : d.editors(property))
    {
        const QSignalBlocker block(editor);
        const QValidator* old = editor->validator();
        editor->setValidator(regExp.isValid() && !regExp.isEmpty() ? new QRegExpValidator(regExp, editor) : nullptr);
        delete old;
    }
}

void QtLineEditFactory::slotEditingFinished()
{
    auto* editor = qobject_cast<QLineEdit*>(sender());
    QtProperty* property = d.propertyOf(editor);
    if (!property || !editor->isModified())
        return;
    editor->setModified(false);
    if (QtStringPropertyManager* manager = propertyManager(property))
        manager->setValue(property, editor->text());
}

void QtLineEditFactory::slotEditorDestroyed(QObject* object)
{
    d.slotEditorDestroyed(object);
}
