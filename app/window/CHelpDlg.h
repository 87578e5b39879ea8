#pragma once
// Help: the mouse and keyboard actions of the video views, the device list
// and the feature panel, one table per area.
#include "CFramelessDialog.h"

class QTabWidget;
class QTableWidget;
class QPushButton;

class CHelpDlg : public CFramelessDialog
{
    Q_OBJECT
public:
    explicit CHelpDlg(QWidget* parent = nullptr);

    QTabWidget* tabs() const { return m_tabs; }

private:
    struct SAction
    {
        const char* input;
        const char* effect;
    };
    void retranslate();
    void fillTable(QTableWidget* table, const QList<SAction>& rows);

    QTabWidget* m_tabs;
    QTableWidget* m_videoTable;
    QTableWidget* m_deviceTable;
    QTableWidget* m_featureTable;
    QPushButton* m_closeButton;
};
