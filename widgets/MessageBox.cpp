#include "MessageBox.h"

#include "CCommonMessageBox.h"

int messageBox(const QString& text, QWidget* parent, QMessageBox::StandardButtons buttons, QMessageBox::Icon icon,
               const QString& path)
{
    CCommonMessageBox box(parent);
    box.setMessage(text);
    box.setButtons(buttons);
    box.setIcon(icon);
    box.setFilePath(path);
    return box.exec();
}

void showFailure(const FailureHandler& handler, const QString& text, QWidget* parent)
{
    if (handler)
        handler(text);
    else
        messageBox(text, parent, QMessageBox::Ok, QMessageBox::Critical);
}
