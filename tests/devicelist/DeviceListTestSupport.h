#pragma once
// Helpers of the device list tests: answering the modal boxes and dialogs the
// panel opens, and waiting for the device manager. The device tests' helpers
// (DeviceTestSupport.h) come along.
#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "CCommonMessageBox.h"
#include "CDeviceManager.h"
#include "CDiscoveryDevicesThread.h"
#include "CTavDevice.h"
#include "DeviceTestSupport.h"

// Configuration files go to the test's own home (CTest sets HOME per test).
static const bool g_ownHome = []() {
    if (qEnvironmentVariableIsEmpty("LUMIDOR_HOME"))
        qputenv("LUMIDOR_HOME", qgetenv("HOME"));
    return true;
}();

// Answers every application message box that shows up while it lives, with
// the button given, and records the texts in order.
class BoxAnswerer : public QObject
{
    Q_OBJECT
public:
    explicit BoxAnswerer(QMessageBox::StandardButton answer = QMessageBox::Ok) : m_answer(answer)
    {
        connect(&m_timer, &QTimer::timeout, this, &BoxAnswerer::poll);
        m_timer.start(20);
    }
    void setAnswer(QMessageBox::StandardButton answer) { m_answer = answer; }
    QStringList texts;
    QString last() const { return texts.isEmpty() ? QString() : texts.last(); }

private slots:
    void poll()
    {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* box = qobject_cast<CCommonMessageBox*>(w);
            if (!box || !box->isVisible() || box->property("answered").toBool())
                continue;
            box->setProperty("answered", true);
            texts << box->message();
            QPushButton* button = box->button(m_answer);
            if (!button)
                button = box->button(QMessageBox::Ok);
            if (button)
                button->click();
            else
                box->reject();
        }
    }

private:
    QTimer m_timer;
    QMessageBox::StandardButton m_answer;
};

// Runs `act` once on the first visible top-level widget of type T (a modal
// dialog the code under test opened with exec()).
template <class T>
void onDialog(std::function<void(T*)> act, int timeoutMs = 20000)
{
    auto* timer = new QTimer;
    auto* elapsed = new QElapsedTimer;
    elapsed->start();
    QObject::connect(timer, &QTimer::timeout, [timer, elapsed, act, timeoutMs]() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (T* dialog = qobject_cast<T*>(w)) {
                if (dialog->isVisible() && !dialog->property("driven").toBool()) {
                    dialog->setProperty("driven", true);
                    timer->stop();
                    timer->deleteLater();
                    delete elapsed;
                    act(dialog);
                    return;
                }
            }
        }
        if (elapsed->elapsed() > timeoutMs) {
            timer->stop();
            timer->deleteLater();
            delete elapsed;
        }
    });
    timer->start(20);
}

// Asks for a discovery pass (ip: "" or one address to probe) and waits until
// the manager has rebuilt its map. The worker drops a request that comes
// while a pass runs: this waits for it to be idle first.
inline bool rediscoverWhenIdle(const QString& ip = QString(), int timeoutMs = 20000)
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    CDiscoveryDevicesThread* worker = CDiscoveryDevicesThread::getInstance();
    if (!QTest::qWaitFor([worker]() { return worker->isFirstDiscoveryFinished() && !worker->isDisconvrying(); },
                         timeoutMs))
        return false;
    QSignalSpy spy(manager, &CDeviceManager::discoveryDevicesFinished);
    manager->refreshDeviceMap(ip, 0);
    return spy.wait(timeoutMs);
}
