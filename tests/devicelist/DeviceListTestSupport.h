#pragma once
// Helpers of the device list tests: answering the modal boxes and dialogs the
// panel opens. The device tests' helpers (DeviceTestSupport.h, with the
// singleton owner and discovery passes) come along.
#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "CCommonMessageBox.h"
#include "DeviceTestSupport.h"

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
// the manager has rebuilt its map.
inline bool rediscoverWhenIdle(const QString& ip = QString(), int timeoutMs = 20000)
{
    return rediscover(ip, timeoutMs);
}

inline CTavDevicePtr deviceBySerial(const QString& serial)
{
    return findDeviceBySerial(serial);
}
