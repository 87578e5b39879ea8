#include "CFeatureTreeModel.h"

#include "DecoratedDoublePropertyManager.h"
#include "QtPushButtonFactory.h"
#include "qteditorfactory.h"
#include "qttreepropertybrowser.h"

namespace {
// The model's own row changes must not be taken for user edits.
class CApplyGuard
{
public:
    explicit CApplyGuard(bool& flag) : m_flag(flag), m_old(flag) { m_flag = true; }
    ~CApplyGuard() { m_flag = m_old; }

private:
    bool& m_flag;
    bool m_old;
};

CFeatureNodeInfo withoutChildren(const CFeatureNodeInfo& node)
{
    CFeatureNodeInfo flat = node;
    flat.children.clear();
    return flat;
}

// Rows below root, depth first in tree order.
QList<QtProperty*> rowsBelow(QtProperty* root)
{
    QList<QtProperty*> rows;
    if (!root)
        return rows;
    QList<QtProperty*> pending = root->subProperties();
    while (!pending.isEmpty())
    {
        QtProperty* p = pending.takeFirst();
        rows.append(p);
        pending = p->subProperties() + pending;
    }
    return rows;
}
} // namespace

CFeatureTreeModel::CFeatureTreeModel()
{
    m_managers.group = new QtGroupPropertyManager();
    m_managers.integer = new QtDoublePropertyManager();
    m_managers.floating = new QtDoublePropertyManager();
    m_managers.decFloating = new DecoratedDoublePropertyManager();
    m_managers.enumeration = new QtEnumPropertyManager();
    m_managers.boolean = new QtEnumPropertyManager();
    m_managers.string = new QtStringPropertyManager();
    m_managers.command = new QtStringPropertyManager();
    m_intFactory = new QtDoubleSpinBoxFactory();
    m_boolFactory = new QtEnumEditorFactory();
    m_floatFactory = new QtDoubleSpinBoxFactory();
    m_stringFactory = new QtLineEditFactory();
    m_enumFactory = new QtEnumEditorFactory();
    m_commandFactory = new QtPushButtonFactory();
    m_decFloatFactory = new DecoratedDoubleSpinBoxFactory();
}

CFeatureTreeModel::~CFeatureTreeModel()
{
    // Rows go with their managers, before the factories that edit them.
    for (QtAbstractPropertyManager* manager : std::initializer_list<QtAbstractPropertyManager*>{
             m_managers.group, m_managers.integer, m_managers.floating, m_managers.decFloating,
             m_managers.enumeration, m_managers.boolean, m_managers.string, m_managers.command})
        delete manager;
    for (QObject* factory : std::initializer_list<QObject*>{m_intFactory, m_boolFactory, m_floatFactory,
                                                             m_stringFactory, m_enumFactory, m_commandFactory,
                                                             m_decFloatFactory})
        delete factory;
}

void CFeatureTreeModel::bindFactories(QtTreePropertyBrowser* browser)
{
    browser->setFactoryForManager(m_managers.integer, m_intFactory);
    browser->setFactoryForManager(m_managers.boolean, m_boolFactory);
    browser->setFactoryForManager(m_managers.floating, m_floatFactory);
    browser->setFactoryForManager(m_managers.string, m_stringFactory);
    browser->setFactoryForManager(m_managers.enumeration, m_enumFactory);
    browser->setFactoryForManager(m_managers.command, m_commandFactory);
    browser->setFactoryForManager(m_managers.decFloating, m_decFloatFactory);
}

void CFeatureTreeModel::build(const CFeatureNodeInfo& tree, bool translated)
{
    CApplyGuard guard(m_bApplying);
    CFeatureTreeBuilder::setTranslated(translated);
    m_root = m_managers.group->addProperty(QStringLiteral("Root"));
    m_root->setWhatsThis(QStringLiteral("Root"));
    for (const CFeatureNodeInfo& child : tree.children)
        CFeatureTreeBuilder::getGenProperty(child, m_managers, m_root);
    keepRecords(tree);
    m_rows.clear();
    for (QtProperty* p : rowsBelow(m_root))
        m_rows.insert(p->whatsThis(), p);
}

void CFeatureTreeModel::keepRecords(const CFeatureNodeInfo& node)
{
    for (const CFeatureNodeInfo& child : node.children)
    {
        m_records.insert(child.name, withoutChildren(child));
        keepRecords(child);
    }
}

QStringList CFeatureTreeModel::featureNames() const
{
    QStringList names;
    for (QtProperty* p : rowsBelow(m_root))
        names.append(p->whatsThis());
    return names;
}

QtProperty* CFeatureTreeModel::findProperty(QtProperty* parent, const QString& name)
{
    for (QtProperty* p : rowsBelow(parent))
        if (p->whatsThis() == name)
            return p;
    return nullptr;
}

QtProperty* CFeatureTreeModel::findProperty(const QtAbstractPropertyManager* manager, const QString& name) const
{
    QtProperty* p = m_rows.value(name);
    return p && p->propertyManager() == manager ? p : nullptr;
}

QtProperty* CFeatureTreeModel::apply(const CFeatureNodeInfo& info, bool translated)
{
    if (!info.valid)
        return nullptr;
    const CFeatureNodeInfo flat = withoutChildren(info);
    m_records.insert(info.name, flat);
    QtProperty* property = m_rows.value(info.name);
    if (!property)
        return nullptr;
    CFeatureTreeBuilder::setTranslated(translated);
    updatePropertyDisp(flat, property);
    updateToolTip(flat, property);
    return property;
}

void CFeatureTreeModel::updatePropertyDisp(const CFeatureNodeInfo& node, QtProperty* property)
{
    CApplyGuard guard(m_bApplying);
    CFeatureTreeBuilder::updatePropertyDisp(node, property, m_managers);
}

void CFeatureTreeModel::updateToolTip(const CFeatureNodeInfo& node, QtProperty* property)
{
    CFeatureTreeBuilder::updateToolTip(node, property);
}

void CFeatureTreeModel::relabel(QtProperty* below, bool translated)
{
    CApplyGuard guard(m_bApplying);
    CFeatureTreeBuilder::setTranslated(translated);
    for (QtProperty* p : rowsBelow(below))
    {
        auto it = m_records.constFind(p->whatsThis());
        if (it != m_records.constEnd())
            CFeatureTreeBuilder::retranslateRow(it.value(), p, m_managers);
    }
}
