#pragma once
// The features page of one connected camera: every GenICam feature as a row
// of a tree, with a visibility level shared by all open pages, a search key,
// a description pane, editing, commands, reset and a translate switch.
// The page is the view; the rows live in its model (CFeatureTreeModel),
// what the browser shows is the navigator's (CFeatureTreeNavigator), and
// edits and commands go through the writer (CFeatureWriter). Camera traffic
// runs on workers that share the camera side (CFeatureFormCamera), never
// the page: the loader reads the whole node tree, the update worker
// refreshes rows by name, the writer's workers carry out edits and watch
// running commands. Results come back by queued signals whose receiver goes
// with the page, so a closed page gets none; closing retires the workers
// instead of waiting for a camera call under way.
#include <QMessageBox>
#include <QWidget>
#include <atomic>
#include <functional>
#include <memory>

#include "CFeatureFormCamera.h"
#include "CFeatureNodeInfo.h"
#include "CFeatureTreeBuilder.h"
#include "CFeatureTreeModel.h"
#include "CFeatureTreeNavigator.h"
#include "CFeatureWriter.h"
#include "CFeaturesFormUi.h"
#include "CLoadPropertiesThread.h"
#include "CTavMessage.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QTextEdit;
class QtBrowserItem;
class QtProperty;
class QtAbstractPropertyManager;
class QtTreePropertyBrowser;
class QtPushButtonFactory;
class CUpdateParamThread;
class CCommandParamDoneStatusThread;
class CWriteParamThread;
class CWaitDlg;

class CPropertyFeaturesForm : public QWidget
{
    Q_OBJECT
public:
    // Shows a message to the user and returns the button pressed; the
    // default is the application's message box.
    using MessageHandler =
        std::function<int(const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::Icon icon)>;

    explicit CPropertyFeaturesForm(CTavDevicePtr device, QWidget* parent = nullptr);
    ~CPropertyFeaturesForm() override;

    CTavDevicePtr device() const { return m_device; }

    // ---- on the loader: the tree of the camera, and the subscription to
    // its changes once the tree is read. False when the load stopped.
    static bool getProperty(CFeatureFormCamera& camera, const CFeatureFormCamera::ChangeSink& sink,
                            CFeatureNodeInfo& tree);
    static bool loadProperties(CFeatureFormCamera& camera, CFeatureNodeInfo& tree);

    // IPv4 or MAC text to the integer node; false with message set on bad
    // text or a refused write.
    static bool setSpecialIntValue(Vorlen::GenICam::CInternalParameterNode* node, const QString& text,
                                   int represent, QString& message);

    // ---- on the GUI thread
    bool isLoadingGenParams() const { return m_bLoading; }
    bool isLoaded() const { return m_bLoaded; }
    void showGenParam();
    void showGenParam(unsigned int level);
    QtProperty* findProperty(QtProperty* parent, const QString& name) const
    {
        return CFeatureTreeModel::findProperty(parent, name);
    }
    QtProperty* findProperty(const QtAbstractPropertyManager* manager, const QString& name) const
    {
        return m_model->findProperty(manager, name);
    }
    QtProperty* findProperty(const QString& name) const { return m_model->row(name); }
    void expandChildren(QtBrowserItem* item) { m_navigator->expandChildren(item); }
    void collapseChildren(QtBrowserItem* item) { m_navigator->collapseChildren(item); }
    void expandAll();
    void collapseAll();
    void updateToolTip(const CFeatureNodeInfo& node, QtProperty* property) { m_model->updateToolTip(node, property); }
    void updatePropertyDisp(const CFeatureNodeInfo& node, QtProperty* property)
    {
        m_model->updatePropertyDisp(node, property);
    }
    // Reads the feature again from the camera; its row follows.
    void UpdateParameter(const QString& name);
    // Streaming started or stopped: the visible rows are read again (some
    // features lock while the camera streams).
    void updateGrabStatus();
    void saveConfig();
    void restoreConfig();
    void onUnregisterSink() { m_cameraSide->close(); }
    void retranslateUi();
    // Re-labels every row below the named one in the current language, or
    // with raw feature names when the translate switch is off.
    void transParam(const QString& rootName = QStringLiteral("Root"));
    bool isTranslated() const { return m_bTranslated; }
    // Feature-name language chosen in the main window: 0 raw names, else translated.
    void setFeatureLanguage(int language);
    // Names of every feature row, in tree order.
    QStringList featureNames() const { return m_model->featureNames(); }

