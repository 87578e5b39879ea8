#pragma once
// QLineEdit in the house style: Escape puts back the text the field had when
// it got the focus, so an operator can abandon an edit, and the text is
// selected on focus by keyboard so typing replaces it.
#include <QLineEdit>

class CLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit CLineEdit(QWidget* parent = nullptr);

    // The text as it was when the field last got the focus.
    QString textAtFocus() const { return m_textAtFocus; }

signals:
    // Escape restored textAtFocus().
    void editReverted();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString m_textAtFocus;
};
