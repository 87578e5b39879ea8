#include "qteditorfactory.h"

#include <QRegExpValidator>

// ---------------------------------------------------- QtDoubleSpinBoxFactory

void QtDoubleSpinBoxFactory::connectPropertyManager(QtDoublePropertyManager* manager)
{
    connect(manager, &QtDoublePropertyManager::valueChanged, this, &QtDoubleSpinBoxFactory::slotPropertyChanged);
    connect(manager, &QtDoublePropertyManager::rangeChanged, this, &QtDoubleSpinBoxFactory::slotRangeChanged);
    connect(manager, &QtDoublePropertyManager::singleStepChanged, this,
            &QtDoubleSpinBoxFactory::slotSingleStepChanged);
    connect(manager, &QtDoublePropertyManager::decimalsChanged, this, &QtDoubleSpinBoxFactory::slotDecimalsChanged);
}

QWidget* QtDoubleSpinBoxFactory::createEditor(QtDoublePropertyManager* manager, QtProperty* property,
                                              QWidget* parent)
{
    auto* editor = new QDoubleSpinBox(parent);
    addEditor(property, editor);
    // A camera write per finished entry, not per keystroke.
    editor->setKeyboardTracking(false);
    editor->setDecimals(manager->decimals(property));
    editor->setRange(manager->minimum(property), manager->maximum(property));
    editor->setSingleStep(manager->singleStep(property));
    editor->setValue(manager->value(property));
    editor->setFrame(false);
    connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, editor](double value) { setValueFrom(editor, value); });
    return editor;
}

void QtDoubleSpinBoxFactory::slotPropertyChanged(QtProperty* property, double value)
{
    updateEditors(property, [value](QDoubleSpinBox* editor) {
        if (editor->value() != value)
            editor->setValue(value);
    });
}

void QtDoubleSpinBoxFactory::slotRangeChanged(QtProperty* property, double minVal, double maxVal)
{
    QtDoublePropertyManager* manager = propertyManager(property);
    if (!manager)
        return;
    updateEditors(property, [&](QDoubleSpinBox* editor) {
        editor->setRange(minVal, maxVal);
        editor->setValue(manager->value(property));
    });
}

void QtDoubleSpinBoxFactory::slotSingleStepChanged(QtProperty* property, double step)
{
    updateEditors(property, [step](QDoubleSpinBox* editor) { editor->setSingleStep(step); });
}

void QtDoubleSpinBoxFactory::slotDecimalsChanged(QtProperty* property, int prec)
{
    QtDoublePropertyManager* manager = propertyManager(property);
    if (!manager)
        return;
    updateEditors(property, [&](QDoubleSpinBox* editor) {
        editor->setDecimals(prec);
        editor->setValue(manager->value(property));
    });
}

// ------------------------------------------------------- QtEnumEditorFactory

void QtEnumEditorFactory::connectPropertyManager(QtEnumPropertyManager* manager)
{
    connect(manager, &QtEnumPropertyManager::valueChanged, this, &QtEnumEditorFactory::slotPropertyChanged);
    connect(manager, &QtEnumPropertyManager::enumNamesChanged, this, &QtEnumEditorFactory::slotEnumNamesChanged);
}

QWidget* QtEnumEditorFactory::createEditor(QtEnumPropertyManager* manager, QtProperty* property, QWidget* parent)
{
    auto* editor = new CComboBoxEx(parent);
    addEditor(property, editor);
    editor->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    editor->setMinimumContentsLength(1);
    editor->addItems(manager->enumNames(property));
    editor->setCurrentIndex(manager->value(property));
    connect(editor, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, editor](int value) { setValueFrom(editor, value); });
    return editor;
}

void QtEnumEditorFactory::slotPropertyChanged(QtProperty* property, int value)
{
    updateEditors(property, [value](CComboBoxEx* editor) { editor->setCurrentIndex(value); });
}

void QtEnumEditorFactory::slotEnumNamesChanged(QtProperty* property, const QStringList& names)
{
    QtEnumPropertyManager* manager = propertyManager(property);
    if (!manager)
        return;
    updateEditors(property, [&](CComboBoxEx* editor) {
        editor->clear();
        editor->addItems(names);
        editor->setCurrentIndex(manager->value(property));
    });
}

// --------------------------------------------------------- QtLineEditFactory

void QtLineEditFactory::connectPropertyManager(QtStringPropertyManager* manager)
{
    connect(manager, &QtStringPropertyManager::valueChanged, this, &QtLineEditFactory::slotPropertyChanged);
    connect(manager, &QtStringPropertyManager::regExpChanged, this, &QtLineEditFactory::slotRegExpChanged);
}

QWidget* QtLineEditFactory::createEditor(QtStringPropertyManager* manager, QtProperty* property, QWidget* parent)
{
    auto* editor = new QLineEdit(parent);
    addEditor(property, editor);
    const QRegExp regExp = manager->regExp(property);
    if (regExp.isValid() && !regExp.isEmpty())
        editor->setValidator(new QRegExpValidator(regExp, editor));
    if (property->getMaxLength() > 0)
        editor->setMaxLength(property->getMaxLength());
    editor->setText(manager->value(property));
    editor->setFrame(false);
    // The text reaches the camera once the user is done with it.
    connect(editor, &QLineEdit::editingFinished, this, &QtLineEditFactory::slotEditingFinished);
    return editor;
}

void QtLineEditFactory::slotPropertyChanged(QtProperty* property, const QString& value)
{
    updateEditors(property, [&value](QLineEdit* editor) {
        if (editor->text() != value)
            editor->setText(value);
    });
}

void QtLineEditFactory::slotRegExpChanged(QtProperty* property, const QRegExp& regExp)
{
    updateEditors(property, [&regExp](QLineEdit* editor) {
        const QValidator* old = editor->validator();
        editor->setValidator(regExp.isValid() && !regExp.isEmpty() ? new QRegExpValidator(regExp, editor) : nullptr);
        delete old;
    });
}

void QtLineEditFactory::slotEditingFinished()
{
    auto* editor = qobject_cast<QLineEdit*>(sender());
    if (!editor || !d.propertyOf(editor) || !editor->isModified())
        return;
    editor->setModified(false);
    setValueFrom(editor, editor->text());
}
