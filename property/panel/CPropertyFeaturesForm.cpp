#include "CPropertyFeaturesForm.h"

#include <QComboBox>
#include <QEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <cmath>

#include "CCommandParamDoneStatusThread.h"
#include "CConfiguration.h"
#include "CDeviceResetThread.h"
#include "CLoadPropertiesThread.h"
#include "CTavDevice.h"
#include "CUpdateParamThread.h"
#include "CWaitDlg.h"
#include "CWriteParamThread.h"
#include "ParamTransTables.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "MessageBox.h"
#include "Utils.h"
#include "DecoratedDoublePropertyManager.h"
#include "QtPushButtonFactory.h"
#include "qteditorfactory.h"
#include "qttreepropertybrowser.h"

using namespace Vorlen::GenICam;
using Node = CInternalParameterNode;

namespace {
// The page's own row changes must not be taken for user edits.
class CApplyGuard
{
public:
    explicit CApplyGuard(bool& flag) : m_flag(flag), m_old(flag) { m_flag = true; }
    ~CApplyGuard() { m_flag = m_old; }

private:
    bool& m_flag;
    bool m_old;
};
} // namespace

CPropertyFeaturesForm::CPropertyFeaturesForm(CTavDevicePtr device, QWidget* parent)
    : QWidget(parent), m_device(device), m_cameraSide(std::make_shared<CFeatureFormCamera>(device))
{
    m_messageHandler = [this](const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::Icon icon) {
        return messageBox(text, this, buttons, icon);
    };
    init();
}

CPropertyFeaturesForm::~CPropertyFeaturesForm()
{
    // No change notice reaches the update worker after this; workers stop
    // at their next check. A worker inside a camera call is not waited for:
    // it deletes itself when the call returns, and its result, queued to
    // this page, is dropped with the page's connections.
    onUnregisterSink();
    for (CRetiringThread* worker : std::initializer_list<CRetiringThread*>{m_pLoadThread, m_pUpdateThread,
                                                                           m_pCmdThread, m_pWriteThread})
    {
        disconnect(worker, nullptr, this, nullptr);
        worker->retire();
    }
    m_pLoadThread = nullptr;
    m_pUpdateThread = nullptr;
    m_pCmdThread = nullptr;
    m_pWriteThread = nullptr;
    // Rows go before their managers, the tree before the rows.
    delete m_browser;
    m_browser = nullptr;
    delete m_managers.group;
    delete m_managers.integer;
    delete m_managers.floating;
    delete m_managers.decFloating;
    delete m_managers.enumeration;
    delete m_managers.boolean;
    delete m_managers.string;
    delete m_managers.command;
}

void CPropertyFeaturesForm::buildUi()
{
    setObjectName("CPropertyFeaturesForm");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);

    auto* bar = new QHBoxLayout();
    m_cbVisibility = new QComboBox(this);
    m_cbVisibility->setObjectName("cbVisibility");
    m_cbVisibility->addItems({QString(), QString(), QString()});
    m_lineEditKey = new QLineEdit(this);
    m_lineEditKey->setObjectName("lineEditKey");
    m_lineEditKey->setClearButtonEnabled(true);
    m_btnExpand = new QPushButton(this);
    m_btnExpand->setObjectName("btnExpand");
    m_btnReset = new QPushButton(this);
    m_btnReset->setObjectName("btnReset");
    m_btnSave = new QPushButton(this);
    m_btnSave->setObjectName("btnSave");
    m_btnTranslate = new QPushButton(this);
    m_btnTranslate->setObjectName("btnTranslate");
    m_btnTranslate->setCheckable(true);
    m_btnTranslate->setChecked(true);
    // Level and search on one row, the page's buttons on the next, so the
    // panel stays narrow enough to leave the video area its room.
    bar->addWidget(m_cbVisibility);
    bar->addWidget(m_lineEditKey, 1);
    layout->addLayout(bar);
    auto* buttons = new QHBoxLayout();
    for (QPushButton* button : {m_btnExpand, m_btnReset, m_btnSave, m_btnTranslate})
        buttons->addWidget(button);
    layout->addLayout(buttons);

    auto* splitter = new QSplitter(Qt::Vertical, this);
    m_browser = new QtTreePropertyBrowser(splitter);
    m_browser->setObjectName("propertyBrowser");
    m_browser->setHeaderVisible(false);
    m_textDesc = new QTextEdit(splitter);
    m_textDesc->setObjectName("textEditDesc");
    m_textDesc->setReadOnly(true);
    splitter->addWidget(m_browser);
    splitter->addWidget(m_textDesc);
    splitter->setStretchFactor(0, 4);
    splitter->setStretchFactor(1, 1);
    layout->addWidget(splitter, 1);
}

