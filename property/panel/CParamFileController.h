#pragma once
// "Open Config" and "Save Config" of the device list: asks for the file,
// runs the parameter-file worker behind a wait dialog with its progress,
// and tells the user how it went (a load offers its report). One file at a
// time. The wait dialog can be cancelled: the worker is retired (it stops at
// its next step and reports nothing) and the next file can be opened or
// saved at once. A damaged file is only loaded when the user says so. The
// main window connects the device list's signals to onOpenConfig/
// onSaveConfig; openConfig/saveConfig take the device key.
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <functional>

#include "CObserver.h"
#include "CTavMessage.h"
#include "CParamFileLoadThread.h"

class QWidget;
class CParamFileSaveThread;
class CParamFileThread;
class CWaitDlg;

class CParamFileController : public QObject, public CObserver
{
    Q_OBJECT
public:
    // save: true for a file to write. Returns the chosen path, empty when cancelled.
    using FileChooser = std::function<QString(bool save, const QString& suggestion)>;
    // path: a file the message offers to open (the load report), or empty.
    using MessageHandler = std::function<void(const QString& text, QMessageBox::Icon icon, const QString& path)>;
    // A question with OK and Cancel; true for OK.
    using QuestionHandler = std::function<bool(const QString& text)>;

    explicit CParamFileController(QWidget* dialogParent, QObject* parent = nullptr);
    ~CParamFileController() override;

    void Update(CTavMessagePtr msg) override;

    void setFileChooser(const FileChooser& chooser) { m_chooser = chooser; }
    void setMessageHandler(const MessageHandler& handler) { m_messageHandler = handler; }
    void setQuestionHandler(const QuestionHandler& handler) { m_questionHandler = handler; }
    void setEnvironment(const SParamFileEnv& env) { m_env = env; }
    void setReportPath(const QString& path) { m_reportPath = path; }

    bool isBusy() const { return m_load || m_save; }
    CWaitDlg* waitDialog() const { return m_wait; }

    // Without the chooser: the file given.
    bool loadFile(const QString& key, const QString& path);
    bool saveFile(const QString& key, const QString& path);

public slots:
    void openConfig(const QString& key);
    void saveConfig(const QString& key);
    void onOpenConfig(CTavDevicePtr device);
    void onSaveConfig(CTavDevicePtr device);

signals:
    void update_receive(CTavMessagePtr msg);
    void loadDone(int result, int loaded, int total);
    void saveDone(bool ok, int count);

private slots:
    void OnUpdateReceive(CTavMessagePtr msg);
    // The user closed the wait dialog.
    void onWaitCancelled();

private:
    // What the current worker reports (see hear()).
    void onNeedConnect(QString key);
    void onProgress(int done, int total);
    void onDamaged(QString why, int values);
    void onLoadFinished(int result, int loaded, int total, QString message, QString reportError);
    void onSaveFinished(bool ok, QString message, int count);
    // Connects a worker's signal, queued, to handler for as long as that
    // worker is the current one: a worker dropped or done is not heard,
    // even for what it had sent before.
    template <class Sender, class Owner, class... Args>
    void hear(Sender* worker, void (Owner::*signal)(Args...), void (CParamFileController::*handler)(Args...));

    bool refuseWhileBusy();
    // The worker under way (load or save), or null.
    CParamFileThread* current() const;
    // Forgets the current worker without its result: it is retired, and
    // what it still sends is not heard.
    void drop();
    // Runs the worker (its own signals already heard) behind the wait dialog.
    void begin(CParamFileThread* worker, const QString& key, const QString& title, const QString& text);
    // The worker is done: it goes (the caller forgets it), the wait dialog
    // closes. Returns its file.
    QString finish(CParamFileThread* worker);
    void showWait(const QString& title, const QString& text);
    void closeWait();
    void showMessage(const QString& text, QMessageBox::Icon icon, const QString& path = QString());
    bool ask(const QString& text);
    QString chooseFile(bool save, const QString& key);
    // Asks for the file, then saves or loads it.
    void chooseAndRun(bool save, const QString& key);

    QPointer<QWidget> m_dialogParent;
    FileChooser m_chooser;
    MessageHandler m_messageHandler;
    QuestionHandler m_questionHandler;
    SParamFileEnv m_env;
    QString m_reportPath;
    CParamFileLoadThread* m_load = nullptr;
    CParamFileSaveThread* m_save = nullptr;
    QString m_busyKey;
    // Counts the workers started and let go; hear() compares it.
    quint64 m_run = 0;
    // The user is being asked whether to load a damaged file.
    bool m_asking = false;
    QString m_waitText;
    CWaitDlg* m_wait = nullptr;
};
