#include "CMultiVideoForm.h"

#include <QGridLayout>

#include "CRoiEditor.h"
#include "CTavDevice.h"
#include "CVideoForm.h"
#include "CViewSignalHub.h"

namespace {

// Display options apply to every view alike.
template <typename Arg, typename Value>
void setOnEveryForm(const QVector<CVideoForm*>& forms, void (CVideoForm::*set)(Arg), const Value& value)
{
    for (CVideoForm* f : forms)
        (f->*set)(value);
}

} // namespace

CMultiVideoForm::CMultiVideoForm(QWidget* parent, bool attachToBus) : QWidget(parent)
{
    setObjectName(QStringLiteral("multiVideoForm"));
    m_grid = new QGridLayout(this);
    m_grid->setObjectName(QStringLiteral("gridVideo"));
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(2);
    m_viewSignals = new CViewSignalHub(this);
    for (int i = 0; i < kFormCount; ++i) {
        auto* form = new CVideoForm(i, this, attachToBus);
        form->setViewSignals(m_viewSignals);
        form->hide();
        connect(form, &CVideoForm::signalClicked, this, &CMultiVideoForm::OnFormHighLighted);
        connect(form, &CVideoForm::signalMaxMize, this, &CMultiVideoForm::OnMaxMizeForm);
        connect(form, &CVideoForm::signalSwap, this, &CMultiVideoForm::OnSwapForm);
        connect(form, &CVideoForm::signalROIChanged, this, [this]() { emit roiSaved(saveROIConfig()); });
        m_forms.append(form);
        m_order.append(i);
    }
    setGridLayout(VIDEO_LAYOUT_1);
    highlight(0);
}

CVideoForm* CMultiVideoForm::getForm(int id) const
{
    return (id >= 0 && id < m_forms.size()) ? m_forms[id] : nullptr;
}

int CMultiVideoForm::getFormIdByDevice(const CTavDevicePtr& device) const
{
    for (CVideoForm* f : m_forms)
        if (f->isDeviceBind(device))
            return f->getFormID();
    return -1;
}

QPoint CMultiVideoForm::gridPosition(int id) const
{
    CVideoForm* f = getForm(id);
    const int index = f ? m_grid->indexOf(f) : -1;
    if (index < 0)
        return QPoint(-1, -1);
    int row, column, rowSpan, columnSpan;
    m_grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
    return QPoint(row, column);
}

void CMultiVideoForm::rebuildGrid(const QVector<int>& ids, int columns)
{
    // Hidden while rebuilt, so the grid is never painted half done.
    const bool wasVisible = isVisible();
    if (wasVisible)
        hide();
    for (CVideoForm* f : m_forms) {
        m_grid->removeWidget(f);
        f->hide();
    }
    // Stretch factors of a larger earlier layout would keep empty cells.
    for (int i = 0; i < 4; ++i) {
        m_grid->setRowStretch(i, 0);
        m_grid->setColumnStretch(i, 0);
    }
    for (int pos = 0; pos < ids.size(); ++pos) {
        CVideoForm* f = m_forms[ids[pos]];
        m_grid->addWidget(f, pos / columns, pos % columns);
        m_grid->setRowStretch(pos / columns, 1);
        m_grid->setColumnStretch(pos % columns, 1);
        f->show();
    }
    if (wasVisible)
        show();
    emit signalWndMoved();
}

void CMultiVideoForm::setGridLayout(EN_VIDEO_LAYOUT layout)
{
    const int n = getVideoNumber(layout);
    if (n <= 0)
        return;
    if (m_maxMode) {
        for (CVideoForm* f : m_forms)
            f->setMaxMode(false);
        m_maxMode = false;
    }
    m_layout = layout;
    for (CVideoForm* f : m_forms)
        f->setVideoLayout(layout);
    rebuildGrid(m_order.mid(0, n), getColumn(layout));
    // The highlighted view stays highlighted when it is still shown.
    highlight(m_order.mid(0, n).contains(m_highlighted) ? m_highlighted : m_order[0]);
    emit layout_changed();
}

int CMultiVideoForm::getFreeVideoFormID() const
{
    const int n = getVideoNumber(m_layout);
    for (int id = 0; id < n; ++id)
        if (m_forms[id]->isFree())
            return id;
    return -1;
}

int CMultiVideoForm::bindDevice(CTavDevicePtr device)
{
    if (!device)
        return -1;
    const int bound = getFormIdByDevice(device);
    if (bound >= 0)
        return bound;
    int id = getFreeVideoFormID();
    while (id < 0) {
        const EN_VIDEO_LAYOUT next = nextVideoLayout(m_layout);
        if (next == VIDEO_LAYOUT_NONE)
            return -1;
        setGridLayout(next);
        id = getFreeVideoFormID();
    }
    m_forms[id]->setDevice(device);
    OnFormHighLighted(id);
    return id;
}

