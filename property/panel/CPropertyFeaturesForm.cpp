#include "CPropertyFeaturesForm.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <cmath>

#include "CConfiguration.h"
#include "CDeviceResetThread.h"
#include "CFeatureTreeModel.h"
#include "CLanguageWatcher.h"
#include "CTavDevice.h"
#include "CUpdateParamThread.h"
#include "CWaitDlg.h"
#include "DecoratedDoublePropertyManager.h"
#include "MessageBox.h"
#include "ParamTransTables.h"
#include "QtPushButtonFactory.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"
#include "qtpropertymanager.h"
#include "qttreepropertybrowser.h"

using namespace Vorlen::GenICam;
using Node = CInternalParameterNode;
using SWriteResult = CFeatureWriter::SResult;

CPropertyFeaturesForm::CPropertyFeaturesForm(CTavDevicePtr device, QWidget* parent)
    : QWidget(parent), m_device(device), m_cameraSide(std::make_shared<CFeatureFormCamera>(device))
{
    m_messageHandler = [this](const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::Icon icon) {
        return messageBox(text, this, buttons, icon);
    };
    init();
    CLanguageWatcher::install(this, [this]() { retranslateUi(); });
}

CPropertyFeaturesForm::~CPropertyFeaturesForm()
{
    // No change notice reaches the update worker after this; workers stop
    // at their next check. A worker inside a camera call is not waited for:
    // it deletes itself when the call returns, and its result, queued to
    // this page (or its writer), is dropped with their connections.
    onUnregisterSink();
    for (CJobQueueThread* worker : std::initializer_list<CJobQueueThread*>{m_pLoadThread, m_pUpdateThread})
    {
        disconnect(worker, nullptr, this, nullptr);
        worker->retire();
    }
    m_writer.reset();
    // The tree before its rows, which go with the model.
    delete m_ui.browser;
    m_ui.browser = nullptr;
}

