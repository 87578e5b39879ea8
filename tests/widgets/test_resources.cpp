// The icons and the compiled translations are embedded and readable, and
// every icon the sources and the style sheets name is among them.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

namespace {
// The source tree, or empty when the test was not started by ctest.
QString sourceDir()
{
    return QString::fromLocal8Bit(qgetenv("LUMIDOR_SOURCE_DIR"));
}
} // namespace

class TestResources : public QObject
{
    Q_OBJECT
private slots:
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

QTEST_MAIN(TestResources)
#include "test_resources.moc"