void CMultiVideoForm::unBindDevice(CTavDevicePtr device)
{
    const int id = getFormIdByDevice(device);
    if (id >= 0)
        m_forms[id]->setDevice(CTavDevicePtr());
}

void CMultiVideoForm::showWaitingGif(CTavDevicePtr device, EN_MESSAGE_TYPE type)
{
    const int id = getFormIdByDevice(device);
    if (id >= 0)
        m_forms[id]->showWaitingGif(type);
}

void CMultiVideoForm::setCurDevice(CTavDevicePtr device)
{
    // Selection from elsewhere: highlight without announcing it back.
    const int id = getFormIdByDevice(device);
    if (id >= 0)
        highlight(id);
}

void CMultiVideoForm::highlight(int id)
{
    if (!getForm(id))
        return;
    m_highlighted = id;
    for (CVideoForm* f : m_forms)
        f->setHighlighted(f->getFormID() == id);
}

void CMultiVideoForm::OnFormHighLighted(int id)
{
    if (!getForm(id))
        return;
    highlight(id);
    if (CTavDevicePtr device = m_forms[id]->getDevice())
        emit select_device(device);
}

void CMultiVideoForm::maxMizeForm(int id)
{
    if (!getForm(id))
        return;
    m_savedLayout = m_layout;
    rebuildGrid(QVector<int>{ id }, 1);
    m_forms[id]->setMaxMode(true);
    m_forms[id]->setVideoLayout(m_layout);
    m_maxMode = true;
    highlight(id);
}

void CMultiVideoForm::exitMaxMode()
{
    if (!m_maxMode)
        return;
    setGridLayout(m_savedLayout);
}

void CMultiVideoForm::OnMaxMizeForm(int id)
{
    if (m_maxMode)
        exitMaxMode();
    else
        maxMizeForm(id);
}

void CMultiVideoForm::MaximizeRestoreVideo()
{
    OnMaxMizeForm(m_highlighted);
}

void CMultiVideoForm::OnSwapForm(int from, int to)
{
    if (from == to || m_maxMode || !getForm(from) || !getForm(to))
        return;
    const QPoint a = gridPosition(from);
    const QPoint b = gridPosition(to);
    if (a.x() < 0 || b.x() < 0)
        return;
    m_grid->removeWidget(m_forms[from]);
    m_grid->removeWidget(m_forms[to]);
    m_grid->addWidget(m_forms[from], b.x(), b.y());
    m_grid->addWidget(m_forms[to], a.x(), a.y());
    const int pa = m_order.indexOf(from);
    const int pb = m_order.indexOf(to);
    if (pa >= 0 && pb >= 0)
        std::swap(m_order[pa], m_order[pb]);
    OnFormHighLighted(from);
    emit signalWndMoved();
}

void CMultiVideoForm::setShowCrosshair(bool show)
{
    setOnEveryForm(m_forms, &CVideoForm::setShowCrosshair, show);
}

void CMultiVideoForm::setCrosshairColor(const QColor& color)
{
    setOnEveryForm(m_forms, &CVideoForm::setCrosshairColor, color);
}

void CMultiVideoForm::setShowChunkData(bool show)
{
    setOnEveryForm(m_forms, &CVideoForm::setShowChunkData, show);
}

void CMultiVideoForm::setDrawROIEnable(bool enable)
{
    setOnEveryForm(m_forms, &CVideoForm::setDrawROIEnable, enable);
}

void CMultiVideoForm::setDisplayROIEnable(bool enable)
{
    setOnEveryForm(m_forms, &CVideoForm::setDisplayROIEnable, enable);
}

void CMultiVideoForm::setROIColor(const QColor& color)
{
    setOnEveryForm(m_forms, &CVideoForm::setROIColor, color);
}

void CMultiVideoForm::setBayerDemosaic(int demosaic)
{
    setOnEveryForm(m_forms, &CVideoForm::setBayerDemosaic, demosaic);
}

void CMultiVideoForm::deleteROI()
{
    m_forms[m_highlighted]->deleteROI();
}

void CMultiVideoForm::setROI(QList<stuROI> rois)
{
    m_forms[m_highlighted]->setROI(rois);
}

void CMultiVideoForm::getROIByDevcie(QList<stuROI>& rois, CTavDevicePtr device)
{
    const int id = getFormIdByDevice(device);
    rois = id >= 0 ? m_forms[id]->getROI() : QList<stuROI>();
}

bool CMultiVideoForm::saveROIConfig()
{
    CConfiguration* cfg = CConfiguration::getInstance();
    for (CVideoForm* f : m_forms)
        cfg->mapVideoFormROI[f->getFormID()] = f->getROI();
    return cfg->saveConfigToUserXml();
}

void CMultiVideoForm::restoreROIFromConfig()
{
    const CConfiguration* cfg = CConfiguration::getInstance();
    for (CVideoForm* f : m_forms)
        f->setROI(cfg->mapVideoFormROI.value(f->getFormID()));   // invalid entries are dropped by the view
}
