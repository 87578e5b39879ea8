// The browser without a camera: the level and key filter, rows following
// their properties, the command button's two states and the decorated spin box.
#include <QLabel>
#include <QPushButton>
#include <QDoubleSpinBox>
#include <QTreeWidget>
#include <QtTest>

#include "DecoratedDoublePropertyManager.h"
#include "QtPushButtonFactory.h"
#include "qtpropertymanager.h"
#include "qttreepropertybrowser.h"

class TestPropertyBrowser : public QObject
{
    Q_OBJECT
private slots:
    void filterByKeyAndLevel();
    void rowsFollowTheirProperties();
    void commandButtonExecutingState();
    void decoratedValueAndEditor();
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

// The property alone in the browser, with its editor open (the current row has one).
static void openEditor(QtTreePropertyBrowser& browser, QtProperty* property)
{
    QtBrowserItem* item = browser.addProperty(property);
    browser.show();
    browser.setCurrentItem(item);
}

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

    // A deep match shows the leaf and its ancestors, nothing else.
    browser.setShowType(2);
    browser.setShowKey("deepleaf");
    QVERIFY(shown(browser, t.deep));
    QVERIFY(shown(browser, t.a1));
    QVERIFY(shown(browser, t.a));
    QVERIFY(!shown(browser, t.aBeginner));
    QVERIFY(!shown(browser, t.b));
    QVERIFY(!shown(browser, t.bExpert));
    QVERIFY(!shown(browser, t.emptyGroup));

    // A group's own name never matches.
    browser.setShowKey("GroupB");
    QVERIFY(!shown(browser, t.b));
    QVERIFY(!shown(browser, t.a));

    // Empty key, level by level; groups only through their rows.
    browser.setShowKey(QString());
    browser.setShowType(0);
    QVERIFY(shown(browser, t.aBeginner));
    QVERIFY(shown(browser, t.a));
    QVERIFY(!shown(browser, t.a1));
    QVERIFY(!shown(browser, t.deep));
    QVERIFY(!shown(browser, t.b));
    browser.setShowType(1);
    QVERIFY(shown(browser, t.b));
    QVERIFY(shown(browser, t.bExpert));
    QVERIFY(!shown(browser, t.deep));
    browser.setShowType(2);
    for (QtProperty* p : {t.a, t.a1, t.deep, t.aBeginner, t.b, t.bExpert})
        QVERIFY2(shown(browser, p), qPrintable(p->propertyName()));
    QVERIFY(!shown(browser, t.emptyGroup));

    // Key and level together: the key does not lift the level.
    browser.setShowType(0);
    browser.setShowKey("e");   // Width? no; DeepLeafGain, BlackLevel contain e
    QVERIFY(!shown(browser, t.deep));
    QVERIFY(!shown(browser, t.bExpert));
    QVERIFY(!shown(browser, t.aBeginner));

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

void TestPropertyBrowser::rowsFollowTheirProperties()
{
    Tree t;
    QtTreePropertyBrowser browser;
    browser.addProperty(t.a);
    QTreeWidgetItem* row = browser.treeItem(browser.items(t.aBeginner).first());
    QVERIFY(row);

    t.values.setDecimals(t.aBeginner, 0);
    t.values.setRange(t.aBeginner, 16, 64);
    t.values.setValue(t.aBeginner, 640);   // out of range: kept, not clamped
    QCOMPARE(t.values.value(t.aBeginner), 640.0);
    QCOMPARE(row->text(1), QString("640"));

    t.aBeginner->setNotAvailableText("{Not Available}");
    t.aBeginner->setAvailable(false);
    QCOMPARE(row->text(1), QString("{Not Available}"));
    t.aBeginner->setAvailable(true);
    QCOMPARE(row->text(1), QString("640"));

    t.aBeginner->setToolTip("tip");
    QCOMPARE(row->toolTip(0), QString("tip"));
    t.aBeginner->setPropertyName("Image Width");
    QCOMPARE(row->text(0), QString("Image Width"));

    // A sub-property added later appears, a removed one disappears.
    QtProperty* late = t.values.addProperty("Late");
    t.a1->addSubProperty(late);
    QCOMPARE(browser.items(late).size(), 1);
    t.a1->removeSubProperty(late);
    QVERIFY(browser.items(late).isEmpty());
    delete t.aBeginner;
    QCOMPARE(browser.treeItem(browser.items(t.a).first())->childCount(), 1);

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
    openEditor(browser, cmd);

    auto* button = browser.treeWidget()->viewport()->findChild<QPushButton*>("myPushButton");
    QVERIFY(button);
    QCOMPARE(button->text(), QString("{Command}"));
    auto* label = button->parentWidget()->findChild<QLabel*>("labelExecuting");
    QVERIFY(label);
    QCOMPARE(label->text(), QString("{Executing}"));
    QCOMPARE(label->styleSheet(), QString("background: #E9E7E3;"));
    QVERIFY(!button->isHidden());
    QVERIFY(label->isHidden());

    QSignalSpy clicks(&factory, &QtPushButtonFactory::onClick);
    button->click();
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.first().at(0).value<QtProperty*>(), cmd);

    factory.setDone(cmd, false);
    QVERIFY(!cmd->isDone());
    QVERIFY(button->isHidden());
    QVERIFY(!label->isHidden());
    factory.setDone(cmd, true);
    QVERIFY(!button->isHidden());
    QVERIFY(label->isHidden());

    commands.setValue(cmd, "{Befehl}");
    QCOMPARE(button->text(), QString("{Befehl}"));
}

void TestPropertyBrowser::decoratedValueAndEditor()
{
    DecoratedDoublePropertyManager manager;
    DecoratedDoubleSpinBoxFactory factory;
    QtTreePropertyBrowser browser;
    browser.setFactoryForManager(&manager, &factory);
    QtProperty* gain = manager.addProperty("Gain");
    manager.setDecimals(gain, 5);
    manager.setRange(gain, 0, 24);
    manager.setValue(gain, 3.5);
    manager.setSuffix(gain, " dB");
    QCOMPARE(gain->valueText(), QString("3.50000 dB"));
    openEditor(browser, gain);
    auto* spin = browser.treeWidget()->viewport()->findChild<QDoubleSpinBox*>();
    QVERIFY(spin);
    QCOMPARE(spin->suffix(), QString(" dB"));
    QCOMPARE(spin->maximum(), 24.0);
    manager.setSuffix(gain, " %");
    QCOMPARE(spin->suffix(), QString(" %"));
    // An edit in the spin box reaches the manager.
    spin->setValue(7.25);
    QCOMPARE(manager.value(gain), 7.25);
}

QTEST_MAIN(TestPropertyBrowser)
#include "test_property_browser.moc"