void CPropertyFeaturesForm::init()
{
    qRegisterMetaType<QtProperty*>("QtProperty*");
    buildUi();
    connect(m_browser, &QtAbstractPropertyBrowser::currentItemChanged, this,
            &CPropertyFeaturesForm::onPropertyBrowserItemChanged);

    m_managers.group = new QtGroupPropertyManager();
    m_managers.integer = new QtDoublePropertyManager();
    m_managers.floating = new QtDoublePropertyManager();
    m_managers.decFloating = new DecoratedDoublePropertyManager();
    m_managers.enumeration = new QtEnumPropertyManager();
    m_managers.boolean = new QtEnumPropertyManager();
    m_managers.string = new QtStringPropertyManager();
    m_managers.command = new QtStringPropertyManager();

    m_intFactory = new QtDoubleSpinBoxFactory(this);
    m_boolFactory = new QtEnumEditorFactory(this);
    m_floatFactory = new QtDoubleSpinBoxFactory(this);
    m_stringFactory = new QtLineEditFactory(this);
    m_enumFactory = new QtEnumEditorFactory(this);
    m_pushButtonFactory = new QtPushButtonFactory(this);
    m_decFloatFactory = new DecoratedDoubleSpinBoxFactory(this);
    m_browser->setFactoryForManager(m_managers.integer, m_intFactory);
    m_browser->setFactoryForManager(m_managers.boolean, m_boolFactory);
    m_browser->setFactoryForManager(m_managers.floating, m_floatFactory);
    m_browser->setFactoryForManager(m_managers.string, m_stringFactory);
    m_browser->setFactoryForManager(m_managers.enumeration, m_enumFactory);
    m_browser->setFactoryForManager(m_managers.command, m_pushButtonFactory);
    m_browser->setFactoryForManager(m_managers.decFloating, m_decFloatFactory);

    // Rows are built and changed on the GUI thread only, so the value
    // signals arrive directly; m_bApplying tells the page's own changes
    // from the user's.
    connect(m_managers.integer, &QtDoublePropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onIntPropertyValueChanged);
    connect(m_managers.floating, &QtDoublePropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onDoublePropertyValueChanged);
    connect(m_managers.decFloating, &QtDoublePropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onDecDoublePropertyValueChanged);
    connect(m_managers.enumeration, &QtEnumPropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onEnumPropertyValueChanged);
    connect(m_managers.boolean, &QtEnumPropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onBoolPropertyValueChanged);
    connect(m_managers.string, &QtStringPropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onStringPropertyValueChanged);
    connect(m_pushButtonFactory, &QtPushButtonFactory::onClick, this,
            &CPropertyFeaturesForm::onCommandPropertyClicked, Qt::QueuedConnection);

    connect(m_cbVisibility, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CPropertyFeaturesForm::on_cbVisibility_currentIndexChanged);
    connect(m_lineEditKey, &QLineEdit::textChanged, this, &CPropertyFeaturesForm::on_lineEditKey_textChanged);
    connect(m_btnExpand, &QPushButton::clicked, this, &CPropertyFeaturesForm::on_btnExpand_clicked);
    connect(m_btnReset, &QPushButton::clicked, this, &CPropertyFeaturesForm::on_btnReset_clicked);
    connect(m_btnSave, &QPushButton::clicked, this, &CPropertyFeaturesForm::on_btnSave_clicked);
    connect(m_btnTranslate, &QPushButton::clicked, this, &CPropertyFeaturesForm::on_btnTranslate_clicked);

    CConfiguration* cfg = CConfiguration::getInstance();
    connect(this, &CPropertyFeaturesForm::signalVisibilityChanged, cfg, &CConfiguration::setVisibility);
    connect(cfg, &CConfiguration::signalVisibilityChanged, this, &CPropertyFeaturesForm::onVisibilityChanged);
    connect(cfg, &CConfiguration::signalRestoreCfg, this, &CPropertyFeaturesForm::onRestoreCfg);
    m_bTranslated = cfg->readFeatureLanguageSetting() != 0;
    m_btnTranslate->setChecked(m_bTranslated);
    restoreConfig();
    retranslateWidgets();

    m_pCmdThread = new CCommandParamDoneStatusThread(m_cameraSide);
    connect(m_pCmdThread, &CCommandParamDoneStatusThread::setDone, this, &CPropertyFeaturesForm::onCommandDone,
            Qt::QueuedConnection);
    connect(m_pCmdThread, &CCommandParamDoneStatusThread::abandoned, this,
            &CPropertyFeaturesForm::onCommandAbandoned, Qt::QueuedConnection);
    m_pUpdateThread = new CUpdateParamThread(m_cameraSide);
    connect(m_pUpdateThread, &CUpdateParamThread::nodeRead, this, &CPropertyFeaturesForm::applyNodeInfo,
            Qt::QueuedConnection);
    m_pWriteThread = new CWriteParamThread();
    connect(
        m_pWriteThread, &CWriteParamThread::jobDone, this,
        [](const CWriteContinuation& continuation) { continuation(); }, Qt::QueuedConnection);
    // Camera-side changes arrive on the library's event thread; the page
    // unsubscribes before it retires the update worker.
    CUpdateParamThread* update = m_pUpdateThread;
    m_pLoadThread = new CLoadPropertiesThread(
        m_cameraSide, [update](const QList<QString>& names) { update->appendPropertyList(names); });
    connect(m_pLoadThread, &CLoadPropertiesThread::loaded, this, &CPropertyFeaturesForm::onTreeLoaded,
            Qt::QueuedConnection);
    m_pCmdThread->start(QThread::InheritPriority);
    m_pUpdateThread->start(QThread::InheritPriority);
    m_pWriteThread->start(QThread::InheritPriority);
    // The load starts on the next pass of the event loop, once the creator
    // has wired the page up.
    QMetaObject::invokeMethod(
        this, [this]() { m_pLoadThread->start(QThread::InheritPriority); }, Qt::QueuedConnection);
}

