#include "CComboBoxEx.h"

#include <QListView>

CComboBoxEx::CComboBoxEx(QWidget* parent) : QComboBox(parent)
{
    setView(new QListView(this));
}

void CComboBoxEx::showPopup()
{
    m_bShowPopup = true;
    QComboBox::showPopup();
}

void CComboBoxEx::hidePopup()
{
    m_bShowPopup = false;
    emit signalFocusOut();
    QComboBox::hidePopup();
}

void CComboBoxEx::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);
}
