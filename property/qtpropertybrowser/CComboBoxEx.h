#pragma once
// Combo box of the enumeration editor: remembers whether its list is open
// and announces when the list closes, so the tree can end the edit then.
#include <QComboBox>

class CComboBoxEx : public QComboBox
{
    Q_OBJECT
public:
    explicit CComboBoxEx(QWidget* parent = nullptr);

    void showPopup() override;
    void hidePopup() override;
    bool isShowPopup() const { return m_bShowPopup; }

signals:
    void signalFocusOut();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_bShowPopup = false;
};
