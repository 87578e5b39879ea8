#pragma once
// The features page of one connected camera: every GenICam feature as a row
// of a tree, with a visibility level shared by all open pages, a search key,
// a description pane, editing, commands, reset and a translate switch.
// Camera traffic runs on the page's workers: the loader reads the whole node
// tree, the update worker refreshes rows by name, the write worker carries
// out the user's edits and reads the values back, the command worker polls
// running commands. They share the camera side (CFeatureFormCamera), never
// the page; results come back to the GUI thread by queued signals whose
// receiver is the page, so a closed page gets none. Closing retires the
// workers instead of waiting for a camera call under way.
#include <QHash>
#include <QMessageBox>
#include <QMutex>
#include <QWidget>
#include <atomic>
#include <functional>
#include <memory>

#include "CFeatureNodeInfo.h"
#include "CFeatureFormCamera.h"
#include "CFeatureTreeBuilder.h"
#include "CLoadPropertiesThread.h"
#include "CTavMessage.h"
#include "Vorlen/GenICam.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QTextEdit;
class QtBrowserItem;
class QtProperty;
class QtAbstractPropertyManager;
class QtTreePropertyBrowser;
class QtDoubleSpinBoxFactory;
class QtEnumEditorFactory;
class QtLineEditFactory;
class QtPushButtonFactory;
class DecoratedDoubleSpinBoxFactory;
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

    // IPv4 or MAC text to the integer node; false with message set on bad
    // text or a refused write.
    static bool setSpecialIntValue(Vorlen::GenICam::CInternalParameterNode* node, const QString& text,
                                   int represent, QString& message);

    // ---- on the GUI thread
    bool isLoadingGenParams() const { return m_bLoading; }
    bool isLoaded() const { return m_bLoaded; }
    void showGenParam();
    void showGenParam(unsigned int level);
    QtProperty* findProperty(QtProperty* parent, const QString& name) const;
    QtProperty* findProperty(const QtAbstractPropertyManager* manager, const QString& name) const;
    QtProperty* findProperty(const QString& name) const { return m_rows.value(name); }
    void expandChildren(QtBrowserItem* item);
    void collapseChildren(QtBrowserItem* item);
    void expandAll();
    void collapseAll();
    void updateToolTip(const CFeatureNodeInfo& node, QtProperty* property);
    void updatePropertyDisp(const CFeatureNodeInfo& node, QtProperty* property);
    // Streaming started or stopped: the visible rows are read again (some
    // features lock while the camera streams).
    void updateGrabStatus();
    void saveConfig();
    void restoreConfig();
    void onUnregisterSink();
    void retranslateUi();
    // Re-labels every row below the named one in the current language, or
    // with raw feature names when the translate switch is off.
    void transParam(const QString& rootName = QStringLiteral("Root"));
    bool isTranslated() const { return m_bTranslated; }
    // Feature-name language chosen in the main window: 0 raw names, else translated.
    void setFeatureLanguage(int language);
    // Names of every feature row, in tree order.
    QStringList featureNames() const;

    void setMessageHandler(const MessageHandler& handler) { m_messageHandler = handler; }
    // Called on the loader after each node read; returning false stops the
    // load as a lost camera would (tests use it to cut the camera mid-load).
    // Set before the load starts (it starts on the event loop's next pass).
    void setLoadProbe(const std::function<bool(int nodesRead)>& probe) { m_cameraSide->setLoadProbe(probe); }

    QtTreePropertyBrowser* browser() const { return m_browser; }
    QComboBox* visibilityCombo() const { return m_cbVisibility; }
    QLineEdit* keyEdit() const { return m_lineEditKey; }
    QTextEdit* descriptionPane() const { return m_textDesc; }
    QtPushButtonFactory* commandFactory() const { return m_pushButtonFactory; }
    const CFeatureTreeBuilder::SManagers& managers() const { return m_managers; }
    CUpdateParamThread* updateThread() const { return m_pUpdateThread; }
    CCommandParamDoneStatusThread* commandThread() const { return m_pCmdThread; }
    CWriteParamThread* writeThread() const { return m_pWriteThread; }
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
    void onDecDoublePropertyValueChanged(QtProperty* property, double value);
    void onStringPropertyValueChanged(QtProperty* property, const QString& value);
    void onEnumPropertyValueChanged(QtProperty* property, int value);
    void onCommandPropertyClicked(QtProperty* property, bool checked);
    void onCommandDone(const QString& name, const CFeatureNodeInfo& info);
    void onDeviceReset(int result);
    void onVisibilityChanged(int level);
    void onRestoreCfg();
    void on_cbVisibility_currentIndexChanged(int index);
    void on_lineEditKey_textChanged(const QString& text);
    void on_btnExpand_clicked();
    void on_btnReset_clicked();
    void on_btnSave_clicked();
    void on_btnTranslate_clicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct SWriteResult
    {
        QString name;
        bool ok = true;
        QString message;
        CFeatureNodeInfo info;
        bool isBool = false;
        bool boolValue = false;
    };
    using WriteWork = std::function<void(Vorlen::GenICam::CInternalParameterNode& node, SWriteResult& result)>;

    void init();
    void buildUi();
    void retranslateWidgets();
    void queueWrite(QtProperty* property, const WriteWork& work);
    void applyWriteResult(const SWriteResult& result);
    void applyNodeInfo(const CFeatureNodeInfo& info);
    void onCommandExecuted(const QString& name, bool ok, bool done, const QString& message);
    void onCommandAbandoned(const QString& name);
    void indexRows(const CFeatureNodeInfo& node);
    int showMessage(const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::Icon icon);
    void setComboLevel(int level);

    CTavDevicePtr m_device;
    CFeatureFormCamera::Ptr m_cameraSide;

    QtTreePropertyBrowser* m_browser = nullptr;
    QComboBox* m_cbVisibility = nullptr;
    QLineEdit* m_lineEditKey = nullptr;
    QPushButton* m_btnExpand = nullptr;
    QPushButton* m_btnReset = nullptr;
    QPushButton* m_btnSave = nullptr;
    QPushButton* m_btnTranslate = nullptr;
    QTextEdit* m_textDesc = nullptr;
    CWaitDlg* m_pWaitDlg = nullptr;

    CFeatureTreeBuilder::SManagers m_managers;
    QtDoubleSpinBoxFactory* m_intFactory = nullptr;
    QtEnumEditorFactory* m_boolFactory = nullptr;
    QtDoubleSpinBoxFactory* m_floatFactory = nullptr;
    QtLineEditFactory* m_stringFactory = nullptr;
    QtEnumEditorFactory* m_enumFactory = nullptr;
    QtPushButtonFactory* m_pushButtonFactory = nullptr;
    DecoratedDoubleSpinBoxFactory* m_decFloatFactory = nullptr;

    QtProperty* m_rootProperty = nullptr;
    QHash<QString, QtProperty*> m_rows;              // GUI thread
    QHash<QString, CFeatureNodeInfo> m_infos;        // GUI thread: last record of each row

    CLoadPropertiesThread* m_pLoadThread = nullptr;
    CUpdateParamThread* m_pUpdateThread = nullptr;
    CCommandParamDoneStatusThread* m_pCmdThread = nullptr;
    CWriteParamThread* m_pWriteThread = nullptr;

    std::atomic<bool> m_bLoading{true};
    bool m_bLoaded = false;
    bool m_bApplying = false;       // rows changed by the page itself, not by the user
    bool m_bSyncingCombo = false;   // combo set from the shared level, nothing to save
    bool m_bTranslated = true;
    bool m_bExpanded = false;

    MessageHandler m_messageHandler;
};
