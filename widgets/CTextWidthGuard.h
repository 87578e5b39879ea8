#pragma once
// Keeps a push button at least as wide as its text needs. The style sheet's
// min-width becomes an explicit minimum width, and a layout honours an
// explicit minimum even when it is narrower than the text (a longer
// translation, another font), so a crowded row would cut the text off. The
// guard replaces that minimum with the button's size hint whenever style,
// font or language change, and when asked (fit()) after a text change.
#include <QObject>

class QPushButton;

class CTextWidthGuard : public QObject
{
    Q_OBJECT
public:
    // The guard is a child of the button and goes with it.
    static void install(QPushButton* button);
    // Sets the button's minimum width to what its current text needs.
    static void fit(QPushButton* button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit CTextWidthGuard(QPushButton* button);
    void fitLater();

    QPushButton* m_button;
    bool m_pending = false;
};
