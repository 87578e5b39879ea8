#include "CMenu.h"

#include <QGuiApplication>
#include <QScreen>

CMenu::CMenu(QWidget* parent)
    : QMenu(parent)
{
    setObjectName(QStringLiteral("CMenu"));
    setToolTipsVisible(true);
}

CMenu::CMenu(const QString& title, QWidget* parent)
    : CMenu(parent)
{
    setTitle(title);
}

QPoint CMenu::positionBelow(const QWidget* anchor) const
{
    QPoint pos = anchor->mapToGlobal(QPoint(0, anchor->height()));
    QScreen* screen = QGuiApplication::screenAt(anchor->mapToGlobal(QPoint(0, 0)));
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return pos;
    const QRect area = screen->availableGeometry();
    const QSize size = sizeHint();
    if (pos.x() + size.width() > area.right())
        pos.setX(qMax(area.left(), area.right() - size.width()));
    if (pos.y() + size.height() > area.bottom())
        pos.setY(qMax(area.top(), anchor->mapToGlobal(QPoint(0, 0)).y() - size.height()));
    return pos;
}

void CMenu::popupBelow(const QWidget* anchor)
{
    popup(positionBelow(anchor));
}
