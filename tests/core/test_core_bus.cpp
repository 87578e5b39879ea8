// Message bus: subject order, duplicates and detaching, notification from
// worker threads ending on the GUI thread, message lifetime, meta-type names
// for queued signals, and the raw-event sink.
#include <QCoreApplication>
#include <QMutex>
#include <QThread>
#include <QtTest>

#include <memory>

#include "CSubject.h"

using Vorlen::GenICam::SMsgChannelArg;
using Vorlen::GenICam::SParamUpdataArg;
using Vorlen::GenICam::SStreamArg;

namespace {
QMutex g_callMutex;
QList<int> g_updateCalls;   // ids of observers in the order Update() ran
} // namespace

// An observer built like the panels: Update only re-emits, queued.
class TestObserver : public QObject, public CObserver
{
    Q_OBJECT
public:
    explicit TestObserver(int id)
        : m_id(id)
    {
        connect(this, &TestObserver::update_receive, this, &TestObserver::onUpdateReceive, Qt::QueuedConnection);
    }
    void Update(CTavMessagePtr msg) override
    {
        {
            QMutexLocker lock(&g_callMutex);
            g_updateCalls << m_id;
        }
        emit update_receive(msg);
    }

    struct Received
    {
        EN_MESSAGE_TYPE type;
        bool deviceEmpty;
        std::string key;
        uint64_t seq;
        size_t names;
        bool onGuiThread;
    };
    QList<Received> received;

signals:
    void update_receive(CTavMessagePtr msg);

private slots:
    void onUpdateReceive(CTavMessagePtr msg)
    {
        received << Received{msg->type, msg->device.isNull(), msg->paramUpdateArg.key.str(),
                             msg->paramUpdateArg.timestamp, msg->paramUpdateArg.paramNames.size(),
                             QThread::currentThread() == QCoreApplication::instance()->thread()};
    }

private:
    int m_id;
};

// Signals spelled with and without the namespaces, connected by name.
class Emitter : public QObject
{
    Q_OBJECT
signals:
    void qualified(Vorlen::GenICam::SParamUpdataArg arg, QString key);
    void plain(SParamUpdataArg arg, SStreamArg stream, SMsgChannelArg channel, EN_MESSAGE_TYPE type);
    void pointers(CTavMessagePtr msg, CTavDevicePtr device);
};

class Receiver : public QObject
{
    Q_OBJECT
public:
    QMutex mutex;
    QStringList got;
public slots:
    void onQualified(Vorlen::GenICam::SParamUpdataArg arg, QString key)
    {
        QMutexLocker lock(&mutex);
        got << QString::fromStdString(arg.key.str()) + "/" + key + "/" + QString::number(arg.paramNames.size());
    }
    void onPlain(SParamUpdataArg arg, SStreamArg stream, SMsgChannelArg channel, EN_MESSAGE_TYPE type)
    {
        QMutexLocker lock(&mutex);
        got << QString::fromStdString(arg.paramNames.at(1).str()) + "/" + QString::number(stream.blockId) + "/"
                   + QString::fromStdString(channel.paramNames.at(0).str()) + "/" + QString::number(type);
    }
    void onPointers(CTavMessagePtr msg, CTavDevicePtr device)
    {
        QMutexLocker lock(&mutex);
        got << QString::number(msg->type) + (device.isNull() ? "/null" : "/set");
    }
};

