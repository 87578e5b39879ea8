#include "CParamFileController.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CParamFileSaveThread.h"
#include "CTavDevice.h"
#include "CWaitDlg.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "MessageBox.h"
#include "Utils.h"

CParamFileController::CParamFileController(QWidget* dialogParent, QObject* parent)
    : QObject(parent), m_dialogParent(dialogParent), m_env(SParamFileEnv::standard())
{
    connect(this, &CParamFileController::update_receive, this, &CParamFileController::OnUpdateReceive,
            Qt::QueuedConnection);
    CDeviceManager::getInstance()->attach(this);
}

CParamFileController::~CParamFileController()
{
    CDeviceManager::getInstance()->detach(this);
    // A worker under way may be inside a feature write: it stops at the next
    // feature and deletes itself. Its report (a load ends as stopped, never
    // as loaded) is dropped with this controller's connections, so nothing
    // is announced and no device takes the file as its current one.
    drop();
    delete m_wait;
}

void CParamFileController::Update(CTavMessagePtr msg)
{
    emit update_receive(msg);
}

void CParamFileController::showMessage(const QString& text, QMessageBox::Icon icon, const QString& path)
{
    if (m_messageHandler)
        m_messageHandler(text, icon, path);
    else
        messageBox(text, m_dialogParent, QMessageBox::Ok, icon, path);
}

bool CParamFileController::ask(const QString& text)
{
    if (m_questionHandler)
        return m_questionHandler(text);
    return messageBox(text, m_dialogParent, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Question) ==
           QMessageBox::Ok;
}

CParamFileThread* CParamFileController::current() const
{
    if (m_load)
        return m_load;
    return m_save;
}

template <class Sender, class Owner, class... Args>
void CParamFileController::hear(Sender* worker, void (Owner::*signal)(Args...),
                                void (CParamFileController::*handler)(Args...))
{
    const quint64 run = m_run;
    connect(
        worker, signal, this,
        [this, run, handler](Args... args) {
            if (run == m_run)
                (this->*handler)(args...);
        },
        Qt::QueuedConnection);
}

void CParamFileController::drop()
{
    if (CParamFileThread* t = current())
    {
        disconnect(t, nullptr, this, nullptr);
        t->retire();
    }
    ++m_run;
    m_load = nullptr;
    m_save = nullptr;
}

bool CParamFileController::refuseWhileBusy()
{
    if (!isBusy())
        return false;
    showMessage(tr("Another parameter file is being processed. Please wait until it is done."),
                QMessageBox::Information);
    return true;
}

QString CParamFileController::chooseFile(bool save, const QString& key)
{
    QString suggestion = CConfiguration::getInstance()->appHomeDir();
    if (const CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(key))
    {
        if (!device->getCurFile().isEmpty())
            suggestion = device->getCurFile();
        else if (save)
            suggestion = QDir(suggestion).filePath(device->getDeviceSaveName() + QStringLiteral(".txt"));
    }
    if (m_chooser)
        return m_chooser(save, suggestion);
    const QString filter = tr("Parameter files (*.txt);;All files (*)");
    if (save)
    {
        QString path = QFileDialog::getSaveFileName(m_dialogParent, tr("Save Config"), suggestion, filter);
        if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty())
            path += QStringLiteral(".txt");
        return path;
    }
    return QFileDialog::getOpenFileName(m_dialogParent, tr("Open Config"), suggestion, filter);
}

void CParamFileController::onOpenConfig(CTavDevicePtr device)
{
    if (device)
        openConfig(device->getDeviceKey());
}

void CParamFileController::onSaveConfig(CTavDevicePtr device)
{
    if (device)
        saveConfig(device->getDeviceKey());
}

void CParamFileController::openConfig(const QString& key)
{
    chooseAndRun(false, key);
}

void CParamFileController::saveConfig(const QString& key)
{
    chooseAndRun(true, key);
}

void CParamFileController::chooseAndRun(bool save, const QString& key)
{
    if (refuseWhileBusy())
        return;
    const QString path = chooseFile(save, key);
    if (path.isEmpty())
        return;
    if (save)
        saveFile(key, path);
    else
        loadFile(key, path);
}

bool CParamFileController::loadFile(const QString& key, const QString& path)
{
    if (refuseWhileBusy())
        return false;
    LOG_DEBUG("load parameter file [%s] into [%s]", path.toLocal8Bit().constData(), key.toLocal8Bit().constData());
    m_load = new CParamFileLoadThread(key, path, m_env, m_reportPath, this);
    ++m_run;
    hear(m_load, &CParamFileLoadThread::needConnect, &CParamFileController::onNeedConnect);
    hear(m_load, &CParamFileLoadThread::damaged, &CParamFileController::onDamaged);
    hear(m_load, &CParamFileLoadThread::loadFinished, &CParamFileController::onLoadFinished);
    begin(m_load, key, tr("Open Config"), tr("Loading parameters..."));
    return true;
}

bool CParamFileController::saveFile(const QString& key, const QString& path)
{
    if (refuseWhileBusy())
        return false;
    const CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(key);
    if (!device || !device->isConnected())
    {
        showMessage(tr("Connect the camera before saving its parameters."), QMessageBox::Critical);
        return false;
    }
    LOG_DEBUG("save parameter file [%s] from [%s]", path.toLocal8Bit().constData(), key.toLocal8Bit().constData());
    m_save = new CParamFileSaveThread(device, path, this);
    ++m_run;
    hear(m_save, &CParamFileSaveThread::saveFinished, &CParamFileController::onSaveFinished);
    begin(m_save, key, tr("Save Config"), tr("Saving parameters..."));
    return true;
}

