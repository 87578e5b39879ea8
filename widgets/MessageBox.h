#pragma once
// The application's message box as one call.
#include <QMessageBox>
#include <QString>

class QWidget;

// Runs the application's message box modally; returns the button pressed
// (a QMessageBox::StandardButton). path names a file the box offers to open.
int messageBox(const QString& text, QWidget* parent, QMessageBox::StandardButtons buttons, QMessageBox::Icon icon,
               const QString& path = QString());
