#pragma once
// QMenu in the house style: tool tips of its actions are shown.
#include <QMenu>

class CMenu : public QMenu
{
    Q_OBJECT
public:
    explicit CMenu(QWidget* parent = nullptr);
    explicit CMenu(const QString& title, QWidget* parent = nullptr);
};
