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

// Every 20 ms until the timer goes, calls act once for each visible
// top-level widget of type T it has not seen (the modal boxes and dialogs
// the code under test opens with exec()); act returns whether to go on.
template <class T>
void pollDialogs(QTimer* timer, std::function<bool(T*)> act)
{
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act]() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            T* dialog = qobject_cast<T*>(w);
            if (!dialog || !dialog->isVisible() || dialog->property("seen").toBool())
                continue;
            dialog->setProperty("seen", true);
            if (!act(dialog))
                return;
        }
    });
    timer->start(20);
}

// Answers every application message box that shows up while it lives, with
// the button given (else OK), and records the texts in order.
class BoxAnswerer
{
public:
    explicit BoxAnswerer(QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        pollDialogs<CCommonMessageBox>(&m_timer, [this, answer](CCommonMessageBox* box) {
            texts << box->message();
            QPushButton* button = box->button(answer) ? box->button(answer) : box->button(QMessageBox::Ok);
            button ? button->click() : box->reject();
            return true;
        });
    }
    QStringList texts;
    QString last() const { return texts.isEmpty() ? QString() : texts.last(); }

private:
    QTimer m_timer;
};

// Runs act once on the first visible top-level widget of type T (a modal
// dialog the code under test opens with exec()) shown within 20 s.
template <class T>
void onDialog(std::function<void(T*)> act)
{
    auto* timer = new QTimer;
    QTimer::singleShot(20000, timer, &QObject::deleteLater);
    pollDialogs<T>(timer, [timer, act](T* dialog) {
        timer->stop();   // act may open event loops of its own
        timer->deleteLater();
        act(dialog);
        return false;
    });
}

// Asks for a discovery pass (ip: "" or one address to probe) and waits until
// the manager has rebuilt its map. The worker drops a request that comes
// while a pass runs: this waits for it to be idle first.
inline bool rediscoverWhenIdle(const QString& ip = QString(), int timeoutMs = 20000)
{
    CDiscoveryDevicesThread* worker = CDiscoveryDevicesThread::getInstance();
    if (!QTest::qWaitFor([worker]() { return worker->isFirstDiscoveryFinished() && !worker->isDisconvrying(); },
                         timeoutMs))
        return false;
    QSignalSpy spy(CDeviceManager::getInstance(), &CDeviceManager::discoveryDevicesFinished);
    CDeviceManager::getInstance()->refreshDeviceMap(ip, 0);
    return spy.wait(timeoutMs);
}
