#include "CDiscoveryDevicesFormUi.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "Named.h"

namespace {
const int kButtonsColumnWidth = 76;

QTreeWidget* makeTree(QWidget* parent, const char* name, int indentation)
{
    auto* tree = named(new QTreeWidget(parent), name);
    tree->setColumnCount(2);
    tree->setRootIsDecorated(false);
    tree->setIndentation(indentation);
    tree->setHeaderHidden(true);
    tree->verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    tree->horizontalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    return tree;
}

QVBoxLayout* frameLayout(QFrame* frame)
{
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}
} // namespace

void CDiscoveryDevicesFormUi::setupUi(QWidget* form)
{
    form->setObjectName(QStringLiteral("CDiscoveryDevicesForm"));
    form->setMinimumWidth(250);
    contents = new QWidget(form);

    frameDevList = named(new QFrame(contents), "frame_DevList");
    lblDevList = named(new QLabel(frameDevList), "label_DevList");
    btnRefresh = named(new QPushButton(frameDevList), "reflesh");
    btnRefresh->setIcon(QIcon(QStringLiteral(":/Pic/Icon_DevList_Refresh.png")));
    btnCollpaseDevice = named(new QToolButton(frameDevList), "btnCollpaseDevice");
    btnCollpaseDevice->setIcon(QIcon(QStringLiteral(":/Pic/Icon_Panel_Collapse_Left.png")));
    btnCollpaseDevice->setAutoRaise(true);
    deviceList = makeTree(frameDevList, "deviceList", 23);
    deviceList->setMouseTracking(true);
    deviceList->setContextMenuPolicy(Qt::CustomContextMenu);
    deviceList->header()->setStretchLastSection(false);
    deviceList->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    deviceList->header()->setSectionResizeMode(1, QHeaderView::Fixed);
    deviceList->header()->resizeSection(1, kButtonsColumnWidth);

    auto* listHeader = new QHBoxLayout;
    listHeader->addWidget(lblDevList, 1);
    listHeader->addWidget(btnRefresh);
    listHeader->addWidget(btnCollpaseDevice);
    QVBoxLayout* listLayout = frameLayout(frameDevList);
    listLayout->addLayout(listHeader);
    listLayout->addWidget(deviceList, 1);

    frameDevInfo = named(new QFrame(contents), "frame_DevInfo");
    lblDevInfo = named(new QLabel(frameDevInfo), "label_DevInfo");
    deviceInfo = makeTree(frameDevInfo, "deviceInfo", 25);
    QVBoxLayout* infoLayout = frameLayout(frameDevInfo);
    infoLayout->addWidget(lblDevInfo);
    infoLayout->addWidget(deviceInfo, 1);

    auto* contentsLayout = new QVBoxLayout(contents);
    contentsLayout->setContentsMargins(0, 0, 0, 0);
    contentsLayout->addWidget(frameDevList, 3);
    contentsLayout->addWidget(frameDevInfo, 2);

    btnExpandDevice = named(new QToolButton(form), "btnExpandDevice");
    btnExpandDevice->setIcon(QIcon(QStringLiteral(":/Pic/Icon_Panel_Expand_Left.png")));
    btnExpandDevice->setFixedWidth(kCollapsedWidth);
    btnExpandDevice->setAutoRaise(true);
    btnExpandDevice->hide();

    auto* layout = new QHBoxLayout(form);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(contents, 1);
    layout->addWidget(btnExpandDevice, 0, Qt::AlignTop);
}

void CDiscoveryDevicesFormUi::retranslateUi()
{
    lblDevList->setText(tr("Device List"));
    btnRefresh->setText(tr("refresh"));
    lblDevInfo->setText(tr("Device Info"));
    btnCollpaseDevice->setToolTip(tr("Collapse"));
    btnExpandDevice->setToolTip(tr("Expand"));
}

void CDiscoveryDevicesFormUi::setCollapsed(QWidget* form, bool collapsed)
{
    contents->setVisible(!collapsed);
    btnExpandDevice->setVisible(collapsed);
    if (collapsed) {
        form->setFixedWidth(kCollapsedWidth);
    } else {
        form->setMinimumWidth(250);
        form->setMaximumWidth(15000);
    }
}