void CPropertyFeaturesForm::init()
{
    qRegisterMetaType<QtProperty*>("QtProperty*");
    m_ui.setupUi(this);
    connect(m_ui.browser, &QtAbstractPropertyBrowser::currentItemChanged, this,
            &CPropertyFeaturesForm::onPropertyBrowserItemChanged);
    m_model.reset(new CFeatureTreeModel());
    m_model->bindFactories(m_ui.browser);
    m_navigator.reset(new CFeatureTreeNavigator(m_ui.browser));

    // Rows are built and changed on the GUI thread only, so the value
    // signals arrive directly; the model tells its own changes from the user's.
    const CFeatureTreeBuilder::SManagers& m = m_model->managers();
    connect(m.integer, &QtDoublePropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onIntPropertyValueChanged);
    connect(m.floating, &QtDoublePropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onDoublePropertyValueChanged);
    connect(m.decFloating, &QtDoublePropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onDecDoublePropertyValueChanged);
    connect(m.enumeration, &QtEnumPropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onEnumPropertyValueChanged);
    connect(m.boolean, &QtEnumPropertyManager::valueChanged, this, &CPropertyFeaturesForm::onBoolPropertyValueChanged);
    connect(m.string, &QtStringPropertyManager::valueChanged, this,
            &CPropertyFeaturesForm::onStringPropertyValueChanged);
    connect(m_model->commandFactory(), &QtPushButtonFactory::onClick, this,
            &CPropertyFeaturesForm::onCommandPropertyClicked, Qt::QueuedConnection);

    connect(m_ui.cbVisibility, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CPropertyFeaturesForm::on_cbVisibility_currentIndexChanged);
    connect(m_ui.lineEditKey, &QLineEdit::textChanged, this, &CPropertyFeaturesForm::on_lineEditKey_textChanged);
    connect(m_ui.btnExpand, &QPushButton::clicked, this, &CPropertyFeaturesForm::on_btnExpand_clicked);
    connect(m_ui.btnReset, &QPushButton::clicked, this, &CPropertyFeaturesForm::on_btnReset_clicked);
    connect(m_ui.btnSave, &QPushButton::clicked, this, &CPropertyFeaturesForm::on_btnSave_clicked);
    connect(m_ui.btnTranslate, &QPushButton::clicked, this, &CPropertyFeaturesForm::on_btnTranslate_clicked);

    CConfiguration* cfg = CConfiguration::getInstance();
    connect(this, &CPropertyFeaturesForm::signalVisibilityChanged, cfg, &CConfiguration::setVisibility);
    connect(cfg, &CConfiguration::signalVisibilityChanged, this, &CPropertyFeaturesForm::onVisibilityChanged);
    connect(cfg, &CConfiguration::signalRestoreCfg, this, &CPropertyFeaturesForm::onRestoreCfg);
    m_bTranslated = cfg->readFeatureLanguageSetting() != 0;
    m_ui.btnTranslate->setChecked(m_bTranslated);
    restoreConfig();
    retranslateWidgets();

    m_writer.reset(new CFeatureWriter(m_cameraSide, *m_model));
    connect(m_writer.get(), &CFeatureWriter::nodeRead, this, &CPropertyFeaturesForm::applyNodeInfo);
    connect(m_writer.get(), &CFeatureWriter::refused, this,
            [this](const QString& message) { showMessage(message, QMessageBox::Ok, QMessageBox::Critical); });
    connect(m_writer.get(), &CFeatureWriter::boolWritten, this, &CPropertyFeaturesForm::signalBoolPropertyChanged);
    connect(m_writer.get(), &CFeatureWriter::writeFinished, this, &CPropertyFeaturesForm::writeFinished);
    connect(m_writer.get(), &CFeatureWriter::commandFinished, this, &CPropertyFeaturesForm::commandFinished);

    const CFeatureFormCamera::Ptr camera = m_cameraSide;
    m_pUpdateThread = new CUpdateParamThread([camera](const QString& name) { return camera->readNode(name); });
    connect(m_pUpdateThread, &CUpdateParamThread::nodeRead, this, &CPropertyFeaturesForm::applyNodeInfo,
            Qt::QueuedConnection);
    m_pLoadThread = new CLoadPropertiesThread();
    connect(m_pLoadThread, &CLoadPropertiesThread::loaded, this, &CPropertyFeaturesForm::onTreeLoaded,
            Qt::QueuedConnection);
    // The load starts on the next pass of the event loop, once the creator
    // has wired the page up. Camera-side changes arrive on the library's
    // event thread; the page unsubscribes before it retires the update worker.
    CUpdateParamThread* update = m_pUpdateThread;
    QMetaObject::invokeMethod(
        this,
        [this, camera, update]() {
            m_pLoadThread->load([camera, update](CFeatureNodeInfo& tree) {
                return getProperty(*camera, [update](const QList<QString>& names) { update->appendPropertyList(names); },
                                   tree);
            });
        },
        Qt::QueuedConnection);
}

int CPropertyFeaturesForm::showMessage(const QString& text, QMessageBox::StandardButtons buttons,
                                       QMessageBox::Icon icon)
{
    return m_messageHandler ? m_messageHandler(text, buttons, icon) : int(QMessageBox::Ok);
}

// ---------------------------------------------------------------- loading

bool CPropertyFeaturesForm::getProperty(CFeatureFormCamera& camera, const CFeatureFormCamera::ChangeSink& sink,
                                        CFeatureNodeInfo& tree)
{
    LOG_DEBUG("begin getProperty");
    const bool ok = loadProperties(camera, tree);
    if (ok)
        camera.subscribe(sink);
    LOG_DEBUG("end getProperty");
    return ok;
}

bool CPropertyFeaturesForm::loadProperties(CFeatureFormCamera& camera, CFeatureNodeInfo& tree)
{
    LOG_DEBUG("Start to load properties.");
    CFeatureFormCamera::NodeList children;
    if (!camera.readRoot(tree, children))
    {
        LOG_ERROR("Get children params failed!");
        return false;
    }
    if (children.empty())
    {
        LOG_DEBUG("SubParams is empty!");
        return true;
    }
    return camera.readChildren(children, tree);
}