void CParamFileController::begin(CParamFileThread* worker, const QString& key, const QString& title,
                                 const QString& text)
{
    m_busyKey = key;
    hear(worker, &CParamFileThread::progress, &CParamFileController::onProgress);
    showWait(title, text);
    worker->begin();
}

QString CParamFileController::finish(CParamFileThread* worker)
{
    const QString path = worker ? worker->path() : QString();
    // It has nothing more to say; it goes once its last lines are out.
    if (worker)
        worker->retire();
    ++m_run;
    closeWait();
    return path;
}

void CParamFileController::showWait(const QString& title, const QString& text)
{
    if (!m_wait)
    {
        m_wait = new CWaitDlg(m_dialogParent);
        m_wait->setCancellable(true);
        connect(m_wait, &QDialog::rejected, this, &CParamFileController::onWaitCancelled);
    }
    m_waitText = text;
    m_wait->setTitle(title);
    m_wait->setText(text);
    m_wait->open();
}

void CParamFileController::closeWait()
{
    if (m_wait)
        m_wait->accept();
}

void CParamFileController::onProgress(int done, int total)
{
    if (m_wait && total > 0)
        m_wait->setText(tr("%1\n%2 of %3 features").arg(m_waitText).arg(done).arg(total));
}

void CParamFileController::onNeedConnect(QString key)
{
    if (const CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(key))
        if (!device->isConnected() && !device->isConnecting())
            device->openDevice(false);
}

void CParamFileController::onWaitCancelled()
{
    CParamFileThread* worker = current();
    if (!worker)
        return;
    if (!worker->cancel())
    {
        // Too late: the file is being put in place or the result is on its
        // way; the wait goes on until it arrives.
        m_wait->open();
        return;
    }
    const bool load = worker == m_load;
    const QString path = worker->path();
    drop();
    closeWait();
    LOG_DEBUG("parameter file [%s] cancelled", path.toLocal8Bit().constData());
    if (load)
    {
        showMessage(tr("Load Config cancelled."), QMessageBox::Information);
        emit loadDone(CParamFileLoadThread::resultCancelled, 0, 0);
    }
    else
    {
        showMessage(tr("Save Config cancelled; nothing was written to %1.").arg(QDir::toNativeSeparators(path)),
                    QMessageBox::Information);
        emit saveDone(false, 0);
    }
}

void CParamFileController::onDamaged(QString why, int values)
{
    const QPointer<CParamFileController> self(this);
    m_asking = true;
    const bool loadAnyway = ask(tr("%1\nLoad the %2 complete values it still holds anyway?").arg(why).arg(values));
    if (!self)
        return;
    m_asking = false;
    if (!m_load)
        return;
    if (loadAnyway && m_load->loadAnyway())
        return;
    // Nothing of the file is applied.
    drop();
    closeWait();
    emit loadDone(CParamFileLoadThread::resultCancelled, 0, values);
}

void CParamFileController::onLoadFinished(int result, int loaded, int total, QString message, QString reportError)
{
    const QString report = reportError.isEmpty() ? m_load->reportPath() : QString();
    const QString path = finish(m_load);
    m_load = nullptr;
    if (const CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(m_busyKey))
        if (result == CParamFileLoadThread::resultLoaded || result == CParamFileLoadThread::resultPartial)
            device->setCurFile(path);
    QString text;
    QMessageBox::Icon icon = QMessageBox::Critical;
    switch (result)
    {
    case CParamFileLoadThread::resultLoaded:
        text = tr("Load Config success! %1 features loaded.").arg(loaded);
        icon = QMessageBox::Information;
        break;
    case CParamFileLoadThread::resultPartial:
        text = tr("%1 of %2 features were loaded. The report lists the others and why.").arg(loaded).arg(total);
        if (!message.isEmpty())
            text += QLatin1Char('\n') + message;
        icon = QMessageBox::Warning;
        break;
    default:
        text = tr("Load Config failed. %1").arg(message);
        break;
    }
    if (!reportError.isEmpty())
        text += QLatin1Char('\n') + tr("The load report was not written: %1").arg(reportError);
    showMessage(text, icon, report);
    emit loadDone(result, loaded, total);
}

void CParamFileController::onSaveFinished(bool ok, QString message, int count)
{
    const QString path = finish(m_save);
    m_save = nullptr;
    if (ok)
    {
        if (const CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(m_busyKey))
            device->setCurFile(path);
        showMessage(tr("Save Config success! %1 values written to %2.").arg(count).arg(QDir::toNativeSeparators(path)),
                    QMessageBox::Information);
    }
    else
    {
        showMessage(tr("Save Config failed. %1").arg(message), QMessageBox::Critical);
    }
    emit saveDone(ok, count);
}

void CParamFileController::OnUpdateReceive(CTavMessagePtr msg)
{
    if (!msg || !msg->device || msg->device->getDeviceKey() != m_busyKey)
        return;
    // The worker also sees the device's flags; stopping here saves it a write.
    if (msg->type == MSG_DEVICE_DISCONNECTING || msg->type == MSG_DEVICE_OFFLINE ||
        msg->type == MSG_DEVICE_DISCONNECTED)
    {
        if (m_save)
            m_save->stop();
        // A load waiting for its connection must not see the disconnect of a
        // previous session as its own; a load under way stops. A load whose
        // damaged file is being asked about has not touched the camera yet.
        if (m_load && !m_asking && msg->device->isConnected() == false && !msg->device->isConnecting())
            m_load->stop();
    }
}
