#pragma once
// A one-line QLabel that, when narrower than its text, ends the text with
// "..." instead of cutting it off mid-letter, so the operator can see that
// more is there (the tool tip, when set, holds all of it). text() stays
// the whole text.
#include <QLabel>

class CElidedLabel : public QLabel
{
    Q_OBJECT
public:
    explicit CElidedLabel(QWidget* parent = nullptr);

    // The text as painted at the current width.
    QString shownText() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};