void CPropertyFeaturesForm::onTreeLoaded(CFeatureTreePtr tree, bool ok)
{
    if (!ok || !tree)
    {
        m_bLoading = false;
        emit propertyLoadAborted();
        return;
    }
    m_model->build(*tree, m_bTranslated);
    retranslateWidgets();
    showGenParam();
    m_bLoading = false;
    emit propertyLoadFinish();
    emit showGenParamFinish(m_device);
}

// ---------------------------------------------------------------- showing

void CPropertyFeaturesForm::showGenParam()
{
    LOG_DEBUG("begin showGenParam");
    m_bLoaded = false;
    restoreConfig();
    showGenParam(unsigned(m_ui.cbVisibility->currentIndex()));
    LOG_DEBUG("end showGenParam");
}

void CPropertyFeaturesForm::showGenParam(unsigned int level)
{
    if (!m_model->root())
        return;
    m_navigator->show(m_model->root(), int(level));
    m_bLoaded = true;
}

void CPropertyFeaturesForm::expandAll()
{
    m_navigator->expandAll();
    retranslateWidgets();
}

void CPropertyFeaturesForm::collapseAll()
{
    m_navigator->collapseAll();
    retranslateWidgets();
}

void CPropertyFeaturesForm::on_btnExpand_clicked()
{
    if (m_navigator->isExpanded())
        collapseAll();
    else
        expandAll();
}

// ---------------------------------------------------------------- level, search

void CPropertyFeaturesForm::setComboLevel(int level)
{
    level = qBound(0, level, 2);
    if (m_ui.cbVisibility->currentIndex() == level)
        return;
    m_bSyncingCombo = true;
    m_ui.cbVisibility->setCurrentIndex(level);
    m_bSyncingCombo = false;
}

void CPropertyFeaturesForm::on_cbVisibility_currentIndexChanged(int index)
{
    if (index < 0)
        return;
    showGenParam(unsigned(index));
    if (m_bSyncingCombo)
        return;
    saveConfig();
    emit signalSaveConfFile();
}

void CPropertyFeaturesForm::saveConfig()
{
    emit signalVisibilityChanged(m_ui.cbVisibility->currentIndex());
    CConfiguration* config = CConfiguration::getInstance();
    if (!config->saveConfigToUserXml())
        showMessage(config->saveFailedMessage(tr("Save Config failed.")), QMessageBox::Ok, QMessageBox::Critical);
}

void CPropertyFeaturesForm::restoreConfig()
{
    setComboLevel(CConfiguration::getInstance()->deviceCtrlVisibility);
}

void CPropertyFeaturesForm::on_lineEditKey_textChanged(const QString& text)
{
    if (!m_model->root())
        return;
    // Every feature may match: search at the Guru level.
    if (!text.isEmpty() && m_ui.cbVisibility->currentIndex() != 2)
        m_ui.cbVisibility->setCurrentIndex(2);
    m_navigator->setKey(text);
}

// ---------------------------------------------------------------- rows from the camera

void CPropertyFeaturesForm::applyNodeInfo(const CFeatureNodeInfo& info)
{
    QtProperty* property = m_model->apply(info, m_bTranslated);
    if (!property)
        return;
    QtBrowserItem* current = m_ui.browser->currentItem();
    if (current && current->property() == property)
        m_ui.textDesc->setHtml(property->txtTag());
    emit rowRefreshed(info.name);
}

void CPropertyFeaturesForm::UpdateParameter(const QString& name)
{
    m_pUpdateThread->appendPropertyList({name});
}

void CPropertyFeaturesForm::updateGrabStatus()
{
    QList<QtProperty*> shown;
    m_ui.browser->getShowedProperties(shown);
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
        m_ui.textDesc->clear();
        return;
    }
    m_ui.textDesc->setHtml(item->property()->txtTag());
    if (item->property()->hasValue())
        UpdateParameter(item->property()->whatsThis());
}

// ---------------------------------------------------------------- writes

bool CPropertyFeaturesForm::acceptsEdit(QtProperty* property) const
{
    return property && m_bLoaded && !m_model->isApplying();
}