class TestCoreBus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerMessageMetaTypes(); }

    void subjectOrderDuplicatesAndDetach()
    {
        CSubject subject;
        subject.Notify(CTavMessagePtr(new CTavMessage));   // nobody attached

        TestObserver a(1), b(2), c(3), never(4);
        subject.Attach(&a);
        subject.Attach(&b);
        subject.Attach(&a);
        subject.Attach(&c);
        subject.Attach(nullptr);
        g_updateCalls.clear();
        subject.Notify(CTavMessagePtr(new CTavMessage));
        QCOMPARE(g_updateCalls, (QList<int>{1, 2, 3}));

        subject.Detach(&never);
        subject.Detach(&b);
        subject.Detach(&b);
        g_updateCalls.clear();
        subject.Notify(CTavMessagePtr(new CTavMessage));
        QCOMPARE(g_updateCalls, (QList<int>{1, 3}));

        // Re-attaching goes to the end.
        subject.Attach(&b);
        g_updateCalls.clear();
        subject.Notify(CTavMessagePtr(new CTavMessage));
        QCOMPARE(g_updateCalls, (QList<int>{1, 3, 2}));

        // Nothing ran in Update itself: the handling is queued.
        QCOMPARE(a.received.size(), 0);
        QTRY_COMPARE(a.received.size(), 3);
        QCOMPARE(b.received.size(), 2);
        QCOMPARE(c.received.size(), 3);
        QCOMPARE(never.received.size(), 0);
        QVERIFY(a.received.first().deviceEmpty);
        QCOMPARE(int(a.received.first().type), int(MSG_DISCOVERY_FINISHED));
    }

    void notifyFromWorkerThreadsEndsOnGuiThread()
    {
        CSubject subject;
        TestObserver first(1), second(2);
        subject.Attach(&first);
        subject.Attach(&second);

        const int threads = 4;
        const int perThread = 300;
        std::weak_ptr<CTavMessage> lastMessage;
        QMutex lastMutex;
        QList<QThread*> workers;
        for (int t = 0; t < threads; ++t) {
            workers << QThread::create([&, t] {
                for (int i = 0; i < perThread; ++i) {
                    CTavMessagePtr msg(new CTavMessage);
                    msg->type = MSG_PARAM_UPDATE;
                    msg->paramUpdateArg.key = Vorlen::Infra::CString(std::to_string(t));
                    msg->paramUpdateArg.timestamp = uint64_t(i);
                    msg->paramUpdateArg.paramNames = {"Width", "Height"};
                    if (i == perThread - 1) {
                        QMutexLocker lock(&lastMutex);
                        lastMessage = msg;
                    }
                    subject.Notify(msg);
                }
            });
            workers.last()->start();
        }
        for (QThread* w : workers) {
            QVERIFY(w->wait(30000));
            delete w;
        }

        QTRY_COMPARE_WITH_TIMEOUT(second.received.size(), threads * perThread, 30000);
        QCOMPARE(first.received.size(), threads * perThread);
        for (TestObserver* o : {&first, &second}) {
            QVector<int> next(threads, 0);
            for (const TestObserver::Received& r : o->received) {
                QVERIFY(r.onGuiThread);
                QCOMPARE(int(r.type), int(MSG_PARAM_UPDATE));
                QCOMPARE(r.names, size_t(2));
                const int t = std::stoi(r.key);
                // Each publisher's messages arrive in the order it sent them.
                QCOMPARE(r.seq, uint64_t(next[t]++));
            }
        }
        // The last observer copy released frees the message.
        QVERIFY(lastMessage.expired());
    }

    void queuedSignalsCarryTheTypesUnderEitherName()
    {
        for (const char* name : {"EN_MESSAGE_TYPE", "CTavMessagePtr", "CTavDevicePtr", "SParamUpdataArg",
                                 "Vorlen::GenICam::SParamUpdataArg", "SStreamArg", "Vorlen::GenICam::SStreamArg",
                                 "SMsgChannelArg", "Vorlen::GenICam::SMsgChannelArg", "SConnectArg",
                                 "Vorlen::GenICam::SConnectArg"})
            QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name);
        QCOMPARE(QMetaType::type("SParamUpdataArg"), qMetaTypeId<Vorlen::GenICam::SParamUpdataArg>());

        Emitter emitter;
        Receiver receiver;
        QThread thread;
        receiver.moveToThread(&thread);
        thread.start();
        QVERIFY(connect(&emitter, SIGNAL(qualified(Vorlen::GenICam::SParamUpdataArg, QString)), &receiver,
                        SLOT(onQualified(Vorlen::GenICam::SParamUpdataArg, QString)), Qt::QueuedConnection));
        QVERIFY(connect(&emitter, SIGNAL(plain(SParamUpdataArg, SStreamArg, SMsgChannelArg, EN_MESSAGE_TYPE)),
                        &receiver, SLOT(onPlain(SParamUpdataArg, SStreamArg, SMsgChannelArg, EN_MESSAGE_TYPE)),
                        Qt::QueuedConnection));
        QVERIFY(connect(&emitter, SIGNAL(pointers(CTavMessagePtr, CTavDevicePtr)), &receiver,
                        SLOT(onPointers(CTavMessagePtr, CTavDevicePtr)), Qt::QueuedConnection));

        SParamUpdataArg arg;
        arg.key = "cam-1";
        arg.paramNames = {"ExposureTime", "Gain"};
        SStreamArg stream;
        stream.blockId = 77;
        SMsgChannelArg channel;
        channel.paramNames = {"EventExposureEnd"};
        CTavMessagePtr msg(new CTavMessage);
        msg->type = MSG_STREAM_OPENED;
        emit emitter.qualified(arg, QStringLiteral("k"));
        emit emitter.plain(arg, stream, channel, MSG_MSG_CHANNEL);
        emit emitter.pointers(msg, CTavDevicePtr());
        arg.paramNames.clear();   // the queued copies are independent

        auto count = [&receiver] {
            QMutexLocker lock(&receiver.mutex);
            return receiver.got.size();
        };
        QTRY_COMPARE_WITH_TIMEOUT(count(), 3, 10000);
        thread.quit();
        QVERIFY(thread.wait(10000));
        QCOMPARE(receiver.got, (QStringList{QStringLiteral("cam-1/k/2"), QStringLiteral("Gain/77/EventExposureEnd/11"),
                                            QStringLiteral("7/null")}));
    }
};

QTEST_GUILESS_MAIN(TestCoreBus)
#include "test_core_bus.moc"
