#include "CCollapsiblePanel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

CCollapsiblePanel::CCollapsiblePanel(ESide side, QWidget* parent)
    : QWidget(parent)
    , m_side(side)
{
    setObjectName(side == LeftSide ? QStringLiteral("leftPanel") : QStringLiteral("rightPanel"));

    m_strip = new QWidget(this);
    m_strip->setObjectName(QStringLiteral("panelStrip"));
    m_strip->setAttribute(Qt::WA_StyledBackground, true);
    m_strip->setFixedWidth(kStripWidth);
    m_toggle = new QToolButton(m_strip);
    m_toggle->setObjectName(QStringLiteral("btnPanelToggle"));
    m_toggle->setAutoRaise(true);
    m_toggle->setFocusPolicy(Qt::NoFocus);
    m_toggle->setFixedSize(kStripWidth, 40);
    m_toggle->setIconSize(QSize(kStripWidth, kStripWidth));
    connect(m_toggle, &QToolButton::clicked, this, &CCollapsiblePanel::toggle);
    auto* stripLayout = new QVBoxLayout(m_strip);
    stripLayout->setContentsMargins(0, 0, 0, 0);
    stripLayout->addStretch(1);
    stripLayout->addWidget(m_toggle);
    stripLayout->addStretch(1);

    m_layout = new QHBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    // The strip faces the centre of the window.
    m_layout->addWidget(m_strip);
    updateToggle();
}

void CCollapsiblePanel::setContent(QWidget* content)
{
    if (m_content == content)
        return;
    delete m_content;
    m_content = content;
    if (!m_content)
        return;
    m_content->setParent(this);
    m_layout->insertWidget(m_side == LeftSide ? 0 : 1, m_content, 1);
    m_content->setVisible(!m_collapsed);
}

void CCollapsiblePanel::setStripVisible(bool visible)
{
    m_strip->setVisible(visible);
}

void CCollapsiblePanel::setCollapsed(bool collapsed)
{
    if (m_collapsed == collapsed)
        return;
    if (collapsed) {
        if (width() > kStripWidth)
            m_expandedWidth = width();
        m_collapsed = true;
        if (m_content)
            m_content->hide();
        setFixedWidth(kStripWidth);
        resizeInSplitter(kStripWidth);
    } else {
        m_collapsed = false;
        setMinimumWidth(0);
        setMaximumWidth(QWIDGETSIZE_MAX);
        if (m_content)
            m_content->show();
        resizeInSplitter(m_expandedWidth);
        if (!qobject_cast<QSplitter*>(parentWidget()))
            resize(m_expandedWidth, height());
    }
    updateToggle();
    emit collapsedChanged(m_collapsed);
}

void CCollapsiblePanel::resizeInSplitter(int width)
{
    // The width taken or given back goes to the widest other pane (the
    // video area), so the other side panel keeps its width.
    auto* splitter = qobject_cast<QSplitter*>(parentWidget());
    if (!splitter)
        return;
    const int self = splitter->indexOf(this);
    QList<int> sizes = splitter->sizes();
    if (self < 0 || sizes.size() < 2)
        return;
    int other = -1;
    for (int i = 0; i < sizes.size(); ++i)
        if (i != self && (other < 0 || sizes[i] > sizes[other]))
            other = i;
    const int delta = qMin(width - sizes[self], sizes[other]);
    sizes[self] += delta;
    sizes[other] -= delta;
    splitter->setSizes(sizes);
}

void CCollapsiblePanel::updateToggle()
{
    // Collapse points away from the centre, expand points back at it.
    QString icon;
    if (m_side == LeftSide)
        icon = m_collapsed ? QStringLiteral(":/Pic/Icon_Panel_Expand_Left.png")
                           : QStringLiteral(":/Pic/Icon_Panel_Collapse_Left.png");
    else
        icon = m_collapsed ? QStringLiteral(":/Pic/Icon_Panel_Expand_Right.png")
                           : QStringLiteral(":/Pic/Icon_Panel_Collapse_Right.png");
    m_toggle->setIcon(QIcon(icon));
    m_toggle->setToolTip(m_collapsed ? tr("Show panel") : tr("Hide panel"));
}

void CCollapsiblePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        updateToggle();
    QWidget::changeEvent(event);
}