void CPropertyFeaturesForm::queueWrite(QtProperty* property, const CFeatureWriter::Work& work)
{
    const QString name = property->whatsThis();
    m_writer->write(name, [name, work](Node& node, SWriteResult& result) {
        if (!node.isWriteable())
        {
            LOG_ERROR("param is not writeable. name: [%s]", name.toLocal8Bit().constData());
            result.ok = false;
            return;
        }
        work(node, result);
    });
}

// A write the camera refused: its reason goes to the user.
static void refusedBy(SWriteResult& result)
{
    result.ok = false;
    result.message = GetErrorDesc();
}

void CPropertyFeaturesForm::onIntPropertyValueChanged(QtProperty* property, double value)
{
    if (!acceptsEdit(property))
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
        }
        else if (!node.setIntValue(v))
        {
            refusedBy(r);
        }
    });
}

void CPropertyFeaturesForm::onDoublePropertyValueChanged(QtProperty* property, double value)
{
    if (!acceptsEdit(property))
        return;
    queueWrite(property, [value](Node& node, SWriteResult& r) {
        if (!node.setFloatValue(value))
            refusedBy(r);
    });
}

void CPropertyFeaturesForm::onBoolPropertyValueChanged(QtProperty* property, int value)
{
    if (!acceptsEdit(property))
        return;
    queueWrite(property, [value](Node& node, SWriteResult& r) {
        r.isBool = true;
        r.boolValue = value == 1;
        if (!node.setBoolValue(value == 1))
            refusedBy(r);
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
    if (!acceptsEdit(property))
        return;
    const CFeatureNodeInfo info = m_model->record(property->whatsThis());
    if (info.type == Node::featureTypeRegister)
        return;
    const bool special = info.type == Node::featureTypeInteger &&
                         (info.representation == Node::representIPV4Address ||
                          info.representation == Node::representMACAddress);
    const int represent = info.representation;
    queueWrite(property, [value, special, represent](Node& node, SWriteResult& r) {
        if (special)
            r.ok = setSpecialIntValue(&node, value, represent, r.message);
        else if (!node.setStringValue(Vorlen::Infra::CString(value.toLocal8Bit().constData())))
            refusedBy(r);
    });
}

void CPropertyFeaturesForm::onEnumPropertyValueChanged(QtProperty* property, int value)
{
    if (!acceptsEdit(property))
        return;
    const QStringList names = m_model->managers().enumeration->enumNames(property);
    if (value < 0 || value >= names.size())
        return;
    const QString text = names.at(value);
    const QMap<QString, QString> valueMap = g_mapNameToValueTransMap.value(property->whatsThis());
    queueWrite(property, [text, valueMap](Node& node, SWriteResult& r) {
        if (!setPropertyEnum(&node, text, valueMap))
            refusedBy(r);
    });
}

void CPropertyFeaturesForm::onCommandPropertyClicked(QtProperty* property, bool)
{
    if (property && m_bLoaded)
        m_writer->execute(property->whatsThis());
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

// ---------------------------------------------------------------- language

void CPropertyFeaturesForm::on_btnTranslate_clicked()
{
    setFeatureLanguage(m_bTranslated ? 0 : 1);
}

void CPropertyFeaturesForm::setFeatureLanguage(int language)
{
    const bool translated = language != 0;
    if (translated == m_bTranslated)
        return;
    m_bTranslated = translated;
    m_ui.btnTranslate->setChecked(m_bTranslated);
    transParam();
}

void CPropertyFeaturesForm::transParam(const QString& rootName)
{
    QtProperty* root = rootName == QLatin1String("Root") ? m_model->root() : m_model->row(rootName);
    if (!root)
        return;
    m_ui.browser->treeWidget()->setUpdatesEnabled(false);
    m_model->relabel(root, m_bTranslated);
    if (!m_ui.browser->showKey().isEmpty())
        m_ui.browser->UpdateShow();
    m_ui.browser->treeWidget()->setUpdatesEnabled(true);
    if (QtBrowserItem* current = m_ui.browser->currentItem())
        m_ui.textDesc->setHtml(current->property()->txtTag());
}

void CPropertyFeaturesForm::retranslateUi()
{
    retranslateWidgets();
    transParam();
}

void CPropertyFeaturesForm::retranslateWidgets()
{
    m_ui.retranslateUi(m_navigator->isExpanded());
}
