#pragma once
// The house layout of a frameless dialog: the title bar on top, then the
// dialog's content and a row of buttons aligned to the right, with the usual
// margins. Every small dialog of the application is laid out by it.
#include <QList>

class QDialog;
class QLayout;
class QPushButton;
class CDialogTitleBar;

void layOutFramelessDialog(QDialog* dialog, CDialogTitleBar* titleBar, QLayout* content,
                           const QList<QPushButton*>& buttons);

// Only the frame: the title bar on top of body, one pixel of the dialog's
// border showing around both (for dialogs with a body of their own).
void frameFramelessDialog(QDialog* dialog, CDialogTitleBar* titleBar, QLayout* body);
