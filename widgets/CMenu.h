#pragma once
// QMenu in the house style: tool tips of its actions are shown, and
// popupBelow() opens it under a button, kept on the button's screen.
#include <QMenu>

class CMenu : public QMenu
{
    Q_OBJECT
public:
    explicit CMenu(QWidget* parent = nullptr);
    explicit CMenu(const QString& title, QWidget* parent = nullptr);

    // Where popupBelow() puts the menu's top-left corner for this anchor,
    // moved left or up as needed to stay inside the anchor's screen.
    QPoint positionBelow(const QWidget* anchor) const;
    void popupBelow(const QWidget* anchor);
};
