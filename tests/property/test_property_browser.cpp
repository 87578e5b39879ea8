// The browser without a camera: the level and key filter and the command
// button's two states. (Rows following their properties and the decorated
// spin box are seen through the features page.)
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

#include "QtPushButtonFactory.h"
#include "qtpropertymanager.h"
#include "qttreepropertybrowser.h"

class TestPropertyBrowser : public QObject
{
    Q_OBJECT
private slots:
    void filterByKeyAndLevel();
    void commandButtonExecutingState();
};

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

void TestPropertyBrowser::filterByKeyAndLevel()
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
    QVERIFY(browser.isPropertyInvisible(t.deep, 1, &ok));
    QVERIFY(ok);
    QVERIFY(!browser.isPropertyInvisible(t.deep, 2, &ok));
}

void TestPropertyBrowser::commandButtonExecutingState()
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
    QVERIFY(label && label->text() == "{Executing}");
    QVERIFY(!button->isHidden() && label->isHidden());

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

QTEST_MAIN(TestPropertyBrowser)
#include "test_property_browser.moc"