    void setMessageHandler(const MessageHandler& handler) { m_messageHandler = handler; }
    // Called on the loader after each node read; returning false stops the
    // load as a lost camera would (tests use it to cut the camera mid-load).
    // Set before the load starts (it starts on the event loop's next pass).
    void setLoadProbe(const std::function<bool(int nodesRead)>& probe) { m_cameraSide->setLoadProbe(probe); }

    QtTreePropertyBrowser* browser() const { return m_ui.browser; }
    QComboBox* visibilityCombo() const { return m_ui.cbVisibility; }
    QLineEdit* keyEdit() const { return m_ui.lineEditKey; }
    QTextEdit* descriptionPane() const { return m_ui.textDesc; }
    QtPushButtonFactory* commandFactory() const { return m_model->commandFactory(); }
    const CFeatureTreeBuilder::SManagers& managers() const { return m_model->managers(); }
    CUpdateParamThread* updateThread() const { return m_pUpdateThread; }
    CCommandParamDoneStatusThread* commandThread() const { return m_writer->commandThread(); }
    CWriteParamThread* writeThread() const { return m_writer->writeThread(); }
    CLoadPropertiesThread* loadThread() const { return m_pLoadThread; }

signals:
    // The tree is built and shown (showGenParamFinish follows).
    void propertyLoadFinish();
    // The load stopped (camera gone, page closing): no tree is shown.
    void propertyLoadAborted();
    void showGenParamFinish(CTavDevicePtr device);
    void signalVisibilityChanged(int level);
    void signalSaveConfFile();
    void signalBoolPropertyChanged(QString name, bool value);
    // The save button: the panel opens the save-features dialog.
    void signalSaveFeatures(CTavDevicePtr device);
    // A write came back from the camera (ok false: refused, message shown).
    void writeFinished(QString name, bool ok);
    // A row was refreshed from the camera.
    void rowRefreshed(QString name);
    // A command the page started has finished on the camera.
    void commandFinished(QString name);

public slots:
    void onTreeLoaded(CFeatureTreePtr tree, bool ok);
    void onPropertyBrowserItemChanged(QtBrowserItem* item);
    void onBoolPropertyValueChanged(QtProperty* property, int value);
    void onIntPropertyValueChanged(QtProperty* property, double value);
    void onDoublePropertyValueChanged(QtProperty* property, double value);
    void onDecDoublePropertyValueChanged(QtProperty* property, double value)
    {
        onDoublePropertyValueChanged(property, value);
    }
    void onStringPropertyValueChanged(QtProperty* property, const QString& value);
    void onEnumPropertyValueChanged(QtProperty* property, int value);
    void onCommandPropertyClicked(QtProperty* property, bool checked);
    void onDeviceReset(int result);
    void onVisibilityChanged(int level) { setComboLevel(level); }
    void onRestoreCfg() { restoreConfig(); }
    void on_cbVisibility_currentIndexChanged(int index);
    void on_lineEditKey_textChanged(const QString& text);
    void on_btnExpand_clicked();
    void on_btnReset_clicked();
    void on_btnSave_clicked() { emit signalSaveFeatures(m_device); }
    void on_btnTranslate_clicked();

private:
    void init();
    void retranslateWidgets();
    // A user edit of the row: the work runs on the write worker once the
    // feature is known to be writeable.
    bool acceptsEdit(QtProperty* property) const;
    void queueWrite(QtProperty* property, const CFeatureWriter::Work& work);
    void applyNodeInfo(const CFeatureNodeInfo& info);
    int showMessage(const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::Icon icon);
    void setComboLevel(int level);

    CTavDevicePtr m_device;
    CFeatureFormCamera::Ptr m_cameraSide;

    CFeaturesFormUi m_ui;
    CWaitDlg* m_pWaitDlg = nullptr;

    // Declared in the order they are built; the writer goes before the model
    // it refers to, the browser (in the destructor) before both.
    std::unique_ptr<CFeatureTreeModel> m_model;
    std::unique_ptr<CFeatureTreeNavigator> m_navigator;
    std::unique_ptr<CFeatureWriter> m_writer;
    CLoadPropertiesThread* m_pLoadThread = nullptr;
    CUpdateParamThread* m_pUpdateThread = nullptr;

    std::atomic<bool> m_bLoading{true};
    bool m_bLoaded = false;
    bool m_bSyncingCombo = false;   // combo set from the shared level, nothing to save
    bool m_bTranslated = true;

    MessageHandler m_messageHandler;
};
