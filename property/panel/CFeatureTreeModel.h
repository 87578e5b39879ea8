#pragma once
// The rows of a feature tree: the eight property managers and the seven
// editor factories bound to them, the rows by feature name, and the last
// record read for each row. It builds the rows from a loaded tree, refreshes
// a row from a new record and re-labels the rows in the current language.
// Rows change on the GUI thread only; while the model changes them,
// isApplying() tells the managers' value signals apart from user edits.
#include <QHash>
#include <QString>
#include <QStringList>

#include "CFeatureNodeInfo.h"
#include "CFeatureTreeBuilder.h"

class QtAbstractPropertyManager;
class QtDoubleSpinBoxFactory;
class QtEnumEditorFactory;
class QtLineEditFactory;
class QtPushButtonFactory;
class QtTreePropertyBrowser;
class DecoratedDoubleSpinBoxFactory;

class CFeatureTreeModel
{
public:
    CFeatureTreeModel();
    // Deletes rows, managers and factories: the browser that shows them
    // must be gone first.
    ~CFeatureTreeModel();
    Q_DISABLE_COPY(CFeatureTreeModel)

    const CFeatureTreeBuilder::SManagers& managers() const { return m_managers; }
    QtPushButtonFactory* commandFactory() const { return m_commandFactory; }
    // Gives each manager but the group manager its editor factory in the browser.
    void bindFactories(QtTreePropertyBrowser* browser);

    // The group row "Root" with every row below it, built from the tree.
    void build(const CFeatureNodeInfo& tree, bool translated);
    QtProperty* root() const { return m_root; }
    QtProperty* row(const QString& name) const { return m_rows.value(name); }
    CFeatureNodeInfo record(const QString& name) const { return m_records.value(name); }
    // Names of every row, in tree order.
    QStringList featureNames() const;
    // The row of the name below parent, or of the name and the manager.
    static QtProperty* findProperty(QtProperty* parent, const QString& name);
    QtProperty* findProperty(const QtAbstractPropertyManager* manager, const QString& name) const;

    // Keeps the record and shows it in its row; the row, or null when none.
    QtProperty* apply(const CFeatureNodeInfo& info, bool translated);
    // Value, range, availability and enabled state of a row; its tooltip.
    void updatePropertyDisp(const CFeatureNodeInfo& node, QtProperty* property);
    void updateToolTip(const CFeatureNodeInfo& node, QtProperty* property);
    // Names, enumeration texts and tooltips of every row below below.
    void relabel(QtProperty* below, bool translated);
    bool isApplying() const { return m_bApplying; }

private:
    void keepRecords(const CFeatureNodeInfo& node);

    CFeatureTreeBuilder::SManagers m_managers;
    QtDoubleSpinBoxFactory* m_intFactory = nullptr;
    QtEnumEditorFactory* m_boolFactory = nullptr;
    QtDoubleSpinBoxFactory* m_floatFactory = nullptr;
    QtLineEditFactory* m_stringFactory = nullptr;
    QtEnumEditorFactory* m_enumFactory = nullptr;
    QtPushButtonFactory* m_commandFactory = nullptr;
    DecoratedDoubleSpinBoxFactory* m_decFloatFactory = nullptr;

    QtProperty* m_root = nullptr;
    QHash<QString, QtProperty*> m_rows;
    QHash<QString, CFeatureNodeInfo> m_records;   // without children
    bool m_bApplying = false;
};
