#pragma once
// The widget of a root row in the device trees: a check box (expand or
// collapse the root) and the root's text. Its style follows the mouse through
// the dynamic property "hover".
#include <QFrame>

class QCheckBox;
class QLabel;

class CDiscoveryRootForm : public QFrame
{
    Q_OBJECT
public:
    explicit CDiscoveryRootForm(QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const;
    void setChecked(bool checked);
    bool isChecked() const;
    void setCheckBoxVisible(bool visible);
    bool isCheckBoxVisible() const;
    QCheckBox* checkBox() const { return m_checkBox; }

signals:
    void signalCheckBoxClicked(bool checked);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void setHover(bool hover);

    QCheckBox* m_checkBox;
    QLabel* m_label;
};