int CPropertyFeaturesForm::showMessage(const QString& text, QMessageBox::StandardButtons buttons,
                                       QMessageBox::Icon icon)
{
    return m_messageHandler ? m_messageHandler(text, buttons, icon) : int(QMessageBox::Ok);
}

// ---------------------------------------------------------------- loading

void CPropertyFeaturesForm::indexRows(const CFeatureNodeInfo& node)
{
    for (const CFeatureNodeInfo& child : node.children)
    {
        CFeatureNodeInfo flat = child;
        flat.children.clear();
        m_infos.insert(child.name, flat);
        indexRows(child);
    }
}

void CPropertyFeaturesForm::onTreeLoaded(CFeatureTreePtr tree, bool ok)
{
    if (!ok || !tree)
    {
        m_bLoading = false;
        emit propertyLoadAborted();
        return;
    }
    {
        CApplyGuard guard(m_bApplying);
        CFeatureTreeBuilder::setTranslated(m_bTranslated);
        m_rootProperty = m_managers.group->addProperty(QStringLiteral("Root"));
        m_rootProperty->setWhatsThis(QStringLiteral("Root"));
        for (const CFeatureNodeInfo& child : tree->children)
            CFeatureTreeBuilder::getGenProperty(child, m_managers, m_rootProperty);
        indexRows(*tree);
        QList<QtProperty*> pending = m_rootProperty->subProperties();
        QHash<QString, QtProperty*> rows;
        while (!pending.isEmpty())
        {
            QtProperty* p = pending.takeFirst();
            rows.insert(p->whatsThis(), p);
            pending = p->subProperties() + pending;
        }
        m_rows = rows;
    }
    retranslateWidgets();
    showGenParam();
    m_bLoading = false;
    emit propertyLoadFinish();
    emit showGenParamFinish(m_device);
}

QStringList CPropertyFeaturesForm::featureNames() const
{
    QStringList names;
    if (!m_rootProperty)
        return names;
    QList<QtProperty*> pending = m_rootProperty->subProperties();
    while (!pending.isEmpty())
    {
        QtProperty* p = pending.takeFirst();
        names.append(p->whatsThis());
        pending = p->subProperties() + pending;
    }
    return names;
}

// ---------------------------------------------------------------- showing

void CPropertyFeaturesForm::showGenParam()
{
    LOG_DEBUG("begin showGenParam");
    m_bLoaded = false;
    restoreConfig();
    showGenParam(unsigned(m_cbVisibility->currentIndex()));
    LOG_DEBUG("end showGenParam");
}

