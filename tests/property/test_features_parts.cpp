// What the features page is built from, without a camera: the property
// browser's level and key filter and its command button's two states; the
// page's workers (the update queue, the command watch and the write queue),
// each given a reader the test controls, which can be held inside its
// "camera call" to see what the worker does meanwhile. (Rows following their
// properties, the decorated spin box and the one-shot loader are seen
// through the features page.)
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSemaphore>
#include <QTreeWidget>
#include <QtTest>

#include "CCommandParamDoneStatusThread.h"
#include "CUpdateParamThread.h"
#include "CWriteParamThread.h"
#include "QtPushButtonFactory.h"
#include "QueuedSignalSpy.h"
#include "qtpropertymanager.h"
#include "qttreepropertybrowser.h"

// A camera call the test holds: the worker enters it and stays until released.
struct CameraCall
{
    QSemaphore entered, released;
    void pass()
    {
        entered.release();
        released.acquire();
    }
    bool waitEntered() { return entered.tryAcquire(1, 10000); }
};

static CFeatureNodeInfo record(const QString& name, bool valid = true)
{
    CFeatureNodeInfo info;
    info.valid = valid;
    info.name = name;
    return info;
}

static QStringList names(const QueuedSignalSpy& spy)
{
    QStringList out;
    for (const QList<QVariant>& args : spy)
        out.append(args.at(0).canConvert<CFeatureNodeInfo>() ? args.at(0).value<CFeatureNodeInfo>().name
                                                              : args.at(0).toString());
    return out;
}

// Root > A(group) > A1(group) > deepLeaf(Guru) ; A > aBeginner ; B(group) > bExpert
struct Tree
{
    QtGroupPropertyManager groups;
    QtDoublePropertyManager values;
    QtProperty *a, *a1, *deep, *aBeginner, *b, *bExpert, *emptyGroup;
    Tree()
    {
        a = groups.addProperty("GroupA");
        a1 = groups.addProperty("GroupA1");
        b = groups.addProperty("GroupB");
        emptyGroup = groups.addProperty("EmptyGroup");
        deep = values.addProperty("DeepLeafGain");
        deep->SetType(2);
        aBeginner = values.addProperty("Width");
        aBeginner->SetType(0);
        bExpert = values.addProperty("BlackLevel");
        bExpert->SetType(1);
        a->addSubProperty(a1);
        a1->addSubProperty(deep);
        a->addSubProperty(aBeginner);
        b->addSubProperty(bExpert);
    }
};

static bool shown(QtTreePropertyBrowser& browser, QtProperty* p)
{
    const QList<QtBrowserItem*> items = browser.items(p);
    return !items.isEmpty() && browser.isItemVisible(items.first());
}

class TestFeaturesParts : public QObject
{
    Q_OBJECT
private slots:
    void filterByKeyAndLevel();
    void commandButtonExecutingState();
    void updateQueueReplacesAndAppends();
    void commandWatchNeverWaitsOnTheCamera();
    void writesRunInOrderAndStopWithTheirOwner();
};

void TestFeaturesParts::updateQueueReplacesAndAppends()
{
    CameraCall hold;
    CUpdateParamThread worker([&](const QString& name) {
        if (name == "hold")
            hold.pass();
        return record(name, name != "gone");
    });
    QueuedSignalSpy read(&worker, &CUpdateParamThread::nodeRead);
    QCOMPARE(worker.getProperty(), QString());

    worker.appendPropertyList({"hold"});
    QVERIFY(hold.waitEntered());
    // While the worker waits on the camera: appending skips names already
    // pending, a new list replaces the pending names, appending adds after.
    worker.appendPropertyList({"a", "b", "a"});
    QCOMPARE(worker.pendingNames(), 2);
    worker.SetPropertyList({"c", "d"});
    QCOMPARE(worker.pendingNames(), 2);
    worker.appendPropertyList({"d", "gone", "e"});
    QCOMPARE(worker.pendingNames(), 4);
    hold.released.release();

    // In order; a feature that cannot be read yields no record.
    QVERIFY(QTest::qWaitFor([&]() { return read.count() == 4; }, 10000));
    QCOMPARE(names(read), QStringList({"hold", "c", "d", "e"}));
    QCOMPARE(worker.pendingNames(), 0);

    // Names that come after the queue ran dry start a new pass.
    worker.SetPropertyList({"f"});
    QVERIFY(read.wait(10000));
    QCOMPARE(names(read).last(), QString("f"));
}

void TestFeaturesParts::commandWatchNeverWaitsOnTheCamera()
{
    CameraCall hold;
    QAtomicInt runDone(0);
    CCommandParamDoneStatusThread worker([&](const QString& name, CFeatureNodeInfo& info) {
        if (name == "slow")
        {
            hold.pass();
            info = record(name);
            return CFeatureFormCamera::commandDone;
        }
        if (name == "run" && !runDone.loadAcquire())
            return CFeatureFormCamera::commandRunning;
        if (name == "lost")
            return CFeatureFormCamera::commandGone;
        info = record(name);
        return name == "plain" ? CFeatureFormCamera::commandNone : CFeatureFormCamera::commandDone;
    });
    QueuedSignalSpy done(&worker, &CCommandParamDoneStatusThread::setDone);
    QueuedSignalSpy abandoned(&worker, &CCommandParamDoneStatusThread::abandoned);

    // The worker asks the camera about "slow" and waits there; adding
    // commands and counting them meanwhile return at once.
    worker.addProperty("slow");
    QVERIFY(hold.waitEntered());
    worker.addProperty("run");
    worker.addProperty("run");   // already watched: one entry
    QCOMPARE(worker.pendingNames(), 2);
    hold.released.release();

    QVERIFY(done.wait(10000));
    QCOMPARE(names(done), QStringList({"slow"}));
    QCOMPARE(worker.pendingNames(), 1);   // "run" still runs
    worker.addProperty("lost");
    worker.addProperty("plain");
    QVERIFY(abandoned.wait(10000));
    QCOMPARE(names(abandoned), QStringList({"lost"}));
    QTRY_COMPARE_WITH_TIMEOUT(worker.pendingNames(), 1, 10000);   // "plain" is no command: dropped
    runDone.storeRelease(1);
    QVERIFY(done.wait(10000));
    QCOMPARE(names(done), QStringList({"slow", "run"}));
    QCOMPARE(worker.pendingNames(), 0);
}

