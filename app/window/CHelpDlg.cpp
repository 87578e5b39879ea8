#include "CHelpDlg.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "CLanguageWatcher.h"
#include "FramelessDialogLayout.h"
#include "Named.h"

namespace {
QTableWidget* makeTable(QWidget* parent, const QString& name)
{
    auto* table = new QTableWidget(0, 2, parent);
    table->setObjectName(name);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
    table->setWordWrap(false);
    table->setAlternatingRowColors(true);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(30);
    return table;
}
} // namespace

CHelpDlg::CHelpDlg(QWidget* parent)
    : CFramelessDialog(parent)
{
    setObjectName(QStringLiteral("CHelpDlg"));
    resize(720, 340);

    m_tabs = named(new QTabWidget(this), "helpTabs");
    m_videoTable = makeTable(m_tabs, QStringLiteral("helpVideo"));
    m_deviceTable = makeTable(m_tabs, QStringLiteral("helpDevices"));
    m_featureTable = makeTable(m_tabs, QStringLiteral("helpFeatures"));
    m_tabs->addTab(m_videoTable, QString());
    m_tabs->addTab(m_deviceTable, QString());
    m_tabs->addTab(m_featureTable, QString());

    m_closeButton = named(new QPushButton(this), "btnHelpClose");
    m_closeButton->setDefault(true);
    connect(m_closeButton, &QPushButton::clicked, this, &QDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_closeButton);
    auto* body = new QVBoxLayout;
    body->setContentsMargins(12, 10, 12, 12);
    body->addWidget(m_tabs, 1);
    body->addLayout(buttons);
    frameFramelessDialog(this, body);
    CLanguageWatcher::install(this, [this]() { retranslate(); });
    retranslate();
}

void CHelpDlg::fillTable(QTableWidget* table, const QList<SAction>& rows)
{
    table->setHorizontalHeaderLabels({tr("Mouse or key"), tr("Action")});
    table->setRowCount(rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        table->setItem(i, 0, new QTableWidgetItem(tr(rows[i].input)));
        table->setItem(i, 1, new QTableWidgetItem(tr(rows[i].effect)));
    }
}

void CHelpDlg::retranslate()
{
    setTitle(tr("Help"));
    m_closeButton->setText(tr("Close"));
    m_tabs->setTabText(0, tr("Video views"));
    m_tabs->setTabText(1, tr("Device list"));
    m_tabs->setTabText(2, tr("Feature panel"));
    // QT_TR_NOOP marks the texts for translation; fillTable translates them.
    fillTable(m_videoTable,
              {{QT_TR_NOOP("Mouse wheel"), QT_TR_NOOP("Zoom in or out around the mouse pointer")},
               {QT_TR_NOOP("Left button drag"), QT_TR_NOOP("Move the zoomed image")},
               {QT_TR_NOOP("Double click"), QT_TR_NOOP("Enlarge the view to the whole video area, or back")},
               {QT_TR_NOOP("Right click"), QT_TR_NOOP("Menu of the view: zoom, flip, crosshair, save and record")},
               {QT_TR_NOOP("Click a view"), QT_TR_NOOP("Select its camera in the device list and the feature panel")},
               {QT_TR_NOOP("Layout buttons"), QT_TR_NOOP("Show 1, 2, 4, 9 or 16 views")}});
    fillTable(m_deviceTable,
              {{QT_TR_NOOP("Double click a camera"), QT_TR_NOOP("Connect to the camera")},
               {QT_TR_NOOP("Right click a camera"), QT_TR_NOOP("Menu: connect, disconnect, Force IP, user ID")},
               {QT_TR_NOOP("Right click the GigE Vision entry"), QT_TR_NOOP("Add a remote camera by its address")},
               {QT_TR_NOOP("Refresh button"), QT_TR_NOOP("Search for cameras again")},
               {QT_TR_NOOP("Buttons beside a camera"), QT_TR_NOOP("Connect, disconnect or change its IP address")}});
    fillTable(m_featureTable,
              {{QT_TR_NOOP("Click a value"), QT_TR_NOOP("Edit the feature")},
               {QT_TR_NOOP("Enter"), QT_TR_NOOP("Write the typed value to the camera")},
               {QT_TR_NOOP("Escape"), QT_TR_NOOP("Abandon the edit and keep the camera's value")},
               {QT_TR_NOOP("Mouse wheel on an editor"), QT_TR_NOOP("Change the value, only while the editor has the focus")},
               {QT_TR_NOOP("Search field"), QT_TR_NOOP("Show only the features whose name contains the text")},
               {QT_TR_NOOP("Hover a feature"), QT_TR_NOOP("Show its description, range and access")}});
}