void CPropertyFeaturesForm::showGenParam(unsigned int level)
{
    if (!m_rootProperty)
        return;
    m_browser->setUpdatesEnabled(false);
    if (m_browser->properties().isEmpty())
    {
        for (QtProperty* top : m_rootProperty->subProperties())
            m_browser->addProperty(top);
        for (QtBrowserItem* item : m_browser->topLevelItems())
        {
            m_browser->setExpanded(item, true);
            collapseChildren(item);
        }
    }
    m_browser->setShowType(int(level));
    m_browser->setUpdatesEnabled(true);
    m_bLoaded = true;
}

QtProperty* CPropertyFeaturesForm::findProperty(QtProperty* parent, const QString& name) const
{
    if (!parent)
        return nullptr;
    for (QtProperty* child : parent->subProperties())
    {
        if (child->whatsThis() == name)
            return child;
        if (QtProperty* found = findProperty(child, name))
            return found;
    }
    return nullptr;
}

QtProperty* CPropertyFeaturesForm::findProperty(const QtAbstractPropertyManager* manager, const QString& name) const
{
    QtProperty* p = m_rows.value(name);
    return p && p->propertyManager() == manager ? p : nullptr;
}

void CPropertyFeaturesForm::expandChildren(QtBrowserItem* item)
{
    if (!item)
        return;
    m_browser->setExpanded(item, true);
    for (QtBrowserItem* child : item->children())
        expandChildren(child);
}

void CPropertyFeaturesForm::collapseChildren(QtBrowserItem* item)
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

void CPropertyFeaturesForm::expandAll()
{
    m_browser->treeWidget()->expandAll();
    m_bExpanded = true;
    retranslateWidgets();
}

void CPropertyFeaturesForm::collapseAll()
{
    m_browser->treeWidget()->collapseAll();
    m_bExpanded = false;
    retranslateWidgets();
}

void CPropertyFeaturesForm::on_btnExpand_clicked()
{
    if (m_bExpanded)
        collapseAll();
    else
        expandAll();
}

// ---------------------------------------------------------------- level, search

void CPropertyFeaturesForm::setComboLevel(int level)
{
    level = qBound(0, level, 2);
    if (m_cbVisibility->currentIndex() == level)
        return;
    m_bSyncingCombo = true;
    m_cbVisibility->setCurrentIndex(level);
    m_bSyncingCombo = false;
}

void CPropertyFeaturesForm::on_cbVisibility_currentIndexChanged(int index)
{
    if (index < 0)
        return;
    if (m_rootProperty)
        showGenParam(unsigned(index));
    if (m_bSyncingCombo)
        return;
    saveConfig();
    emit signalSaveConfFile();
}

void CPropertyFeaturesForm::onVisibilityChanged(int level)
{
    setComboLevel(level);
}

void CPropertyFeaturesForm::saveConfig()
{
    const int index = m_cbVisibility->currentIndex();
    emit signalVisibilityChanged(index);
    if (!CConfiguration::getInstance()->saveConfigToUserXml())
        showMessage(tr("Save Config failed."), QMessageBox::Ok, QMessageBox::Critical);
}

void CPropertyFeaturesForm::restoreConfig()
{
    setComboLevel(CConfiguration::getInstance()->deviceCtrlVisibility);
}

void CPropertyFeaturesForm::onRestoreCfg()
{
    restoreConfig();
}

void CPropertyFeaturesForm::on_lineEditKey_textChanged(const QString& text)
{
    if (!m_rootProperty)
        return;
    QTreeWidget* tree = m_browser->treeWidget();
    tree->setUpdatesEnabled(false);
    if (text.isEmpty())
    {
        m_browser->setShowKey(QString());
        for (QtBrowserItem* item : m_browser->topLevelItems())
        {
            m_browser->setExpanded(item, true);
            collapseChildren(item);
        }
    }
    else
    {
        // Every feature may match: search at the Guru level.
        if (m_cbVisibility->currentIndex() != 2)
            m_cbVisibility->setCurrentIndex(2);
        m_browser->setShowKey(text);
        tree->expandAll();
    }
    tree->setUpdatesEnabled(true);
}

// ---------------------------------------------------------------- rows from the camera

