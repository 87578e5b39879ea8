// The icon set and the compiled translations are embedded and readable.
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

class TestResources : public QObject
{
    Q_OBJECT
private slots:
    // Every name the panels load must exist, decode, and be square; the
    // status marks must share one size because the device list sizes its
    // icons from one of them.
    void iconsExistAndDecode()
    {
        const QStringList names = {
            "Icon_DevList_DeviceStatus_Error", "Icon_DevList_DeviceStatus_Connected",
            "Icon_DevList_DeviceStatus_Normal", "Icon_DevList_DeviceStatus_Acquisition",
            "Icon_DevList_DeviceStatus_Warn", "Icon_Common_Exclamation_Mark", "Lumidor",
            "Icon_Video_Play", "Icon_Video_Stop", "Icon_Video_ZoomIn", "Icon_Video_ZoomOut",
            "Icon_Video_ZoomFit", "Icon_Video_Zoom100", "Icon_Video_Snapshot", "Icon_Video_Record",
            "Icon_Video_FlipH", "Icon_Video_FlipV", "Icon_Video_FullScreen", "Icon_Video_Maximize",
            "Icon_Video_Options", "Icon_Layout_1", "Icon_Layout_2", "Icon_Layout_4", "Icon_Layout_9",
            "Icon_Layout_16", "Icon_DevList_Refresh", "Icon_DevList_Connect", "Icon_DevList_Disconnect",
            "Icon_DevList_Settings", "Icon_Panel_Collapse_Left", "Icon_Panel_Collapse_Right",
            "Icon_Panel_Expand_Left", "Icon_Panel_Expand_Right", "Icon_Property_Tab_Features",
            "Icon_Property_Tab_Settings", "Icon_Property_Tab_ImageFormat", "Icon_Property_Tab_UserSet",
            "Icon_Property_Search", "Icon_Property_Translate", "Icon_Property_Expand",
            "Icon_Property_Collapse", "Icon_Property_Reset", "Icon_Property_Save", "Icon_Waiting",
            "Icon_Message_Error", "Icon_Message_Warning", "Icon_Message_Information", "Icon_Message_Question",
            "Icon_Common_Arrow_Up", "Icon_Common_Arrow_Down", "Icon_Common_Check"};
        QSize statusSize;
        for (const QString& name : names) {
            const QString path = QStringLiteral(":/Pic/%1.png").arg(name);
            QImage image(path);
            QVERIFY2(!image.isNull(), qPrintable(path));
            QCOMPARE(image.width(), image.height());
            // Drawn for a dark background: not a blank, fully transparent image.
            bool painted = false;
            for (int y = 0; y < image.height() && !painted; ++y)
                for (int x = 0; x < image.width() && !painted; ++x)
                    painted = qAlpha(image.pixel(x, y)) > 0;
            QVERIFY2(painted, qPrintable(path));
            if (name.startsWith(QLatin1String("Icon_DevList_DeviceStatus_"))) {
                if (statusSize.isEmpty())
                    statusSize = image.size();
                QCOMPARE(image.size(), statusSize);
            }
        }
    }

    // Every image the style sheet names is embedded; a wrong name would
    // silently draw nothing. The sheets stay ASCII since they are read as Latin-1.
    void styleSheetImagesExist()
    {
        const QByteArray src = qgetenv("LUMIDOR_SOURCE_DIR");
        if (src.isEmpty())
            QFAIL("LUMIDOR_SOURCE_DIR is not set: run this test through ctest");
        const QString dir = QString::fromLocal8Bit(src) + QStringLiteral("/res/Skins/Default/Vintrel/");
        int urls = 0;
        for (const char* name : {"style.qss", "style_eng_font.qss", "style_chn_font.qss"}) {
            QFile file(dir + QLatin1String(name));
            QVERIFY2(file.open(QIODevice::ReadOnly), name);
            const QByteArray bytes = file.readAll();
            for (char c : bytes)
                QVERIFY2(uchar(c) < 0x80, name);
            const QRegularExpression url(QStringLiteral("url\\((:[^)]+)\\)"));
            auto it = url.globalMatch(QString::fromLatin1(bytes));
            while (it.hasNext()) {
                const QString path = it.next().captured(1);
                QVERIFY2(!QImage(path).isNull(), qPrintable(path));
                ++urls;
            }
        }
        QVERIFY(urls > 0);
    }

    // Every *_zh_CN.ts of the source tree arrives as a loadable .qm.
    void translationsAreEmbedded()
    {
        const QByteArray src = qgetenv("LUMIDOR_SOURCE_DIR");
        if (src.isEmpty())
            QFAIL("LUMIDOR_SOURCE_DIR is not set: run this test through ctest");
        QStringList expected;
        QDirIterator it(QString::fromLocal8Bit(src), {QStringLiteral("*_zh_CN.ts")}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            if (path.contains(QLatin1String("/i18n/")) && !path.contains(QLatin1String("/build")))
                expected << QFileInfo(path).completeBaseName();
        }
        QVERIFY2(expected.contains(QStringLiteral("app_zh_CN")), "app/i18n/app_zh_CN.ts missing");
        QVERIFY2(expected.contains(QStringLiteral("widgets_zh_CN")), "widgets/i18n/widgets_zh_CN.ts missing");
        for (const QString& name : expected) {
            QTranslator t;
            QVERIFY2(t.load(QStringLiteral(":/i18n/%1.qm").arg(name)), qPrintable(name));
        }
    }
};

QTEST_MAIN(TestResources)
#include "test_resources.moc"
