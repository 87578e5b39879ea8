#include "CMenu.h"

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
