#include "QtPushButtonFactory.h"

#include <QHBoxLayout>

QtPushButtonFactory::QtPushButtonFactory(QObject* parent) : QtEditorFactory(parent) {}

QtPushButtonFactory::~QtPushButtonFactory()
{
    // An editor is the button's container.
    const QList<myPushButton*> buttons = d.m_editorToProperty.keys();
    for (myPushButton* button : buttons)
        delete button->parentWidget();
}

void QtPushButtonFactory::connectPropertyManager(QtStringPropertyManager* manager)
{
    connect(manager, &QtStringPropertyManager::valueChanged, this, &QtPushButtonFactory::slotPropertyChanged);
    connect(manager, &QtStringPropertyManager::onClick, this, &QtPushButtonFactory::onClick);
}

QWidget* QtPushButtonFactory::createEditor(QtStringPropertyManager* manager, QtProperty* property, QWidget* parent)
{
    auto* editor = new QWidget(parent);
    auto* layout = new QHBoxLayout(editor);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* button = new myPushButton(editor);
    button->setObjectName("myPushButton");
    button->setText(manager->value(property));
    auto* label = new QLabel(property->executingText().isEmpty() ? tr("{Executing}") : property->executingText(),
                             editor);
    label->setObjectName("labelExecuting");
    label->setStyleSheet("background: #E9E7E3;");
    layout->addWidget(button);
    layout->addWidget(label);
    showState(editor, property->isDone());
    addEditor(property, button);
    connect(button, &QPushButton::clicked, this, &QtPushButtonFactory::slotClick);
    return editor;
}

void QtPushButtonFactory::showState(QWidget* editor, bool done)
{
    auto* button = editor->findChild<myPushButton*>("myPushButton");
    auto* label = editor->findChild<QLabel*>("labelExecuting");
    if (button)
    {
        button->setVisible(done);
        button->setDefault(done);
    }
    if (label)
        label->setVisible(!done);
}

void QtPushButtonFactory::setDone(QtProperty* property, bool done)
{
    if (!property)
        return;
    property->setDone(done);
    if (QtStringPropertyManager* manager = propertyManager(property))
        emit manager->propertyChanged(property);
    for (myPushButton* button : d.editors(property))
    {
        auto* label = button->parentWidget()->findChild<QLabel*>("labelExecuting");
        if (label && !property->executingText().isEmpty())
            label->setText(property->executingText());
        showState(button->parentWidget(), done);
    }
}

void QtPushButtonFactory::slotPropertyChanged(QtProperty* property, const QString& value)
{
    updateEditors(property, [&value](myPushButton* button) { button->setText(value); });
}

void QtPushButtonFactory::slotClick(bool checked)
{
    QtProperty* property = d.propertyOf(sender());
    if (!property)
        return;
    if (QtStringPropertyManager* manager = propertyManager(property))
        manager->click(property, checked);
}