void CPropertyFeaturesForm::applyNodeInfo(const CFeatureNodeInfo& info)
{
    if (!info.valid)
        return;
    CFeatureNodeInfo flat = info;
    flat.children.clear();
    m_infos.insert(info.name, flat);
    QtProperty* property = m_rows.value(info.name);
    if (!property)
        return;
    {
        CApplyGuard guard(m_bApplying);
        CFeatureTreeBuilder::setTranslated(m_bTranslated);
        updatePropertyDisp(flat, property);
        updateToolTip(flat, property);
    }
    QtBrowserItem* current = m_browser->currentItem();
    if (current && current->property() == property)
        m_textDesc->setHtml(property->txtTag());
    emit rowRefreshed(info.name);
}

void CPropertyFeaturesForm::updateToolTip(const CFeatureNodeInfo& node, QtProperty* property)
{
    CFeatureTreeBuilder::updateToolTip(node, property);
}

void CPropertyFeaturesForm::updatePropertyDisp(const CFeatureNodeInfo& node, QtProperty* property)
{
    CApplyGuard guard(m_bApplying);
    CFeatureTreeBuilder::updatePropertyDisp(node, property, m_managers);
}

void CPropertyFeaturesForm::updateGrabStatus()
{
    QList<QtProperty*> shown;
    m_browser->getShowedProperties(shown);
    QList<QString> names;
    for (QtProperty* p : shown)
        if (p->hasValue())
            names.append(p->whatsThis());
    m_pUpdateThread->appendPropertyList(names);
}

void CPropertyFeaturesForm::onPropertyBrowserItemChanged(QtBrowserItem* item)
{
    if (!item)
    {
        m_textDesc->clear();
        return;
    }
    m_textDesc->setHtml(item->property()->txtTag());
    if (item->property()->hasValue())
        m_pUpdateThread->appendPropertyList({item->property()->whatsThis()});
}

// ---------------------------------------------------------------- writes

void CPropertyFeaturesForm::queueWrite(QtProperty* property, const WriteWork& work)
{
    const QString name = property->whatsThis();
    const CFeatureFormCamera::Ptr camera = m_cameraSide;
    // The job holds the camera side only; its continuation runs on this
    // page, delivered only while the page exists.
    m_pWriteThread->addJob([this, camera, name, work]() -> CWriteContinuation {
        SWriteResult result;
        result.name = name;
        const bool ran = camera->withNode(name, [&](Node& node) {
            if (!node.isWriteable())
            {
                LOG_ERROR("param is not writeable. name: [%s]", name.toLocal8Bit().constData());
                result.ok = false;
            }
            else
            {
                work(node, result);
            }
            // What the camera holds now, whatever became of the write.
            result.info = CFeatureNodeInfo::read(&node);
        });
        if (!ran)
            return CWriteContinuation();
        return [this, result]() { applyWriteResult(result); };
    });
}

void CPropertyFeaturesForm::applyWriteResult(const SWriteResult& result)
{
    applyNodeInfo(result.info);
    if (!result.message.isEmpty())
        showMessage(result.message, QMessageBox::Ok, QMessageBox::Critical);
    if (result.ok && result.isBool)
        emit signalBoolPropertyChanged(result.name, result.boolValue);
    emit writeFinished(result.name, result.ok);
}

void CPropertyFeaturesForm::onIntPropertyValueChanged(QtProperty* property, double value)
{
    if (!property || !m_bLoaded || m_bApplying)
        return;
    queueWrite(property, [value](Node& node, SWriteResult& r) {
        long inc = 1;
        if (!node.getIntIncrement(inc) || inc <= 0)
            inc = 1;
        long max = 0, min = 0;
        if (!node.getIntMaxMin(max, min))
        {
            LOG_ERROR("getIntMaxMin failed!");
            min = 0;
        }
        const long v = long(std::llround(value));
        if ((v - min) % inc != 0)
        {
            r.ok = false;
            r.message = tr("set value failed, please check increment value");
            return;
        }
        if (!node.setIntValue(v))
        {
            r.ok = false;
            r.message = GetErrorDesc();
        }
    });
}

void CPropertyFeaturesForm::onDoublePropertyValueChanged(QtProperty* property, double value)
{
    if (!property || !m_bLoaded || m_bApplying)
        return;
    queueWrite(property, [value](Node& node, SWriteResult& r) {
        if (!node.setFloatValue(value))
        {
            r.ok = false;
            r.message = GetErrorDesc();
        }
    });
}

void CPropertyFeaturesForm::onDecDoublePropertyValueChanged(QtProperty* property, double value)
{
    onDoublePropertyValueChanged(property, value);
}

