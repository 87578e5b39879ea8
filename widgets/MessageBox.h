#pragma once
// The application's message box as one call.
#include <QMessageBox>
#include <QString>
#include <functional>

class QWidget;

// Runs the application's message box modally; returns the button pressed
// (a QMessageBox::StandardButton). path names a file the box offers to open.
int messageBox(const QString& text, QWidget* parent, QMessageBox::StandardButtons buttons, QMessageBox::Icon icon,
               const QString& path = QString());

// Where a page tells the user of a failure; tests set one to collect the texts.
using FailureHandler = std::function<void(const QString& text)>;

// The text goes to the handler when there is one, else into a critical
// message box over parent.
void showFailure(const FailureHandler& handler, const QString& text, QWidget* parent);
