#pragma once
// Calls a widget's retranslation whenever the widget gets a LanguageChange
// event (a translator installed or removed, or the language manager's own
// event), so a widget whose only reaction to the language is re-setting its
// texts needs no changeEvent override of its own. It runs before the
// widget's own changeEvent and before the children hear of the change.
#include <QObject>
#include <functional>

class QWidget;

class CLanguageWatcher : public QObject
{
    Q_OBJECT
public:
    // The watcher is a child of the widget and goes with it.
    static void install(QWidget* widget, std::function<void()> retranslate);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CLanguageWatcher(QWidget* widget, std::function<void()> retranslate);

    std::function<void()> m_retranslate;
};