void TestFeaturesParts::writesRunInOrderAndStopWithTheirOwner()
{
    QStringList ran;   // written by the worker, read once it has finished
    CameraCall hold;
    auto* owner = new QObject;
    auto* worker = new CWriteParamThread();
    QPointer<CWriteParamThread> alive(worker);
    QStringList continued;
    QObject::connect(worker, &CWriteParamThread::jobDone, owner,
                     [](const CWriteContinuation& continuation) { continuation(); });
    for (const char* name : {"a", "b", "c"})
        worker->addJob([&, name]() -> CWriteContinuation {
            ran.append(name);
            if (QString(name) == "b")
                return CWriteContinuation();   // nothing to do on the page
            return [&, name]() { continued.append(name); };
        });
    QTRY_COMPARE_WITH_TIMEOUT(continued, QStringList({"a", "c"}), 10000);

    // The owner goes while a write waits on the camera and another is
    // queued: retiring returns at once, the queued write never runs, the
    // result of the one under way goes nowhere, and the worker goes.
    worker->addJob([&]() -> CWriteContinuation {
        hold.pass();
        return [&]() { continued.append("held"); };
    });
    worker->addJob([&]() -> CWriteContinuation {
        ran.append("dropped");
        return CWriteContinuation();
    });
    QVERIFY(hold.waitEntered());
    delete owner;
    worker->retire();
    hold.released.release();
    QTRY_VERIFY_WITH_TIMEOUT(alive.isNull(), 10000);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(ran, QStringList({"a", "b", "c"}));
    QCOMPARE(continued, QStringList({"a", "c"}));
}

void TestFeaturesParts::filterByKeyAndLevel()
{
    Tree t;
    QtTreePropertyBrowser browser;
    browser.addProperty(t.a);
    browser.addProperty(t.b);
    browser.addProperty(t.emptyGroup);
    QCOMPARE(browser.treeWidget()->topLevelItemCount(), 3);

    // Which of a, a1, deep, aBeginner, b, bExpert, emptyGroup are shown, as "1" or "0".
    auto visible = [&]() {
        QString out;
        for (QtProperty* p : {t.a, t.a1, t.deep, t.aBeginner, t.b, t.bExpert, t.emptyGroup})
            out += shown(browser, p) ? '1' : '0';
        return out;
    };
    const struct
    {
        int level;
        const char* key;
        const char* shown;
    } cases[] = {
        {2, "deepleaf", "1110000"},   // a deep match shows the leaf and its ancestors, nothing else
        {2, "GroupB", "0000000"},     // a group's own name never matches
        {0, "", "1001000"},           // level by level; groups only through their rows
        {1, "", "1001110"},
        {2, "", "1111110"},
        {0, "e", "0000000"},          // the key does not lift the level (DeepLeafGain, BlackLevel)
    };
    for (const auto& c : cases) {
        browser.setShowType(c.level);
        browser.setShowKey(QString::fromLatin1(c.key));
        QCOMPARE(visible(), QString(c.shown));
    }

    // Filtering while the browser is paused leaves the tree painting afterwards.
    browser.setUpdatesEnabled(false);
    browser.setShowType(1);
    browser.setUpdatesEnabled(true);
    QVERIFY(browser.treeWidget()->updatesEnabled());

    bool ok = false;
    QVERIFY(browser.isPropertyInvisible(t.deep, 1, &ok) && ok && !browser.isPropertyInvisible(t.deep, 2, &ok));
}

void TestFeaturesParts::commandButtonExecutingState()
{
    QtStringPropertyManager commands;
    QtPushButtonFactory factory;
    QtTreePropertyBrowser browser;
    browser.setFactoryForManager(&commands, &factory);
    QtProperty* cmd = commands.addProperty("UserSetLoad");
    cmd->setCommandType(true);
    commands.setValue(cmd, "{Command}");
    browser.show();
    browser.setCurrentItem(browser.addProperty(cmd));   // the current row has its editor open

    auto* button = browser.treeWidget()->viewport()->findChild<QPushButton*>("myPushButton");
    QVERIFY(button);
    QCOMPARE(button->text(), QString("{Command}"));
    auto* label = button->parentWidget()->findChild<QLabel*>("labelExecuting");
    QVERIFY(label && label->text() == "{Executing}" && !button->isHidden() && label->isHidden());

    QSignalSpy clicks(&factory, &QtPushButtonFactory::onClick);
    button->click();
    QVERIFY(clicks.count() == 1 && clicks.first().at(0).value<QtProperty*>() == cmd);

    factory.setDone(cmd, false);
    QVERIFY(!cmd->isDone() && button->isHidden() && !label->isHidden());
    factory.setDone(cmd, true);
    QVERIFY(!button->isHidden() && label->isHidden());

    commands.setValue(cmd, "{Befehl}");
    QCOMPARE(button->text(), QString("{Befehl}"));
}

QTEST_MAIN(TestFeaturesParts)
#include "test_features_parts.moc"
