#pragma once
// GPIO page of the property panel: a placeholder with one button.
#include <QWidget>

class QPushButton;

class CPropertyGPIOForm : public QWidget
{
    Q_OBJECT
public:
    explicit CPropertyGPIOForm(QWidget* parent = nullptr);
    void retranslateUi();

private:
    QPushButton* m_btnCommon;
};
