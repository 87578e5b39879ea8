#pragma once
// Wheel policy shared by the value editors: a wheel turn changes a value only
// when the editor has the keyboard focus. Otherwise the event is ignored so
// it reaches the scroll area around the editor, and scrolling a panel never
// changes a camera setting by accident.
#include <QWheelEvent>
#include <QWidget>

class CWheelGuard
{
public:
    // Gives the widget focus by click and Tab, never by wheel.
    static void install(QWidget* editor) { editor->setFocusPolicy(Qt::StrongFocus); }

    // True when the editor may handle the event; otherwise the event has
    // been marked ignored and the caller returns at once.
    static bool accepts(const QWidget* editor, QWheelEvent* event)
    {
        if (editor->hasFocus())
            return true;
        event->ignore();
        return false;
    }
};
