// Common widgets: message box, wait dialog, dialog title bar, and the value
// editors' wheel and click behaviour; and the resources: the icons and the
// compiled translations are embedded and readable, and every icon the
// sources and the style sheets name is among them.
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QToolButton>
#include <QTranslator>
#include <QWheelEvent>
#include <QtTest>

#include "CBusyIndicator.h"
#include "CCommonMessageBox.h"
#include "CDialogTitleBar.h"
#include "CDoubleSpinBox.h"
#include "CElidedLabel.h"
#include "CSlider.h"
#include "CSpinBox.h"
#include "CTextWidthGuard.h"
#include "CWaitDlg.h"

namespace {
// Sends one wheel notch up; returns whether the widget took the event.
bool wheelUp(QWidget* w)
{
    const QPoint pos = w->rect().center();
    QWheelEvent event(pos, w->mapToGlobal(pos), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(w, &event);
    return event.isAccepted();
}

void giveFocus(QWidget* w)
{
    QApplication::setActiveWindow(w->window());
    w->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
}

// The source tree, or empty when the test was not started by ctest.
QString sourceDir()
{
    return QString::fromLocal8Bit(qgetenv("LUMIDOR_SOURCE_DIR"));
}
} // namespace

class TestCommonWidgets : public QObject
{
    Q_OBJECT
private slots:
    void messageBoxButtonsIconsAndFile()
    {
        CCommonMessageBox box;
        box.setMessage(QStringLiteral("Connect failed."));
        box.setButtons(QMessageBox::Ok);
        box.setIcon(QMessageBox::Critical);
        QVERIFY(box.button(QMessageBox::Ok) && !box.button(QMessageBox::Cancel));
        QCOMPARE(box.windowTitle(), QStringLiteral("Error"));
        QVERIFY(!box.findChild<QLabel*>(QStringLiteral("messageIcon"))->pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(box.findChild<QWidget*>(QStringLiteral("messageFileRow"))->isHidden());
        // Escape on a lone OK answers OK.
        box.reject();
        QCOMPARE(box.result(), int(QMessageBox::Ok));

        box.setButtons(QMessageBox::Ok | QMessageBox::Cancel);
        box.setIcon(QMessageBox::Question);
        QCOMPARE(box.windowTitle(), QStringLiteral("Question"));
        QVERIFY(box.button(QMessageBox::Ok)->isDefault());
        box.reject();
        QCOMPARE(box.result(), int(QMessageBox::Cancel));
        box.button(QMessageBox::Ok)->click();
        QCOMPARE(box.result(), int(QMessageBox::Ok));

        // The file row names the file; an empty path hides it again.
        box.setFilePath(QStringLiteral("/var/log/TavSDK/Lumidor/Lumidor_loadConfigReport.log"));
        QWidget* row = box.findChild<QWidget*>(QStringLiteral("messageFileRow"));
        QVERIFY(!row->isHidden());
        QCOMPARE(box.findChild<QLabel*>(QStringLiteral("messageFile"))->text(),
                 QStringLiteral("Lumidor_loadConfigReport.log"));
        box.setFilePath(QString());
        QVERIFY(row->isHidden());

        // Texts follow a language switch while the box is open.
        QTranslator zh;
        QVERIFY2(zh.load(QStringLiteral(":/i18n/widgets_zh_CN.qm")), "widgets translation not embedded");
        QCoreApplication::installTranslator(&zh);
        QEvent change(QEvent::LanguageChange); // as the language manager sends it
        QApplication::sendEvent(&box, &change);
        QCOMPARE(box.button(QMessageBox::Cancel)->text(), QString::fromUtf8("取消"));
        QCOMPARE(box.windowTitle(), QString::fromUtf8("询问"));
        QCoreApplication::removeTranslator(&zh);
        QApplication::sendEvent(&box, &change);
        QCOMPARE(box.button(QMessageBox::Cancel)->text(), QStringLiteral("Cancel"));
    }

    void waitDialogStaysUntilDone()
    {
        QWidget owner;
        owner.show();
        CWaitDlg dlg(&owner);
        dlg.setTitle(QStringLiteral("Connecting"));
        QCOMPARE(dlg.windowTitle(), QStringLiteral("Connecting"));
        CBusyIndicator* busy = dlg.busyIndicator();
        QVERIFY(!busy->isAnimating());
        dlg.open(); // returns at once: the caller goes on working
        QVERIFY(dlg.isVisible() && dlg.isModal() && busy->isAnimating());

        // The operator cannot make it go away while the work runs.
        QTest::keyClick(&dlg, Qt::Key_Escape);
        dlg.reject();
        QVERIFY(dlg.isVisible() && !dlg.findChild<QToolButton*>(QStringLiteral("btnDialogClose"))->isVisible());

        dlg.accept();
        QVERIFY(!dlg.isVisible() && !busy->isAnimating());
    }

    void titleBarNamesAndClosesItsDialog()
    {
        QDialog dlg(nullptr, Qt::FramelessWindowHint);
        auto* bar = new CDialogTitleBar(&dlg);
        bar->setTitle(QStringLiteral("Force IP"));
        QCOMPARE(dlg.windowTitle(), QStringLiteral("Force IP"));   // the bar names its dialog
        dlg.show();
        QSignalSpy requested(bar, &CDialogTitleBar::closeRequested);
        QSignalSpy rejected(&dlg, &QDialog::rejected);
        bar->closeButton()->click();
        QVERIFY(requested.count() == 1 && rejected.count() == 1 && !dlg.isVisible());
    }

    // Scrolling over an editor without focus must not change a value; the
    // event goes on to the scroll area instead.
    void editorsTakeTheWheelOnlyWithFocus()
    {
        QWidget window;
        auto* spin = new CSpinBox(&window);
        auto* dspin = new CDoubleSpinBox(&window);
        auto* slider = new CSlider(Qt::Horizontal, &window);
        spin->setRange(0, 100);
        spin->setValue(50);
        dspin->setRange(0, 10);
        dspin->setValue(5);
        slider->setRange(0, 100);
        slider->setValue(50);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        const QList<QWidget*> editors = {spin, dspin, slider};
        for (QWidget* e : editors)
            e->clearFocus();
        QApplication::processEvents();
        for (QWidget* e : editors)
            QVERIFY2(!wheelUp(e), e->metaObject()->className());
        QCOMPARE(spin->value(), 50);
        QCOMPARE(dspin->value(), 5.0);
        QCOMPARE(slider->value(), 50);

        giveFocus(spin);
        QVERIFY(wheelUp(spin) && spin->value() == 51);
        giveFocus(dspin);
        QVERIFY(wheelUp(dspin) && dspin->value() == 6.0);
        giveFocus(slider);
        wheelUp(slider);
        QVERIFY(slider->value() != 50);

        // Typing does not emit a value before the number is complete.
        QSignalSpy changed(spin, QOverload<int>::of(&QSpinBox::valueChanged));
        giveFocus(spin);
        spin->selectAll();
        QTest::keyClicks(spin, QStringLiteral("75"));
        QCOMPARE(changed.count(), 0);
        QTest::keyClick(spin, Qt::Key_Return);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(spin->value(), 75);
    }

    void narrowPlacesKeepTheirText()
    {
        // A label narrower than its text ends it with an ellipsis; text()
        // keeps the whole text.
        const QString text = QStringLiteral("Error: Stream not open because the camera stopped answering (12)");
        CElidedLabel label;
        label.setText(text);
        label.resize(120, 20);
        QVERIFY(label.shownText().endsWith(QChar(0x2026)) && label.shownText().size() < text.size());
        QCOMPARE(label.text(), text);
        label.resize(label.fontMetrics().horizontalAdvance(text) + 10, 20);
        QCOMPARE(label.shownText(), text);

        // A button whose style sheet allows less than its text keeps room for
        // the text, also after the text changes.
        QPushButton button(QStringLiteral("Collapse All"));
        button.setStyleSheet(QStringLiteral("QPushButton { min-width: 10px; }"));
        CTextWidthGuard::install(&button);
        button.ensurePolished();
        QTRY_VERIFY(button.minimumWidth() >= button.sizeHint().width());
        button.setText(QStringLiteral("A much longer caption than before"));
        CTextWidthGuard::fit(&button);
        QVERIFY(button.minimumWidth() >= button.sizeHint().width());
    }

    void sliderJumpsToTheClick()
    {
        CSlider slider(Qt::Horizontal);
        slider.setRange(0, 100);
        slider.setValue(0);
        slider.resize(400, 24);
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(300, 12));
        QVERIFY2(qAbs(slider.value() - 75) <= 3, qPrintable(QString::number(slider.value())));
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(2, 12));
        QCOMPARE(slider.value(), 0);
        QCOMPARE(slider.valueAt(QPoint(399, 12)), 100);
    }

