#pragma once
// Helpers of the device list tests: answering the modal boxes and dialogs the
// panel opens, waiting for the device manager, and the application's look
// for screenshots. The device tests' helpers (DeviceTestSupport.h) come along.
#include <QApplication>
#include <QDeadlineTimer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "CCommonMessageBox.h"
#include "CDeviceManager.h"
#include "CDiscoveryDevicesThread.h"
#include "CTavDevice.h"
#include "DeviceTestSupport.h"
#include "StyleSheet.h"

// Configuration files go to the test's own home (CTest sets HOME per test).
static const bool g_ownHome = []() {
    if (qEnvironmentVariableIsEmpty("LUMIDOR_HOME"))
        qputenv("LUMIDOR_HOME", qgetenv("HOME"));
    return true;
}();

// Answers every application message box that shows up while it lives, with
// the button given (else OK), and records the texts in order.
class BoxAnswerer
{
public:
    explicit BoxAnswerer(QMessageBox::StandardButton answer = QMessageBox::Ok) : m_answer(answer)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this]() {
            for (QWidget* w : QApplication::topLevelWidgets()) {
                auto* box = qobject_cast<CCommonMessageBox*>(w);
                if (!box || !box->isVisible() || box->property("answered").toBool())
                    continue;
                box->setProperty("answered", true);
                texts << box->message();
                QPushButton* button = box->button(m_answer) ? box->button(m_answer) : box->button(QMessageBox::Ok);
                if (button)
                    button->click();
                else
                    box->reject();
            }
        });
        m_timer.start(20);
    }
    QStringList texts;
    QString last() const { return texts.isEmpty() ? QString() : texts.last(); }

private:
    QTimer m_timer;
    QMessageBox::StandardButton m_answer;
};

// Runs act once on the first visible top-level widget of type T (a modal
// dialog the code under test opened with exec()).
template <class T>
void onDialog(std::function<void(T*)> act, int timeoutMs = 20000)
{
    auto* timer = new QTimer;
    const QDeadlineTimer deadline(timeoutMs);
    QObject::connect(timer, &QTimer::timeout, [timer, deadline, act]() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            T* dialog = qobject_cast<T*>(w);
            if (dialog && dialog->isVisible() && !dialog->property("driven").toBool()) {
                dialog->setProperty("driven", true);
                timer->stop();   // act may open event loops of its own
                timer->deleteLater();
                act(dialog);
                return;
            }
        }
        if (deadline.hasExpired()) {
            timer->stop();
            timer->deleteLater();
        }
    });
    timer->start(20);
}

// Puts on the application's look and returns where the screenshots saved for
// a person to check go (LUMIDOR_SCREENSHOT_DIR, else the working folder);
// empty when the style sheet cannot be read.
inline QString applicationLookAndShotDir()
{
    const QString sheet = QString::fromLocal8Bit(qgetenv("LUMIDOR_SOURCE_DIR")) + "/res/Skins/Default/Vintrel/style.qss";
    if (!setStyleSheet<QApplication>(*qApp, sheet))
        return QString();
    QCoreApplication::sendPostedEvents();   // the layouts of the new look, before drawing
    return qEnvironmentVariableIsEmpty("LUMIDOR_SCREENSHOT_DIR") ? QDir::currentPath()
                                                                 : qEnvironmentVariable("LUMIDOR_SCREENSHOT_DIR");
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
