#pragma once
// A bar with a title on the left and one tool button at its right end, drawn
// with the style sheet's background. Subclasses name the bar, set up the
// button and decide what the title, a press and a drag mean (a dialog's bar
// moves its window).
#include <QWidget>

class QLabel;
class QToolButton;

class CTitleBar : public QWidget
{
    Q_OBJECT
public:
    virtual void setTitle(const QString& title);
    QString title() const;

protected:
    // labelName and buttonName: the object names the style sheet knows them by.
    CTitleBar(const QString& labelName, const QString& buttonName, QWidget* parent);

    // The button; layout() holds the label and the button in a row.
    QToolButton* barButton() const { return m_button; }

private:
    QLabel* m_titleLabel;
    QToolButton* m_button;
};
