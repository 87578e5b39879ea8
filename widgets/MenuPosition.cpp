#include "MenuPosition.h"

#include <QGuiApplication>
#include <QRect>
#include <QScreen>

#include "AddressUtils.h"

QPoint getMenuPos(QPoint pos, QSize size)
{
    QScreen* screen = QGuiApplication::screenAt(pos);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return getMenuPos(pos, size, screen ? screen->geometry() : QRect(0, 0, 1920, 1080));
}