void CPropertyFeaturesForm::onBoolPropertyValueChanged(QtProperty* property, int value)
{
    if (!property || !m_bLoaded || m_bApplying)
        return;
    queueWrite(property, [value](Node& node, SWriteResult& r) {
        r.isBool = true;
        r.boolValue = value == 1;
        if (!node.setBoolValue(value == 1))
        {
            r.ok = false;
            r.message = GetErrorDesc();
        }
    });
}

bool CPropertyFeaturesForm::setSpecialIntValue(Node* node, const QString& text, int represent, QString& message)
{
    QString t = text.trimmed();
    if (represent == Node::representMACAddress)
        t.remove(QLatin1Char(':')).remove(QLatin1Char('-'));
    bool ok = !t.isEmpty();
    const long value = ok ? convertQStringToInt(t, represent, ok) : 0;
    if (!ok)
    {
        message = tr("please enter invalid IP Address");
        return false;
    }
    if (!node->setIntValue(value))
    {
        message = GetErrorDesc();
        return false;
    }
    return true;
}

void CPropertyFeaturesForm::onStringPropertyValueChanged(QtProperty* property, const QString& value)
{
    if (!property || !m_bLoaded || m_bApplying)
        return;
    const CFeatureNodeInfo info = m_infos.value(property->whatsThis());
    if (info.type == Node::featureTypeRegister)
        return;
    const bool special = info.type == Node::featureTypeInteger &&
                         (info.representation == Node::representIPV4Address ||
                          info.representation == Node::representMACAddress);
    const int represent = info.representation;
    queueWrite(property, [value, special, represent](Node& node, SWriteResult& r) {
        if (special)
        {
            r.ok = setSpecialIntValue(&node, value, represent, r.message);
            return;
        }
        if (!node.setStringValue(Vorlen::Infra::CString(value.toLocal8Bit().constData())))
        {
            r.ok = false;
            r.message = GetErrorDesc();
        }
    });
}

void CPropertyFeaturesForm::onEnumPropertyValueChanged(QtProperty* property, int value)
{
    if (!property || !m_bLoaded || m_bApplying)
        return;
    const QStringList names = m_managers.enumeration->enumNames(property);
    if (value < 0 || value >= names.size())
        return;
    const QString text = names.at(value);
    const QMap<QString, QString> valueMap = g_mapNameToValueTransMap.value(property->whatsThis());
    queueWrite(property, [text, valueMap](Node& node, SWriteResult& r) {
        if (!setPropertyEnum(&node, text, valueMap))
        {
            r.ok = false;
            r.message = GetErrorDesc();
        }
    });
}

// ---------------------------------------------------------------- commands

void CPropertyFeaturesForm::onCommandPropertyClicked(QtProperty* property, bool)
{
    if (!property || !m_bLoaded)
        return;
    const QString name = property->whatsThis();
    const CFeatureFormCamera::Ptr camera = m_cameraSide;
    m_pWriteThread->addJob([this, camera, name]() -> CWriteContinuation {
        bool ok = false, done = true;
        QString message;
        const bool ran = camera->withNode(name, [&](Node& node) {
            ok = node.execute();
            if (!ok)
                message = GetErrorDesc();
            else
                done = !node.isReadable() || node.isDone();
        });
        if (!ran)
            return CWriteContinuation();
        return [this, name, ok, done, message]() { onCommandExecuted(name, ok, done, message); };
    });
}

void CPropertyFeaturesForm::onCommandExecuted(const QString& name, bool ok, bool done, const QString& message)
{
    QtProperty* property = m_rows.value(name);
    if (!ok)
    {
        showMessage(message, QMessageBox::Ok, QMessageBox::Critical);
        return;
    }
    if (done)
    {
        emit commandFinished(name);
        return;
    }
    if (property)
        m_pushButtonFactory->setDone(property, false);
    m_pCmdThread->addProperty(name);
}

void CPropertyFeaturesForm::onCommandDone(const QString& name, const CFeatureNodeInfo& info)
{
    if (QtProperty* property = m_rows.value(name))
        m_pushButtonFactory->setDone(property, true);
    applyNodeInfo(info);
    emit commandFinished(name);
}

void CPropertyFeaturesForm::onCommandAbandoned(const QString& name)
{
    // The camera went away while the command ran: the button comes back, but
    // nothing is reported as finished.
    if (QtProperty* property = m_rows.value(name))
        m_pushButtonFactory->setDone(property, true);
}

