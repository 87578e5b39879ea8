#pragma once
// Editor of command rows: a push button that executes the command, replaced
// by the label "{Executing}" until the command has finished.
#include <QLabel>
#include <QPushButton>

#include "qtpropertymanager.h"

class myPushButton : public QPushButton
{
    Q_OBJECT
public:
    explicit myPushButton(QWidget* parent = nullptr) : QPushButton(parent) {}
};

class QtPushButtonFactory : public QtEditorFactory<QtStringPropertyManager, myPushButton>
{
    Q_OBJECT
public:
    explicit QtPushButtonFactory(QObject* parent = nullptr);
    ~QtPushButtonFactory() override;

    // done false: the command is executing; every open editor of the
    // property shows the executing label instead of the button.
    void setDone(QtProperty* property, bool done);

signals:
    void onClick(QtProperty* property, bool checked);

protected:
    void connectPropertyManager(QtStringPropertyManager* manager) override;
    QWidget* createEditor(QtStringPropertyManager* manager, QtProperty* property, QWidget* parent) override;

private:
    void slotPropertyChanged(QtProperty* property, const QString& value);
    void slotClick(bool checked);
    static void showState(QWidget* editor, bool done);
};
