#pragma once
// Editors of the feature tree: a double spin box (doubles and integers), a
// combo box (enumerations and booleans) and a line edit (strings).
#include <QDoubleSpinBox>
#include <QLineEdit>

#include "CComboBoxEx.h"
#include "qtpropertymanager.h"

class QtDoubleSpinBoxFactory : public QtEditorFactory<QtDoublePropertyManager, QDoubleSpinBox>
{
    Q_OBJECT
public:
    using QtEditorFactory::QtEditorFactory;

protected:
    void connectPropertyManager(QtDoublePropertyManager* manager) override;
    QWidget* createEditor(QtDoublePropertyManager* manager, QtProperty* property, QWidget* parent) override;

private:
    void slotPropertyChanged(QtProperty* property, double value);
    void slotRangeChanged(QtProperty* property, double minVal, double maxVal);
    void slotSingleStepChanged(QtProperty* property, double step);
    void slotDecimalsChanged(QtProperty* property, int prec);
};

class QtEnumEditorFactory : public QtEditorFactory<QtEnumPropertyManager, CComboBoxEx>
{
    Q_OBJECT
public:
    using QtEditorFactory::QtEditorFactory;

protected:
    void connectPropertyManager(QtEnumPropertyManager* manager) override;
    QWidget* createEditor(QtEnumPropertyManager* manager, QtProperty* property, QWidget* parent) override;

private:
    void slotPropertyChanged(QtProperty* property, int value);
    void slotEnumNamesChanged(QtProperty* property, const QStringList& names);
};

class QtLineEditFactory : public QtEditorFactory<QtStringPropertyManager, QLineEdit>
{
    Q_OBJECT
public:
    using QtEditorFactory::QtEditorFactory;

protected:
    void connectPropertyManager(QtStringPropertyManager* manager) override;
    QWidget* createEditor(QtStringPropertyManager* manager, QtProperty* property, QWidget* parent) override;

private:
    void slotPropertyChanged(QtProperty* property, const QString& value);
    void slotRegExpChanged(QtProperty* property, const QRegExp& regExp);
    void slotEditingFinished();
};