// ---------------------------------------------------------------- reset, save

void CPropertyFeaturesForm::on_btnReset_clicked()
{
    if (showMessage(tr("Are you sure to reset?"), QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Question) !=
        QMessageBox::Ok)
        return;
    // The worker outlives the page if need be: it deletes itself when done.
    auto* reset = new CDeviceResetThread();
    reset->setDevice(m_device);
    connect(reset, &CDeviceResetThread::device_reset, this, &CPropertyFeaturesForm::onDeviceReset,
            Qt::QueuedConnection);
    connect(reset, &QThread::finished, reset, &QObject::deleteLater);
    if (!m_pWaitDlg)
        m_pWaitDlg = new CWaitDlg(this);
    m_pWaitDlg->setTitle(tr("Reset"));
    m_pWaitDlg->setText(tr("Reseting..."));
    m_pWaitDlg->open();
    reset->start();
}

void CPropertyFeaturesForm::onDeviceReset(int result)
{
    if (m_pWaitDlg)
        m_pWaitDlg->accept();
    if (result)
    {
        m_pUpdateThread->appendPropertyList(featureNames());
        showMessage(tr("Reset success!"), QMessageBox::Ok, QMessageBox::Information);
    }
    else
    {
        showMessage(tr("Reset failed!"), QMessageBox::Ok, QMessageBox::Critical);
    }
}

void CPropertyFeaturesForm::on_btnSave_clicked()
{
    emit signalSaveFeatures(m_device);
}

void CPropertyFeaturesForm::onUnregisterSink()
{
    m_cameraSide->close();
}

// ---------------------------------------------------------------- language

void CPropertyFeaturesForm::on_btnTranslate_clicked()
{
    m_bTranslated = !m_bTranslated;
    m_btnTranslate->setChecked(m_bTranslated);
    transParam();
}

void CPropertyFeaturesForm::setFeatureLanguage(int language)
{
    const bool translated = language != 0;
    if (translated == m_bTranslated)
        return;
    m_bTranslated = translated;
    m_btnTranslate->setChecked(m_bTranslated);
    transParam();
}

void CPropertyFeaturesForm::transParam(const QString& rootName)
{
    QtProperty* root = rootName == QLatin1String("Root") ? m_rootProperty : m_rows.value(rootName);
    if (!root)
        return;
    CApplyGuard guard(m_bApplying);
    CFeatureTreeBuilder::setTranslated(m_bTranslated);
    m_browser->treeWidget()->setUpdatesEnabled(false);
    QList<QtProperty*> pending = root->subProperties();
    while (!pending.isEmpty())
    {
        QtProperty* p = pending.takeFirst();
        auto it = m_infos.constFind(p->whatsThis());
        if (it != m_infos.constEnd())
            CFeatureTreeBuilder::retranslateRow(it.value(), p, m_managers);
        pending += p->subProperties();
    }
    if (!m_browser->showKey().isEmpty())
        m_browser->UpdateShow();
    m_browser->treeWidget()->setUpdatesEnabled(true);
    if (QtBrowserItem* current = m_browser->currentItem())
        m_textDesc->setHtml(current->property()->txtTag());
}

void CPropertyFeaturesForm::retranslateUi()
{
    retranslateWidgets();
    transParam();
}

void CPropertyFeaturesForm::retranslateWidgets()
{
    m_cbVisibility->setItemText(0, tr("Beginner"));
    m_cbVisibility->setItemText(1, tr("Expert"));
    m_cbVisibility->setItemText(2, tr("Guru"));
    m_lineEditKey->setPlaceholderText(tr("Search features"));
    m_btnExpand->setText(m_bExpanded ? tr("Collapse All") : tr("Expand All"));
    // Wide enough for either text, so toggling never clips or shifts the row.
    const QFontMetrics metrics(m_btnExpand->font());
    m_btnExpand->setMinimumWidth(
        qMax(metrics.horizontalAdvance(tr("Collapse All")), metrics.horizontalAdvance(tr("Expand All"))) + 36);
    m_btnReset->setText(tr("Reset"));
    m_btnSave->setText(tr("Save"));
    m_btnTranslate->setText(tr("Translate"));
    m_btnTranslate->setToolTip(tr("Switch between translated and raw feature names"));
}

void CPropertyFeaturesForm::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}
