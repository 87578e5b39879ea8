#pragma once
// The house layout of a frameless dialog: the title bar on top, then the
// dialog's content and a row of buttons aligned to the right, with the usual
// margins. Every small dialog of the application is laid out by it.
#include <QList>

class QLayout;
class QPushButton;
class CFramelessDialog;

void layOutFramelessDialog(CFramelessDialog* dialog, QLayout* content, const QList<QPushButton*>& buttons);

// Only the frame: the title bar on top of body, one pixel of the dialog's
// border showing around both (for dialogs with a body of their own).
void frameFramelessDialog(CFramelessDialog* dialog, QLayout* body);