    // Square, drawn (not a blank, fully transparent image); the status marks
    // share one size because the device list sizes its icons from one of them.
    void iconsDecode()
    {
        QSize statusSize;
        int icons = 0;
        for (QDirIterator it(":/Pic", {"*.png"}); it.hasNext(); ++icons) {
            const QString path = it.next();
            const QImage image(path);
            QVERIFY2(!image.isNull() && image.width() == image.height(), qPrintable(path));
            bool painted = false;
            for (int y = 0; y < image.height() && !painted; ++y)
                for (int x = 0; x < image.width() && !painted; ++x)
                    painted = qAlpha(image.pixel(x, y)) > 0;
            QVERIFY2(painted, qPrintable(path));
            if (path.contains("Icon_DevList_DeviceStatus_")) {
                if (statusSize.isEmpty())
                    statusSize = image.size();
                QCOMPARE(image.size(), statusSize);
            }
        }
        QVERIFY2(icons > 40, qPrintable(QString("only %1 icons embedded").arg(icons)));
    }

    // A wrong name would silently draw nothing. Names built at run time
    // ("Icon_Layout_%1") need one icon of their prefix. The style sheets stay
    // ASCII since they are read as Latin-1.
    void everyNamedIconIsEmbedded()
    {
        const QString src = sourceDir();
        if (src.isEmpty())
            QFAIL("LUMIDOR_SOURCE_DIR is not set: run this test through ctest");
        const QRegularExpression named(":/Pic/(\\w+)|\"(Icon_\\w+)\"");
        const QStringList embedded = QDir(":/Pic").entryList({"*.png"});
        QStringList missing;
        int names = 0;
        for (const QString& top : QDir(src).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (top.startsWith("build") || top == "tests")
                continue;
            for (QDirIterator it(src + "/" + top, {"*.cpp", "*.h", "*.qss"}, QDir::Files, QDirIterator::Subdirectories);
                 it.hasNext();) {
                QFile file(it.next());
                QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
                const QByteArray bytes = file.readAll();
                if (file.fileName().endsWith(".qss"))
                    for (char c : bytes)
                        QVERIFY2(uchar(c) < 0x80, qPrintable(file.fileName()));
                for (auto m = named.globalMatch(QString::fromUtf8(bytes)); m.hasNext(); ++names) {
                    const QRegularExpressionMatch match = m.next();
                    const QString name = match.captured(1) + match.captured(2);
                    const bool found = name.endsWith('_') ? !embedded.filter(QRegularExpression("^" + name)).isEmpty()
                                                          : embedded.contains(name + ".png");
                    if (!found)
                        missing << name + " (" + QFileInfo(file.fileName()).fileName() + ")";
                }
            }
        }
        QVERIFY2(names > 40, "the sources name almost no icons: is the pattern broken?");
        QVERIFY2(missing.isEmpty(), qPrintable("not embedded: " + missing.join(", ")));
    }

    // Every *_zh_CN.ts of the source tree arrives as a loadable .qm.
    void translationsAreEmbedded()
    {
        const QString src = sourceDir();
        if (src.isEmpty())
            QFAIL("LUMIDOR_SOURCE_DIR is not set: run this test through ctest");
        QStringList expected;
        for (QDirIterator it(src, {"*_zh_CN.ts"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
            const QString path = it.next();
            if (path.contains("/i18n/") && !path.contains("/build"))
                expected << QFileInfo(path).completeBaseName();
        }
        QVERIFY2(expected.contains("app_zh_CN") && expected.contains("widgets_zh_CN"), qPrintable(expected.join(' ')));
        for (const QString& name : expected) {
            QTranslator t;
            QVERIFY2(t.load(QStringLiteral(":/i18n/%1.qm").arg(name)), qPrintable(name));
        }
    }
};

QTEST_MAIN(TestCommonWidgets)
#include "test_common_widgets.moc"
